#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/posix/remote/RemoteHandle.h"

namespace korvane {

// The windows of other processes of the same user and device root, behind the calls that may name one. A
// handle of theirs is worth something in this process only, names one window as long as that exists, and none
// afterwards. Any thread may call these, without the session's mutex.

/// The newest that fits and is newer than `born`, null when there is none. A null name fits everything. Its
/// process then knows that somebody may send it messages.
HWND FindRemoteWindow(LPCWSTR className, LPCWSTR title, std::uint64_t born);

/// A window by its handle in this process.
struct TopLevelWindow {
    HWND handle = nullptr;
    std::uint64_t born = 0;  // nanoseconds of the machine's steady clock
};

/// All of them, in any order.
std::vector<TopLevelWindow> RemoteWindows();

struct RemoteWindowNames {
    std::wstring className;
    std::wstring title;
};

/// Nothing when the window does not exist any more.
std::optional<RemoteWindowNames> NamesOfRemoteWindow(HWND window);

/// Never waits. Messages from one thread to one process arrive in their order.
bool PostToRemoteWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Answers what is sent to windows of the calling thread meanwhile. False, with `result` unchanged, when the
/// process ends before it has answered, and when it has not answered in so long a time.
bool SendToRemoteWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                        std::chrono::milliseconds patience, LRESULT& result);

}  // namespace korvane
