#include <limits>
#include <ostream>

#include "engine/Korvane.h"

#include "tests/title/bench/TestStrip.h"

namespace korvane::test {

/// Place and size of a control, in screen coordinates.
struct Place {
    int x;
    int y;
    int width;
    int height;
    bool operator==(const Place& other) const {
        return x == other.x && y == other.y && width == other.width && height == other.height;
    }
};

std::ostream& operator<<(std::ostream& stream, const Place& place) {
    return stream << place.width << " by " << place.height << " at " << place.x << ", " << place.y;
}

namespace {

constexpr int kGap = 10;
constexpr int kFirstWidth = 162;

class PlayTime : public TestStrip {
  protected:
    CLQStatic* Label() { return Find<CLQStatic>(L"StPlayTime"); }

    Place PlaceOf(const wchar_t* name) {
        Place place = {};
        CLQBaseCtrl* const ctrl = Find(name);
        ctrl->GetScreenXY(place.x, place.y);
        ctrl->GetSize(place.width, place.height);
        return place;
    }

    /// The title has all of its width and the cancel button's.
    void ExpectTitleAlone() {
        EXPECT_EQ(PlaceOf(L"StInfo"), (Place{kInfoX, kInfoY, kInfoWidth + kCancelWidth, kInfoHeight}));
    }
    /// The play time ends where the title ended alone.
    void ExpectTitleAndPlayTime(int width) {
        const int room = kInfoWidth + kCancelWidth;
        EXPECT_EQ(PlaceOf(L"StInfo"), (Place{kInfoX, kInfoY, room - width - kGap, kInfoHeight}));
        EXPECT_EQ(PlaceOf(L"StPlayTime"), (Place{kInfoX + room - width, kInfoY, width, kInfoHeight}));
    }
    bool IsTextSeen() {
        for (const std::uint32_t pixel : PixelsOfCtrl(*Label())) {
            if (pixel != 0xFF000000)
                return true;
        }
        return false;
    }
};

TEST_F(PlayTime, IsHiddenAtFirst) {
    Start();
    dialog->SetPlayTime(L"03:25", false);
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    EXPECT_FALSE(IsTextSeen());
    ExpectTitleAlone();
}

TEST_F(PlayTime, StandsBehindTheTitleWhichGivesWay) {
    Start();
    dialog->SetPlayTime(L"03:25", false);
    dialog->EnablePlayTime(true);
    EXPECT_TRUE(dialog->IsPlayTimeShow());
    EXPECT_TRUE(IsTextSeen());
    ExpectTitleAndPlayTime(kFirstWidth);
    // 240 - 162 + 60 - 10, and 203 + 240 - 162 + 60.
    EXPECT_EQ(PlaceOf(L"StInfo").width, 128);
    EXPECT_EQ(PlaceOf(L"StPlayTime").x, 341);
    dialog->EnablePlayTime(false);
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    EXPECT_FALSE(IsTextSeen());
    ExpectTitleAlone();
}

TEST_F(PlayTime, KeepsItsPlaceHoweverOftenItIsShown) {
    Start();
    for (int i = 0; i < 5; ++i) {
        dialog->EnablePlayTime(true);
        dialog->EnablePlayTime(true);
        ExpectTitleAndPlayTime(kFirstWidth);
        dialog->EnablePlayTime(false);
        dialog->EnablePlayTime(false);
        ExpectTitleAlone();
    }
}

TEST_F(PlayTime, TakesAnotherWidth) {
    Start();
    dialog->EnablePlayTime(true);
    for (const int width : {1, 100, 162, 250}) {
        dialog->SetPlayTimeWidth(width);
        ExpectTitleAndPlayTime(width);
        EXPECT_TRUE(dialog->IsPlayTimeShow());
    }
}

TEST_F(PlayTime, TakesAnotherWidthWhileItIsHidden) {
    Start();
    dialog->SetPlayTimeWidth(100);
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    ExpectTitleAlone();
    EXPECT_EQ(PlaceOf(L"StPlayTime").width, 100);
    dialog->EnablePlayTime(true);
    ExpectTitleAndPlayTime(100);
}

TEST_F(PlayTime, TakesAnotherWidthBeforeTheStripIsInitialised) {
    dialog = std::make_unique<CLQTitleDialog>();
    dialog->SetPlayTimeWidth(100);
    dialog->EnablePlayTime(true);
    dialog->SetPlayTime(L"03:25", true);
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    dialog->Create(0, 0, 800, 480);
    dialog->OnInit();
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    EXPECT_EQ(PlaceOf(L"StPlayTime").width, 100);
    dialog->EnablePlayTime(true);
    ExpectTitleAndPlayTime(100);
}

TEST_F(PlayTime, TakesNoWidthForANegativeOne) {
    Start();
    dialog->EnablePlayTime(true);
    for (const int width : {-5, -1, 0, std::numeric_limits<int>::min()}) {
        dialog->SetPlayTimeWidth(100);
        dialog->SetPlayTimeWidth(width);
        ExpectTitleAndPlayTime(0);
        EXPECT_EQ(PlaceOf(L"StInfo").width, 290);
    }
}

TEST_F(PlayTime, LeavesTheTitleNoWidthWhenItIsTooWide) {
    Start();
    dialog->EnablePlayTime(true);
    for (const int width : {290, 300, 1000, std::numeric_limits<int>::max()}) {
        dialog->SetPlayTimeWidth(width);
        EXPECT_EQ(PlaceOf(L"StInfo").width, 0) << width;
        EXPECT_LE(PlaceOf(L"StPlayTime").x, kInfoX + kInfoWidth + kCancelWidth - 290) << width;
    }
    dialog->SetPlayTimeWidth(kFirstWidth);
    ExpectTitleAndPlayTime(kFirstWidth);
}

TEST_F(PlayTime, GoesWithTheTitleDuringATrafficAnnouncement) {
    Start();
    dialog->EnablePlayTime(true);
    Set(L"taActive", 1);
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    ExpectTitleAndPlayTime(kFirstWidth);
    Set(L"taActive", 0);
    EXPECT_TRUE(dialog->IsPlayTimeShow());
    ExpectTitleAndPlayTime(kFirstWidth);
}

TEST_F(PlayTime, IsShownAndHiddenDuringATrafficAnnouncement) {
    Start();
    Set(L"taActive", 1);
    dialog->EnablePlayTime(true);
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    Set(L"taActive", 0);
    EXPECT_TRUE(dialog->IsPlayTimeShow());
    ExpectTitleAndPlayTime(kFirstWidth);
    Set(L"taActive", 1);
    dialog->EnablePlayTime(false);
    Set(L"taActive", 0);
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    ExpectTitleAlone();
}

TEST_F(PlayTime, KeepsItsVisibilityWhenItsWidthChangesDuringATrafficAnnouncement) {
    Start();
    dialog->EnablePlayTime(true);
    Set(L"taActive", 1);
    dialog->SetPlayTimeWidth(100);
    Set(L"taActive", 0);
    EXPECT_TRUE(dialog->IsPlayTimeShow());
    ExpectTitleAndPlayTime(100);
}

TEST_F(PlayTime, IsNotSeenWithAHiddenStrip) {
    Start();
    dialog->EnablePlayTime(true);
    dialog->GetGpTitle()->SetShow(false);
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    dialog->GetGpTitle()->SetShow(true);
    EXPECT_TRUE(dialog->IsPlayTimeShow());
}

TEST_F(PlayTime, MovesWithTheStrip) {
    Start();
    dialog->EnablePlayTime(true);
    dialog->GetGpTitle()->MoveTo(kStripX + 20, kStripY + 100);
    const Place moved = {kInfoX + 20 + kInfoWidth + kCancelWidth - kFirstWidth, kInfoY + 100, kFirstWidth,
                         kInfoHeight};
    EXPECT_EQ(PlaceOf(L"StPlayTime"), moved);
    dialog->EnablePlayTime(true);
    EXPECT_EQ(PlaceOf(L"StPlayTime"), moved);
}

TEST_F(PlayTime, LeavesTheWidthsAloneWithoutACancelButton) {
    TitleLayout layout;
    layout.without = {"BtnTACancel"};
    WriteTitleLayout(layout);
    Start();
    dialog->EnablePlayTime(true);
    EXPECT_TRUE(dialog->IsPlayTimeShow());
    EXPECT_EQ(PlaceOf(L"StInfo"), (Place{kInfoX, kInfoY, kInfoWidth, kInfoHeight}));
    EXPECT_EQ(PlaceOf(L"StPlayTime"), (Place{kInfoX, kInfoY, kFirstWidth, kInfoHeight}));
    dialog->SetPlayTimeWidth(100);
    EXPECT_EQ(PlaceOf(L"StPlayTime"), (Place{kInfoX, kInfoY, 100, kInfoHeight}));
}

TEST_F(PlayTime, IsNotThereWithoutATitle) {
    TitleLayout layout;
    layout.without = {"StInfo"};
    WriteTitleLayout(layout);
    Start();
    dialog->EnablePlayTime(true);
    dialog->SetPlayTimeWidth(100);
    dialog->SetPlayTime(L"03:25", true);
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    EXPECT_EQ(Label(), nullptr);
}

TEST_F(PlayTime, IsNotThereOnceTheApplicationHasDeletedIt) {
    Start();
    dialog->EnablePlayTime(true);
    ASSERT_TRUE(Label()->GetFatherGroup()->DelChild(Label(), true));
    EXPECT_FALSE(dialog->IsPlayTimeShow());
    dialog->EnablePlayTime(true);
    dialog->SetPlayTimeWidth(100);
    dialog->SetPlayTime(L"03:25", true);
    Set(L"taActive", 1);
    ExpectTitleAlone();
}

TEST_F(PlayTime, ShowsItsText) {
    Start();
    dialog->EnablePlayTime(true);
    dialog->SetPlayTime(L"03:25", false);
    EXPECT_EQ(Label()->GetText(), L"03:25");
    const auto before = PixelsOfCtrl(*Label());
    dialog->SetPlayTime(L"03:26", false);
    EXPECT_NE(PixelsOfCtrl(*Label()), before);
    dialog->SetPlayTime(nullptr, false);
    EXPECT_EQ(Label()->GetText(), L"");
    EXPECT_FALSE(IsTextSeen());
}

TEST_F(PlayTime, IsRepaintedAlone) {
    Start();
    dialog->EnablePlayTime(true);
    dialog->SetPlayTime(L"03:25", false);
    scene.Pump();
    CLQScreen::GetInstance()->ResetCounters();
    dialog->SetPlayTime(L"03:26", false);
    scene.Pump();
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paintedPixels,
              static_cast<std::uint64_t>(kFirstWidth * kInfoHeight));
}

TEST_F(PlayTime, ScrollsWhenItIsToldTo) {
    Start();
    dialog->EnablePlayTime(true);
    dialog->SetPlayTime(L"03:25:17 / 12:00:00", true);
    scene.Pump();
    const auto start = PixelsOfCtrl(*Label());
    scene.Advance(600);
    EXPECT_NE(PixelsOfCtrl(*Label()), start);
    dialog->SetPlayTime(L"03:25:17 / 12:00:00", false);
    EXPECT_EQ(PixelsOfCtrl(*Label()), start);
    scene.Advance(600);
    EXPECT_EQ(PixelsOfCtrl(*Label()), start);
}

TEST_F(PlayTime, IsLiteralWhateverTheTitleIs) {
    TitleLayout layout;
    layout.properties["StInfo"] = "langid=7";
    WriteTitleLayout(layout);
    LoadTexts("7 = Radio\n");
    Start();
    dialog->EnablePlayTime(true);
    dialog->SetPlayTime(L"03:25", false);
    LoadTexts("7 = Rundfunk\n");
    EXPECT_EQ(Label()->GetText(), L"03:25");
    EXPECT_EQ(dialog->GetTitleInfo(), L"Rundfunk");
}

}  // namespace
}  // namespace korvane::test
