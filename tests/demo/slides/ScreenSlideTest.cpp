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

TEST_F(ScreenSlides, HandATouchThatComesMeanwhileToTheNewScreen) {
    HWND const screen = CLQScreen::GetInstance()->GetHWND();
    scene_.Press(kMenuButton.x, kMenuButton.y);
    // The next touch is there before the first one's slide begins.
    PostInput(screen, WM_LBUTTONUP, 0, MAKELPARAM(kMenuButton.x, kMenuButton.y));
    PostInput(screen, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(kSourcesTile.x, kSourcesTile.y));
    PostInput(screen, WM_LBUTTONUP, 0, MAKELPARAM(kSourcesTile.x, kSourcesTile.y));
    scene_.Pump();
    EXPECT_TRUE(scene_.Shows(L"Sources"));
    EXPECT_FALSE(scene_.ShowsControl(L"ShortCutBtn1")) << "the button that was there before";
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
