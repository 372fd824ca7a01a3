#include <gtest/gtest.h>
#include <vector>

#include "KorvaneEx.h"

#include "tests/demo/HeadUnitBench.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::demo {

namespace {

constexpr unsigned kImageMs = 100;
constexpr unsigned kSequenceMs = 8 * kImageMs;

constexpr Place kRadioTile = {141, 168};
constexpr Place kMediaTile = {400, 168};

class MenuTest : public HeadUnitBench {
  protected:
    bool ShowsMenu() { return scene_.Shows(L"Menu"); }
    bool ShowsRadio() { return scene_.Shows(L"87.5"); }
    /// A pixel of the radio's tile, left of its caption: coloured where the tile is marked.
    std::uint32_t RadioMark() { return scene_.PixelAt(60, 222); }
    std::uint32_t MediaMark() { return scene_.PixelAt(319, 222); }
    /// Paints within the time of one image.
    std::uint64_t PaintsInOneImage() {
        CLQScreen::GetInstance()->ResetCounters();
        scene_.Advance(kImageMs);
        return CLQScreen::GetInstance()->GetCounters().paints;
    }
};

}  // namespace

TEST_F(MenuTest, ComesWithItsButtonAndGoesWithTheBackButton) {
    EXPECT_FALSE(ShowsMenu());
    Touch(kMenuButton);
    EXPECT_TRUE(ShowsMenu());
    EXPECT_FALSE(ShowsRadio());
    EXPECT_TRUE(scene_.ShowsControl(L"BtnBack"));
    Touch(kBackButton);
    EXPECT_FALSE(ShowsMenu());
    EXPECT_TRUE(ShowsRadio());
    EXPECT_TRUE(scene_.Shows(L"Radio"));
    EXPECT_FALSE(scene_.ShowsControl(L"BtnBack"));
}

TEST_F(MenuTest, GoesBackToTheSourceThatItWasOpenedFrom) {
    Set(L"source", 4);
    Touch(kMenuButton);
    EXPECT_FALSE(scene_.Shows(L"Now playing"));
    Touch(kBackButton);
    EXPECT_TRUE(scene_.Shows(L"Now playing"));
    EXPECT_EQ(Get(L"source"), 4);
}

TEST_F(MenuTest, LeadsToTheRadio) {
    Set(L"source", 4);
    Touch(kMenuButton);
    Touch(kRadioTile);
    EXPECT_EQ(Get(L"source"), 0);
    EXPECT_TRUE(ShowsRadio());
}

TEST_F(MenuTest, LeadsToTheRadioThatPlaysAlready) {
    Touch(kMenuButton);
    Touch(kRadioTile);
    EXPECT_TRUE(ShowsRadio());
}

TEST_F(MenuTest, LeadsToTheMediumThatPlayedLast) {
    Touch(kMenuButton);
    Touch(kMediaTile);
    EXPECT_EQ(Get(L"source"), 6) << "the stick at first";
    Set(L"source", 4);
    Set(L"source", 0);
    Touch(kMenuButton);
    Touch(kMediaTile);
    EXPECT_EQ(Get(L"source"), 4);
    EXPECT_TRUE(scene_.Shows(L"Disc"));
}

TEST_F(MenuTest, SaysThatTheMediumIsNotThere) {
    Set(L"usbPresent", 0);
    Touch(kMenuButton);
    Touch(kMediaTile);
    EXPECT_TRUE(scene_.Shows(L"Not connected"));
    EXPECT_EQ(Get(L"source"), 0);
    Touch(kBackButton);
    EXPECT_TRUE(ShowsRadio());
}

TEST_F(MenuTest, MakesRoomForASourceThatSomebodyElseChose) {
    Touch(kMenuButton);
    Set(L"source", 12);
    EXPECT_FALSE(ShowsMenu());
    EXPECT_TRUE(scene_.Shows(L"Phone"));
}

TEST_F(MenuTest, TakesNoTileInHandThatWentFromUnderTheFinger) {
    Touch(kMenuButton);
    scene_.Press(kMediaTile.x, kMediaTile.y);
    Set(L"source", 12);
    scene_.Advance(3000);
    scene_.Release(kMediaTile.x, kMediaTile.y);
    Touch(kMenuButton);
    EXPECT_TRUE(ShowsMenu());
    EXPECT_TRUE(scene_.Shows(L"Menu")) << "and not what to do with a tile in hand";
}

TEST_F(MenuTest, MarksWhatPlays) {
    Touch(kMenuButton);
    const std::uint32_t marked = RadioMark();
    const std::uint32_t plain = MediaMark();
    EXPECT_NE(marked, plain);
    Set(L"source", 4);
    Touch(kMenuButton);
    EXPECT_EQ(RadioMark(), plain);
    EXPECT_EQ(MediaMark(), marked);
    Set(L"source", 12);
    Touch(kMenuButton);
    EXPECT_EQ(RadioMark(), plain);
    EXPECT_EQ(MediaMark(), plain);
}

TEST_F(MenuTest, LightsWhatIsPressed) {
    Touch(kMenuButton);
    // The menu slid in for the time of the first image.
    scene_.Advance(2 * kImageMs);
    scene_.Press(kMediaTile.x, kMediaTile.y);
    EXPECT_TRUE(test::MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), "demo-menu-opened"));
}

TEST_F(MenuTest, DimsWhatWouldLeadToNoDevice) {
    Touch(kMenuButton);
    const std::vector<std::uint32_t> bright = scene_.Pixels();
    Set(L"usbPresent", 0);
    EXPECT_TRUE(
        test::MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), "demo-menu-without-stick"));
    Set(L"usbPresent", 1);
    EXPECT_TRUE(scene_.Pixels() == bright);
    Set(L"source", 4);
    Set(L"usbPresent", 0);
    Touch(kMenuButton);
    const std::vector<std::uint32_t> disc = scene_.Pixels();
    Set(L"discAudioPresent", 0);
    EXPECT_FALSE(scene_.Pixels() == disc) << "the medium that played last counts";
}

TEST_F(MenuTest, PlaysNoPictureThatIsDimmed) {
    Touch(kMenuButton);
    const std::uint64_t all = PaintsInOneImage();
    Set(L"usbPresent", 0);
    EXPECT_LT(PaintsInOneImage(), all);
    Touch(kBackButton);
    Touch(kMenuButton);
    EXPECT_LT(PaintsInOneImage(), all);
    Set(L"usbPresent", 1);
    EXPECT_EQ(PaintsInOneImage(), all);
    Touch(kBackButton);
    Set(L"usbPresent", 0);
    Set(L"usbPresent", 1);
    EXPECT_EQ(PaintsInOneImage(), 0u) << "while it is not shown";
}

TEST_F(MenuTest, PlaysItsPicturesWhileItIsShown) {
    EXPECT_EQ(PaintsInOneImage(), 0u);
    Touch(kMenuButton);
    EXPECT_GT(PaintsInOneImage(), 0u);
    const std::vector<std::uint32_t> first = scene_.Pixels();
    scene_.Advance(kSequenceMs);
    EXPECT_TRUE(scene_.Pixels() == first) << "the sequences are equally long";
    Touch(kBackButton);
    EXPECT_EQ(PaintsInOneImage(), 0u);
}

TEST_F(MenuTest, FollowsTheKeysInCursorMode) {
    Touch(kMenuButton);
    scene_.Key(VK_RIGHT);
    scene_.Key(VK_RIGHT);
    const std::vector<std::uint32_t> first = scene_.Pixels();
    scene_.Key(VK_RIGHT);
    EXPECT_FALSE(scene_.Pixels() == first) << "the frame went on";
    scene_.Key(VK_RETURN);
    EXPECT_TRUE(scene_.Shows(L"Sources"));
    SetCursorState(false);
}

TEST_F(MenuTest, IsReachedByTheKeysFromTheRadio) {
    // The first key shows the focus, wherever it is.
    scene_.Key(VK_LEFT);
    scene_.Key(VK_LEFT);
    scene_.Key(VK_DOWN);
    scene_.Key(VK_RETURN);
    SetCursorState(false);
    EXPECT_TRUE(ShowsMenu());
}

TEST_F(MenuTest, GoesBackByTheEscapeKeyToo) {
    Touch(kMenuButton);
    scene_.Key(VK_ESCAPE);
    EXPECT_TRUE(ShowsRadio());
    const DWORD start = GetTickCount();
    scene_.Key(VK_ESCAPE);
    EXPECT_TRUE(ShowsRadio());
    EXPECT_EQ(GetTickCount(), start) << "nothing slides";
    Set(L"source", 12);
    scene_.Key(VK_ESCAPE);
    EXPECT_EQ(Get(L"source"), 0);
}

TEST_F(MenuTest, LeavesTheKeysToTheShortcutsWhileTheyAreOpen) {
    Touch({688, 224});
    ASSERT_TRUE(scene_.ShowsControl(L"ShortCutBtn1"));
    scene_.Key(VK_RIGHT);
    scene_.Key(VK_DOWN);
    scene_.Key(VK_RETURN);
    SetCursorState(false);
    EXPECT_FALSE(scene_.ShowsControl(L"ShortCutBtn1"));
}

TEST_F(MenuTest, EndsASeekWhenItCovers) {
    scene_.Press(340, 280);
    scene_.Release(340, 160);
    ASSERT_TRUE(scene_.Shows(L"Seeking up, touch to stop"));
    Touch(kMenuButton);
    Touch(kBackButton);
    EXPECT_TRUE(scene_.Shows(L"Swipe the wheel to seek"));
}

}  // namespace korvane::demo
