#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <thread>

#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

// A thread with a window that answers WM_APP with wParam + 1, as long as the object lives.
class AnsweringThread {
  public:
    AnsweringThread() {
        std::promise<HWND> made;
        std::future<HWND> handle = made.get_future();
        thread_ = std::thread([promise = std::move(made)]() mutable {
            TestWindow window;
            window.onMessage = [&](UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
                if (message != WM_APP)
                    return false;
                result = static_cast<LRESULT>(wParam) + 1;
                if (lParam != 0)
                    result += SendMessageW(reinterpret_cast<HWND>(lParam), WM_APP, 100, 0);
                return true;
            };
            promise.set_value(window.Handle());
            MSG message{};
            while (GetMessageW(&message, nullptr, 0, 0) > 0)
                DispatchMessageW(&message);
        });
        window_ = handle.get();
    }
    ~AnsweringThread() {
        PostMessageW(window_, WM_QUIT, 0, 0);
        thread_.join();
    }
    AnsweringThread(const AnsweringThread&) = delete;
    AnsweringThread& operator=(const AnsweringThread&) = delete;

    HWND Window() const { return window_; }

  private:
    HWND window_ = nullptr;
    std::thread thread_;
};

TEST(SentMessage, CallsAWindowOfTheSameThreadDirectly) {
    TestWindow window;
    window.onMessage = [](UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
        result = static_cast<LRESULT>(wParam) + lParam;
        return message == WM_APP;
    };
    PostMessageW(window.Handle(), WM_APP + 1, 0, 0);
    EXPECT_EQ(SendMessageW(window.Handle(), WM_APP, 40, 2), 42);
    EXPECT_EQ(window.Numbers(), std::vector<UINT>{WM_APP});
    DrainQueue();
}

TEST(SentMessage, WaitsForTheAnswerOfAnotherThread) {
    const AnsweringThread other;
    for (WPARAM i = 0; i < 100; ++i)
        ASSERT_EQ(SendMessageW(other.Window(), WM_APP, i, 0), static_cast<LRESULT>(i) + 1);
}

TEST(SentMessage, AnswersWhileItWaits) {
    TestWindow own;
    own.onMessage = [](UINT message, WPARAM wParam, LPARAM, LRESULT& result) {
        result = static_cast<LRESULT>(wParam) * 10;
        return message == WM_APP;
    };
    const AnsweringThread other;
    EXPECT_EQ(SendMessageW(other.Window(), WM_APP, 1, reinterpret_cast<LPARAM>(own.Handle())), 1002);
}

TEST(SentMessage, IsAnsweredBeforePostedMessages) {
    TestWindow window;
    PostMessageW(window.Handle(), WM_APP + 1, 0, 0);
    std::atomic<bool> answered{false};
    std::thread sender([&] {
        SendMessageW(window.Handle(), WM_APP, 0, 0);
        answered = true;
    });
    // The posted message never fits this range, so that nothing but the sent one can end the loop.
    MSG message{};
    while (window.All().empty())
        PeekMessageW(&message, nullptr, WM_KEYFIRST, WM_KEYFIRST, PM_REMOVE);
    sender.join();
    EXPECT_TRUE(answered);
    EXPECT_EQ(window.Numbers(), std::vector<UINT>{WM_APP});
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_APP + 1});
}

TEST(SentMessage, GivesUpWhenTheOtherThreadEnds) {
    std::promise<HWND> made;
    std::promise<void> mayEnd;
    std::thread other([&] {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = &DefWindowProcW;
        windowClass.lpszClassName = L"Korvane.Ending";
        RegisterClassW(&windowClass);
        made.set_value(CreateWindowExW(0, L"Korvane.Ending", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                       nullptr, nullptr));
        mayEnd.get_future().wait();
    });
    const HWND window = made.get_future().get();
    std::thread sender([&] { EXPECT_EQ(SendMessageW(window, WM_APP, 0, 0), 0); });
    mayEnd.set_value();
    other.join();
    sender.join();
    EXPECT_FALSE(IsWindow(window));
}

TEST(PostedMessage, ReachesAnotherThreadThatWaits) {
    const AnsweringThread other;
    TestWindow own;
    EXPECT_TRUE(PostMessageW(other.Window(), WM_APP, 0, reinterpret_cast<LPARAM>(own.Handle())));
    // The other thread answers by sending to this one.
    MSG message{};
    while (own.All().empty())
        PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);
    EXPECT_EQ(own.All().front().wParam, 100u);
}

TEST(PostedMessage, KeepsTheOrderOfEachOfSeveralThreads) {
    const TestWindow window;
    constexpr WPARAM kEach = 500;
    std::vector<std::thread> posters;
    for (LPARAM poster = 0; poster < 3; ++poster) {
        posters.emplace_back([&, poster] {
            for (WPARAM i = 0; i < kEach; ++i)
                PostMessageW(window.Handle(), WM_APP, i, poster);
        });
    }
    WPARAM next[3] = {};
    for (WPARAM i = 0; i < 3 * kEach; ++i) {
        MSG message{};
        ASSERT_EQ(GetMessageW(&message, nullptr, 0, 0), TRUE);
        ASSERT_EQ(message.wParam, next[message.lParam]++);
    }
    for (std::thread& poster : posters)
        poster.join();
}

TEST(Window, BelongsToTheThreadThatMadeIt) {
    const AnsweringThread other;
    MSG message{};
    EXPECT_FALSE(DestroyWindow(other.Window()));
    EXPECT_EQ(SetTimer(other.Window(), 1, 100, nullptr), 0u);
    EXPECT_FALSE(PeekMessageW(&message, other.Window(), 0, 0, PM_NOREMOVE));
    EXPECT_TRUE(IsWindow(other.Window()));
}

TEST(SendMessageTimeout, AnswersForAWindowOfThisProcessAndForNoneThatIsGone) {
    DWORD_PTR answer = 77;
    {
        TestWindow window;
        window.onMessage = [](UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
            result = static_cast<LRESULT>(wParam) + lParam;
            return message == WM_APP;
        };
        EXPECT_NE(SendMessageTimeoutW(window.Handle(), WM_APP, 40, 2, SMTO_NORMAL, 0, &answer), 0);
        EXPECT_EQ(answer, 42u);
        EXPECT_NE(SendMessageTimeoutW(window.Handle(), WM_APP, 1, 2, SMTO_NORMAL, 0, nullptr), 0);
    }
    const TestWindow window;
    DestroyWindow(window.Handle());
    // Systems differ in what a call that fails leaves in the answer.
    EXPECT_EQ(SendMessageTimeoutW(window.Handle(), WM_APP, 1, 2, SMTO_NORMAL, 0, &answer), 0);
}

}  // namespace
}  // namespace korvane
