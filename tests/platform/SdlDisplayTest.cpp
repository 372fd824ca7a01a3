#include <SDL.h>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "platform/Display.h"
#include "platform/Simulation.h"

#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

// Opens the display with SDL's driver that shows nothing, and does what a user would do.
class SdlDisplayTest : public testing::Test {
  protected:
    static constexpr int kWidth = 80;
    static constexpr int kHeight = 48;

    SdlDisplayTest() {
        setenv("SDL_VIDEODRIVER", "dummy", 0);
        setenv("SDL_RENDER_DRIVER", "software", 0);
        display_ = CreateDisplay("sdl");
        if (!display_ || !display_->Open(kWidth, kHeight, L"Zażółć", owner_.Handle()))
            ADD_FAILURE() << DisplayFailure();
        for (Uint32 id = 1; id < 100 && !window_; ++id)
            window_ = SDL_GetWindowFromID(id);
        SDL_FlushEvents(SDL_FIRSTEVENT, SDL_LASTEVENT);
    }

    void Button(Uint32 type, int x, int y, Uint32 which = 0, Uint8 button = SDL_BUTTON_LEFT) {
        SDL_Event event{};
        event.button.type = type;
        event.button.windowID = SDL_GetWindowID(window_);
        event.button.which = which;
        event.button.button = button;
        event.button.x = x;
        event.button.y = y;
        SDL_PushEvent(&event);
    }
    void Motion(int x, int y) {
        SDL_Event event{};
        event.motion.type = SDL_MOUSEMOTION;
        event.motion.windowID = SDL_GetWindowID(window_);
        event.motion.x = x;
        event.motion.y = y;
        SDL_PushEvent(&event);
    }
    void Finger(Uint32 type, SDL_FingerID finger, float x, float y, SDL_TouchID device = 1) {
        SDL_Event event{};
        event.tfinger.type = type;
        event.tfinger.touchId = device;
        event.tfinger.fingerId = finger;
        event.tfinger.x = x;
        event.tfinger.y = y;
        SDL_PushEvent(&event);
    }
    void Key(Uint32 type, SDL_Keycode key, Uint8 repeat = 0) {
        SDL_Event event{};
        event.key.type = type;
        event.key.windowID = SDL_GetWindowID(window_);
        event.key.keysym.sym = key;
        event.key.repeat = repeat;
        SDL_PushEvent(&event);
    }

    // What has come, each as "number x y".
    std::vector<std::string> Input() {
        std::vector<std::string> input;
        MSG message{};
        while (PeekMessageW(&message, nullptr, WM_KEYFIRST, WM_MOUSELAST, PM_REMOVE)) {
            std::string line = std::to_string(message.message) + ' ';
            if (message.message >= WM_MOUSEFIRST)
                line += std::to_string(LOWORD(static_cast<ULONG_PTR>(message.lParam))) + ' ' +
                        std::to_string(HIWORD(static_cast<ULONG_PTR>(message.lParam)));
            else
                line += std::to_string(message.wParam);
            input.push_back(line);
        }
        return input;
    }
    using Lines = std::vector<std::string>;

    TestWindow owner_;
    std::unique_ptr<Display> display_;
    SDL_Window* window_ = nullptr;
};

TEST_F(SdlDisplayTest, HasAWindowOfTheScreensSizeAndTitle) {
    ASSERT_NE(window_, nullptr);
    int width = 0;
    int height = 0;
    SDL_GetWindowSize(window_, &width, &height);
    EXPECT_EQ(width, kWidth);
    EXPECT_EQ(height, kHeight);
    EXPECT_STREQ(SDL_GetWindowTitle(window_), "Zażółć");
}

TEST_F(SdlDisplayTest, ShowsWhatIsPresented) {
    std::vector<std::uint32_t> pixels(kWidth * kHeight, 0xFF102030);
    display_->Present(pixels.data(), kWidth, 8, 4, 40, 20);
    SDL_Surface* const surface = SDL_GetWindowSurface(window_);
    ASSERT_NE(surface, nullptr);
    const auto at = [&](int x, int y) {
        const auto* row = static_cast<const Uint8*>(surface->pixels) + y * surface->pitch;
        return reinterpret_cast<const Uint32*>(row)[x] & 0xFFFFFF;
    };
    EXPECT_EQ(at(8, 4), 0x102030u);
    EXPECT_EQ(at(39, 19), 0x102030u);
    EXPECT_EQ(at(7, 4), 0u);
    EXPECT_EQ(at(40, 19), 0u);
}

TEST_F(SdlDisplayTest, SurvivesRectanglesOfEverySize) {
    const std::vector<std::uint32_t> pixels(kWidth * kHeight);
    display_->Present(pixels.data(), kWidth, -100, -100, 1000, 1000);
    display_->Present(pixels.data(), kWidth, 50, 40, 10, 10);
    display_->Present(nullptr, kWidth, 0, 0, 10, 10);
}

TEST_F(SdlDisplayTest, MakesTheMouseATouch) {
    Motion(1, 1);
    Button(SDL_MOUSEBUTTONDOWN, 10, 20);
    Motion(12, 22);
    Button(SDL_MOUSEBUTTONUP, 14, 24);
    Motion(2, 2);
    EXPECT_EQ(Input(), (Lines{"513 10 20", "512 12 22", "514 14 24"}));
}

TEST_F(SdlDisplayTest, TakesOnlyTheLeftButton) {
    Button(SDL_MOUSEBUTTONDOWN, 10, 20, 0, SDL_BUTTON_RIGHT);
    Button(SDL_MOUSEBUTTONUP, 10, 20, 0, SDL_BUTTON_RIGHT);
    Button(SDL_MOUSEBUTTONUP, 10, 20);
    EXPECT_EQ(Input(), Lines{});
}

TEST_F(SdlDisplayTest, MakesAFingerATouch) {
    Finger(SDL_FINGERDOWN, 5, 0.5F, 0.5F);
    Finger(SDL_FINGERMOTION, 5, 0.25F, 0.25F);
    Finger(SDL_FINGERUP, 5, 0.0F, 0.0F);
    EXPECT_EQ(Input(), (Lines{"513 40 24", "512 20 12", "514 0 0"}));
}

TEST_F(SdlDisplayTest, CountsATouchThatAlsoComesAsTheMouseOnce) {
    Finger(SDL_FINGERDOWN, 5, 0.5F, 0.5F);
    Button(SDL_MOUSEBUTTONDOWN, 40, 24, SDL_TOUCH_MOUSEID);
    Finger(SDL_FINGERUP, 5, 0.5F, 0.5F);
    Button(SDL_MOUSEBUTTONUP, 40, 24, SDL_TOUCH_MOUSEID);
    Finger(SDL_FINGERDOWN, 5, 0.5F, 0.5F, SDL_MOUSE_TOUCHID);
    EXPECT_EQ(Input(), (Lines{"513 40 24", "514 40 24"}));
}

TEST_F(SdlDisplayTest, PassesOverASecondFinger) {
    Finger(SDL_FINGERDOWN, 1, 0.5F, 0.5F);
    Finger(SDL_FINGERDOWN, 2, 0.1F, 0.1F);
    Finger(SDL_FINGERMOTION, 2, 0.2F, 0.2F);
    Finger(SDL_FINGERUP, 2, 0.2F, 0.2F);
    Finger(SDL_FINGERUP, 1, 0.5F, 0.5F);
    EXPECT_EQ(Input(), (Lines{"513 40 24", "514 40 24"}));
}

TEST_F(SdlDisplayTest, KeepsATouchThatLeavesTheWindowOnTheScreen) {
    Button(SDL_MOUSEBUTTONDOWN, 10, 20);
    Button(SDL_MOUSEBUTTONUP, -500, 5000);
    EXPECT_EQ(Input(), (Lines{"513 10 20", "514 0 47"}));
}

TEST_F(SdlDisplayTest, ScalesTouchesInAWindowOfAnotherSize) {
    SDL_SetWindowSize(window_, kWidth * 4, kHeight * 2);
    // The picture is twice as large, with a quarter of the window black on either side.
    Button(SDL_MOUSEBUTTONDOWN, 10, 10);
    Button(SDL_MOUSEBUTTONUP, 10, 10);
    Button(SDL_MOUSEBUTTONDOWN, kWidth + 20, 30);
    Button(SDL_MOUSEBUTTONUP, kWidth + 20, 30);
    EXPECT_EQ(Input(), (Lines{"513 10 15", "514 10 15"}));
}

TEST_F(SdlDisplayTest, TranslatesKeys) {
    Key(SDL_KEYDOWN, SDLK_LEFT);
    Key(SDL_KEYDOWN, SDLK_LEFT, 1);
    Key(SDL_KEYUP, SDLK_LEFT);
    Key(SDL_KEYDOWN, SDLK_KP_ENTER);
    Key(SDL_KEYDOWN, SDLK_q);
    Key(SDL_KEYDOWN, SDLK_F12);
    Key(SDL_KEYDOWN, SDLK_VOLUMEUP);
    EXPECT_EQ(Input(), (Lines{"256 37", "256 37", "257 37", "256 13", "256 81", "256 123"}));
}

TEST_F(SdlDisplayTest, ClosesItsOwner) {
    SDL_Event event{};
    event.type = SDL_QUIT;
    SDL_PushEvent(&event);
    DrainQueue();
    EXPECT_FALSE(IsWindow(owner_.Handle()));
}

TEST_F(SdlDisplayTest, PaintsAnewWhatTheDeviceLost) {
    SDL_Event event{};
    event.type = SDL_RENDER_DEVICE_RESET;
    SDL_PushEvent(&event);
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_PAINT});
}

TEST_F(SdlDisplayTest, NeedsNoPaintWhenItsWindowIsUncovered) {
    SDL_Event event{};
    event.window.type = SDL_WINDOWEVENT;
    event.window.windowID = SDL_GetWindowID(window_);
    event.window.event = SDL_WINDOWEVENT_EXPOSED;
    SDL_PushEvent(&event);
    EXPECT_TRUE(DrainQueue().empty());
}

TEST_F(SdlDisplayTest, StampsATouchWithTheTimeAtWhichItCame) {
    constexpr Uint32 kAge = 300;
    SDL_Event event{};
    event.button.type = SDL_MOUSEBUTTONDOWN;
    event.button.windowID = SDL_GetWindowID(window_);
    event.button.button = SDL_BUTTON_LEFT;
    event.button.timestamp = SDL_GetTicks() - kAge;
    // Unlike SDL_PushEvent this leaves the time as it is.
    SDL_PeepEvents(&event, 1, SDL_ADDEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT);
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_GE(GetTickCount() - message.time, kAge);
}

TEST_F(SdlDisplayTest, WakesForAMessageOfAnotherThread) {
    for (WPARAM i = 0; i < 50; ++i) {
        std::thread poster([&] { PostMessageW(owner_.Handle(), WM_APP, i, 0); });
        MSG message{};
        ASSERT_EQ(GetMessageW(&message, nullptr, WM_APP, WM_APP), TRUE);
        ASSERT_EQ(message.wParam, i);
        poster.join();
    }
}

TEST_F(SdlDisplayTest, WaitsForATouch) {
    std::thread user([&] { Button(SDL_MOUSEBUTTONDOWN, 10, 20); });
    MSG message{};
    ASSERT_EQ(GetMessageW(&message, nullptr, 0, 0), TRUE);
    EXPECT_EQ(message.message, WM_LBUTTONDOWN);
    user.join();
}

TEST_F(SdlDisplayTest, WaitsForATimer) {
    SetTimer(owner_.Handle(), 1, USER_TIMER_MINIMUM, nullptr);
    MSG message{};
    ASSERT_EQ(GetMessageW(&message, nullptr, 0, 0), TRUE);
    EXPECT_EQ(message.message, WM_TIMER);
}

TEST_F(SdlDisplayTest, LeavesRoomForOneDisplayOnly) {
    const std::unique_ptr<Display> second = CreateDisplay("sdl");
    ASSERT_NE(second, nullptr);
    EXPECT_FALSE(second->Open(kWidth, kHeight, L"", owner_.Handle()));
    EXPECT_STREQ(DisplayFailure(), "another display is open");
    display_.reset();
    EXPECT_TRUE(second->Open(kWidth, kHeight, L"", owner_.Handle()));
}

TEST_F(SdlDisplayTest, SaysWhyItCannotOpen) {
    display_.reset();
    setenv("SDL_VIDEODRIVER", "unheardof", 1);
    const std::unique_ptr<Display> second = CreateDisplay("sdl");
    EXPECT_FALSE(second->Open(kWidth, kHeight, L"", owner_.Handle()));
    EXPECT_NE(std::string(DisplayFailure()).find("unheardof"), std::string::npos);
    EXPECT_FALSE(second->Open(-1, kHeight, L"", owner_.Handle()));
    EXPECT_FALSE(second->Open(kWidth, kHeight, L"", nullptr));
}

}  // namespace
}  // namespace korvane
