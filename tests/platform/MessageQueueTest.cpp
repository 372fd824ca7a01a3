#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

const HWND kNoWindow = reinterpret_cast<HWND>(static_cast<INT_PTR>(-1));

bool Take(MSG& message, HWND window = nullptr, UINT first = 0, UINT last = 0) {
    return PeekMessageW(&message, window, first, last, PM_REMOVE) != 0;
}

TEST(MessageQueue, GivesPostedMessagesInTheOrderOfPosting) {
    constexpr UINT kMost = 4000;  // what every system's queue holds, however it is set up
    const TestWindow window;
    for (UINT i = 0; i < kMost; ++i)
        ASSERT_TRUE(PostMessageW(window.Handle(), WM_APP + i, i, -static_cast<LPARAM>(i)));
    for (UINT i = 0; i < kMost; ++i) {
        MSG message{};
        ASSERT_EQ(GetMessageW(&message, nullptr, 0, 0), TRUE);
        EXPECT_EQ(message.hwnd, window.Handle());
        EXPECT_EQ(message.message, WM_APP + i);
        EXPECT_EQ(message.wParam, i);
        EXPECT_EQ(message.lParam, -static_cast<LPARAM>(i));
    }
    MSG message{};
    EXPECT_FALSE(Take(message));
}

TEST(MessageQueue, LeavesAPeekedMessageInPlaceUnlessToldToRemoveIt) {
    const TestWindow window;
    PostMessageW(window.Handle(), WM_APP, 1, 0);
    MSG message{};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE));
    EXPECT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE));
    EXPECT_EQ(message.wParam, 1u);
    EXPECT_TRUE(Take(message));
    EXPECT_FALSE(PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE));
}

TEST(MessageQueue, PassesOnlyTheNumbersOfARange) {
    const TestWindow window;
    for (const UINT number : {WM_APP + 1, WM_APP + 5, WM_APP + 2})
        PostMessageW(window.Handle(), number, 0, 0);
    MSG message{};
    ASSERT_TRUE(Take(message, nullptr, WM_APP + 2, WM_APP + 5));
    EXPECT_EQ(message.message, WM_APP + 5);
    ASSERT_TRUE(Take(message, nullptr, WM_APP + 2, WM_APP + 5));
    EXPECT_EQ(message.message, WM_APP + 2);
    EXPECT_FALSE(Take(message, nullptr, WM_APP + 2, WM_APP + 5));
    EXPECT_TRUE(Take(message));
}

TEST(MessageQueue, PeeksTheKeyboardRangeOfAQueueThatHoldsOnlyOtherMessages) {
    const TestWindow window;
    MSG message{};
    EXPECT_FALSE(PeekMessageW(&message, nullptr, 256, 264, PM_NOREMOVE));
    PostMessageW(window.Handle(), WM_APP, 0, 0);
    EXPECT_FALSE(PeekMessageW(&message, nullptr, 256, 264, PM_NOREMOVE));
    PostMessageW(window.Handle(), WM_KEYDOWN, VK_F1, 0);
    EXPECT_TRUE(PeekMessageW(&message, nullptr, 256, 264, PM_NOREMOVE));
}

TEST(MessageQueue, PassesOnlyTheMessagesOfAWindow) {
    const TestWindow first;
    const TestWindow second;
    PostMessageW(first.Handle(), WM_APP, 1, 0);
    PostMessageW(second.Handle(), WM_APP, 2, 0);
    MSG message{};
    ASSERT_TRUE(Take(message, second.Handle()));
    EXPECT_EQ(message.wParam, 2u);
    EXPECT_FALSE(Take(message, second.Handle()));
    ASSERT_TRUE(Take(message, first.Handle()));
    EXPECT_EQ(message.wParam, 1u);
}

TEST(MessageQueue, CountsTheMessagesOfAChildToItsParent) {
    const TestWindow parent;
    TestWindow::Options options;
    options.style = WS_CHILD | WS_VISIBLE;
    options.parent = parent.Handle();
    const TestWindow child(options);
    PostMessageW(child.Handle(), WM_APP, 7, 0);
    MSG message{};
    ASSERT_TRUE(Take(message, parent.Handle()));
    EXPECT_EQ(message.hwnd, child.Handle());
}

TEST(MessageQueue, KeepsMessagesOfNoWindowApart) {
    const TestWindow window;
    PostMessageW(window.Handle(), WM_APP, 1, 0);
    PostMessageW(nullptr, WM_APP, 2, 0);
    MSG message{};
    ASSERT_TRUE(Take(message, kNoWindow));
    EXPECT_EQ(message.hwnd, nullptr);
    EXPECT_EQ(message.wParam, 2u);
    EXPECT_FALSE(Take(message, kNoWindow));
}

TEST(MessageQueue, ReportsAWindowThatDoesNotExist) {
    HWND dead = nullptr;
    {
        const TestWindow window;
        dead = window.Handle();
    }
    MSG message{};
    EXPECT_EQ(GetMessageW(&message, dead, 0, 0), -1);
    EXPECT_FALSE(PeekMessageW(&message, dead, 0, 0, PM_REMOVE));
    EXPECT_FALSE(PostMessageW(dead, WM_APP, 0, 0));
    EXPECT_EQ(SendMessageW(dead, WM_APP, 0, 0), 0);
}

TEST(MessageQueue, AgreesWithAPlainListUnderRandomUse) {
    struct Entry {
        HWND window;
        UINT number;
        WPARAM serial;
    };
    const TestWindow windows[3];
    std::vector<Entry> expected;
    std::mt19937 random(20240229);
    const auto below = [&random](unsigned limit) { return static_cast<UINT>(random() % limit); };
    WPARAM serial = 0;
    for (int step = 0; step < 20000; ++step) {
        const HWND window = windows[below(3)].Handle();
        if (below(100) < 52) {
            expected.push_back({window, WM_APP + below(6), ++serial});
            ASSERT_TRUE(PostMessageW(window, expected.back().number, serial, 0));
            continue;
        }
        const HWND wanted = below(2) == 0 ? window : nullptr;
        const UINT first = WM_APP + below(6);
        const UINT last = first + below(3);
        const auto fits = [&](const Entry& entry) {
            return (!wanted || entry.window == wanted) && entry.number >= first && entry.number <= last;
        };
        const auto found = std::find_if(expected.begin(), expected.end(), fits);
        MSG message{};
        ASSERT_EQ(Take(message, wanted, first, last), found != expected.end());
        if (found == expected.end())
            continue;
        ASSERT_EQ(message.wParam, found->serial);
        expected.erase(found);
    }
    DrainQueue();
}

TEST(MessageQueue, StampsAMessageWithTheTimeOfItsPosting) {
    const TestWindow window;
    const DWORD before = GetTickCount();
    PostMessageW(window.Handle(), WM_APP, 0, 0);
    const DWORD after = GetTickCount();
    MSG message{};
    ASSERT_TRUE(Take(message));
    EXPECT_LE(message.time - before, after - before);
}

TEST(MessageQueue, RefusesToPostWhatPointsIntoTheSendersMemory) {
    const TestWindow window;
    EXPECT_FALSE(PostMessageW(window.Handle(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"x")));
    EXPECT_FALSE(PostMessageW(window.Handle(), WM_GETTEXT, 10, 0));
}

TEST(MessageQueue, TypesTheCharacterOfAKey) {
    TestWindow window;
    const MSG key{window.Handle(), WM_KEYDOWN, VK_RETURN, 1, 0, {}};
    EXPECT_TRUE(TranslateMessage(&key));
    MSG message{};
    ASSERT_TRUE(Take(message));
    EXPECT_EQ(message.message, WM_CHAR);
    EXPECT_EQ(message.wParam, 13u);
    const MSG other{window.Handle(), WM_APP, VK_RETURN, 1, 0, {}};
    EXPECT_FALSE(TranslateMessage(&other));
    EXPECT_FALSE(Take(message));
}

TEST(MessageQueue, DispatchesToTheWindowAndReturnsItsAnswer) {
    TestWindow window;
    window.onMessage = [](UINT, WPARAM wParam, LPARAM, LRESULT& result) {
        result = static_cast<LRESULT>(wParam) * 2;
        return true;
    };
    const MSG message{window.Handle(), WM_APP, 21, 0, 0, {}};
    EXPECT_EQ(DispatchMessageW(&message), 42);
}

TEST(MessageQueue, IgnoresAMessageOfNoWindowWhenDispatching) {
    const MSG message{nullptr, WM_APP, 0, 0, 0, {}};
    EXPECT_EQ(DispatchMessageW(&message), 0);
}

TEST(MessageQueue, RefusesToFillOrToDispatchNoMessage) {
    const TestWindow window;
    PostMessageW(window.Handle(), WM_APP, 0, 0);
    EXPECT_EQ(GetMessageW(nullptr, nullptr, 0, 0), -1);
    EXPECT_FALSE(PeekMessageW(nullptr, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(DispatchMessageW(nullptr), 0);
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_APP});
}

TEST(MessageQueue, LetsAProcedurePumpMessages) {
    TestWindow window;
    std::vector<WPARAM> seen;
    window.onMessage = [&](UINT number, WPARAM wParam, LPARAM, LRESULT&) {
        if (number != WM_APP)
            return false;
        seen.push_back(wParam);
        if (wParam == 1)
            DrainQueue();
        seen.push_back(wParam + 10);
        return true;
    };
    PostMessageW(window.Handle(), WM_APP, 1, 0);
    PostMessageW(window.Handle(), WM_APP, 2, 0);
    DrainQueue();
    EXPECT_EQ(seen, (std::vector<WPARAM>{1, 2, 12, 11}));
}

}  // namespace
}  // namespace korvane
