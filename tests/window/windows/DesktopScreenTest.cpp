#include <gtest/gtest.h>
#include <vector>

#include "engine/Korvane.h"
#include "platform/Display.h"

namespace korvane::test {
namespace {

// The screen as the user of a PC has it.
class DesktopScreen : public testing::Test {
  protected:
    static constexpr int kWidth = 160;
    static constexpr int kHeight = 96;

    ~DesktopScreen() override { screen_.Close(); }

    void Open(const char* display) {
        ASSERT_TRUE(screen_.Open(display, kWidth, kHeight, L"Desktop")) << DisplayFailure();
        Pump();
    }

    static void Pump() {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
    }

    CLQScreen& screen_ = *CLQScreen::GetInstance();
};

TEST_F(DesktopScreen, IsAWindowThatTheUserSees) {
    Open(DefaultDisplay());
    EXPECT_TRUE(IsWindowVisible(screen_.GetHWND()));
    EXPECT_EQ(GetWindowLongPtrW(screen_.GetHWND(), GWL_EXSTYLE) & WS_EX_LAYERED, 0);
    EXPECT_EQ(GetActiveWindow(), screen_.GetHWND());
}

TEST_F(DesktopScreen, LeavesTheFocusAloneWithoutAPanel) {
    const HWND other = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr,
                                       nullptr, nullptr, nullptr);
    SetForegroundWindow(other);
    Pump();
    ASSERT_EQ(GetActiveWindow(), other);
    Open("memory");
    EXPECT_TRUE(IsWindowVisible(screen_.GetHWND()));
    EXPECT_EQ(GetActiveWindow(), other);
    DestroyWindow(other);
}

TEST_F(DesktopScreen, HandsPostedCommandsToItsWindows) {
    struct Commanded : CLQWindow {
        std::vector<int> params;
        bool DoCommand(_LQMessage* msg) override {
            params.push_back(msg->param);
            return true;
        }
    };
    Open(DefaultDisplay());
    Commanded window;
    window.Create(0, 0, kWidth, kHeight);
    CLQGroupCtrl group;
    CLQBaseCtrl* const control = &group;
    window.AddChild(control);
    EXPECT_TRUE(PostMessageW(screen_.GetHWND(), kMsgCommand, reinterpret_cast<WPARAM>(control), 514));
    Pump();
    EXPECT_EQ(window.params, std::vector<int>{514});
}

TEST_F(DesktopScreen, CopiesNothingBesideTheRectangleThatIsFlipped) {
    Open(DefaultDisplay());
    _LQColor colour{200, 100, 40, 255};
    screen_.GetScreenSurfHandle().FillRect(0, 0, kWidth, kHeight, colour, false);
    const HDC dc = GetDC(screen_.GetHWND());
    PatBlt(dc, 0, 0, kWidth, kHeight, WHITENESS);
    screen_.FlipRect(20, 10, 60, 50);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const bool flipped = x >= 20 && x < 60 && y >= 10 && y < 50;
            ASSERT_EQ(GetPixel(dc, x, y), flipped ? RGB(200, 100, 40) : RGB(255, 255, 255)) << x << ", " << y;
        }
    }
    ReleaseDC(screen_.GetHWND(), dc);
}

}  // namespace
}  // namespace korvane::test
