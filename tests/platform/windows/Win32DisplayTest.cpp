#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "platform/Display.h"

#include "tests/platform/StoppedClock.h"
#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

// Opens the display on the desktop, and does what a user would do with its mouse and keyboard.
class Win32DisplayTest : public testing::Test {
  protected:
    static constexpr int kWidth = 160;
    static constexpr int kHeight = 96;

    Win32DisplayTest() {
        if (!display_ || !display_->Open(kWidth, kHeight, L"Zażółć", owner_.Handle()))
            ADD_FAILURE() << DisplayFailure();
        SetForegroundWindow(owner_.Handle());
        MovePointer(kWidth / 2, kHeight / 2);
        DrainQueue();
        ValidateRect(owner_.Handle(), nullptr);
        owner_.onMessage = [this](UINT message, WPARAM wParam, LPARAM lParam, LRESULT&) {
            if (message >= WM_KEYFIRST && message <= WM_KEYUP)
                input_.push_back(std::to_string(message) + ' ' + std::to_string(wParam));
            else if (message >= WM_MOUSEMOVE && message <= WM_LBUTTONUP)
                input_.push_back(std::to_string(message) + ' ' + std::to_string(LOWORD(lParam)) + ' ' +
                                 std::to_string(HIWORD(lParam)));
            return false;
        };
    }

    // Places are those of the screen that the display shows. The loop gets each before the next is done, as
    // with a user.
    void Mouse(DWORD flags, int x, int y) const {
        POINT place{x, y};
        ClientToScreen(owner_.Handle(), &place);
        INPUT input{};
        input.type = INPUT_MOUSE;
        // The whole desktop is 65536 wide and high; the middle of the pixel is meant.
        input.mi.dx = (place.x * 2 + 1) * 32768 / GetSystemMetrics(SM_CXSCREEN);
        input.mi.dy = (place.y * 2 + 1) * 32768 / GetSystemMetrics(SM_CYSCREEN);
        input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
        SendInput(1, &input, sizeof input);
        DrainQueue();
    }
    void MovePointer(int x, int y) const { Mouse(0, x, y); }
    void Press(int x, int y) const { Mouse(MOUSEEVENTF_LEFTDOWN, x, y); }
    void Release(int x, int y) const { Mouse(MOUSEEVENTF_LEFTUP, x, y); }
    void Key(WORD key, DWORD flags = 0) const {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = flags;
        SendInput(1, &input, sizeof input);
    }
    void Finger(UINT message, WORD flags, int x, int y) const {
        POINT place{x, y};
        ClientToScreen(owner_.Handle(), &place);
        PostMessageW(owner_.Handle(), message, MAKEWPARAM(1, flags), MAKELPARAM(place.x, place.y));
    }

    // What has reached the owner's procedure, each as "number x y" or "number key".
    using Lines = std::vector<std::string>;
    Lines Input() {
        DrainQueue();
        return std::exchange(input_, Lines());
    }

    COLORREF Shown(int x, int y) const {
        const HDC dc = GetDC(owner_.Handle());
        const COLORREF colour = GetPixel(dc, x, y);
        ReleaseDC(owner_.Handle(), dc);
        return colour;
    }

    TestWindow owner_;
    std::unique_ptr<Display> display_ = CreateDisplay("win32");
    Lines input_;
};

TEST_F(Win32DisplayTest, IsTheOneThatAUserSees) {
    EXPECT_STREQ(DefaultDisplay(), "win32");
}

TEST_F(Win32DisplayTest, MakesItsOwnerAWindowOfTheScreensSizeAndTitle) {
    RECT client{};
    RECT whole{};
    GetClientRect(owner_.Handle(), &client);
    GetWindowRect(owner_.Handle(), &whole);
    EXPECT_EQ(client.right, kWidth);
    EXPECT_EQ(client.bottom, kHeight);
    EXPECT_GT(whole.bottom - whole.top, kHeight);
    EXPECT_TRUE(IsWindowVisible(owner_.Handle()));
    wchar_t title[32];
    GetWindowTextW(owner_.Handle(), title, 32);
    EXPECT_STREQ(title, L"Zażółć");
}

TEST_F(Win32DisplayTest, IsBlackAtFirst) {
    EXPECT_EQ(Shown(0, 0), RGB(0, 0, 0));
    EXPECT_EQ(Shown(kWidth - 1, kHeight - 1), RGB(0, 0, 0));
}

TEST_F(Win32DisplayTest, ShowsTheRectangleThatIsPresentedAndNothingElse) {
    constexpr int kStride = kWidth + 7;
    std::vector<std::uint32_t> pixels(kStride * kHeight);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = 0xFF000000 | static_cast<std::uint32_t>(i * 2654435761u >> 8);
    display_->Present(pixels.data(), kStride, 8, 4, 40, 20);
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 48; ++x) {
            const bool presented = x >= 8 && x < 40 && y >= 4 && y < 20;
            const std::uint32_t pixel = presented ? pixels[static_cast<std::size_t>(y * kStride + x)] : 0;
            ASSERT_EQ(Shown(x, y), RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF))
                << x << ", " << y;
        }
    }
}

TEST_F(Win32DisplayTest, SurvivesRectanglesOfEverySize) {
    const std::vector<std::uint32_t> pixels(kWidth * kHeight, 0xFF102030);
    display_->Present(pixels.data(), kWidth, -100, -100, 1000, 1000);
    display_->Present(pixels.data(), kWidth, 50, 40, 10, 10);
    display_->Present(nullptr, kWidth, 0, 0, 10, 10);
    EXPECT_EQ(Shown(kWidth - 1, kHeight - 1), RGB(0x10, 0x20, 0x30));
}

TEST_F(Win32DisplayTest, MakesTheMouseATouch) {
    MovePointer(1, 1);
    Press(10, 20);
    MovePointer(12, 22);
    Release(14, 24);
    MovePointer(2, 2);
    const Lines input = Input();
    ASSERT_GE(input.size(), 3u);
    EXPECT_EQ(input.front(), "513 10 20");
    EXPECT_EQ(input.back(), "514 14 24");
    EXPECT_EQ(std::count(input.begin(), input.end(), "512 12 22"), 1);
    EXPECT_EQ(std::count(input.begin(), input.end(), "512 2 2"), 0);
}

TEST_F(Win32DisplayTest, FollowsATouchBeyondTheScreenAtItsEdge) {
    Press(10, 20);
    MovePointer(-30, 400);
    Release(kWidth + 50, -60);
    const Lines input = Input();
    ASSERT_GE(input.size(), 3u);
    EXPECT_EQ(input.front(), "513 10 20");
    EXPECT_EQ(std::count(input.begin(), input.end(), "512 0 95"), 1);
    EXPECT_EQ(input.back(), "514 159 0");
}

TEST_F(Win32DisplayTest, EndsATouchWhenTheSystemTakesThePointerAway) {
    Press(10, 20);
    DrainQueue();
    SetCapture(nullptr);
    ReleaseCapture();
    EXPECT_EQ(Input(), (Lines{"513 10 20", "514 10 20"}));
    Release(30, 40);
    EXPECT_EQ(Input(), Lines{});
}

TEST_F(Win32DisplayTest, MakesTheFirstFingerATouch) {
    constexpr WORD kFirst = POINTER_MESSAGE_FLAG_PRIMARY | POINTER_MESSAGE_FLAG_INCONTACT;
    constexpr WORD kSecond = POINTER_MESSAGE_FLAG_INCONTACT;
    Finger(WM_POINTERDOWN, kFirst, 40, 24);
    Finger(WM_POINTERDOWN, kSecond, 80, 50);
    Finger(WM_POINTERUPDATE, kFirst, 20, 12);
    Finger(WM_POINTERUPDATE, kSecond, 82, 52);
    Finger(WM_POINTERUP, kSecond, 84, 54);
    Finger(WM_POINTERUP, POINTER_MESSAGE_FLAG_PRIMARY, 21, 13);
    EXPECT_EQ(Input(), (Lines{"513 40 24", "512 20 12", "514 21 13"}));
}

TEST_F(Win32DisplayTest, KeepsTheMouseOutOfAFingersTouch) {
    constexpr WORD kFirst = POINTER_MESSAGE_FLAG_PRIMARY | POINTER_MESSAGE_FLAG_INCONTACT;
    Finger(WM_POINTERDOWN, kFirst, 40, 24);
    DrainQueue();
    EXPECT_EQ(GetCapture(), nullptr);
    MovePointer(30, 30);
    MovePointer(31, 31);
    Finger(WM_POINTERUP, POINTER_MESSAGE_FLAG_PRIMARY, 41, 25);
    EXPECT_EQ(Input(), (Lines{"513 40 24", "514 41 25"}));
}

TEST_F(Win32DisplayTest, KeepsTheMouseOutOfAProgramsTouch) {
    PostInput(owner_.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(40, 24));
    DrainQueue();
    MovePointer(30, 30);
    PostInput(owner_.Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(50, 34));
    DrainQueue();
    MovePointer(31, 31);
    PostInput(owner_.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(51, 35));
    EXPECT_EQ(Input(), (Lines{"513 40 24", "512 50 34", "514 51 35"}));
}

TEST_F(Win32DisplayTest, EndsTheTouchOfAFingerThatTheSystemTakesAway) {
    constexpr WORD kFirst = POINTER_MESSAGE_FLAG_PRIMARY | POINTER_MESSAGE_FLAG_INCONTACT;
    Finger(WM_POINTERDOWN, kFirst, 40, 24);
    Finger(WM_POINTERUPDATE, kFirst, 42, 26);
    PostMessageW(owner_.Handle(), WM_POINTERCAPTURECHANGED, MAKEWPARAM(2, 0), 0);
    EXPECT_EQ(Input(), (Lines{"513 40 24", "512 42 26"})) << "another finger";
    PostMessageW(owner_.Handle(), WM_POINTERCAPTURECHANGED, MAKEWPARAM(1, 0), 0);
    EXPECT_EQ(Input(), Lines{"514 42 26"});
}

TEST_F(Win32DisplayTest, PassesKeysOn) {
    Key(VK_LEFT);
    Key(VK_LEFT, KEYEVENTF_KEYUP);
    EXPECT_EQ(Input(), (Lines{"256 37", "257 37"}));
}

TEST_F(Win32DisplayTest, LeavesTheWishToCloseToItsOwner) {
    bool asked = false;
    owner_.onMessage = [&asked](UINT message, WPARAM, LPARAM, LRESULT&) {
        asked = asked || message == WM_CLOSE;
        return message == WM_CLOSE;
    };
    PostMessageW(owner_.Handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
    DrainQueue();
    EXPECT_TRUE(asked);
    EXPECT_TRUE(IsWindow(owner_.Handle()));
}

TEST_F(Win32DisplayTest, StampsInputWithTheManualClock) {
    const StoppedClock clock(1234);
    Key(VK_LEFT);
    MSG message{};
    ASSERT_EQ(GetMessageW(&message, nullptr, WM_KEYDOWN, WM_KEYDOWN), TRUE);
    EXPECT_EQ(message.time, 1234u);
    Key(VK_LEFT, KEYEVENTF_KEYUP);
}

TEST_F(Win32DisplayTest, LeavesRoomForOneDisplayOnly) {
    const std::unique_ptr<Display> second = CreateDisplay("win32");
    ASSERT_NE(second, nullptr);
    EXPECT_FALSE(second->Open(kWidth, kHeight, L"", owner_.Handle()));
    EXPECT_STREQ(DisplayFailure(), "another display is open");
    display_.reset();
    EXPECT_TRUE(second->Open(kWidth, kHeight, L"", owner_.Handle()));
}

TEST_F(Win32DisplayTest, OpensAnewInAnotherSize) {
    ASSERT_TRUE(display_->Open(200, 50, nullptr, owner_.Handle()));
    RECT client{};
    GetClientRect(owner_.Handle(), &client);
    EXPECT_EQ(client.right, 200);
    EXPECT_EQ(client.bottom, 50);
}

TEST_F(Win32DisplayTest, KeepsTheSizeOfAScreenLargerThanTheDesktop) {
    const int width = GetSystemMetrics(SM_CXSCREEN) + 500;
    ASSERT_TRUE(display_->Open(width, 50, nullptr, owner_.Handle()));
    RECT client{};
    GetClientRect(owner_.Handle(), &client);
    EXPECT_EQ(client.right, width);
}

TEST_F(Win32DisplayTest, KeepsItsSizeOnAMonitorWithAnotherFrame) {
    SetWindowPos(owner_.Handle(), nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    RECT proposed{0, 0, 2 * kWidth, 2 * kHeight};
    SendMessageW(owner_.Handle(), WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&proposed));
    RECT client{};
    GetClientRect(owner_.Handle(), &client);
    EXPECT_EQ(client.right, kWidth);
    EXPECT_EQ(client.bottom, kHeight);
}

TEST_F(Win32DisplayTest, ShowsAWindowThatADisplayWithoutAPanelHasHidden) {
    display_.reset();
    const std::unique_ptr<Display> hidden = CreateDisplay("memory");
    ASSERT_TRUE(hidden->Open(kWidth, kHeight, L"", owner_.Handle()));
    EXPECT_NE(GetWindowLongPtrW(owner_.Handle(), GWL_EXSTYLE) & WS_EX_LAYERED, 0);
    const std::unique_ptr<Display> shown = CreateDisplay("win32");
    ASSERT_TRUE(shown->Open(kWidth, kHeight, L"", owner_.Handle()));
    const LONG_PTR hides = WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE;
    EXPECT_EQ(GetWindowLongPtrW(owner_.Handle(), GWL_EXSTYLE) & hides, 0);
}

TEST_F(Win32DisplayTest, SaysWhyItCannotOpen) {
    EXPECT_FALSE(display_->Open(0, kHeight, L"", owner_.Handle()));
    EXPECT_STRNE(DisplayFailure(), "");
    EXPECT_FALSE(display_->Open(kWidth, 16385, L"", owner_.Handle()));
    EXPECT_FALSE(display_->Open(kWidth, kHeight, L"", nullptr));
    EXPECT_STREQ(DisplayFailure(), "the display's owner is not a window of this thread");
}

TEST_F(Win32DisplayTest, GivesItsOwnerBackAsAnOrdinaryWindow) {
    display_.reset();
    MovePointer(30, 30);
    MovePointer(31, 31);
    const Lines input = Input();
    EXPECT_GE(std::count(input.begin(), input.end(), "512 31 31"), 1);
}

}  // namespace
}  // namespace korvane
