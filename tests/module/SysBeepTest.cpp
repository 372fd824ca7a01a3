#include <gtest/gtest.h>

#include "module/SysBeep.h"
#include "platform/coredll.h"

// The lookup is made once in a process, so each of these runs in a process of its own.

namespace {

constexpr wchar_t kClass[] = L"SysBeepTest";
constexpr UINT kKeyBeep = 1137;

HWND Open(const wchar_t* title) {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = &DefWindowProcW;
    windowClass.lpszClassName = kClass;
    RegisterClassW(&windowClass);
    return CreateWindowExW(0, kClass, title, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
}

int CountBeeps() {
    int beeps = 0;
    MSG msg = {};
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (msg.message == kKeyBeep) {
            EXPECT_EQ(msg.wParam, 0u);
            EXPECT_EQ(msg.lParam, 0);
            ++beeps;
        }
    }
    return beeps;
}

TEST(SysBeep, PostsTheKeyBeepToTheMainApplication) {
    const HWND main = Open(L"NavigRecive");
    ASSERT_NE(main, nullptr);
    SysBeep();
    SysBeep();
    EXPECT_EQ(CountBeeps(), 2);
    DestroyWindow(main);
}

TEST(SysBeep, StaysSilentWhenTheMainApplicationCameTooLate) {
    SysBeep();
    const HWND main = Open(L"NavigRecive");
    ASSERT_NE(main, nullptr);
    SysBeep();
    EXPECT_EQ(CountBeeps(), 0);
    DestroyWindow(main);
}

TEST(SysBeep, KeepsToTheWindowThatItFoundFirst) {
    const HWND first = Open(L"NavigRecive");
    ASSERT_NE(first, nullptr);
    SysBeep();
    EXPECT_EQ(CountBeeps(), 1);
    DestroyWindow(first);
    const HWND second = Open(L"NavigRecive");
    ASSERT_NE(second, nullptr);
    SysBeep();
    EXPECT_EQ(CountBeeps(), 0);
    DestroyWindow(second);
}

TEST(SysBeep, TellsTheWindowByItsExactTitle) {
    const HWND other = Open(L"NavigReceive");
    ASSERT_NE(other, nullptr);
    SysBeep();
    EXPECT_EQ(CountBeeps(), 0);
    DestroyWindow(other);
}

}  // namespace
