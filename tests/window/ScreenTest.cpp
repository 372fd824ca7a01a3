#include <gtest/gtest.h>

#include "platform/Display.h"

#include "tests/support/Scene.h"

namespace {

using korvane::test::Scene;

TEST(Screen, OpensOnceOnAKnownDisplayInASizeItCanHave) {
    CLQScreen* screen = CLQScreen::GetInstance();
    EXPECT_EQ(screen->GetHWND(), nullptr);
    EXPECT_EQ(screen->GetScreenSurfHandle().GetSurface(), nullptr);
    EXPECT_FALSE(screen->Open(nullptr, 800, 480, L""));
    EXPECT_FALSE(screen->Open("no such display", 800, 480, L""));
    EXPECT_FALSE(screen->Open("memory", 0, 480, L""));
    EXPECT_FALSE(screen->Open("memory", 800, -1, L""));
    EXPECT_FALSE(screen->Open("no such display", 800, 480, L""));
    const std::string unknown = korvane::DisplayFailure();
    EXPECT_FALSE(screen->Open("memory", 100000, 100000, L""));
    EXPECT_NE(korvane::DisplayFailure(), unknown) << "each refusal has a reason of its own";
    EXPECT_TRUE(screen->Open("memory", 320, 240, nullptr));
    EXPECT_FALSE(screen->Open("memory", 320, 240, L""));
    EXPECT_NE(screen->GetHWND(), nullptr);
    EXPECT_EQ(screen->GetWidth(), 320);
    EXPECT_EQ(screen->GetHeight(), 240);
    screen->Close();
    screen->Close();
    EXPECT_EQ(screen->GetHWND(), nullptr);
    EXPECT_TRUE(screen->Open("memory", 640, 480, L"again"));
    screen->Close();
}

TEST(Screen, HasASystemWindowThatIsFoundByItsTitle) {
    Scene scene;
    EXPECT_EQ(FindWindowW(nullptr, L"Test bench"), CLQScreen::GetInstance()->GetHWND());
}

TEST(Screen, QuitsTheMessageLoopWhenItsWindowIsClosed) {
    Scene scene;
    SendMessageW(CLQScreen::GetInstance()->GetHWND(), WM_CLOSE, 0, 0);
    MSG msg;
    EXPECT_EQ(GetMessageW(&msg, nullptr, 0, 0), 0);
}

TEST(Screen, FlipsNothingOutsideItself) {
    Scene scene;
    CLQScreen* screen = CLQScreen::GetInstance();
    screen->FlipRect(-10, -10, 5, 5);
    EXPECT_EQ(screen->GetCounters().flippedPixels, 25U);
    screen->FlipRect(900, 10, 1000, 20);
    screen->FlipRect(10, 10, 10, 20);
    screen->FlipRect(20, 20, 10, 10);
    EXPECT_EQ(screen->GetCounters().flips, 1U);
}

TEST(Screen, ShowsAnExposedPartWithoutPaintingIt) {
    Scene scene;
    CLQScreen* screen = CLQScreen::GetInstance();
    InvalidateRect(screen->GetHWND(), nullptr, FALSE);
    scene.Pump();
    EXPECT_EQ(screen->GetCounters().paints, 0U);
    EXPECT_EQ(screen->GetCounters().flippedPixels, 800U * 480U);
}

}  // namespace
