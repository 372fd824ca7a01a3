#include <utility>

#include "engine/draw/SurfManager.h"
#include "engine/window/Window.h"
#include "engine/window/screen/ScreenState.h"

namespace {

constexpr wchar_t kScreenClass[] = L"KorvaneScreen";

/// Shows again what the system has lost, beyond what is about to be repainted anyway.
void PaintScreen(HWND hwnd, CLQScreen& screen) {
    RECT lost;
    const bool exposed = ::GetUpdateRect(hwnd, &lost, FALSE) != 0;
    // Before the painting, which may mark more.
    ::ValidateRect(hwnd, nullptr);
    const std::uint64_t before = screen.GetCounters().paints;
    screen.Paint();
    if (exposed && screen.GetCounters().paints == before)
        screen.FlipRect(lost.left, lost.top, lost.right, lost.bottom);
}

LRESULT CALLBACK ScreenProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    CLQScreen* screen = CLQScreen::GetInstance();
    if (hwnd != screen->GetHWND())
        return ::DefWindowProcW(hwnd, message, wParam, lParam);
    switch (message) {
        case WM_PAINT:
            PaintScreen(hwnd, *screen);
            return 0;
        case WM_CLOSE:
            ::PostQuitMessage(0);
            return 0;
        default:
            if (screen->HandleMessage(message, wParam, lParam))
                return 0;
            return ::DefWindowProcW(hwnd, message, wParam, lParam);
    }
}

bool RegisterScreenClass() {
    static const bool registered = [] {
        WNDCLASSW description = {};
        description.lpfnWndProc = &ScreenProc;
        description.lpszClassName = kScreenClass;
        return ::RegisterClassW(&description) != 0;
    }();
    return registered;
}

}  // namespace

bool CLQScreen::Open(const char* display, int width, int height, const wchar_t* title) {
    if (m_pImpl->hwnd)
        return korvane::FailDisplay("the screen is open already");
    if (!display)
        return korvane::FailDisplay("no display is named");
    CLQSurfHandle buffer =
        CLQSurfManager::GetInstance()->CreateSurface(width, height, eSurface_ARGB8888, true);
    if (!buffer.GetSurface())
        return korvane::FailDisplay("no screen can have that size");
    std::unique_ptr<korvane::Display> back = korvane::CreateDisplay(display);
    if (!back)
        return false;
    const wchar_t* caption = title ? title : L"";
    // The display shows it, once it knows how.
    HWND hwnd = !RegisterScreenClass() ? nullptr
                                       : ::CreateWindowExW(0, kScreenClass, caption, WS_POPUP, 0, 0, width,
                                                           height, nullptr, nullptr, nullptr, nullptr);
    if (!hwnd)
        return korvane::FailDisplay("the system gives the screen no window");
    if (!back->Open(width, height, caption, hwnd)) {
        ::DestroyWindow(hwnd);
        return false;
    }
    m_pImpl->backBuffer = buffer;
    m_pImpl->display = std::move(back);
    m_pImpl->hwnd = hwnd;
    InvalidateAll();
    return true;
}

void CLQScreen::Close() {
    if (HWND hwnd = std::exchange(m_pImpl->hwnd, nullptr)) {
        m_pImpl->display.reset();
        ::DestroyWindow(hwnd);
    }
    m_pImpl->backBuffer.Release();
    m_pImpl->uncovered.Clear();
    m_pImpl->pressed = nullptr;
}

bool CLQScreen::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return korvane::RouteScreenMessage(message, wParam, lParam, m_pImpl->pressed, m_pImpl->pressedLife);
}
