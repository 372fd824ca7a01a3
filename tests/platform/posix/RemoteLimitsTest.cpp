#include <chrono>
#include <gtest/gtest.h>

#include "tests/platform/PeerMessages.h"
#include "tests/platform/PeerProcess.h"
#include "tests/platform/TestWindow.h"

// Where the windows of other processes keep within limits that Windows does not have.

namespace korvane {
namespace {

TEST(WindowOfAnotherProcess, CannotBeChangedFromHere) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer theirs");
    const HWND window = FindWindowW(nullptr, L"theirs");
    EXPECT_FALSE(SetWindowTextW(window, L"ours"));
    MSG message{};
    EXPECT_EQ(GetMessageW(&message, window, 0, 0), -1);
    EXPECT_EQ(FindWindowW(nullptr, L"theirs"), window);
}

TEST(WindowOfAnotherProcess, TellsTheLengthOfItsTitleWhateverItsProcessDoes) {
    PeerProcess peer;
    peer.Ask("window KorvaneScreen Zażółć");
    EXPECT_EQ(SendMessageW(FindWindowW(L"KorvaneScreen", nullptr), WM_GETTEXTLENGTH, 0, 0), 6);
}

TEST(EnumWindows, RefusesToCallNothing) {
    EXPECT_FALSE(EnumWindows(nullptr, 0));
}

TEST(PostToAnotherProcess, IsRefusedAtOnceWhenTheReceiverTakesNothing) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer stuck");
    const HWND window = FindWindowW(nullptr, L"stuck");
    peer.Freeze();
    WPARAM posted = 0;
    while (posted < 1000000 && PostMessageW(window, WM_APP, posted, 0))
        ++posted;
    EXPECT_EQ(GetLastError(), ERROR_NOT_ENOUGH_QUOTA);
    EXPECT_GE(posted, 200u);
    EXPECT_LT(posted, 1000000u);
    EXPECT_FALSE(PostMessageW(window, WM_APP, posted, 0));
    peer.Thaw();
    // Nothing that was accepted is lost.
    const std::string taken = peer.Ask("take " + std::to_string(posted));
    EXPECT_EQ(taken.substr(taken.rfind(' ')), " 0:" + std::to_string(posted - 1) + ":0");
}

TEST(PostToAnotherProcess, WaitsWithTheSenderWhileAQueueIsFull) {
    const TestWindow window;
    for (int i = 0; i < 10000; ++i)
        ASSERT_TRUE(PostMessageW(window.Handle(), WM_APP + 1, 0, 0));
    PeerProcess peer;
    peer.Ask("find Korvane.Test *");
    for (int i = 0; i < 50; ++i)
        ASSERT_EQ(peer.Ask("post 2 " + std::to_string(i) + " 0"), "ok");
    MSG message{};
    for (int i = 0; i < 10000; ++i) {
        ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
        ASSERT_EQ(message.message, WM_APP + 1);
    }
    for (WPARAM i = 0; i < 50; ++i) {
        ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
        EXPECT_EQ(message.wParam, i);
    }
    EXPECT_FALSE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
}

TEST(PostToAnotherProcess, EndsAWaitUnderTheManualClock) {
    PeerProcess peer;
    peer.Ask("manual");
    peer.Ask("window Korvane.Peer still");
    // Nobody knows the window, so nothing can come.
    EXPECT_EQ(peer.Ask("take 1"), "taken quit");
    const HWND window = FindWindowW(nullptr, L"still");
    peer.Say("take 2");
    EXPECT_EQ(SendMessageW(window, kPeerAdds, 1, 1), 3);
    PostMessageW(window, WM_APP, 1, 2);
    PostMessageW(window, WM_APP, 3, 4);
    EXPECT_EQ(peer.Hear(), "taken 0:1:2 0:3:4");
}

TEST(PostToAnotherProcess, LetsAWaitUnderTheManualClockEndWhenTheLastSenderHasGone) {
    PeerProcess peer;
    peer.Ask("manual");
    peer.Ask("window Korvane.Peer still");
    PeerProcess knowing;
    EXPECT_EQ(knowing.Ask("find Korvane.Peer still"), "Korvane.Peer still");
    peer.Say("take 1");
    knowing.Kill();
    EXPECT_EQ(peer.Hear(), "taken quit");
}

TEST(SendToAnotherProcess, GivesUpAfterFiveSecondsWhenTheReceiverHangs) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer hanging");
    const HWND window = FindWindowW(nullptr, L"hanging");
    peer.Freeze();
    const auto before = std::chrono::steady_clock::now();
    EXPECT_EQ(SendMessageW(window, kPeerAdds, 1, 1), 0);
    EXPECT_EQ(GetLastError(), ERROR_TIMEOUT);
    const auto taken = std::chrono::steady_clock::now() - before;
    EXPECT_GE(taken, std::chrono::milliseconds(4900));
    EXPECT_LT(taken, std::chrono::seconds(15));
    peer.Thaw();
    // The answer that nobody awaits any more is not taken for the next one.
    peer.Say("serve");
    EXPECT_EQ(SendMessageW(window, kPeerAdds, 10, 1), 21);
    PostMessageW(window, kPeerStops, 0, 0);
    peer.Hear();
}

TEST(SendToAnotherProcess, RefusesWhatPointsIntoTheSendersMemory) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer plain");
    const HWND window = FindWindowW(nullptr, L"plain");
    EXPECT_EQ(SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"x")), 0);
    EXPECT_EQ(SendMessageW(window, WM_CREATE, 0, 0), 0);
    EXPECT_EQ(GetLastError(), ERROR_MESSAGE_SYNC_ONLY);
}

}  // namespace
}  // namespace korvane
