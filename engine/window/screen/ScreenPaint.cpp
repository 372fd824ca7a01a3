#include <utility>

#include "engine/window/Window.h"
#include "engine/window/parts/DrawShift.h"
#include "engine/window/screen/ScreenState.h"

namespace {

_LQRect SurfaceRect(CLQSurfHandle& surface) {
    return korvane::RectOfSize(0, 0, surface.GetWidth(), surface.GetHeight());
}

/// Paints one rectangle of the screen: from the topmost window that hides all below it upwards.
void PaintRect(const std::vector<CLQWindow*>& windows, CLQSurfHandle& target, const _LQRect& rect) {
    const korvane::DrawClip clip(*target.GetSurface(), rect);
    std::size_t lowest = windows.size();
    while (lowest > 0 && !windows[lowest - 1]->IsOpaqueIn(rect))
        --lowest;
    if (lowest == 0) {
        _LQColor black;
        target.FillRect(rect.left, rect.top, rect.right, rect.bottom, black, false);
    } else {
        --lowest;
    }
    for (std::size_t i = lowest; i < windows.size(); ++i) {
        if (windows[i]->IsShow())
            windows[i]->Draw(target);
    }
}

}  // namespace

void CLQScreen::InvalidateRect(const _LQRect& rect) {
    const _LQRect visible = korvane::Intersect(rect, SurfaceRect(m_pImpl->backBuffer));
    if (korvane::IsEmpty(visible))
        return;
    m_pImpl->uncovered.Add(visible);
    RequestPaint(visible);
}

void CLQScreen::InvalidateAll() {
    InvalidateRect(SurfaceRect(m_pImpl->backBuffer));
}

void CLQScreen::RequestPaint(const _LQRect& rect) {
    if (!m_pImpl->hwnd)
        return;
    RECT area;
    area.left = rect.left;
    area.top = rect.top;
    area.right = rect.right;
    area.bottom = rect.bottom;
    ::InvalidateRect(m_pImpl->hwnd, &area, FALSE);
}

void CLQScreen::Paint() {
    Impl& state = *m_pImpl;
    if (state.painting || !state.backBuffer.GetSurface())
        return;
    const _LQRect screen = SurfaceRect(state.backBuffer);
    korvane::UpdateRegion region = std::exchange(state.uncovered, korvane::UpdateRegion());
    for (CLQWindow* window : state.windows) {
        const korvane::UpdateRegion& waiting = window->GetUpdateRects();
        for (std::size_t i = 0; i < waiting.Count(); ++i)
            region.Add(korvane::Intersect(waiting[i], screen));
        window->ClearUpdateRectVec();
    }
    if (state.hwnd)
        ::ValidateRect(state.hwnd, nullptr);
    if (region.IsEmpty())
        return;

    state.painting = true;
    ++state.counters.paints;
    for (std::size_t i = 0; i < region.Count(); ++i) {
        state.counters.paintedPixels += static_cast<std::uint64_t>(korvane::Area(region[i]));
        PaintRect(state.windows, state.backBuffer, region[i]);
    }
    state.painting = false;
    for (std::size_t i = 0; i < region.Count(); ++i)
        FlipRect(region[i].left, region[i].top, region[i].right, region[i].bottom);
}

void CLQScreen::FlipRect(int left, int top, int right, int bottom) {
    Impl& state = *m_pImpl;
    const CLQSurface* surface = state.backBuffer.GetSurface();
    if (!surface || !state.display)
        return;
    const _LQRect rect =
        korvane::Intersect(korvane::RectOfEdges(left, top, right, bottom), SurfaceRect(state.backBuffer));
    if (korvane::IsEmpty(rect))
        return;
    ++state.counters.flips;
    state.counters.flippedPixels += static_cast<std::uint64_t>(korvane::Area(rect));
    state.display->Present(static_cast<const std::uint32_t*>(surface->GetPixels()), surface->GetPitch() / 4,
                           rect.left, rect.top, rect.right, rect.bottom);
}
