#pragma once

#include <cstdint>
#include <string>

#include "platform/posix/window/UpdateRect.h"

namespace korvane {

struct ThreadQueue;

struct WindowClass {
    std::wstring name;
    WNDPROC procedure;
    ATOM atom;
};

struct Window {
    HWND handle = nullptr;
    ThreadQueue* queue = nullptr;
    const WindowClass* windowClass = nullptr;
    WNDPROC procedure = nullptr;
    std::wstring title;
    HWND parent = nullptr;
    std::uint64_t born = 0;  // nanoseconds of the machine's steady clock
    DWORD style = 0;
    LONG_PTR userData = 0;
    bool visible = false;
    bool ending = false;
    LONG x = 0;
    LONG y = 0;
    LONG width = 0;
    LONG height = 0;
    UpdateRect update;
};

}  // namespace korvane
