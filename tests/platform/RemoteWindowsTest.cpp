#include <gtest/gtest.h>
#include <string>

#include "platform/posix/window/RemoteWindows.h"

#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

const HWND kRemote = reinterpret_cast<HWND>(RemoteWindows::kHandleBit | 5);

// One window of another process, titled "elsewhere".
class OneWindowElsewhere : public RemoteWindows {
  public:
    OneWindowElsewhere() { SetRemoteWindows(this); }
    ~OneWindowElsewhere() override { SetRemoteWindows(nullptr); }

    HWND Find(LPCWSTR, LPCWSTR title) override {
        return title && std::wstring(title) == L"elsewhere" ? kRemote : nullptr;
    }
    bool Exists(HWND window) override { return window == kRemote; }
    bool Post(HWND window, UINT message, WPARAM, LPARAM) override {
        posted.push_back(message);
        return window == kRemote;
    }
    LRESULT Send(HWND, UINT message, WPARAM, LPARAM) override { return static_cast<LRESULT>(message) + 1; }

    std::vector<UINT> posted;
};

TEST(RemoteWindow, IsFoundWhenThisProcessHasNone) {
    const OneWindowElsewhere elsewhere;
    EXPECT_EQ(FindWindowW(nullptr, L"elsewhere"), kRemote);
    EXPECT_EQ(FindWindowW(nullptr, L"nowhere"), nullptr);
    TestWindow::Options options;
    options.title = L"elsewhere";
    const TestWindow here(options);
    EXPECT_EQ(FindWindowW(nullptr, L"elsewhere"), here.Handle());
}

TEST(RemoteWindow, ReceivesWhatIsPostedAndSent) {
    OneWindowElsewhere elsewhere;
    EXPECT_TRUE(IsWindow(kRemote));
    EXPECT_TRUE(PostMessageW(kRemote, WM_APP, 0, 0));
    EXPECT_EQ(elsewhere.posted, std::vector<UINT>{WM_APP});
    EXPECT_EQ(SendMessageW(kRemote, WM_APP, 0, 0), static_cast<LRESULT>(WM_APP) + 1);
}

TEST(RemoteWindow, DoesNotGetWhatIsMeantForThisProcess) {
    OneWindowElsewhere elsewhere;
    const TestWindow here;
    EXPECT_TRUE(IsWindow(here.Handle()));
    PostMessageW(here.Handle(), WM_APP, 0, 0);
    PostMessageW(nullptr, WM_APP, 0, 0);
    EXPECT_FALSE(IsWindow(nullptr));
    EXPECT_TRUE(elsewhere.posted.empty());
}

TEST(RemoteWindow, DoesNotExistWithoutOtherProcesses) {
    EXPECT_FALSE(IsWindow(kRemote));
    EXPECT_FALSE(PostMessageW(kRemote, WM_APP, 0, 0));
    EXPECT_EQ(SendMessageW(kRemote, WM_APP, 0, 0), 0);
}

}  // namespace
}  // namespace korvane
