#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "tests/platform/PeerMessages.h"
#include "tests/platform/PeerProcess.h"
#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

TEST(CrashOfAnotherProcess, NeverHoldsUpTheSender) {
    for (int round = 0; round < 15; ++round) {
        PeerProcess peer;
        peer.Ask("window Korvane.Peer victim");
        const HWND window = FindWindowW(nullptr, L"victim");
        peer.Say("serve");
        std::thread killer([&peer, round] {
            for (int i = 0; i < round * 10; ++i)
                std::this_thread::yield();
            peer.Kill();
        });
        int sent = 0;
        while (SendMessageW(window, kPeerAdds, 21, 0) == 42) {
            PostMessageW(window, WM_APP, 0, 0);
            ++sent;
        }
        killer.join();
        EXPECT_FALSE(PostMessageW(window, WM_APP, 0, 0)) << sent;
        EXPECT_EQ(GetLastError(), ERROR_INVALID_WINDOW_HANDLE);
        EXPECT_EQ(FindWindowW(nullptr, L"victim"), nullptr);
    }
}

TEST(CrashOfAnotherProcess, LeavesTheReceiverAlone) {
    TestWindow window;
    for (int round = 0; round < 20; ++round) {
        PeerProcess peer;
        peer.Ask("find Korvane.Test *");
        peer.Say(round % 2 == 0 ? "postmany 1000000" : "send 1 2 3");
        for (int i = 0; i < round * 10; ++i)
            std::this_thread::yield();
        peer.Kill();
        DrainQueue();
    }
    while (!DrainQueue().empty()) {
    }
    PeerProcess last;
    last.Ask("find Korvane.Test *");
    last.Ask("post 1 2 3");
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_APP + 1});
}

TEST(CrashOfAnotherProcess, DoesNotGiveItsHandlesToTheNextOne) {
    HWND dead = nullptr;
    {
        PeerProcess peer;
        peer.Ask("window Korvane.Peer same");
        dead = FindWindowW(nullptr, L"same");
        peer.Kill();
    }
    PeerProcess peer;
    peer.Ask("window Korvane.Peer same");
    EXPECT_NE(FindWindowW(nullptr, L"same"), dead);
    EXPECT_FALSE(IsWindow(dead));
    EXPECT_FALSE(PostMessageW(dead, WM_APP, 0, 0));
}

}  // namespace
}  // namespace korvane
