#include "tests/module/slides/SlideBench.h"

#include <algorithm>
#include <stdexcept>

#include "platform/Simulation.h"
#include "platform/coredll.h"

#include "tests/module/slides/RecorderSink.h"

namespace korvane::test {

namespace {

std::vector<Shown> g_shown;
unsigned g_presentMs = 0;

void Note(const std::uint32_t* pixels, int stride, int left, int top, int right, int bottom) {
    Shown shown;
    shown.tick = GetTickCount();
    shown.rect.left = left;
    shown.rect.right = right;
    shown.rect.top = top;
    shown.rect.bottom = bottom;
    for (int y = top; y < bottom; ++y) {
        const std::uint32_t* row = pixels + static_cast<std::ptrdiff_t>(y) * stride;
        shown.pixels.insert(shown.pixels.end(), row + left, row + right);
    }
    g_shown.push_back(shown);
    AdvanceClock(g_presentMs);
}

}  // namespace

CLQSurfHandle Chart(int width, int height, unsigned char blue) {
    CLQSurfHandle chart = NewSurface(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            _LQColor color = {static_cast<unsigned char>(2 * x), static_cast<unsigned char>(4 * y), blue,
                              255};
            chart.FillRect(x, y, x + 1, y + 1, color, false);
        }
    }
    return chart;
}

void Panel::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    int x = 0;
    int y = 0;
    GetScreenXY(x, y);
    target.BitBlt(picture_, x, y, m_nWidth, m_nHeight, 0, 0);
    if (m_pOwnerWnd)
        Redraw(false);
}

SlideBench::SlideBench() : shown(g_shown) {
    SYSTEMTIME time = {};
    time.wYear = 2024;
    time.wMonth = 3;
    time.wDay = 15;
    UseManualClock(10000, time);
    SetRecorderSink(&Note);
    if (!CLQScreen::GetInstance()->Open("recorder", kBenchWidth, kBenchHeight, L"Slides"))
        throw std::runtime_error("the recording display does not open");
    _LQColor navy = {16, 32, 72, 255};
    window.Create(0, 0, kBenchWidth, kBenchHeight);
    window.EnableBkgColor(true, &navy);
    window.AddChild(&panel);
    Pump();
    shown.clear();
}

SlideBench::~SlideBench() {
    CLQScreen::GetInstance()->Close();
    SetRecorderSink(nullptr);
    shown.clear();
    g_presentMs = 0;
    UseSystemClock();
}

void SlideBench::SetPresentTime(unsigned ms) {
    g_presentMs = ms;
}

void SlideBench::Pump() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&msg);
}

std::vector<std::uint32_t> SlideBench::ScreenPixels(int x, int y, int width, int height) {
    CLQSurfHandle part = NewSurface(width, height);
    part.BitBlt(CLQScreen::GetInstance()->GetScreenSurfHandle(), 0, 0, width, height, x, y);
    return PixelsOf(part);
}

std::vector<std::uint32_t> SlideBench::Composed(CLQSurfHandle background, bool in, int way) {
    CLQSurfHandle frame = NewSurface(kPanelWidth, kPanelHeight);
    frame.BitBlt(background, 0, 0, kPanelWidth, kPanelHeight, 0, 0);
    CLQSurfHandle chart = Chart(kPanelWidth, kPanelHeight, 200);
    if (in)
        frame.BitBlt(chart, 0, 0, way, kPanelHeight, kPanelWidth - way, 0);
    else
        frame.BitBlt(chart, 0, 0, kPanelWidth - way, kPanelHeight, way, 0);
    return PixelsOf(frame);
}

const std::vector<int>& RoundedWidths(int frames) {
    static const std::vector<int> kWidths[] = {
        {100},
        {71, 100},
        {50, 87, 100},
        {38, 71, 92, 100},
        {31, 59, 81, 95, 100},
        {26, 50, 71, 87, 97, 100},
        {22, 43, 62, 78, 90, 97, 100},
        {20, 38, 56, 71, 83, 92, 98, 100},
        {17, 34, 50, 64, 77, 87, 94, 98, 100},
        {16, 31, 45, 59, 71, 81, 89, 95, 99, 100},
        {14, 28, 42, 54, 65, 76, 84, 91, 96, 99, 100},
        {13, 26, 38, 50, 61, 71, 79, 87, 92, 97, 99, 100},
        {12, 24, 35, 46, 57, 66, 75, 82, 89, 94, 97, 99, 100},
        {11, 22, 33, 43, 53, 62, 71, 78, 85, 90, 94, 97, 99, 100},
        {10, 21, 31, 41, 50, 59, 67, 74, 81, 87, 91, 95, 98, 99, 100},
        {10, 20, 29, 38, 47, 56, 63, 71, 77, 83, 88, 92, 96, 98, 100, 100},
        {9, 18, 27, 36, 45, 53, 60, 67, 74, 80, 85, 90, 93, 96, 98, 100, 100},
        {9, 17, 26, 34, 42, 50, 57, 64, 71, 77, 82, 87, 91, 94, 97, 98, 100, 100},
        {8, 16, 25, 32, 40, 48, 55, 61, 68, 74, 79, 84, 88, 92, 95, 97, 99, 100, 100},
        {8, 16, 23, 31, 38, 45, 52, 59, 65, 71, 76, 81, 85, 89, 92, 95, 97, 99, 100, 100},
    };
    return kWidths[frames - 1];
}

const std::vector<int>& CutWidths(int frames) {
    static const std::vector<int> kWidths[] = {
        {100},
        {70, 100},
        {50, 86, 100},
        {38, 70, 92, 100},
        {30, 58, 80, 95, 100},
        {25, 50, 70, 86, 96, 100},
        {22, 43, 62, 78, 90, 97, 100},
        {19, 38, 55, 70, 83, 92, 98, 100},
        {17, 34, 50, 64, 76, 86, 93, 98, 100},
        {15, 30, 45, 58, 70, 80, 89, 95, 98, 100},
        {14, 28, 41, 54, 65, 75, 84, 90, 95, 98, 100},
        {13, 25, 38, 50, 60, 70, 79, 86, 92, 96, 99, 100},
        {12, 23, 35, 46, 56, 66, 74, 82, 88, 93, 97, 99, 100},
        {11, 22, 33, 43, 53, 62, 70, 78, 84, 90, 94, 97, 99, 100},
        {10, 20, 30, 40, 50, 58, 66, 74, 80, 86, 91, 95, 97, 99, 100},
        {9, 19, 29, 38, 47, 55, 63, 70, 77, 83, 88, 92, 95, 98, 99, 100},
        {9, 18, 27, 36, 44, 52, 60, 67, 73, 79, 85, 89, 93, 96, 98, 99, 100},
        {8, 17, 25, 34, 42, 50, 57, 64, 70, 76, 81, 86, 90, 93, 96, 98, 99, 100},
        {8, 16, 24, 32, 40, 47, 54, 61, 67, 73, 78, 83, 87, 91, 94, 96, 98, 99, 100},
        {7, 15, 23, 30, 38, 45, 52, 58, 64, 70, 76, 80, 85, 89, 92, 95, 97, 98, 99, 100},
    };
    return kWidths[frames - 1];
}

}  // namespace korvane::test
