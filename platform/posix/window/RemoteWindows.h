#pragma once

#include "platform/coredll.h"

namespace korvane {

/// The windows of other processes, behind the calls that may name one: FindWindowW, IsWindow, PostMessageW
/// and SendMessageW. Its handles have bit 30 set, which no window of this process has. Called from any
/// thread, without locks held.
class RemoteWindows {
  public:
    static constexpr UINT_PTR kHandleBit = 0x40000000;

    virtual ~RemoteWindows() = default;
    virtual HWND Find(LPCWSTR className, LPCWSTR title) = 0;
    virtual bool Exists(HWND window) = 0;
    virtual bool Post(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;
    virtual LRESULT Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;
};

/// Borrowed; null, as at the start, when there are none. To be set before other threads use windows.
void SetRemoteWindows(RemoteWindows* windows);

/// Null unless `window` can only be one of another process; any window may be, when it is null.
RemoteWindows* RemoteWindowsFor(HWND window);

}  // namespace korvane
