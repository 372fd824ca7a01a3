#pragma once

#include "platform/posix/coredll/Types.h"

typedef LRESULT(CALLBACK* WNDPROC)(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

typedef BOOL(CALLBACK* WNDENUMPROC)(HWND window, LPARAM parameter);

typedef struct tagWNDCLASSW {
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;
    LPCWSTR lpszMenuName;
    LPCWSTR lpszClassName;
} WNDCLASSW;

typedef struct tagCREATESTRUCTW {
    LPVOID lpCreateParams;
    HINSTANCE hInstance;
    HMENU hMenu;
    HWND hwndParent;
    int cy;
    int cx;
    int y;
    int x;
    LONG style;
    LPCWSTR lpszName;
    LPCWSTR lpszClass;
    DWORD dwExStyle;
} CREATESTRUCTW;

constexpr DWORD WS_OVERLAPPED = 0x00000000;
constexpr DWORD WS_POPUP = 0x80000000;
constexpr DWORD WS_CHILD = 0x40000000;
constexpr DWORD WS_VISIBLE = 0x10000000;

constexpr int CW_USEDEFAULT = static_cast<int>(0x80000000);

constexpr int SW_HIDE = 0;
constexpr int SW_SHOWNORMAL = 1;
constexpr int SW_SHOW = 5;
constexpr int SW_SHOWNA = 8;

constexpr int GWLP_WNDPROC = -4;
constexpr int GWL_STYLE = -16;
constexpr int GWLP_USERDATA = -21;

// The top-level windows of other processes of the same user and device root can be found, asked for their
// class and title, and sent messages. Everything else here is for windows of this process. A process counts
// to the device root that it has when it makes the first of its top-level windows; another one counts once
// all of them are gone. Without a runtime folder that only the user can enter, each process is by itself.

extern "C" {

/// Class names are compared without regard to case. 0 when the name is missing, longer than 256 or taken, or
/// the procedure is null. The procedure serves windows of every thread.
KORVANE_API ATOM RegisterClassW(const WNDCLASSW* windowClass);

/// FALSE for an unknown class and while a window of the class exists.
KORVANE_API BOOL UnregisterClassW(LPCWSTR className, HINSTANCE instance);

/// The window belongs to the calling thread. Its procedure gets WM_NCCREATE and WM_CREATE before the call
/// returns; FALSE from the first or -1 from the second ends the window again and gives null. There are no
/// frames: the client area is the whole window. Handles are not used again.
KORVANE_API HWND CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, int x, int y,
                                 int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                                 LPVOID parameter);

/// Sends WM_DESTROY and WM_NCDESTROY to the window and its children, and drops their messages and timers.
/// FALSE for a window of another thread.
KORVANE_API BOOL DestroyWindow(HWND window);

KORVANE_API BOOL IsWindow(HWND window);
KORVANE_API BOOL ShowWindow(HWND window, int command);
KORVANE_API BOOL IsWindowVisible(HWND window);
KORVANE_API BOOL GetClientRect(HWND window, RECT* rect);

/// Ends the window at WM_CLOSE, validates it at WM_PAINT and keeps its title.
KORVANE_API LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

KORVANE_API BOOL SetWindowTextW(HWND window, LPCWSTR text);

/// Copies at most capacity - 1 characters and a terminator; returns the number of characters copied.
KORVANE_API int GetWindowTextW(HWND window, LPWSTR text, int capacity);
KORVANE_API int GetClassNameW(HWND window, LPWSTR name, int capacity);

/// The newest top-level window that fits, whichever process has it. A null name fits everything; both names
/// are compared without regard to case. Other processes see the first 1024 characters of a title.
KORVANE_API HWND FindWindowW(LPCWSTR className, LPCWSTR title);

/// Calls `procedure` for each top-level window of all processes, the newest first. FALSE from `procedure`
/// ends it, and is the result.
KORVANE_API BOOL EnumWindows(WNDENUMPROC procedure, LPARAM parameter);

/// GWLP_WNDPROC, GWLP_USERDATA and GWL_STYLE of this process's windows; 0 and ERROR_INVALID_INDEX for another
/// index. A style that is set changes no visibility.
KORVANE_API LONG_PTR GetWindowLongPtrW(HWND window, int index);
KORVANE_API LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value);

// A visible window has an update rectangle: the smallest one that holds all that was invalidated, within the
// client area. WM_PAINT is generated while it is not empty. Hidden windows collect none. The edges of a
// rectangle count in either order.

/// A null rectangle stands for the whole client area. A null window is refused (Windows would repaint the
/// whole desktop). Any thread may call it.
KORVANE_API BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase);

/// A null rectangle validates everything. What a rectangle cuts out of the middle stays invalid, since the
/// rest must remain one rectangle.
KORVANE_API BOOL ValidateRect(HWND window, const RECT* rect);

/// TRUE when there is something to update. `rect` may be null; it is emptied when there is nothing.
KORVANE_API BOOL GetUpdateRect(HWND window, RECT* rect, BOOL erase);

/// Sends WM_PAINT at once when there is something to update, past the queue.
KORVANE_API BOOL UpdateWindow(HWND window);
}
