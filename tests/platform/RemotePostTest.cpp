#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "tests/platform/PeerMessages.h"
#include "tests/platform/PeerProcess.h"
#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

TEST(PostToAnotherProcess, GivesWindowNumberAndParameters) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer first");
    peer.Ask("window Korvane.Peer second");
    const HWND second = FindWindowW(nullptr, L"second");
    ASSERT_TRUE(PostMessageW(second, WM_APP + 7, 12, -34));
    EXPECT_EQ(peer.Ask("take 1"), "taken 7:12:-34");
}

TEST(PostToAnotherProcess, HasArrivedWhenItReturns) {
    TestWindow window;
    PeerProcess peer;
    peer.Ask("find Korvane.Test *");
    for (WPARAM i = 0; i < 100; ++i) {
        ASSERT_EQ(peer.Ask("post 5 " + std::to_string(i) + " 0"), "ok");
        MSG message{};
        ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
        EXPECT_EQ(message.hwnd, window.Handle());
        EXPECT_EQ(message.wParam, i);
    }
}

TEST(PostToAnotherProcess, EndsItsWait) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer waiting");
    const HWND window = FindWindowW(nullptr, L"waiting");
    peer.Say("serve");
    for (WPARAM i = 0; i < 3; ++i)
        ASSERT_EQ(SendMessageW(window, kPeerAdds, i, 0), static_cast<LRESULT>(2 * i));
    PostMessageW(window, kPeerStops, 0, 0);
    EXPECT_EQ(peer.Hear(), "served 1:0:0 1:1:0 1:2:0");
}

TEST(PostToAnotherProcess, IsStampedByTheClockOfTheReceiver) {
    const TestWindow window;
    PeerProcess peer;
    peer.Ask("manual");
    peer.Ask("find Korvane.Test *");
    const DWORD before = GetTickCount();
    peer.Ask("post 5 0 0");
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_LE(message.time - before, GetTickCount() - before);
}

TEST(PostToAnotherProcess, KeepsTheOrderOfEachSender) {
    const TestWindow window;
    constexpr WPARAM kEach = 5000;
    PeerProcess peers[2];
    for (int sender = 0; sender < 2; ++sender) {
        peers[sender].Ask("find Korvane.Test *");
        peers[sender].Say("postmany " + std::to_string(kEach) + ' ' + std::to_string(sender));
    }
    WPARAM next[2] = {};
    for (WPARAM i = 0; i < 2 * kEach; ++i) {
        MSG message{};
        ASSERT_EQ(GetMessageW(&message, nullptr, 0, 0), TRUE);
        ASSERT_EQ(message.wParam, next[message.lParam]++);
    }
    for (PeerProcess& peer : peers)
        EXPECT_EQ(peer.Hear(), "ok");
}

TEST(PostToAnotherProcess, ComesFromAnyThreadInItsOrder) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer busy");
    const HWND window = FindWindowW(nullptr, L"busy");
    std::vector<std::thread> threads;
    for (LPARAM thread = 0; thread < 3; ++thread) {
        threads.emplace_back([window, thread] {
            for (WPARAM i = 0; i < 30; ++i)
                PostMessageW(window, WM_APP, i, thread);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    const std::string taken = peer.Ask("take 90");
    for (const char thread : {'0', '1', '2'}) {
        std::size_t at = 0;
        for (int i = 0; i < 30; ++i) {
            at = taken.find(" 0:" + std::to_string(i) + ':' + thread, at);
            ASSERT_NE(at, std::string::npos) << taken;
        }
    }
}

TEST(PostToAnotherProcess, RefusesWhatPointsIntoTheSendersMemory) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer plain");
    const HWND window = FindWindowW(nullptr, L"plain");
    EXPECT_FALSE(PostMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"x")));
    EXPECT_EQ(GetLastError(), ERROR_MESSAGE_SYNC_ONLY);
    EXPECT_FALSE(PostMessageW(window, WM_CREATE, 0, 0));
    EXPECT_FALSE(PostMessageW(window, WM_GETTEXT, 10, 0));
}

TEST(PostToAnotherProcess, ArrivesFromASenderThatHasEnded) {
    const TestWindow window;
    {
        PeerProcess peer;
        peer.Ask("find Korvane.Test *");
        peer.Ask("post 3 4 5");
        peer.Kill();
    }
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, WM_APP + 3);
    EXPECT_EQ(message.wParam, 4u);
    EXPECT_EQ(message.lParam, 5);
}

}  // namespace
}  // namespace korvane
