#include <functional>
#include <gtest/gtest.h>
#include <vector>

#include "module/MessageLoop.h"
#include "platform/Simulation.h"
#include "platform/coredll.h"

namespace {

constexpr UINT kPress = 513;
constexpr UINT kRelease = 514;
constexpr UINT kMove = 512;
constexpr UINT kClick = 273;
constexpr UINT kPrivate = WM_APP + 1;
constexpr wchar_t kClass[] = L"MessageLoopTest";

/// A window that notes the messages that the loop hands to it.
class MessageLoop : public testing::Test {
  protected:
    MessageLoop() {
        korvane::UseManualClock(kNow, {2024, 5, 0, 1, 12, 0, 0, 0});
        WNDCLASSW windowClass = {};
        windowClass.lpfnWndProc = &Procedure;
        windowClass.lpszClassName = kClass;
        RegisterClassW(&windowClass);
        window =
            CreateWindowExW(0, kClass, L"", WS_POPUP, 0, 0, 800, 480, nullptr, nullptr, nullptr, nullptr);
        handed.clear();
        act = nullptr;
    }
    ~MessageLoop() override {
        DestroyWindow(window);
        UnregisterClassW(kClass, nullptr);
        korvane::UseSystemClock();
    }

    static LRESULT CALLBACK Procedure(HWND receiver, UINT message, WPARAM wParam, LPARAM lParam) {
        handed.push_back(message);
        if (message == kPrivate && act) {
            const std::function<void()> once = std::move(act);
            act = nullptr;
            once();
        }
        return DefWindowProcW(receiver, message, wParam, lParam);
    }

    /// Posts a message that has waited for `age` milliseconds.
    static void PostAged(UINT message, DWORD age) {
        ASSERT_TRUE(korvane::PostAt(window, message, 0, 0, GetTickCount() - age));
    }

    /// Runs the loop over what waits, and takes away the WM_QUIT that it posts.
    static std::vector<UINT> Run() {
        handed.clear();
        // Quit does not wait for input: it is asked for when none is left.
        korvane::SetIdleHandler([] {
            PostQuitMessage(7);
            return true;
        });
        WndDoModel();
        korvane::SetIdleHandler({});
        MSG msg = {};
        EXPECT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
        EXPECT_EQ(msg.message, WM_QUIT);
        EXPECT_EQ(msg.wParam, 0u);
        EXPECT_FALSE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
        return handed;
    }

    using Messages = std::vector<UINT>;
    static constexpr unsigned kNow = 1000000;

    static HWND window;
    static Messages handed;
    static std::function<void()> act;  // what the window does at kPrivate
};

HWND MessageLoop::window = nullptr;
MessageLoop::Messages MessageLoop::handed;
std::function<void()> MessageLoop::act;

TEST_F(MessageLoop, EndsAtQuitAndPostsItAgain) {
    EXPECT_EQ(Run(), Messages());
}

TEST_F(MessageLoop, HandsOnAPressOf700Milliseconds) {
    PostAged(kPress, 700);
    PostAged(kRelease, 700);
    EXPECT_EQ(Run(), (Messages{kPress, kRelease}));
}

TEST_F(MessageLoop, DropsAPressOf701MillisecondsWithItsRelease) {
    PostAged(kPress, 701);
    PostAged(kRelease, 0);
    EXPECT_EQ(Run(), Messages());
}

TEST_F(MessageLoop, MeasuresTheAgeWhenTheMessageIsTaken) {
    ASSERT_TRUE(PostMessageW(window, kPress, 0, 0));
    korvane::AdvanceClock(701);
    ASSERT_TRUE(PostMessageW(window, kPress, 0, 0));
    korvane::AdvanceClock(700);
    EXPECT_EQ(Run(), Messages{kPress});
}

TEST_F(MessageLoop, DropsOnlyTheFirstReleaseAfterAStalePress) {
    PostAged(kPress, 5000);
    PostAged(kRelease, 5000);
    PostAged(kRelease, 5000);
    EXPECT_EQ(Run(), Messages{kRelease});
}

TEST_F(MessageLoop, HandsOnTheMovesAfterAStalePress) {
    PostAged(kPress, 701);
    PostAged(kMove, 701);
    PostAged(kMove, 100);
    PostAged(kRelease, 0);
    PostAged(kMove, 0);
    EXPECT_EQ(Run(), (Messages{kMove, kMove, kMove}));
}

TEST_F(MessageLoop, FreshPressAfterAStaleOneBringsItsReleaseBack) {
    PostAged(kPress, 701);
    PostAged(kPress, 700);
    PostAged(kRelease, 0);
    EXPECT_EQ(Run(), (Messages{kPress, kRelease}));
}

TEST_F(MessageLoop, StalePressAfterAFreshOneTakesTheRelease) {
    PostAged(kPress, 0);
    PostAged(kPress, 701);
    PostAged(kRelease, 0);
    EXPECT_EQ(Run(), Messages{kPress});
}

TEST_F(MessageLoop, HandsOnAReleaseOfAnyAgeWithoutAStalePress) {
    PostAged(kRelease, 100000);
    EXPECT_EQ(Run(), Messages{kRelease});
}

TEST_F(MessageLoop, DropsAClickOlderThan700Milliseconds) {
    PostAged(kClick, 701);
    EXPECT_EQ(Run(), Messages());
    PostAged(kClick, 700);
    EXPECT_EQ(Run(), Messages{kClick});
}

TEST_F(MessageLoop, JudgesClicksByThemselvesAfterAStalePress) {
    PostAged(kPress, 701);
    PostAged(kClick, 701);
    PostAged(kClick, 700);
    PostAged(kRelease, 0);
    EXPECT_EQ(Run(), Messages{kClick}) << "and the release is still dropped";
}

TEST_F(MessageLoop, HandsOnOtherMessagesOfAnyAge) {
    PostAged(WM_USER + 5, 100000);
    PostAged(WM_KEYDOWN, 100000);
    EXPECT_EQ(Run(), (Messages{WM_USER + 5, WM_KEYDOWN}));
}

TEST_F(MessageLoop, MeasuresAcrossTheWrapOfTheClock) {
    korvane::UseManualClock(300, {2024, 5, 0, 1, 12, 0, 0, 0});
    ASSERT_TRUE(korvane::PostAt(window, kPress, 0, 0, 0xFFFFFFFFu - 399));  // 700 ms ago
    ASSERT_TRUE(korvane::PostAt(window, kClick, 0, 0, 0xFFFFFFFFu - 399));
    ASSERT_TRUE(korvane::PostAt(window, kRelease, 0, 0, 0));
    EXPECT_EQ(Run(), (Messages{kPress, kClick, kRelease}));

    ASSERT_TRUE(korvane::PostAt(window, kPress, 0, 0, 0xFFFFFFFFu - 400));  // 701 ms ago
    ASSERT_TRUE(korvane::PostAt(window, kClick, 0, 0, 0xFFFFFFFFu - 400));
    ASSERT_TRUE(korvane::PostAt(window, kRelease, 0, 0, 0));
    EXPECT_EQ(Run(), Messages());
}

TEST_F(MessageLoop, TakesATimeStampOfTheFutureForAVeryOldOne) {
    ASSERT_TRUE(korvane::PostAt(window, kPress, 0, 0, kNow + 1));
    ASSERT_TRUE(korvane::PostAt(window, kClick, 0, 0, kNow + 1));
    EXPECT_EQ(Run(), Messages());
}

TEST_F(MessageLoop, FiltersInputLikePostedMessages) {
    ASSERT_TRUE(korvane::PostInputAt(window, kPress, 0, 0, kNow - 701));
    ASSERT_TRUE(korvane::PostInputAt(window, kRelease, 0, 0, kNow));
    ASSERT_TRUE(korvane::PostInputAt(window, kPress, 0, 0, kNow - 700));
    ASSERT_TRUE(korvane::PostInputAt(window, kRelease, 0, 0, kNow));
    EXPECT_EQ(Run(), (Messages{kPress, kRelease}));
}

TEST_F(MessageLoop, TranslatesKeys) {
    ASSERT_TRUE(PostMessageW(window, WM_KEYDOWN, 'A', 0));
    EXPECT_EQ(Run(), (Messages{WM_KEYDOWN, WM_CHAR}));
}

TEST_F(MessageLoop, NestedLoopEndsTheOneAround) {
    PostAged(kPrivate, 0);
    act = [] {
        ASSERT_TRUE(PostMessageW(window, WM_USER, 0, 0));
        PostQuitMessage(0);
        WndDoModel();
        ASSERT_TRUE(PostMessageW(window, WM_USER + 1, 0, 0));
    };
    handed.clear();
    WndDoModel();
    EXPECT_EQ(handed, (Messages{kPrivate, WM_USER, WM_USER + 1}));
    MSG msg = {};
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(msg.message, WM_QUIT);
}

TEST_F(MessageLoop, NestedLoopsRememberTheirOwnStalePress) {
    PostAged(kPress, 701);
    PostAged(kPrivate, 0);
    act = [] {
        PostAged(kRelease, 0);
        PostQuitMessage(0);
        WndDoModel();
        EXPECT_EQ(handed, (Messages{kPrivate, kRelease})) << "the inner loop dropped no press";
        PostAged(kRelease, 0);
        PostAged(kRelease, 0);
    };
    handed.clear();
    WndDoModel();
    EXPECT_EQ(handed, (Messages{kPrivate, kRelease, kRelease})) << "the outer loop drops its one release";
    MSG msg = {};
    EXPECT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
}

TEST_F(MessageLoop, InitMessageTellsOfWaitingKeysAndTakesNothing) {
    EXPECT_EQ(InitMessage(), 0);
    ASSERT_TRUE(PostMessageW(window, 255, 0, 0));
    ASSERT_TRUE(PostMessageW(window, 265, 0, 0));
    EXPECT_EQ(InitMessage(), 0) << "only the range of key messages counts";
    ASSERT_TRUE(PostMessageW(window, 264, 0, 0));
    EXPECT_NE(InitMessage(), 0);
    EXPECT_NE(InitMessage(), 0);
    EXPECT_EQ(Run(), (Messages{255, 265, 264}));
    ASSERT_TRUE(PostMessageW(window, 256, 0, 0));
    EXPECT_NE(InitMessage(), 0);
    EXPECT_EQ(Run(), Messages{256});
}

}  // namespace
