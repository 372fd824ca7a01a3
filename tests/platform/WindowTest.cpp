#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <set>

#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

LRESULT CALLBACK RefuseCreation(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return message == WM_CREATE ? -1 : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK AnswerNinetyNine(HWND, UINT, WPARAM, LPARAM) {
    return 99;
}

HWND CreateNamed(const wchar_t* className, const wchar_t* title = L"") {
    return CreateWindowExW(0, className, title, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
}

WNDCLASSW ClassOf(const wchar_t* name, WNDPROC procedure = &DefWindowProcW) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.lpszClassName = name;
    return windowClass;
}

TEST(WindowClass, IsFoundWithoutRegardToCase) {
    const WNDCLASSW windowClass = ClassOf(L"Korvane.Case");
    ASSERT_NE(RegisterClassW(&windowClass), 0);
    const HWND window = CreateNamed(L"KORVANE.CASE");
    ASSERT_NE(window, nullptr);
    wchar_t name[32];
    EXPECT_EQ(GetClassNameW(window, name, 32), 12);
    EXPECT_STREQ(name, L"Korvane.Case");
    DestroyWindow(window);
    EXPECT_TRUE(UnregisterClassW(L"korvane.case", nullptr));
}

TEST(WindowClass, CannotBeRegisteredTwice) {
    const WNDCLASSW windowClass = ClassOf(L"Korvane.Twice");
    EXPECT_NE(RegisterClassW(&windowClass), 0);
    EXPECT_EQ(RegisterClassW(&windowClass), 0);
    EXPECT_TRUE(UnregisterClassW(L"Korvane.Twice", nullptr));
    EXPECT_FALSE(UnregisterClassW(L"Korvane.Twice", nullptr));
}

TEST(WindowClass, StaysWhileOneOfItsWindowsExists) {
    const WNDCLASSW windowClass = ClassOf(L"Korvane.Used");
    RegisterClassW(&windowClass);
    const HWND window = CreateNamed(L"Korvane.Used");
    EXPECT_FALSE(UnregisterClassW(L"Korvane.Used", nullptr));
    DestroyWindow(window);
    EXPECT_TRUE(UnregisterClassW(L"Korvane.Used", nullptr));
}

TEST(WindowClass, NeedsAName) {
    const WNDCLASSW noName = ClassOf(nullptr);
    EXPECT_EQ(RegisterClassW(&noName), 0);
    EXPECT_EQ(CreateNamed(L"Korvane.Unheard"), nullptr);
}

TEST(Window, IsNotMadeWhenItsProcedureRefuses) {
    const WNDCLASSW windowClass = ClassOf(L"Korvane.Refusing", &RefuseCreation);
    RegisterClassW(&windowClass);
    EXPECT_EQ(CreateNamed(L"Korvane.Refusing", L"refused"), nullptr);
    EXPECT_EQ(FindWindowW(nullptr, L"refused"), nullptr);
    EXPECT_TRUE(UnregisterClassW(L"Korvane.Refusing", nullptr));
}

TEST(Window, LearnsOfItsEnd) {
    TestWindow window;
    EXPECT_TRUE(DestroyWindow(window.Handle()));
    const std::vector<UINT> numbers = window.Numbers();
    const auto destroyed = std::find(numbers.begin(), numbers.end(), WM_DESTROY);
    EXPECT_NE(destroyed, numbers.end());
    EXPECT_NE(std::find(destroyed, numbers.end(), WM_NCDESTROY), numbers.end());
    EXPECT_FALSE(IsWindow(window.Handle()));
    EXPECT_FALSE(DestroyWindow(window.Handle()));
}

TEST(Window, TakesItsMessagesAndTimersWithIt) {
    TestWindow other;
    const HWND ended = CreateNamed(TestWindow::ClassName());
    DrainQueue();
    PostMessageW(ended, WM_APP, 1, 0);
    PostMessageW(other.Handle(), WM_APP, 2, 0);
    PostMessageW(ended, WM_APP, 3, 0);
    SetTimer(ended, 1, 10, nullptr);
    DestroyWindow(ended);
    EXPECT_FALSE(KillTimer(ended, 1));
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_APP});
}

TEST(Window, MayEndItselfInItsProcedure) {
    TestWindow window;
    const HWND handle = window.Handle();
    window.onMessage = [handle](UINT message, WPARAM, LPARAM, LRESULT&) {
        if (message == WM_APP)
            DestroyWindow(handle);
        return message == WM_APP;
    };
    PostMessageW(handle, WM_APP, 0, 0);
    PostMessageW(handle, WM_APP, 0, 0);
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_APP});
    EXPECT_FALSE(IsWindow(handle));
}

TEST(Window, EndsWithItsParent) {
    auto parent = std::make_unique<TestWindow>();
    TestWindow::Options options;
    options.style = WS_CHILD | WS_VISIBLE;
    options.parent = parent->Handle();
    TestWindow child(options);
    parent.reset();
    EXPECT_FALSE(IsWindow(child.Handle()));
    EXPECT_FALSE(child.All().empty());
}

TEST(Window, HandlesAreNotUsedAgainWhileStaleOnesMayBeAround) {
    std::set<HWND> handles;
    for (int i = 0; i < 200; ++i) {
        const TestWindow window;
        EXPECT_TRUE(handles.insert(window.Handle()).second);
    }
}

TEST(Window, ClosesUnlessItsProcedureDecidesOtherwise) {
    TestWindow window;
    PostMessageW(window.Handle(), WM_CLOSE, 0, 0);
    DrainQueue();
    EXPECT_FALSE(IsWindow(window.Handle()));
}

TEST(Window, IsFoundByTitleAndByClass) {
    TestWindow::Options options;
    options.title = L"Korvane test title";
    const TestWindow window(options);
    EXPECT_EQ(FindWindowW(nullptr, L"Korvane test title"), window.Handle());
    EXPECT_EQ(FindWindowW(nullptr, L"KORVANE TEST TITLE"), window.Handle());
    EXPECT_EQ(FindWindowW(TestWindow::ClassName(), nullptr), window.Handle());
    EXPECT_EQ(FindWindowW(TestWindow::ClassName(), L"Korvane test title"), window.Handle());
    EXPECT_EQ(FindWindowW(L"Korvane.Unheard", L"Korvane test title"), nullptr);
    EXPECT_EQ(FindWindowW(nullptr, L"Korvane test"), nullptr);
}

TEST(Window, IsNotFoundOnceItIsGone) {
    TestWindow::Options options;
    options.title = L"Korvane passing title";
    { const TestWindow window(options); }
    EXPECT_EQ(FindWindowW(nullptr, L"Korvane passing title"), nullptr);
}

TEST(Window, KeepsTheTitleThatItIsGiven) {
    const TestWindow window;
    EXPECT_TRUE(SetWindowTextW(window.Handle(), L"Zażółć"));
    wchar_t text[32];
    EXPECT_EQ(GetWindowTextW(window.Handle(), text, 32), 6);
    EXPECT_STREQ(text, L"Zażółć");
    EXPECT_EQ(GetWindowTextW(window.Handle(), text, 3), 2);
    EXPECT_STREQ(text, L"Za");
    EXPECT_TRUE(SetWindowTextW(window.Handle(), nullptr));
    EXPECT_EQ(GetWindowTextW(window.Handle(), text, 32), 0);
}

TEST(Window, CarriesAWordOfItsOwner) {
    const TestWindow window;
    const TestWindow other;
    SetWindowLongPtrW(other.Handle(), GWLP_USERDATA, 0);
    EXPECT_EQ(SetWindowLongPtrW(other.Handle(), GWLP_USERDATA, 77), 0);
    EXPECT_EQ(SetWindowLongPtrW(other.Handle(), GWLP_USERDATA, 0), 77);
}

TEST(Window, ChangesItsProcedure) {
    const TestWindow window;
    const LONG_PTR before =
        SetWindowLongPtrW(window.Handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AnswerNinetyNine));
    EXPECT_EQ(SendMessageW(window.Handle(), WM_APP, 0, 0), 99);
    SetWindowLongPtrW(window.Handle(), GWLP_WNDPROC, before);
    EXPECT_EQ(SendMessageW(window.Handle(), WM_APP, 0, 0), 0);
}

}  // namespace
}  // namespace korvane
