#include <gtest/gtest.h>
#include <vector>

#include "KorvaneEx.h"

#include "tests/demo/HeadUnitBench.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::demo {

namespace {

constexpr Place kSourcesTile = {659, 168};
constexpr int kPageCell = 4;

class SourceListTest : public HeadUnitBench {
  protected:
    void OpenList() {
        Touch(kMenuButton);
        Touch(kSourcesTile);
    }
    /// Touches a cell of the page, counted from the top.
    void TouchCell(int cell) { Touch({180, 110 + 80 * cell}); }
    bool ShowsList() { return scene_.Shows(L"Sources"); }
    testing::AssertionResult LooksLike(const char* name) {
        return test::MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name);
    }
};

}  // namespace

TEST_F(SourceListTest, ComesFromTheMenuAndGoesBackToIt) {
    OpenList();
    EXPECT_TRUE(ShowsList());
    Touch(kBackButton);
    EXPECT_FALSE(ShowsList());
    EXPECT_TRUE(scene_.Shows(L"Menu"));
}

TEST_F(SourceListTest, SwitchesToEachOfItsSources) {
    constexpr int kFirstPage[] = {0, 37, 4, 6};
    constexpr int kSecondPage[] = {8, 11, 13, 18};
    for (int cell = 0; cell < kPageCell; ++cell) {
        Set(L"source", 12);
        OpenList();
        TouchCell(cell);
        EXPECT_EQ(Get(L"source"), kFirstPage[cell]);
        EXPECT_FALSE(ShowsList());
        Set(L"source", 12);
        OpenList();
        TouchCell(kPageCell);
        EXPECT_TRUE(ShowsList());
        TouchCell(cell);
        EXPECT_EQ(Get(L"source"), kSecondPage[cell]);
        EXPECT_FALSE(ShowsList());
    }
}

TEST_F(SourceListTest, ComesBackToTheFirstPage) {
    OpenList();
    TouchCell(kPageCell);
    TouchCell(kPageCell);
    TouchCell(2);
    EXPECT_EQ(Get(L"source"), 4);
}

TEST_F(SourceListTest, SaysThatADeviceIsNotThere) {
    Set(L"discAudioPresent", 0);
    OpenList();
    TouchCell(2);
    EXPECT_EQ(Get(L"source"), 0);
    EXPECT_TRUE(scene_.Shows(L"Not connected"));
    scene_.Advance(4000);
    EXPECT_TRUE(ShowsList());
    EXPECT_FALSE(scene_.Shows(L"Not connected"));
    Set(L"discAudioPresent", 1);
    TouchCell(2);
    EXPECT_EQ(Get(L"source"), 4);
}

TEST_F(SourceListTest, DimsWhatIsNotThere) {
    OpenList();
    const std::vector<std::uint32_t> bright = scene_.Pixels();
    Set(L"discAudioPresent", 0);
    EXPECT_TRUE(LooksLike("demo-sources-no-disc"));
    Set(L"discAudioPresent", 1);
    EXPECT_TRUE(scene_.Pixels() == bright);
}

TEST_F(SourceListTest, OpensOnThePageOfWhatPlays) {
    Set(L"source", 13);
    OpenList();
    TouchCell(0);
    EXPECT_EQ(Get(L"source"), 8);
    Set(L"source", 4);
    OpenList();
    TouchCell(1);
    EXPECT_EQ(Get(L"source"), 37);
}

TEST_F(SourceListTest, GoesToTheSourceThatPlaysAndKeepsItSelected) {
    Set(L"source", 13);
    OpenList();
    const std::vector<std::uint32_t> list = scene_.Pixels();
    TouchCell(2);
    EXPECT_EQ(Get(L"source"), 13);
    EXPECT_FALSE(ShowsList());
    EXPECT_TRUE(scene_.Shows(L"Now playing"));
    OpenList();
    EXPECT_TRUE(scene_.Pixels() == list);
}

TEST_F(SourceListTest, TellsWhatPlaysInTheLanguageOfTheRecord) {
    Set(L"source", 4);
    OpenList();
    EXPECT_TRUE(scene_.Shows(L"Disc"));
    EXPECT_TRUE(scene_.Shows(L"Now playing"));
    Set(L"language", 5);
    EXPECT_TRUE(LooksLike("demo-sources-german"));
    Set(L"language", 0);
    EXPECT_TRUE(LooksLike("demo-sources"));
}

TEST_F(SourceListTest, TellsOnEachPageWhereItsLastCellLeads) {
    OpenList();
    TouchCell(kPageCell);
    EXPECT_TRUE(LooksLike("demo-sources-second-page"));
    Set(L"language", 11);
    EXPECT_TRUE(LooksLike("demo-sources-second-page-greek"));
}

TEST_F(SourceListTest, TellsThatTheRadioPlays) {
    Set(L"source", 12);
    Set(L"source", 0);
    OpenList();
    EXPECT_TRUE(scene_.Shows(L"Radio"));
    EXPECT_TRUE(scene_.Shows(L"Now playing"));
}

TEST_F(SourceListTest, SelectsNothingForASourceThatIsNotInIt) {
    Set(L"source", 12);
    OpenList();
    EXPECT_TRUE(scene_.Shows(L"Phone"));
    EXPECT_TRUE(LooksLike("demo-sources-telephone"));
}

TEST(SourceListOnALargeScreen, FindsItsCellsInTheMiddle) {
    test::DemoScene scene;
    CLQScreen* const screen = CLQScreen::GetInstance();
    screen->Close();
    ASSERT_TRUE(screen->Open("memory", 1000, 700, L"large"));
    constexpr Place kCorner = {100, 110};
    MainApplication mainApplication(MainApplication::KeyBeep::Silent);
    ASSERT_TRUE(mainApplication.Start());
    HeadUnit headUnit;
    headUnit.Create(kCorner.x, kCorner.y);
    scene.Pump();
    for (const Place& place : {kMenuButton, kSourcesTile, Place{180, 110 + 2 * 80}})
        scene.Touch(kCorner.x + place.x, kCorner.y + place.y);
    tools::SystemService service;
    EXPECT_EQ(service.Value(L"source", -1), 4);
}

}  // namespace korvane::demo
