#include <gtest/gtest.h>

#include "KorvaneEx.h"
#include "platform/Simulation.h"

#include "demo/headunit/ScreenSlide.h"
#include "tests/demo/HeadUnitBench.h"

namespace korvane::demo {

namespace {

constexpr unsigned kSlideMs = 80 * ScreenSlide::kFrames;
constexpr Place kSourcesTile = {659, 168};
constexpr Place kRadioTile = {141, 168};
constexpr Place kSourcesButton = {688, 224};
constexpr Place kGuideButton = {667, 30};

class ScreenSlides : public HeadUnitBench {
  protected:
    unsigned MsOfTouch(Place place) {
        const unsigned start = GetTickCount();
        Touch(place);
        return GetTickCount() - start;
    }
    /// As the display reports it while the screens move: it waits.
    static void PostTouch(UINT message, Place place) {
        PostInput(CLQScreen::GetInstance()->GetHWND(), message, 0, MAKELPARAM(place.x, place.y));
    }
    unsigned MsOfSource(int source) {
        const unsigned start = GetTickCount();
        Set(L"source", source);
        return GetTickCount() - start;
    }
};

}  // namespace

TEST_F(ScreenSlides, PlayWhereTheUserGoes) {
    EXPECT_EQ(MsOfTouch(kMenuButton), kSlideMs);
    EXPECT_EQ(MsOfTouch(kSourcesTile), kSlideMs);
    EXPECT_EQ(MsOfTouch(kBackButton), kSlideMs);
    EXPECT_EQ(MsOfTouch(kRadioTile), kSlideMs);
}

TEST_F(ScreenSlides, PlayFromSourceToSource) {
    EXPECT_EQ(MsOfSource(4), kSlideMs);
    EXPECT_EQ(MsOfSource(12), kSlideMs);
    EXPECT_EQ(MsOfTouch(kGuideButton), kSlideMs);
    EXPECT_EQ(MsOfTouch(kBackButton), kSlideMs);
}

TEST_F(ScreenSlides, PlayForTheSourceThatTheUserChoseInTheMenu) {
    Set(L"source", 4);
    Touch(kMenuButton);
    EXPECT_EQ(MsOfTouch(kRadioTile), kSlideMs);
    EXPECT_EQ(Get(L"source"), 0);
}

TEST_F(ScreenSlides, LeaveASourceThatSomebodyElseChoseInTheMenuComeAtOnce) {
    Touch(kMenuButton);
    EXPECT_EQ(MsOfSource(12), 0u);
    EXPECT_TRUE(scene_.Shows(L"Phone"));
}

TEST_F(ScreenSlides, LeaveASourceUnderTheOpenPanelComeAtOnce) {
    Touch(kSourcesButton);
    EXPECT_EQ(MsOfSource(4), 0u);
    EXPECT_TRUE(scene_.ShowsControl(L"ShortCutBtn1"));
}

TEST_F(ScreenSlides, DoNotPlayWithinTheRadio) {
    EXPECT_EQ(MsOfSource(37), 0u);
    EXPECT_TRUE(scene_.Shows(L"DAB radio"));
}

TEST_F(ScreenSlides, DropATouchThatBeginsMeanwhile) {
    scene_.Press(kMenuButton.x, kMenuButton.y);
    // A second touch in the same place, where a tile of the menu will be, before the screens have moved.
    PostTouch(WM_LBUTTONUP, kMenuButton);
    PostTouch(WM_LBUTTONDOWN, kMenuButton);
    PostTouch(WM_LBUTTONUP, kMenuButton);
    scene_.Pump();
    EXPECT_TRUE(scene_.Shows(L"Menu"));
    Touch(kSourcesTile);
    EXPECT_TRUE(scene_.Shows(L"Sources")) << "the touch after that counts";
}

TEST_F(ScreenSlides, DropATouchThatLastsLongerThanThey) {
    scene_.Press(kMenuButton.x, kMenuButton.y);
    PostTouch(WM_LBUTTONUP, kMenuButton);
    PostTouch(WM_LBUTTONDOWN, kSourcesTile);
    scene_.Pump();
    scene_.Move(kSourcesTile.x, kSourcesTile.y + 3);
    scene_.Release(kSourcesTile.x, kSourcesTile.y + 3);
    EXPECT_TRUE(scene_.Shows(L"Menu"));
}

TEST_F(ScreenSlides, DropAKeyThatIsPressedMeanwhile) {
    const HWND screen = CLQScreen::GetInstance()->GetHWND();
    scene_.Press(kMenuButton.x, kMenuButton.y);
    PostTouch(WM_LBUTTONUP, kMenuButton);
    // The first would select a tile, the second touch it.
    for (const int key : {VK_TAB, VK_RETURN}) {
        PostInput(screen, WM_KEYDOWN, static_cast<WPARAM>(key), 0);
        PostInput(screen, WM_KEYUP, static_cast<WPARAM>(key), 0);
    }
    scene_.Pump();
    EXPECT_TRUE(scene_.Shows(L"Menu"));
    scene_.Key(VK_TAB);
    scene_.Key(VK_RETURN);
    EXPECT_FALSE(scene_.Shows(L"Menu"));
}

TEST_F(ScreenSlides, EndThePressOfTheStripThatIsHeldWhileTheyPlay) {
    Set(L"source", 12);
    scene_.Press(kBackButton.x, kBackButton.y);
    ASSERT_TRUE(service_.SetValue(L"source", 4));
    PostTouch(WM_LBUTTONUP, kBackButton);
    PostTouch(WM_LBUTTONDOWN, kMenuButton);
    PostTouch(WM_LBUTTONUP, kMenuButton);
    scene_.Pump();
    EXPECT_EQ(Get(L"source"), 0) << "the release of the back button";
    EXPECT_FALSE(scene_.Shows(L"Menu")) << "the touch after it";
}

TEST_F(ScreenSlides, TakeThePressAwayThatTheOldScreenHeld) {
    scene_.Press(kSourcesButton.x, kSourcesButton.y);
    EXPECT_EQ(MsOfSource(4), kSlideMs);
    scene_.Release(kSourcesButton.x, kSourcesButton.y);
    EXPECT_FALSE(scene_.ShowsControl(L"ShortCutBtn1"));
    Touch(kBackButton);
    EXPECT_FALSE(scene_.ShowsControl(L"ShortCutBtn1"));
    Touch(kSourcesButton);
    EXPECT_TRUE(scene_.ShowsControl(L"ShortCutBtn1"));
}

}  // namespace korvane::demo
