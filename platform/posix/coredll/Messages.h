#pragma once

#include "platform/posix/coredll/Types.h"

typedef struct tagMSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;  // GetTickCount() when the message was posted
    POINT pt;    // pointer position in screen pixels at that moment
} MSG;

constexpr UINT WM_NULL = 0x0000;
constexpr UINT WM_CREATE = 0x0001;
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_SETTEXT = 0x000C;
constexpr UINT WM_GETTEXT = 0x000D;
constexpr UINT WM_GETTEXTLENGTH = 0x000E;
constexpr UINT WM_PAINT = 0x000F;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_NCCREATE = 0x0081;
constexpr UINT WM_NCDESTROY = 0x0082;
constexpr UINT WM_KEYFIRST = 0x0100;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT WM_SYSKEYDOWN = 0x0104;
constexpr UINT WM_SYSKEYUP = 0x0105;
constexpr UINT WM_COMMAND = 0x0111;
constexpr UINT WM_TIMER = 0x0113;
constexpr UINT WM_MOUSEFIRST = 0x0200;
constexpr UINT WM_MOUSEMOVE = 0x0200;
constexpr UINT WM_LBUTTONDOWN = 0x0201;
constexpr UINT WM_LBUTTONUP = 0x0202;
constexpr UINT WM_MOUSELAST = 0x020E;
constexpr UINT WM_USER = 0x0400;
constexpr UINT WM_APP = 0x8000;

constexpr WPARAM MK_LBUTTON = 0x0001;

constexpr UINT SMTO_NORMAL = 0;

constexpr UINT PM_NOREMOVE = 0;
constexpr UINT PM_REMOVE = 1;
constexpr UINT PM_NOYIELD = 2;

constexpr int VK_BACK = 0x08;
constexpr int VK_TAB = 0x09;
constexpr int VK_RETURN = 0x0D;
constexpr int VK_ESCAPE = 0x1B;
constexpr int VK_SPACE = 0x20;
constexpr int VK_PRIOR = 0x21;
constexpr int VK_NEXT = 0x22;
constexpr int VK_END = 0x23;
constexpr int VK_HOME = 0x24;
constexpr int VK_LEFT = 0x25;
constexpr int VK_UP = 0x26;
constexpr int VK_RIGHT = 0x27;
constexpr int VK_DOWN = 0x28;
constexpr int VK_INSERT = 0x2D;
constexpr int VK_DELETE = 0x2E;
constexpr int VK_F1 = 0x70;

// Each thread has a queue of its own. A retrieval first runs the messages that other threads have sent, then
// gives, in this order: posted messages; WM_QUIT, if it was asked for; input; WM_PAINT; WM_TIMER.
//
// Filters: `window` null takes everything of the thread, (HWND)-1 only what was posted to no window, any
// other value that window and its children. `first` and `last` both 0 take every number, else first <= number
// <= last. WM_QUIT passes every filter.

extern "C" {

/// Waits for a message and removes it. Returns 0 for WM_QUIT, -1 when `window` is not a window of this thread
/// or `message` is null, else a positive number. WM_PAINT keeps coming until the window is validated.
KORVANE_API BOOL GetMessageW(MSG* message, HWND window, UINT first, UINT last);

/// The same without waiting: FALSE when nothing fits. Without PM_REMOVE the message stays where it is.
KORVANE_API BOOL PeekMessageW(MSG* message, HWND window, UINT first, UINT last, UINT remove);

/// TRUE for key messages. A WM_KEYDOWN of a key that types a character here (digits, letters, space, Return,
/// Tab, Escape, Backspace) also posts WM_CHAR with that character, letters in lower case.
KORVANE_API BOOL TranslateMessage(const MSG* message);

/// Calls the window's procedure, or the TIMERPROC of a WM_TIMER whose timer still exists.
KORVANE_API LRESULT DispatchMessageW(const MSG* message);

/// Makes WM_QUIT appear in this thread's queue, with `exitCode` as wParam, once no posted message
/// waits.
KORVANE_API void PostQuitMessage(int exitCode);

/// Appends to the queue of the window's thread and returns. A null window posts to the calling thread's own
/// queue. FALSE for a dead window, for messages that carry pointers (WM_SETTEXT and its like), and when 10000
/// posted messages wait there already. Any thread may call it.
///
/// For a window of another process it is FALSE, too, when that process has not run for so long that hundreds
/// of messages wait on the way. It never waits itself.
KORVANE_API BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Runs the window's procedure and returns its result: directly on the window's own thread, otherwise inside
/// that thread's next retrieval while the caller waits (and goes on answering what is sent to it). 0 for a
/// dead window.
///
/// A window of another process has five seconds to answer, counted from the call; then, or when its process
/// ends, the result is 0.
KORVANE_API LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// The same with so long a time for a window of another process. 0 when there is no result; `result`, which
/// may be null, is then left alone. Windows of this process have no limit.
KORVANE_API LRESULT SendMessageTimeoutW(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT flags,
                                        UINT timeoutMs, DWORD_PTR* result);
}
