#pragma once

#include <string>

#include "platform/coredll.h"

/// How a running head unit is driven and looked at from outside: by messages to a window of its own.
namespace korvane::tools {

constexpr wchar_t kHeadUnitClass[] = L"KorvaneHeadUnit";

/// What is sent to that window. Beside these it takes the pointer messages 512 to 514, with positions in
/// pixels of the screen, and hands them to the screen as a touch panel would.
enum HeadUnitRequest : UINT {
    /// Answers with the screen's width in the low and its height in the high word.
    kRequestScreenSize = WM_APP + 1,
    /// Handles what waits in the queue, then writes what the screen shows to `PictureFile(wParam)`. Answers
    /// with 1, or with 0 when the file cannot be written.
    kRequestPicture = WM_APP + 2,
};

/// The device file of a picture; whoever asked for it deletes it.
inline std::wstring PictureFile(WPARAM number) {
    return L"\\Temp\\HeadUnit-" + std::to_wstring(static_cast<DWORD>(number)) + L".lqi";
}

}  // namespace korvane::tools
