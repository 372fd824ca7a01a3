#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "tests/platform/PeerMessages.h"
#include "tests/platform/PeerProcess.h"
#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

// A window of this process that bounces as the peer's do, to the peer's window.
class Bouncing {
  public:
    explicit Bouncing(const wchar_t* title) : window_(OptionsOf(title)) {
        window_.onMessage = [this](UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
            if (message != kPeerBounces)
                return false;
            result = wParam == 0 ? 0 : SendMessageW(partner, kPeerBounces, wParam - 1, lParam) + 1;
            return true;
        };
    }

    HWND partner = nullptr;

  private:
    static TestWindow::Options OptionsOf(const wchar_t* title) {
        TestWindow::Options options;
        options.title = title;
        return options;
    }

    TestWindow window_;
};

TEST(SendToAnotherProcess, GivesTheResult) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer adder");
    const HWND window = FindWindowW(nullptr, L"adder");
    peer.Say("serve");
    EXPECT_EQ(SendMessageW(window, kPeerAdds, 20, 2), 42);
    EXPECT_EQ(SendMessageW(window, kPeerAdds, 0, -5), -5);
    EXPECT_EQ(SendMessageW(window, kPeerAdds, 0, 0x7FFFFFFF), 0x7FFFFFFF);
    PostMessageW(window, kPeerStops, 0, 0);
    EXPECT_EQ(peer.Hear(), "served 1:20:2 1:0:-5 1:0:2147483647");
}

TEST(SendToAnotherProcess, AnswersWhileItWaits) {
    Bouncing home(L"home");
    PeerProcess peer;
    peer.Ask("window Korvane.Peer away");
    peer.Ask("find Korvane.Test home");
    home.partner = FindWindowW(nullptr, L"away");
    peer.Say("serve");
    for (const WPARAM depth : {WPARAM{1}, WPARAM{2}, WPARAM{7}, WPARAM{30}})
        EXPECT_EQ(SendMessageW(home.partner, kPeerBounces, depth, 0), static_cast<LRESULT>(depth));
    PostMessageW(home.partner, kPeerStops, 0, 0);
    peer.Hear();
}

TEST(SendToAnotherProcess, GivesUpWhenTheTimeIsOverThatTheSenderGives) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer hanging");
    const HWND window = FindWindowW(nullptr, L"hanging");
    peer.Freeze();
    DWORD_PTR answer = 77;
    EXPECT_EQ(SendMessageTimeoutW(window, kPeerAdds, 1, 1, SMTO_NORMAL, 50, &answer), 0);
    EXPECT_EQ(GetLastError(), ERROR_TIMEOUT);
    peer.Thaw();
    // The answer that nobody awaits any more is not taken for the next one.
    peer.Say("serve");
    EXPECT_NE(SendMessageTimeoutW(window, kPeerAdds, 10, 1, SMTO_NORMAL, 60000, &answer), 0);
    EXPECT_EQ(answer, 21u);
    PostMessageW(window, kPeerStops, 0, 0);
    peer.Hear();
}

TEST(SendToAnotherProcess, GoesRoundThreeProcesses) {
    Bouncing home(L"home");
    PeerProcess first;
    PeerProcess second;
    first.Ask("window Korvane.Peer first");
    second.Ask("window Korvane.Peer second");
    first.Ask("find * second");
    second.Ask("find * home");
    home.partner = FindWindowW(nullptr, L"first");
    const HWND last = FindWindowW(nullptr, L"second");
    first.Say("serve");
    second.Say("serve");
    EXPECT_EQ(SendMessageW(home.partner, kPeerBounces, 12, 0), 12);
    PostMessageW(home.partner, kPeerStops, 0, 0);
    PostMessageW(last, kPeerStops, 0, 0);
    EXPECT_EQ(first.Hear(), "served 2:12:0 2:9:0 2:6:0 2:3:0 2:0:0");
    EXPECT_EQ(second.Hear(), "served 2:11:0 2:8:0 2:5:0 2:2:0");
}

TEST(SendToAnotherProcess, ReachesThisProcessWhileItWaitsForMessages) {
    TestWindow window;
    window.onMessage = [](UINT message, WPARAM wParam, LPARAM, LRESULT& result) {
        result = static_cast<LRESULT>(wParam) + 1;
        return message == kPeerAdds;
    };
    PeerProcess peer;
    peer.Ask("find Korvane.Test *");
    std::string answer;
    std::thread asking([&] {
        answer = peer.Ask("send 1 41 0");
        peer.Ask("post 99 0 0");
    });
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0 && message.message != kPeerStops)
        DispatchMessageW(&message);
    asking.join();
    EXPECT_EQ(answer, "42");
}

TEST(SendToAnotherProcess, WorksFromThreadsWithoutWindows) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer adder");
    const HWND window = FindWindowW(nullptr, L"adder");
    peer.Say("serve");
    std::vector<std::thread> threads;
    for (LPARAM thread = 0; thread < 4; ++thread) {
        threads.emplace_back([window, thread] {
            for (WPARAM i = 0; i < 200; ++i)
                EXPECT_EQ(SendMessageW(window, kPeerAdds, i, thread), static_cast<LRESULT>(2 * i) + thread);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    PostMessageW(window, kPeerStops, 0, 0);
    peer.Hear();
}

TEST(SendToAnotherProcess, GivesTheResultOfAWindowThatEndsMeanwhile) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer closing");
    const HWND window = FindWindowW(nullptr, L"closing");
    peer.Say("serve");
    EXPECT_EQ(SendMessageW(window, kPeerCloses, 0, 0), 55);
    EXPECT_FALSE(IsWindow(window));
    peer.Kill();
}

TEST(SendToAnotherProcess, GivesUpAtOnceWhenTheReceiverEnds) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer mortal");
    const HWND window = FindWindowW(nullptr, L"mortal");
    peer.Say("serve");
    EXPECT_EQ(SendMessageW(window, kPeerEnds, 0, 0), 0);
    EXPECT_EQ(SendMessageW(window, kPeerAdds, 1, 1), 0);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_WINDOW_HANDLE);
    EXPECT_FALSE(IsWindow(window));
}

TEST(SendToAnotherProcess, GivesUpWhenTheReceiverIsKilledBeforeItAnswers) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer mortal");
    const HWND window = FindWindowW(nullptr, L"mortal");
    peer.Say("serve");
    std::thread killer([&] {
        EXPECT_EQ(peer.Hear(), "hanging");
        peer.Kill();
    });
    EXPECT_EQ(SendMessageW(window, kPeerHangs, 0, 0), 0);
    killer.join();
}

}  // namespace
}  // namespace korvane
