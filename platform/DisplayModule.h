#pragma once

#include "platform/Display.h"

/// The contract between the library and a display module. A module uses nothing of the library but this
/// table, so that it needs no link to it.
namespace korvane {

struct DisplayHost {
    /// Posts input that arrived `ageMs` milliseconds ago.
    bool (*postInput)(HWND owner, UINT message, WPARAM wParam, LPARAM lParam, DWORD ageMs);
    /// Asks the owner to paint everything anew.
    void (*invalidate)(HWND owner);
    /// Keeps a text for DisplayFailure.
    void (*fail)(const char* text);
};

/// Changes with every change of Display or DisplayHost; a module of another version gives null.
constexpr int kDisplayModuleVersion = 1;

/// A module exports one function of this type and name. The caller owns the result; `host` outlives it.
using DisplayModuleEntry = Display* (*)(int version, const DisplayHost* host);
constexpr char kDisplayModuleEntryName[] = "KorvaneCreateDisplay";

}  // namespace korvane
