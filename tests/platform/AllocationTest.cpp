#include <gtest/gtest.h>
#include <memory>
#include <vector>

#include "platform/Display.h"
#include "platform/coredll.h"

#include "tests/platform/StoppedClock.h"
#include "tests/support/AllocationCount.h"

namespace korvane {
namespace {

constexpr wchar_t kClass[] = L"Korvane.Allocation";

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER) {
        InvalidateRect(window, nullptr, FALSE);
        PostMessageW(window, WM_APP, 0, 0);
        PostInput(window, WM_MOUSEMOVE, 0, 0);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

// One period of a screen that a timer changes: post, touch, paint, show.
void Step(Display& display, const std::uint32_t* pixels) {
    AdvanceClock(50);
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
    display.Present(pixels, 100, 10, 10, 50, 50);
}

TEST(MessageLoop, AllocatesNothingOnceItRuns) {
    const StoppedClock clock;
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &Procedure;
    windowClass.lpszClassName = kClass;
    ASSERT_NE(RegisterClassW(&windowClass), 0);
    const HWND window = CreateWindowExW(0, kClass, L"", WS_POPUP | WS_VISIBLE, 0, 0, 100, 80, nullptr,
                                        nullptr, nullptr, nullptr);
    SetTimer(window, 1, 50, nullptr);
    const std::unique_ptr<Display> display = CreateDisplay("memory");
    ASSERT_TRUE(display->Open(100, 80, L"", window));
    const std::vector<std::uint32_t> pixels(100 * 80);
    for (int i = 0; i < 10; ++i)
        Step(*display, pixels.data());
    const int before = test::AllocationCount();
    for (int i = 0; i < 1000; ++i)
        Step(*display, pixels.data());
    EXPECT_EQ(test::AllocationCount() - before, 0);
    EXPECT_GT(before, 0);
    DestroyWindow(window);
}

}  // namespace
}  // namespace korvane
