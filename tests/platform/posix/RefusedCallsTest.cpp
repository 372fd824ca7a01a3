#include <gtest/gtest.h>
#include <string>

#include "tests/platform/TestWindow.h"

// What is refused here without harm, where a system of another make accepts it or ends the program.
namespace korvane {
namespace {

TEST(RefusedCalls, RegisterNoClassWithoutADescriptionOrWithTooLongAName) {
    EXPECT_EQ(RegisterClassW(nullptr), 0);
    const std::wstring tooLong(300, L'x');
    WNDCLASSW description{};
    description.lpfnWndProc = &DefWindowProcW;
    description.lpszClassName = tooLong.c_str();
    EXPECT_EQ(RegisterClassW(&description), 0);
}

TEST(RefusedCalls, PostNoMoreThanTenThousandMessages) {
    const TestWindow window;
    for (int i = 0; i < 10000; ++i)
        ASSERT_TRUE(PostMessageW(window.Handle(), WM_APP, 0, 0)) << i;
    EXPECT_FALSE(PostMessageW(window.Handle(), WM_APP, 0, 0));
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_TRUE(PostMessageW(window.Handle(), WM_APP, 0, 0));
}

TEST(RefusedCalls, UpdateNoDeadWindow) {
    HWND dead = nullptr;
    {
        const TestWindow window;
        dead = window.Handle();
    }
    EXPECT_FALSE(UpdateWindow(dead));
}

TEST(RefusedCalls, WriteNoNumberInARadixThatDoesNotExist) {
    wchar_t text[40] = L"?";
    EXPECT_EQ(_itow(5, text, 1), text);
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(_itow(5, text, 37), text);
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(_itow(5, nullptr, 10), nullptr);
}

TEST(RefusedCalls, ReadNoNumberFromNoText) {
    EXPECT_EQ(_wtol(nullptr), 0);
}

}  // namespace
}  // namespace korvane
