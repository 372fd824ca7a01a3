// The calls in this source are the system's own, as in the loop that it runs while a window is being moved.
#define KORVANE_SYSTEM_CALLS

#include <gtest/gtest.h>

#include "tests/platform/StoppedClock.h"

namespace korvane {
namespace {

UINT_PTR calledFor = 0;

void CALLBACK NoteCall(HWND, UINT, UINT_PTR id, DWORD) {
    calledFor = id;
}

TEST(SystemLoop, CallsTheTimersOfNoWindow) {
    calledFor = 0;
    const UINT_PTR id = desktop::SetTimer(nullptr, 0, 10, &NoteCall);
    ASSERT_NE(id, 0u);
    MSG message{};
    ASSERT_EQ(GetMessageW(&message, nullptr, WM_TIMER, WM_TIMER), TRUE);
    DispatchMessageW(&message);
    EXPECT_EQ(calledFor, id);
    EXPECT_TRUE(desktop::KillTimer(nullptr, id));
}

TEST(SystemLoop, GivesOursWhatItPostedWithTheTimeOfTheClock) {
    const StoppedClock clock(1234);
    PostThreadMessageW(GetCurrentThreadId(), WM_APP, 5, 0);
    AdvanceClock(10);
    MSG message{};
    ASSERT_TRUE(desktop::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.wParam, 5u);
    EXPECT_EQ(message.time, 1244u);
}

}  // namespace
}  // namespace korvane
