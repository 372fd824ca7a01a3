#include <climits>
#include <gtest/gtest.h>
#include <memory>

#include "engine/window/Window.h"

#include "tests/controls/Touches.h"
#include "tests/controls/files/TestFileView.h"

namespace korvane::test {
namespace {

using Place = std::vector<int>;

Place PlaceOf(CLQBaseCtrl* ctrl) {
    Place place(4);
    ctrl->GetPos(place[0], place[1]);
    ctrl->GetSize(place[2], place[3]);
    return place;
}

class FileViewShow : public testing::Test {
  protected:
    FileViewShow() {
        view.Create(kViewX, kViewY, kViewWidth, kViewHeight);
        view.LQ_FV_Register(NotingCallBack());
        TakeRequests();
    }

    void ExpectShown(bool up, bool top, bool icon, bool centre, bool bottom, bool down) {
        EXPECT_EQ(view.Up()->IsShow(), up);
        EXPECT_EQ(view.Top()->IsShow(), top);
        EXPECT_EQ(view.Icon()->IsShow(), icon);
        EXPECT_EQ(view.Centre()->IsShow(), centre);
        EXPECT_EQ(view.Bottom()->IsShow(), bottom);
        EXPECT_EQ(view.Down()->IsShow(), down);
    }

    TestFileView view;
};

TEST(FileViewCreate, HasItsChildrenBeforehand) {
    TestFileView view;
    for (CLQBaseCtrl* child : std::vector<CLQBaseCtrl*>{view.Up(), view.Top(), view.Icon(), view.Down(),
                                                        view.Bottom(), view.Centre()}) {
        ASSERT_NE(child, nullptr);
        EXPECT_TRUE(view.IsChildExist(child));
    }
    EXPECT_FALSE(view.IsInRootMode());
    EXPECT_FALSE(view.IsContentSet());
    EXPECT_FALSE(view.IsNoScroll());
    EXPECT_FALSE(Press(view, 0, 0));
    view.ChangImage(L"a", L"b", L"c", false);
    EXPECT_EQ(view.Centre()->GetText(), L"c");
}

TEST_F(FileViewShow, PlacesItsChildrenInAColumn) {
    EXPECT_EQ(PlaceOf(view.Icon()), (Place{202, 165, 96, 129}));
    EXPECT_EQ(PlaceOf(view.Top()), (Place{105, 110, 290, 25}));
    EXPECT_EQ(PlaceOf(view.Centre()), (Place{105, 299, 290, 32}));
    EXPECT_EQ(PlaceOf(view.Bottom()), (Place{105, 409, 290, 25}));
    EXPECT_EQ(PlaceOf(view.Up()), (Place{238, 83, 24, 21}));
    EXPECT_EQ(PlaceOf(view.Down()), (Place{238, 436, 24, 21}));
}

TEST_F(FileViewShow, KeepsTheRowsOfTopAndBottomLabelWhereverItIs) {
    EXPECT_TRUE(view.Create(0, 200, 301, 100));
    EXPECT_EQ(PlaceOf(view.Top()), (Place{5, 110, 291, 25}));
    EXPECT_EQ(PlaceOf(view.Bottom()), (Place{5, 409, 291, 25}));
    EXPECT_EQ(PlaceOf(view.Up()), (Place{138, 223, 24, 21}));
    EXPECT_EQ(PlaceOf(view.Down()), (Place{138, 576, 24, 21}));
    // Halves are cut toward zero: (301 - 106) / 2 is 97, (100 - 129) / 2 is -14.
    EXPECT_EQ(PlaceOf(view.Icon()), (Place{102, 156, 96, 129}));
}

TEST_F(FileViewShow, DrawsItsChildrenInTheOrderInWhichItPlacesThem) {
    const std::vector<CLQBaseCtrl*> order = {view.Icon(),   view.Top(), view.Centre(),
                                             view.Bottom(), view.Up(),  view.Down()};
    ASSERT_EQ(view.GetChildCount(), 6);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(view.GetChild(i), order[static_cast<std::size_t>(i)]) << i;
}

TEST_F(FileViewShow, PutsTheCentreLabelBelowTheIconsPlaceOnTheScreen) {
    CLQWindow window;
    window.Create(0, 40, 500, 440);
    window.AddChild(&view);
    view.Create(kViewX, kViewY, kViewWidth, kViewHeight);
    EXPECT_EQ(PlaceOf(view.Icon()), (Place{202, 165, 96, 129}));
    EXPECT_EQ(PlaceOf(view.Centre()), (Place{105, 339, 290, 32})) << "lower by the window's row";
}

TEST_F(FileViewShow, StartsWithTheRootNameAndWithoutArrows) {
    ExpectShown(false, true, true, true, true, false);
    EXPECT_EQ(view.Centre()->GetText(), L"MY USB");
    EXPECT_EQ(view.Top()->GetText(), L"");
    EXPECT_FALSE(view.IsInRootMode());
    EXPECT_FALSE(view.Icon()->IsRecvMsgEnabled());
    EXPECT_FALSE(view.Top()->IsRecvMsgEnabled());
    EXPECT_FALSE(view.Centre()->IsRecvMsgEnabled());
    EXPECT_FALSE(view.Bottom()->IsRecvMsgEnabled());
    EXPECT_TRUE(view.Up()->IsRecvMsgEnabled());
    EXPECT_TRUE(view.Down()->IsRecvMsgEnabled());
}

TEST_F(FileViewShow, SaysWhetherItCouldBePlacedAndPlacesTheChildrenAnyway) {
    EXPECT_FALSE(view.Create(10, 60, -1, 400));
    EXPECT_EQ(PlaceOf(&view), (Place{kViewX, kViewY, kViewWidth, kViewHeight}));
    EXPECT_EQ(PlaceOf(view.Up()), (Place{10 - 17 + 5, 83, 24, 21}));
    for (const int number : {INT_MIN, -1, 0, INT_MAX})
        view.Create(number, -number / 2, number, number);
    for (int i = 0; i < 40; ++i)
        EXPECT_TRUE(view.Create(0, 0, 300, 400)) << "also more often than a button can have pictures";
}

TEST_F(FileViewShow, ShowsThreeEntries) {
    view.ChangImage(L"Above", L"Below", L"Current", false);
    ExpectShown(true, true, true, true, true, true);
    EXPECT_EQ(view.Top()->GetText(), L"Above");
    EXPECT_EQ(view.Bottom()->GetText(), L"Below");
    EXPECT_EQ(view.Centre()->GetText(), L"Current");
    EXPECT_TRUE(view.IsContentSet());
    EXPECT_FALSE(view.IsNoScroll());
}

TEST_F(FileViewShow, ShowsArrowsOnlyWhereThereIsAName) {
    view.ChangImage(L"Above", L"Below", L"Current", false);
    view.ChangImage(L"Above", L"", L"Current", true);
    ExpectShown(true, true, true, true, true, false);
    EXPECT_EQ(view.Bottom()->GetText(), L"");
    EXPECT_TRUE(view.IsNoScroll());
    view.ChangImage(L"", L"Below", L"Current", false);
    ExpectShown(false, true, true, true, true, true);
    EXPECT_EQ(view.Top()->GetText(), L"");
    view.ChangImage(L"", L"", L"Current", false);
    ExpectShown(false, true, true, true, true, false);
    view.ChangImage(L"Above", L"Below", L"", false);
    ExpectShown(true, true, true, false, true, true);
    EXPECT_EQ(view.Centre()->GetText(), L"");
}

TEST_F(FileViewShow, TakesNullNamesAsEmpty) {
    view.ChangImage(nullptr, nullptr, L"Current", false);
    ExpectShown(false, true, true, true, true, false);
    view.ChangImage(nullptr, L"Below", nullptr, false);
    ExpectShown(false, true, true, false, true, true);
    view.ChangImage(nullptr, nullptr, nullptr, false);
    EXPECT_TRUE(view.IsInRootMode());
}

TEST_F(FileViewShow, TakesTheTextsOfItsOwnLabels) {
    view.ChangImage(L"First, with a name long enough to lie on the heap", L"Third", L"Second", false);
    view.ChangImage(L"", view.Centre()->GetText().c_str(), view.Top()->GetText().c_str(), false);
    EXPECT_EQ(view.Top()->GetText(), L"");
    EXPECT_EQ(view.Bottom()->GetText(), L"Second");
    EXPECT_EQ(view.Centre()->GetText(), L"First, with a name long enough to lie on the heap");
}

TEST_F(FileViewShow, EntersRootModeWithThreeEmptyNames) {
    view.ChangImage(L"Above", L"Below", L"", true);
    view.ChangImage(L"", L"", L"", false);
    EXPECT_TRUE(view.IsInRootMode());
    EXPECT_FALSE(view.IsNoScroll());
    ExpectShown(false, false, true, true, false, false);
    EXPECT_EQ(view.Centre()->GetText(), L"MY USB");
}

TEST_F(FileViewShow, StaysInRootModeAndKeepsTheFlag) {
    view.ChangImage(L"", L"", L"", false);
    view.Centre()->SetText(L"Other");
    view.ChangImage(L"", L"", L"", true);
    EXPECT_TRUE(view.IsNoScroll());
    EXPECT_EQ(view.Centre()->GetText(), L"Other") << "nothing else changes";
    EXPECT_FALSE(view.IsContentSet());
}

TEST_F(FileViewShow, LeavesRootModeWithAnyName) {
    view.OnUpdateFileViewCtrl(true);
    view.ChangImage(L"", L"Below", L"", false);
    EXPECT_FALSE(view.IsInRootMode());
    ExpectShown(false, true, true, false, true, true);
}

TEST_F(FileViewShow, KeepsItsChildrenWhenRootModeIsSwitchedOff) {
    view.ChangImage(L"Above", L"Below", L"Current", false);
    view.OnUpdateFileViewCtrl(true);
    view.OnUpdateFileViewCtrl(false);
    EXPECT_FALSE(view.IsInRootMode());
    ExpectShown(false, false, true, true, false, false);
    EXPECT_EQ(view.Centre()->GetText(), L"MY USB");
}

TEST_F(FileViewShow, ShowsANewRootNameAtOnceOnlyInRootMode) {
    view.SetRootName(L"Holiday");
    EXPECT_EQ(view.Centre()->GetText(), L"MY USB");
    view.OnUpdateFileViewCtrl(true);
    EXPECT_EQ(view.Centre()->GetText(), L"Holiday");
    view.SetRootName(L"Work");
    EXPECT_EQ(view.Centre()->GetText(), L"Work");
    view.SetRootName(nullptr);
    EXPECT_EQ(view.Centre()->GetText(), L"Work");
    view.SetRootName(L"");
    EXPECT_EQ(view.Centre()->GetText(), L"");
}

TEST_F(FileViewShow, SaysWhetherThereIsACallBack) {
    EXPECT_TRUE(view.LQ_FV_Register(NotingCallBack()));
    EXPECT_FALSE(view.LQ_FV_Register(nullptr));
}

TEST_F(FileViewShow, ToleratesChildrenThatWereDeleted) {
    while (view.GetChildCount() > 0)
        view.DelChild(view.GetChild(0), true);
    EXPECT_EQ(view.Up(), nullptr);
    EXPECT_EQ(view.Centre(), nullptr);
    view.ChangImage(L"Above", L"Below", L"Current", false);
    view.ChangImage(L"", L"", L"", false);
    view.SetRootName(L"Name");
    view.OnUpdateFileViewCtrl(false);
    EXPECT_TRUE(Press(view, 250, 200));
    EXPECT_FALSE(Release(view, 250, 300));
    EXPECT_TRUE(view.Create(0, 0, 300, 400));
}

/// A view on a screen, to see what scrolls.
class FileViewScroll : public testing::Test {
  protected:
    FileViewScroll() : scene(500, 480) {
        _LQColor navy = {16, 24, 40, 255};
        window.Create(0, 0, 500, 480);
        window.EnableBkgColor(true, &navy);
        view.Create(kViewX, kViewY, 120, kViewHeight);
        window.AddChild(&view);
    }

    std::uint64_t PaintsOfASecond() {
        scene.Pump();
        CLQScreen::GetInstance()->ResetCounters();
        scene.Advance(1000);
        return CLQScreen::GetInstance()->GetCounters().paints;
    }

    Scene scene;
    CLQWindow window;
    TestFileView view;
    const wchar_t* const name = L"A name that is a lot longer than its label is wide";
};

TEST_F(FileViewScroll, LetsNoNameOfAnEntryScroll) {
    for (const bool noScroll : {false, true}) {
        view.ChangImage(name, name, name, noScroll);
        EXPECT_EQ(PaintsOfASecond(), 0u) << noScroll;
    }
}

TEST_F(FileViewScroll, ScrollsALongRootNameOnceAtSixStepsASecond) {
    view.SetRootName(name);
    view.ChangImage(L"", L"", L"", false);
    EXPECT_EQ(PaintsOfASecond(), 6u) << "every 150 ms";
    scene.Advance(60000);
    EXPECT_EQ(PaintsOfASecond(), 0u) << "one pass";
    view.OnUpdateFileViewCtrl(true);
    EXPECT_EQ(PaintsOfASecond(), 6u) << "entered anew";
    view.ChangImage(L"", L"", L"Short", false);
    EXPECT_EQ(PaintsOfASecond(), 0u);
}

TEST_F(FileViewScroll, LeavesAShortRootNameAtRest) {
    view.ChangImage(L"", L"", L"", false);
    EXPECT_EQ(PaintsOfASecond(), 0u);
}

}  // namespace
}  // namespace korvane::test
