#include "platform/windows/display/Win32Display.h"

#include <algorithm>

#include "platform/display/ScreenSize.h"
#include "platform/windows/display/ActiveDisplay.h"
#include "platform/windows/display/HiddenOwner.h"
#include "platform/windows/display/OwnConsole.h"
#include "platform/windows/display/Touch.h"

namespace korvane {
namespace {

constexpr wchar_t kProperty[] = L"Korvane.Display";
constexpr DWORD kStyle = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;

// The client area's DC for as long as it lives.
class ClientDc {
  public:
    explicit ClientDc(HWND window) : window_(window), dc_(GetDC(window)) {}
    ~ClientDc() {
        if (dc_)
            ReleaseDC(window_, dc_);
    }
    ClientDc(const ClientDc&) = delete;
    ClientDc& operator=(const ClientDc&) = delete;

    HDC Get() const { return dc_; }

  private:
    HWND window_;
    HDC dc_;
};

}  // namespace

Win32Display::~Win32Display() {
    Close();
    if (woken_)
        CloseHandle(woken_);
}

bool Win32Display::Open(int width, int height, const wchar_t* title, HWND owner) {
    if (!IsScreenSize(width, height))
        return FailDisplay(kNoScreenSize);
    if (!MayActivateDisplay(this, owner))
        return false;
    Close();
    if (!woken_)
        woken_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    if (!woken_ || !SetPropW(owner, kProperty, this))
        return FailDisplay("the system has no room for a display");
    width_ = width;
    height_ = height;
    owner_ = owner;
    ownersProcedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(owner, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
    ActivateDisplay(this, owner);
    ShowFramed(title);
    Blacken();
    LeaveOwnConsole();
    return true;
}

void Win32Display::ShowFramed(const wchar_t* title) {
    SetClassLongPtrW(owner_, GCLP_HCURSOR, reinterpret_cast<LONG_PTR>(LoadCursorW(nullptr, IDC_ARROW)));
    SetWindowTextW(owner_, title ? title : L"");
    SetWindowLongPtrW(owner_, GWL_STYLE, static_cast<LONG_PTR>(kStyle));
    // What has hidden it for a display without a panel goes.
    const LONG_PTR extended = GetWindowLongPtrW(owner_, GWL_EXSTYLE) & ~kHiddenStyle;
    SetWindowLongPtrW(owner_, GWL_EXSTYLE, extended);
    RECT frame{0, 0, width_, height_};
    AdjustWindowRectEx(&frame, kStyle, FALSE, static_cast<DWORD>(extended));
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    RECT room{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &room, 0);
    const int left = std::max<int>(room.left, (room.left + room.right - width) / 2);
    const int top = std::max<int>(room.top, (room.top + room.bottom - height) / 2);
    SetWindowPos(owner_, HWND_TOP, left, top, width, height, SWP_FRAMECHANGED);
    ShowWindow(owner_, SW_SHOWNORMAL);
    KeepClientSize();
}

void Win32Display::KeepClientSize() {
    constexpr UINT kInPlace = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
    SetWindowPos(owner_, nullptr, 0, 0, 0, 0, kInPlace | SWP_NOSIZE | SWP_FRAMECHANGED);
    RECT whole{};
    RECT client{};
    GetWindowRect(owner_, &whole);
    GetClientRect(owner_, &client);
    // A minimised window has no client area.
    if (IsIconic(owner_) || (client.right == width_ && client.bottom == height_))
        return;
    SetWindowPos(owner_, nullptr, 0, 0, whole.right - whole.left + width_ - client.right,
                 whole.bottom - whole.top + height_ - client.bottom, kInPlace);
}

void Win32Display::Blacken() {
    const ClientDc dc(owner_);
    if (dc.Get())
        PatBlt(dc.Get(), 0, 0, width_, height_, BLACKNESS);
}

void Win32Display::Close() {
    if (!owner_)
        return;
    DeactivateDisplay(this);
    RemovePropW(owner_, kProperty);
    // Another one may have put its own procedure in front of this; it goes on to the default one then.
    if (reinterpret_cast<WNDPROC>(GetWindowLongPtrW(owner_, GWLP_WNDPROC)) == &Procedure)
        SetWindowLongPtrW(owner_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ownersProcedure_));
    pressed_ = false;
    if (GetCapture() == owner_)
        ReleaseCapture();
    owner_ = nullptr;
}

void Win32Display::Present(const std::uint32_t* pixels, int stridePixels, int left, int top, int right,
                           int bottom) {
    if (!owner_ || !pixels || !CutToScreen(width_, height_, left, top, right, bottom))
        return;
    const ClientDc dc(owner_);
    if (!dc.Get())
        return;
    // The rows that hold the rectangle are the whole bitmap; a negative height puts the first row on top.
    const int width = right - left;
    const int height = bottom - top;
    BITMAPINFO rows{};
    rows.bmiHeader.biSize = sizeof rows.bmiHeader;
    rows.bmiHeader.biWidth = stridePixels;
    rows.bmiHeader.biHeight = -height;
    rows.bmiHeader.biPlanes = 1;
    rows.bmiHeader.biBitCount = 32;
    rows.bmiHeader.biCompression = BI_RGB;
    SetDIBitsToDevice(dc.Get(), left, top, static_cast<DWORD>(width), static_cast<DWORD>(height), left, 0, 0,
                      static_cast<UINT>(height), pixels + static_cast<std::ptrdiff_t>(top) * stridePixels,
                      &rows, DIB_RGB_COLORS);
    GdiFlush();
}

void Win32Display::WaitEvents(int timeoutMs) {
    if (woken_)
        MsgWaitForMultipleObjectsEx(1, &woken_, timeoutMs < 0 ? INFINITE : static_cast<DWORD>(timeoutMs),
                                    QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

void Win32Display::Wake() {
    if (woken_)
        SetEvent(woken_);
}

LRESULT CALLBACK Win32Display::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const display = static_cast<Win32Display*>(GetPropW(window, kProperty));
    if (!display)
        return DefWindowProcW(window, message, wParam, lParam);
    switch (message) {
        case WM_ERASEBKGND:
            // All of the client area is the screen's.
            return TRUE;
        case WM_GETMINMAXINFO: {
            // A screen larger than the desktop keeps its size.
            const LRESULT result = DefWindowProcW(window, message, wParam, lParam);
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMaxTrackSize = {2 * kLargestScreen, 2 * kLargestScreen};
            return result;
        }
        default:
            break;
    }
    // The procedure may close the display.
    const WNDPROC owners = display->ownersProcedure_;
    return display->Precede(message, wParam, lParam)
               ? CallWindowProcW(owners, window, message, wParam, lParam)
               : 0;
}

bool Win32Display::Precede(UINT message, WPARAM wParam, LPARAM& lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
            pressed_ = true;
            // The system holds on to a finger by itself, and a program's press has nothing to hold on to.
            if (GetKeyState(VK_LBUTTON) < 0)
                SetCapture(owner_);
            lParam = lastPoint_ = OnScreen(lParam);
            return true;
        case WM_MOUSEMOVE:
            lParam = OnScreen(lParam);
            // A touch panel reports nothing of a finger above it, nor a mouse beside the finger on it.
            if (!pressed_ || (wParam & MK_LBUTTON) == 0)
                return false;
            lastPoint_ = lParam;
            return true;
        case WM_LBUTTONUP:
            if (!pressed_)
                return false;
            pressed_ = false;
            if (GetCapture() == owner_)
                ReleaseCapture();
            lParam = OnScreen(lParam);
            return true;
        case WM_CAPTURECHANGED:
            // Something else takes the mouse away in the middle of a touch.
            if (reinterpret_cast<HWND>(lParam) != owner_)
                PostRelease();
            return true;
        case WM_POINTERCAPTURECHANGED:
            // Nor need the system tell how a finger's touch ends.
            if (IsTheTouch(wParam))
                PostRelease();
            return true;
        case WM_DPICHANGED:
            KeepClientSize();
            return false;
        case WM_PAINT:
            // Paints the frame, which the owner's procedure does not know of.
            GetUpdateRect(owner_, nullptr, TRUE);
            return true;
        default:
            return true;
    }
}

void Win32Display::PostRelease() {
    if (pressed_)
        PostMessageW(owner_, WM_LBUTTONUP, 0, lastPoint_);
}

LPARAM Win32Display::OnScreen(LPARAM point) const {
    const int x = std::clamp<int>(static_cast<SHORT>(LOWORD(point)), 0, width_ - 1);
    const int y = std::clamp<int>(static_cast<SHORT>(HIWORD(point)), 0, height_ - 1);
    return MAKELPARAM(x, y);
}

}  // namespace korvane
