#include "engine/window/Screen.h"

#include <algorithm>

#include "engine/window/Window.h"
#include "engine/window/screen/ScreenState.h"

CLQScreen* CLQScreen::GetInstance() {
    // Never destroyed: windows that end with the program still leave it.
    static CLQScreen* const screen = new CLQScreen;
    return screen;
}

CLQScreen::CLQScreen() : m_pImpl(std::make_unique<Impl>()) {}

CLQScreen::~CLQScreen() = default;

int CLQScreen::GetWidth() {
    return m_pImpl->backBuffer.GetWidth();
}

int CLQScreen::GetHeight() {
    return m_pImpl->backBuffer.GetHeight();
}

HWND CLQScreen::GetHWND() {
    return m_pImpl->hwnd;
}

CLQSurfHandle& CLQScreen::GetScreenSurfHandle() {
    return m_pImpl->backBuffer;
}

void CLQScreen::BringToTop(CLQWindow* window) {
    if (!window)
        return;
    auto& windows = m_pImpl->windows;
    const auto found = std::find(windows.begin(), windows.end(), window);
    if (found != windows.end())
        windows.erase(found);
    windows.push_back(window);
    window->InvalidateRect(window->ScreenRect());
}

void CLQScreen::Remove(CLQWindow* window) {
    auto& windows = m_pImpl->windows;
    const auto found = std::find(windows.begin(), windows.end(), window);
    if (found == windows.end())
        return;
    windows.erase(found);
    InvalidateRect(window->ScreenRect());
}

bool CLQScreen::Contains(const CLQWindow* window) const {
    const auto& windows = m_pImpl->windows;
    return std::find(windows.begin(), windows.end(), window) != windows.end();
}

int CLQScreen::GetWindowCount() {
    return static_cast<int>(m_pImpl->windows.size());
}

CLQWindow* CLQScreen::GetWindow(int index) {
    const auto& windows = m_pImpl->windows;
    return index >= 0 && static_cast<std::size_t>(index) < windows.size()
               ? windows[static_cast<std::size_t>(index)]
               : nullptr;
}

korvane::ScreenCounters CLQScreen::GetCounters() {
    return m_pImpl->counters;
}

void CLQScreen::ResetCounters() {
    m_pImpl->counters = korvane::ScreenCounters();
}
