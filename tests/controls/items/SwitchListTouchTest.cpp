#include <gtest/gtest.h>
#include <limits>
#include <memory>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/Touches.h"
#include "tests/controls/items/TestSwitchList.h"

namespace korvane::test {
namespace {

constexpr int kInside = kListX + 10;

class SwitchListTouch : public testing::Test {
  protected:
    SwitchListTouch() { list.Prepare(icons); }

    bool PressCell(int cell) { return Press(list, kInside, CellY(cell)); }
    bool ReleaseCell(int cell) { return Release(list, kInside, CellY(cell)); }
    void Tap(int cell) {
        EXPECT_TRUE(PressCell(cell));
        EXPECT_TRUE(ReleaseCell(cell));
    }
    std::vector<Click> Taken() {
        std::vector<Click> clicks;
        clicks.swap(Clicks());
        return clicks;
    }

    ListIcons icons;
    TestSwitchList list;
};

using ClickList = std::vector<Click>;

TEST_F(SwitchListTouch, ReportsAClickOnAnItemAndLeavesTheSelectionToTheApplication) {
    for (int cell = 0; cell < kCells - 1; ++cell) {
        Tap(cell);
        EXPECT_EQ(Taken(), (ClickList{{cell, true}}));
        EXPECT_EQ(list.Focus(), -1);
    }
}

TEST_F(SwitchListTouch, LeavesTheSelectionWhenAnotherItemIsClicked) {
    list.SetFouceIndex(2);
    Tap(1);
    EXPECT_EQ(Taken(), (ClickList{{1, true}}));
    EXPECT_EQ(list.Focus(), 2);
}

TEST_F(SwitchListTouch, TakesTheSelectionAwayWhenItsItemIsClicked) {
    list.SetFouceIndex(2);
    Tap(2);
    EXPECT_EQ(Taken(), (ClickList{{2, false}}));
    EXPECT_EQ(list.Focus(), -1);
    Tap(2);
    EXPECT_EQ(Taken(), (ClickList{{2, true}}));
}

TEST_F(SwitchListTouch, SwitchesPagesWithTheLastCellOfEach) {
    Tap(4);
    EXPECT_EQ(Taken(), (ClickList{{4, false}}));
    EXPECT_TRUE(list.IsPageDown());
    Tap(0);
    EXPECT_EQ(Taken(), (ClickList{{5, true}}));
    Tap(3);
    EXPECT_EQ(Taken(), (ClickList{{8, true}}));
    Tap(4);
    EXPECT_EQ(Taken(), (ClickList{{9, false}}));
    EXPECT_FALSE(list.IsPageDown());
    Tap(0);
    EXPECT_EQ(Taken(), (ClickList{{0, true}}));
}

TEST_F(SwitchListTouch, KeepsTheSelectionWhenThePageSwitchIsItsItem) {
    list.SetFouceIndex(4);
    Tap(4);
    EXPECT_EQ(Taken(), (ClickList{{4, false}}));
    EXPECT_EQ(list.Focus(), 4);
}

TEST_F(SwitchListTouch, CountsItemsOfThePageThatTheApplicationShows) {
    list.SetPageDown(true);
    Tap(1);
    list.SetPageDown(false);
    Tap(1);
    EXPECT_EQ(Taken(), (ClickList{{6, true}, {1, true}}));
}

TEST_F(SwitchListTouch, DoesNothingWhenATouchEndsOnAnotherCellAndConsumesIt) {
    list.SetFouceIndex(1);
    EXPECT_TRUE(PressCell(1));
    EXPECT_EQ(list.Touched(), 1);
    EXPECT_TRUE(ReleaseCell(2));
    EXPECT_EQ(list.PressedAt(), 1);
    EXPECT_EQ(list.ReleasedAt(), 2);
    EXPECT_EQ(list.Touched(), -1);
    EXPECT_TRUE(PressCell(4));
    EXPECT_TRUE(ReleaseCell(3));
    EXPECT_EQ(Taken(), ClickList());
    EXPECT_EQ(list.Focus(), 1);
    EXPECT_FALSE(list.IsPageDown());
}

TEST_F(SwitchListTouch, DividesItsHeightIntoCellsOfWholePixels) {
    struct Place {
        int y;
        int index;
    };
    // 203 pixels: cells of 40, and 3 more at the end.
    list.SetSize(kListWidth, 203);
    for (const Place place : {Place{0, 0}, Place{39, 0}, Place{40, 1}, Place{79, 1}, Place{119, 2},
                              Place{120, 3}, Place{159, 3}}) {
        Press(list, kInside, kListY + place.y);
        Release(list, kInside, kListY + place.y);
        EXPECT_EQ(Taken(), (ClickList{{place.index, true}})) << place.y;
    }
    EXPECT_TRUE(Press(list, kInside, kListY + 202));
    EXPECT_EQ(list.Touched(), 5) << "no bound applies";
    EXPECT_TRUE(Release(list, kInside, kListY + 200));
    EXPECT_EQ(Taken(), (ClickList{{5, true}}));
}

TEST_F(SwitchListTouch, EndsWhereverTheFingerIsByThen) {
    EXPECT_TRUE(PressCell(2));
    EXPECT_TRUE(Release(list, 700, CellY(2)));
    EXPECT_EQ(Taken(), (ClickList{{2, true}})) << "beside the list, at the same height";
    EXPECT_TRUE(PressCell(0));
    EXPECT_TRUE(Release(list, kInside, kListY - 39));
    EXPECT_EQ(Taken(), (ClickList{{0, true}})) << "less than a cell above the list, cut toward zero";
    EXPECT_TRUE(PressCell(0));
    EXPECT_TRUE(Release(list, kInside, kListY - 40));
    EXPECT_EQ(list.ReleasedAt(), -1);
    EXPECT_EQ(Taken(), ClickList());
    EXPECT_TRUE(PressCell(0));
    EXPECT_TRUE(Release(list, kInside, std::numeric_limits<int>::min()));
    EXPECT_TRUE(PressCell(0));
    EXPECT_TRUE(Release(list, kInside, std::numeric_limits<int>::max()));
    EXPECT_EQ(Taken(), ClickList());
}

TEST_F(SwitchListTouch, IgnoresWhatIsNotForIt) {
    EXPECT_FALSE(list.DoMessage(nullptr));
    EXPECT_FALSE(Press(list, kListX - 1, CellY(0)));
    EXPECT_FALSE(Press(list, kListX + kListWidth, CellY(0)));
    EXPECT_FALSE(Press(list, kInside, kListY - 1));
    EXPECT_FALSE(Press(list, kInside, kListY + kListHeight));
    EXPECT_FALSE(ReleaseCell(0));
    EXPECT_TRUE(PressCell(0));
    EXPECT_FALSE(Drag(list, kInside, CellY(1)));
    EXPECT_FALSE(Hand(list, kMsgKeyDown, kInside, CellY(0)));
    EXPECT_TRUE(ReleaseCell(0));
    EXPECT_FALSE(ReleaseCell(0));
    EXPECT_EQ(Taken(), (ClickList{{0, true}}));
}

TEST_F(SwitchListTouch, TakesNoTouchWhileItIsDisabled) {
    list.SetDisable(true);
    EXPECT_FALSE(PressCell(1));
    EXPECT_FALSE(list.IsPressed());
    EXPECT_FALSE(ReleaseCell(1));
    list.SetDisable(false);
    Tap(1);
    EXPECT_EQ(Taken(), (ClickList{{1, true}}));
}

TEST_F(SwitchListTouch, KeepsAPressDuringWhichItWasDisabledUntilItIsReleasedWhileEnabled) {
    EXPECT_TRUE(PressCell(1));
    list.SetDisable(true);
    EXPECT_FALSE(ReleaseCell(1));
    EXPECT_TRUE(list.IsPressed());
    EXPECT_EQ(list.Touched(), -1) << "but no item shows as touched";
    list.SetDisable(false);
    EXPECT_TRUE(ReleaseCell(1));
    EXPECT_FALSE(list.IsPressed());
    EXPECT_EQ(Taken(), (ClickList{{-1, false}}));
}

TEST_F(SwitchListTouch, ShowsTheTouchedItemAtOnce) {
    list.Redraw(false);
    PressCell(1);
    EXPECT_TRUE(list.IsNeedRedraw());
    list.Redraw(false);
    ReleaseCell(3);
    EXPECT_TRUE(list.IsNeedRedraw());
}

TEST_F(SwitchListTouch, DoesWithoutACallBack) {
    list.SetCallBackClick(nullptr);
    Tap(4);
    EXPECT_TRUE(list.IsPageDown());
    list.SetFouceIndex(6);
    Tap(1);
    EXPECT_EQ(list.Focus(), -1);
}

TEST_F(SwitchListTouch, CountsFromItsPlaceInTheWindowNotOnTheScreen) {
    Scene scene;
    CLQWindow window;
    window.Create(100, 40, 400, 300);
    window.AddChild(&list);
    // One cell, 40 pixels, further down than on a window at the top of the screen.
    scene.Press(100 + kInside, 40 + CellY(0));
    scene.Release(100 + kInside, 40 + CellY(0));
    EXPECT_EQ(Taken(), (ClickList{{1, true}}));
    scene.Press(100 + kInside, 40 + CellY(3));
    scene.Release(100 + kInside, 40 + CellY(3));
    EXPECT_EQ(Taken(), (ClickList{{4, false}}));
    scene.Press(100 + kInside, 40 + CellY(4));
    EXPECT_EQ(list.PressedAt(), 10);
    scene.Release(100 + kInside, 40 + CellY(4));
    EXPECT_EQ(Taken(), (ClickList{{10, true}})) << "beyond the items";
}

TEST_F(SwitchListTouch, CountsFromWhereItWasMovedTo) {
    list.MoveTo(kListX, 120);
    EXPECT_TRUE(Press(list, kInside, 125));
    EXPECT_TRUE(Release(list, kInside, 125));
    EXPECT_EQ(Taken(), (ClickList{{0, true}}));
}

/// Whatever is pressed is item -1, which the first page switch precedes by one page.
class SwitchListWithoutCells : public SwitchListTouch, public testing::WithParamInterface<int> {};

TEST_P(SwitchListWithoutCells, TakesTouchesAsItsPageSwitch) {
    list.SetIconNumPrePage(GetParam());
    list.SetFouceIndex(3);
    EXPECT_TRUE(PressCell(2));
    EXPECT_EQ(list.Touched(), -1);
    EXPECT_TRUE(ReleaseCell(4));
    EXPECT_EQ(Taken(), (ClickList{{-1, false}}));
    EXPECT_TRUE(list.IsPageDown());
    EXPECT_EQ(list.Focus(), 3);
}

INSTANTIATE_TEST_SUITE_P(Counts, SwitchListWithoutCells,
                         testing::Values(0, kListHeight + 1, std::numeric_limits<int>::max(),
                                         -kListHeight - 1, std::numeric_limits<int>::min()));

TEST_F(SwitchListTouch, HasCellsAsLongAsThereIsAPixelForEach) {
    list.SetIconNumPrePage(kListHeight);
    EXPECT_TRUE(Press(list, kInside, kListY + 150));
    EXPECT_TRUE(Release(list, kInside, kListY + 150));
    EXPECT_EQ(Taken(), (ClickList{{150, true}}));
}

TEST_F(SwitchListTouch, CountsBackwardsWithANegativeNumberOfCells) {
    list.SetIconNumPrePage(-5);
    EXPECT_TRUE(PressCell(2));
    EXPECT_TRUE(ReleaseCell(2));
    EXPECT_EQ(Taken(), (ClickList{{-2, true}}));
}

TEST_F(SwitchListTouch, EndsWithoutAClickWhenItsHeightIsGone) {
    EXPECT_TRUE(PressCell(2));
    list.SetSize(kListWidth, 0);
    EXPECT_TRUE(ReleaseCell(2));
    EXPECT_EQ(list.ReleasedAt(), -1);
    EXPECT_EQ(Taken(), ClickList());
}

TEST_F(SwitchListTouch, SelectsItemsThatHaveAFocusIcon) {
    list.SetFouceIndex(9);
    EXPECT_EQ(list.Focus(), 9);
    list.SetFouceIndex(10);
    EXPECT_EQ(list.Focus(), 9);
    list.SetFouceIndex(std::numeric_limits<int>::max());
    EXPECT_EQ(list.Focus(), 9);
    list.SetFouceIndex(-1);
    EXPECT_EQ(list.Focus(), -1);
    list.SetFouceIndex(-7);
    EXPECT_EQ(list.Focus(), -7);
    std::vector<CLQSurfHandle*> none;
    list.SetIconFocusSurf(none);
    list.SetFouceIndex(0);
    EXPECT_EQ(list.Focus(), -7);
}

/// A call of a setter, and whether it asks for a repaint.
struct Setting {
    const char* name;
    bool repaints;
    void (*call)(TestSwitchList&);
};

const Setting kSettings[] = {
    {"page size", false, [](auto& list) { list.SetIconNumPrePage(5); }},
    {"icons", false,
     [](auto& list) {
         std::vector<CLQSurfHandle*> icons(kItems);
         list.SetIconNormalSurf(icons);
         list.SetIconActiveSurf(icons);
         list.SetIconFocusSurf(icons);
         list.SetIconDisableSurf(icons);
     }},
    {"callback", false, [](auto& list) { list.SetCallBackClick(&NoteClick); }},
    {"texts", true,
     [](auto& list) {
         std::vector<std::wstring> texts;
         list.SetText(texts);
     }},
    {"identifiers", true,
     [](auto& list) {
         std::vector<int> ids;
         list.SetText(ids);
     }},
    {"language without identifiers", false, [](auto& list) { list.ChangeLanguage(); }},
    {"unknown colour", true,
     [](auto& list) {
         _LQColor red = {255, 0, 0, 255};
         list.SetTextColor(static_cast<_eTextColorType>(7), red);
     }},
    {"font size", true, [](auto& list) { list.SetFontSize(15, 15); }},
    {"background", true, [](auto& list) { list.SetBkgSurf(nullptr); }},
    {"focus", true, [](auto& list) { list.SetFouceIndex(1); }},
    {"focus beyond", false, [](auto& list) { list.SetFouceIndex(kItems); }},
    {"disable", true, [](auto& list) { list.SetDisable(false); }},
    {"page", true, [](auto& list) { list.SetPageDown(false); }},
};

TEST_F(SwitchListTouch, AsksForARepaintOfWhatItsSettersChange) {
    for (const Setting& setting : kSettings) {
        list.Redraw(false);
        setting.call(list);
        EXPECT_EQ(list.IsNeedRedraw(), setting.repaints) << setting.name;
    }
}

std::unique_ptr<CLQSwitchList>& Doomed() {
    static std::unique_ptr<CLQSwitchList> doomed;
    return doomed;
}

TEST_F(SwitchListTouch, SurvivesACallBackThatDeletesTheList) {
    for (const int cell : {1, 4}) {
        auto created = std::make_unique<TestSwitchList>();
        created->Prepare(icons);
        created->SetCallBackClick([](int, bool) { Doomed().reset(); });
        Doomed() = std::move(created);
        CLQSwitchList& doomed = *Doomed();
        EXPECT_TRUE(Press(doomed, kInside, CellY(cell)));
        EXPECT_TRUE(Release(doomed, kInside, CellY(cell)));
        EXPECT_EQ(Doomed(), nullptr);
    }
}

TEST_F(SwitchListTouch, SurvivesACallBackThatDeletesTheListInAWindow) {
    Scene scene;
    CLQWindow window;
    window.Create(0, 0, 400, 300);
    auto created = std::make_unique<TestSwitchList>();
    created->Prepare(icons);
    created->SetCallBackClick([](int, bool) { Doomed().reset(); });
    window.AddChild(created.get());
    Doomed() = std::move(created);
    scene.Press(kInside, CellY(1));
    scene.Release(kInside, CellY(1));
    EXPECT_EQ(Doomed(), nullptr);
    scene.Pump();
}

std::unique_ptr<CLQWindow>& DoomedWindow() {
    static std::unique_ptr<CLQWindow> doomed;
    return doomed;
}

TEST_F(SwitchListTouch, SurvivesACallBackThatDeletesTheWindow) {
    Scene scene;
    CLQWindow below;
    below.Create(0, 0, 400, 300);
    for (const int cell : {1, 4}) {
        DoomedWindow() = std::make_unique<CLQWindow>();
        DoomedWindow()->Create(0, 0, 400, 300);
        auto* created = new TestSwitchList;
        created->Prepare(icons);
        created->SetCallBackClick([](int, bool) { DoomedWindow().reset(); });
        DoomedWindow()->AddChild(created);  // the window deletes it
        const LifeWatch life = created->WatchLife();
        scene.Press(kInside, CellY(cell));
        scene.Release(kInside, CellY(cell));
        EXPECT_EQ(DoomedWindow(), nullptr) << cell;
        EXPECT_FALSE(life.IsAlive());
        EXPECT_EQ(CLQScreen::GetInstance()->GetWindowCount(), 1);
        scene.Pump();
    }
}

TEST_F(SwitchListTouch, SurvivesACallBackThatDeletesTheWindowAndLeavesTheList) {
    Scene scene;
    DoomedWindow() = std::make_unique<CLQWindow>();
    DoomedWindow()->Create(0, 0, 400, 300);
    list.SetCallBackClick([](int, bool) { DoomedWindow().reset(); });
    DoomedWindow()->AddChild(&list);
    scene.Press(kInside, CellY(1));
    scene.Release(kInside, CellY(1));
    EXPECT_EQ(DoomedWindow(), nullptr);
    EXPECT_EQ(list.GetFatherWnd(), nullptr);
    scene.Pump();
}

TEST_F(SwitchListTouch, LetsTheApplicationSelectInTheCallBack) {
    static TestSwitchList* clicked = nullptr;
    clicked = &list;
    list.SetCallBackClick([](int index, bool changed) {
        if (changed)
            clicked->SetFouceIndex(index);
    });
    Tap(3);
    EXPECT_EQ(list.Focus(), 3);
    Tap(3);
    EXPECT_EQ(list.Focus(), -1);
}

}  // namespace
}  // namespace korvane::test
