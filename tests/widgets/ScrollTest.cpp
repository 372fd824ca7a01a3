#include "platform/Simulation.h"

#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

/// A label of 60 by 30 at (20, 20). Its text, a full block of solid pixels, is the short one unless a test
/// says otherwise.
class Scroll : public WidgetsTest {
  protected:
    Scroll() {
        label.Create(20, 20, 60, 30);
        label.SetText(L"H");
        label.SetScrollType(eScroll_Left);
        label.SetScrollParam(4, 150);
        window.AddChild(&label);
        scene.Pump();
        rest = scene.Pixels();
    }

    int Left() const { return FirstColumn(0, 0, 200, 100); }
    int TextWidth() {
        CLQFont* font = CLQFontManager::GetInstance()->GetDefaultFont();
        font->SetFontSize(20, 20);
        return font->GetStringWidth(label.GetText().c_str(), false);
    }
    /// Steps of 4 pixels after which the text has passed once.
    int StepsOfAPass() { return (TextWidth() + 60 + 3) / 4; }
    static bool IsAnyTimerRunning() {
        unsigned due = 0;
        return NextTimerDue(due);
    }
    void MakeTooLong() { label.SetText(L"H a text that is much too long for this label"); }

    CLQStatic label;
    std::vector<std::uint32_t> rest;
};

TEST_F(Scroll, RestsUntilItIsEnabled) {
    EXPECT_FALSE(IsAnyTimerRunning());
    scene.Advance(1000);
    EXPECT_EQ(scene.Pixels(), rest);
}

TEST_F(Scroll, RunsLeftByFourPixelsEvery150Milliseconds) {
    label.SetTextStyle(18);
    scene.Pump();
    const int start = Left();
    label.EnableTextScroll(true);
    scene.Advance(149);
    EXPECT_EQ(Left(), start);
    scene.Advance(1);
    EXPECT_EQ(Left(), start - 4);
    scene.Advance(149);
    EXPECT_EQ(Left(), start - 4);
    scene.Advance(1);
    EXPECT_EQ(Left(), start - 8);
}

TEST_F(Scroll, RunsRightWithTheOtherType) {
    const int start = Left();
    label.SetScrollType(eScroll_Right);
    label.EnableTextScroll(true);
    scene.Advance(300);
    EXPECT_EQ(Left(), start + 8);
}

TEST_F(Scroll, RestsWithoutAType) {
    label.SetScrollType(eScroll_None);
    label.EnableTextScroll(true);
    scene.Pump();
    EXPECT_FALSE(IsAnyTimerRunning());
    label.SetScrollType(static_cast<eScrollType>(7));
    scene.Pump();
    EXPECT_FALSE(IsAnyTimerRunning());
}

TEST_F(Scroll, MovesByTheStepAndPeriodThatAreSet) {
    label.SetScrollType(eScroll_Right);
    const int start = Left();
    label.EnableTextScroll(true);
    label.SetScrollParam(7, 40);
    scene.Advance(39);
    EXPECT_EQ(Left(), start);
    scene.Advance(1);
    EXPECT_EQ(Left(), start + 7);
}

TEST_F(Scroll, CountsAStepAndAPeriodBelow1As1) {
    label.SetScrollType(eScroll_Right);
    const int start = Left();
    label.EnableTextScroll(true);
    label.SetScrollParam(-7, 40);
    scene.Advance(40);
    EXPECT_EQ(Left(), start + 1);
    label.SetScrollParam(5, -40);
    scene.Advance(40);
    EXPECT_GT(Left(), start + 1);
}

TEST_F(Scroll, LeavesAtOneEdgeAndComesInAtTheOther) {
    label.EnableTextScroll(true);
    const int width = TextWidth();
    const int outside = (width + 3) / 4;
    scene.Advance(150U * static_cast<unsigned>(outside));
    const int column = Left();
    if (column >= 0) {
        EXPECT_GE(column, 70) << "it comes in at the right edge";
    }
    scene.Advance(150 * 5);
    EXPECT_GT(Left(), 50);
    EXPECT_LE(Left(), 80);
}

TEST_F(Scroll, PaintsNothingOutsideItsRectangle) {
    MakeTooLong();
    label.EnableTextScroll(true);
    for (int step = 0; step < 200; ++step) {
        scene.Advance(150);
        ASSERT_EQ(Marks(0, 0, 200, 100), Marks(20, 20, 80, 50));
    }
    CLQScreen::GetInstance()->ResetCounters();
    scene.Advance(150);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 1U);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paintedPixels, 60U * 30U);
}

TEST_F(Scroll, PassesAsOftenAsTheNumberSaysAndRestsWhereItBegan) {
    for (const int passes : {1, 3}) {
        label.SetTextScrollNum(passes);
        label.EnableTextScroll(true);
        scene.Pump();
        EXPECT_EQ(scene.Pixels(), rest);
        const unsigned whole =
            150U * static_cast<unsigned>(TextWidth() + 60) / 4 * static_cast<unsigned>(passes);
        scene.Advance(whole - 300);
        EXPECT_TRUE(IsAnyTimerRunning());
        scene.Advance(600);
        EXPECT_FALSE(IsAnyTimerRunning());
        EXPECT_EQ(scene.Pixels(), rest);
        label.EnableTextScroll(false);
    }
}

TEST_F(Scroll, PassesForEverWithNumber0OrLess) {
    for (const int passes : {0, -3}) {
        label.SetTextScrollNum(passes);
        label.EnableTextScroll(true);
        scene.Advance(150U * 20U * static_cast<unsigned>(StepsOfAPass()));
        EXPECT_TRUE(IsAnyTimerRunning());
    }
}

TEST_F(Scroll, TakesAStepBeyondAPassAsOnePass) {
    label.SetScrollParam(1000000, 150);
    label.SetTextScrollNum(2);
    label.EnableTextScroll(true);
    scene.Advance(150);
    EXPECT_TRUE(IsAnyTimerRunning());
    scene.Advance(150);
    EXPECT_FALSE(IsAnyTimerRunning());
    EXPECT_EQ(scene.Pixels(), rest);
}

TEST_F(Scroll, RestsAShortTextWhenOnlyTooLongOnesScroll) {
    label.EnableTextScroll(true);
    label.EnableScrollTextTooLong(true);
    scene.Pump();
    EXPECT_FALSE(IsAnyTimerRunning());
    MakeTooLong();
    scene.Pump();
    EXPECT_TRUE(IsAnyTimerRunning());
    label.SetSize(5000, 30);
    scene.Advance(300);
    EXPECT_FALSE(IsAnyTimerRunning()) << "there is room enough";
    label.SetSize(60, 30);
    scene.Pump();
    EXPECT_TRUE(IsAnyTimerRunning());
    label.SetText(L"H");
    scene.Pump();
    EXPECT_FALSE(IsAnyTimerRunning());
    EXPECT_EQ(scene.Pixels(), rest);
}

TEST_F(Scroll, RestsATooLongTextUnlessScrollingIsEnabled) {
    MakeTooLong();
    label.EnableScrollTextTooLong(true);
    scene.Pump();
    EXPECT_FALSE(IsAnyTimerRunning());
    label.EnableTextScroll(true);
    scene.Pump();
    EXPECT_TRUE(IsAnyTimerRunning());
    label.EnableTextScroll(false);
    scene.Pump();
    EXPECT_FALSE(IsAnyTimerRunning());
}

TEST_F(Scroll, GoesBackToItsPlaceWhenItIsSwitchedOff) {
    label.EnableTextScroll(true);
    scene.Advance(450);
    EXPECT_NE(scene.Pixels(), rest);
    label.EnableTextScroll(false);
    scene.Pump();
    EXPECT_EQ(scene.Pixels(), rest);
}

TEST_F(Scroll, AsksForNoRepaintWhenATextAtRestIsSwitchedOnOrOff) {
    CLQScreen::GetInstance()->ResetCounters();
    label.EnableTextScroll(true);
    scene.Pump();
    EXPECT_TRUE(IsAnyTimerRunning());
    label.EnableTextScroll(false);
    scene.Advance(1000);
    EXPECT_FALSE(IsAnyTimerRunning());
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0u);
    label.EnableTextScroll(true);
    scene.Advance(150);
    label.EnableTextScroll(false);
    scene.Pump();
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 2u) << "a step, and back";
}

TEST_F(Scroll, StartsANewTextFromItsPlace) {
    label.SetTextScrollNum(1);
    label.EnableTextScroll(true);
    scene.Advance(60000);
    EXPECT_FALSE(IsAnyTimerRunning());
    label.SetText(L"HH");
    scene.Pump();
    const int start = Left();
    EXPECT_TRUE(IsAnyTimerRunning());
    scene.Advance(149);
    EXPECT_EQ(Left(), start);
    scene.Advance(60000);
    EXPECT_FALSE(IsAnyTimerRunning());
    EXPECT_EQ(Left(), start);
    label.SetText(L"HH");
    scene.Pump();
    EXPECT_FALSE(IsAnyTimerRunning()) << "the same text is no new one";
    label.EnableTextScroll(true);
    scene.Pump();
    EXPECT_FALSE(IsAnyTimerRunning()) << "it was on already";
    label.EnableTextScroll(false);
    label.EnableTextScroll(true);
    scene.Pump();
    EXPECT_TRUE(IsAnyTimerRunning());
}

TEST_F(Scroll, RestsWithoutAText) {
    label.EnableTextScroll(true);
    label.SetText(L"");
    scene.Pump();
    EXPECT_FALSE(IsAnyTimerRunning());
}

TEST_F(Scroll, WakesNothingWhileItIsHiddenAndGoesOnWhenItIsShown) {
    label.EnableTextScroll(true);
    scene.Advance(300);
    const std::vector<std::uint32_t> there = scene.Pixels();
    label.SetShow(false);
    scene.Advance(150);
    EXPECT_FALSE(IsAnyTimerRunning());
    scene.Advance(10000);
    label.SetShow(true);
    scene.Pump();
    EXPECT_EQ(scene.Pixels(), there);
    EXPECT_TRUE(IsAnyTimerRunning());
}

TEST_F(Scroll, WakesNothingWhileItsGroupOrItsWindowIsHidden) {
    auto* group = new CLQGroupCtrl;
    group->Create(0, 0, 200, 100);
    window.DelChild(&label, false);
    group->AddChild(&label);
    window.AddChild(group);
    label.EnableTextScroll(true);
    scene.Pump();
    EXPECT_TRUE(IsAnyTimerRunning());
    group->SetShow(false);
    scene.Advance(150);
    EXPECT_FALSE(IsAnyTimerRunning());
    group->SetShow(true);
    scene.Pump();
    EXPECT_TRUE(IsAnyTimerRunning());
    window.SetShow(false);
    scene.Advance(150);
    EXPECT_FALSE(IsAnyTimerRunning());
    window.SetShow(true);
    scene.Pump();
    EXPECT_TRUE(IsAnyTimerRunning());
}

TEST_F(Scroll, WakesNothingInNoWindow) {
    label.EnableTextScroll(true);
    scene.Pump();
    window.DelChild(&label, false);
    scene.Advance(150);
    EXPECT_FALSE(IsAnyTimerRunning());
    CLQSurfHandle target = Plain(200, 100, kBlack);
    label.Draw(target);
    EXPECT_FALSE(IsAnyTimerRunning());
}

TEST_F(Scroll, EndsWithTheLabel) {
    auto* other = new CLQStatic(label);
    other->EnableTextScroll(true);
    window.AddChild(other);
    scene.Pump();
    EXPECT_TRUE(IsAnyTimerRunning());
    delete other;
    EXPECT_FALSE(IsAnyTimerRunning());
    scene.Advance(1000);
}

TEST_F(Scroll, OfACopyIsItsOwn) {
    label.EnableTextScroll(true);
    scene.Advance(300);
    CLQStatic copy(label);
    copy.MoveTo(120, 20);
    window.AddChild(&copy);
    scene.Pump();
    int restColumn = -1;
    for (int x = 0; x < 100 && restColumn < 0; ++x) {
        for (int y = 0; y < 100; ++y) {
            if (rest[static_cast<std::size_t>(y) * 200 + x] != kBlack)
                restColumn = x;
        }
    }
    EXPECT_EQ(FirstColumn(120, 0, 200, 100), restColumn + 100) << "it starts anew";
    label.EnableTextScroll(false);
    scene.Pump();
    EXPECT_TRUE(IsAnyTimerRunning()) << "the copy goes on";
    copy.EnableTextScroll(false);
    scene.Pump();
    EXPECT_FALSE(IsAnyTimerRunning());
}

TEST_F(Scroll, ShowsTheSamePixelsInAPartialRepaint) {
    MakeTooLong();
    label.EnableTextScroll(true);
    scene.Advance(150 * 7);
    const std::vector<std::uint32_t> before = scene.Pixels();
    scene.FillWithGarbage();
    CLQScreen::GetInstance()->InvalidateAll();
    scene.Pump();
    EXPECT_EQ(scene.Pixels(), before);
}

}  // namespace
}  // namespace korvane::test
