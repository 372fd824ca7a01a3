#include <climits>
#include <gtest/gtest.h>

#include "engine/window/Window.h"

#include "tests/controls/Touches.h"
#include "tests/controls/dials/TestGauge.h"

namespace korvane::test {
namespace {

class DialScale : public testing::Test {
  protected:
    DialScale() { gauge.Prepare(); }

    /// True when the change asks for a repaint.
    template <class Change>
    bool Repaints(Change change) {
        gauge.Redraw(false);
        change();
        return gauge.IsNeedRedraw();
    }

    TestGauge gauge;
};

TEST_F(DialScale, IsOfKind58) {
    EXPECT_EQ(gauge.GetKind(), 58);
}

TEST_F(DialScale, StartsWithTwoMarksFrom90To180AllNeedlesAtTheFirst) {
    EXPECT_EQ(LooksOf(gauge), LooksAt(90, 90, 90));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(gauge.GetCurrentDialScale(i), 0);
        EXPECT_EQ(gauge.CalcAngleFromNum(i, 0), 90);
        EXPECT_EQ(gauge.CalcAngleFromNum(i, 1), 180);
        gauge.SetCurrentDialScale(i, 5);
        EXPECT_EQ(gauge.GetCurrentDialScale(i), 1) << "two marks";
    }
    EXPECT_EQ(LooksOf(gauge), LooksAt(180, 180, 180));
}

TEST_F(DialScale, TurnsEachNeedleToItsOwnMark) {
    gauge.SetArc(0, 90, 180, 10);
    gauge.SetArc(1, 300, 60, 5);
    gauge.SetArc(2, 0, 100, 4);
    gauge.SetCurrentDialScale(0, 3);
    gauge.SetCurrentDialScale(1, 2);
    gauge.SetCurrentDialScale(2, 1);
    EXPECT_EQ(gauge.GetCurrentDialScale(0), 3);
    EXPECT_EQ(gauge.GetCurrentDialScale(1), 2);
    EXPECT_EQ(gauge.GetCurrentDialScale(2), 1);
    EXPECT_EQ(LooksOf(gauge), LooksAt(120, 0, 33));
}

TEST_F(DialScale, TurnsANeedleThroughEveryDegree) {
    gauge.SetArc(1, 1, 0, 360);
    for (int mark = 0; mark < 360; mark += 5) {
        gauge.SetCurrentDialScale(1, mark);
        ASSERT_EQ(LooksOf(gauge), LooksAt(90, (mark + 1) % 360, 90)) << mark;
    }
}

TEST_F(DialScale, ClampsTheCurrentMark) {
    gauge.SetArc(0, 90, 180, 10);
    gauge.SetCurrentDialScale(0, 9);
    EXPECT_EQ(gauge.GetCurrentDialScale(0), 9);
    gauge.SetCurrentDialScale(0, 10);
    EXPECT_EQ(gauge.GetCurrentDialScale(0), 9);
    gauge.SetCurrentDialScale(0, INT_MAX);
    EXPECT_EQ(gauge.GetCurrentDialScale(0), 9);
    EXPECT_EQ(LooksOf(gauge), LooksAt(180, 90, 90));
    gauge.SetCurrentDialScale(0, -1);
    EXPECT_EQ(gauge.GetCurrentDialScale(0), 0);
    gauge.SetCurrentDialScale(0, INT_MIN);
    EXPECT_EQ(gauge.GetCurrentDialScale(0), 0);
    EXPECT_EQ(LooksOf(gauge), LooksAt(90, 90, 90));
}

TEST_F(DialScale, BringsAnglesIntoOneTurn) {
    gauge.SetStartAngle(0, -90);
    EXPECT_EQ(gauge.CalcAngleFromNum(0, 0), 270);
    gauge.SetEndAngle(0, 720);
    EXPECT_EQ(gauge.CalcAngleFromNum(0, 1), 0);
    EXPECT_EQ(gauge.CalcNumFromAngle(0, 315), 1) << "the arc runs from 270 through 0";
}

TEST_F(DialScale, TurnsTheNeedleWhenItsArcChanges) {
    gauge.SetStartAngle(0, -90);
    gauge.SetStartAngle(1, 30);
    EXPECT_EQ(LooksOf(gauge), LooksAt(270, 30, 90));
    gauge.SetCurrentDialScale(2, 1);
    gauge.SetEndAngle(2, 200);
    EXPECT_EQ(LooksOf(gauge), LooksAt(270, 30, 200));
    gauge.SetEndAngle(0, 100);
    EXPECT_EQ(LooksOf(gauge), LooksAt(270, 30, 200)) << "at its start the end does not matter";
}

TEST_F(DialScale, KeepsTheMarkWhenTheArcChanges) {
    gauge.SetArc(0, 0, 90, 4);
    gauge.SetCurrentDialScale(0, 2);
    gauge.SetStartAngle(0, 30);
    EXPECT_EQ(gauge.GetCurrentDialScale(0), 2);
    EXPECT_EQ(LooksOf(gauge), LooksAt(70, 90, 90));
}

TEST_F(DialScale, GivesANeedleANumberOfMarks) {
    gauge.SetDialScaleNum(0, 10);
    gauge.SetCurrentDialScale(0, 3);
    EXPECT_EQ(LooksOf(gauge), LooksAt(120, 90, 90));
    gauge.SetDialScaleNum(0, 4);
    EXPECT_EQ(gauge.GetCurrentDialScale(0), 3);
    EXPECT_EQ(LooksOf(gauge), LooksAt(180, 90, 90)) << "mark 3 is the last one by now";
    gauge.SetDialScaleNum(0, 3);
    EXPECT_EQ(gauge.GetCurrentDialScale(0), 2) << "clamped";
    gauge.SetDialScaleNum(0, 2);
    EXPECT_EQ(gauge.GetCurrentDialScale(0), 1);
    EXPECT_EQ(LooksOf(gauge), LooksAt(180, 90, 90));
}

TEST_F(DialScale, PutsANeedleOnTheArcOfNeedle0WhenItsMarksAreCounted) {
    gauge.SetArc(0, 0, 90, 10);
    gauge.SetStartAngle(1, 180);
    gauge.SetEndAngle(1, 250);
    gauge.SetCurrentDialScale(1, 1);
    EXPECT_EQ(LooksOf(gauge), LooksAt(0, 250, 90));

    gauge.SetDialScaleNum(1, 8);
    EXPECT_EQ(gauge.GetCurrentDialScale(1), 1);
    EXPECT_EQ(LooksOf(gauge), LooksAt(0, 10, 90)) << "mark 1 of ten from 0 to 90";
    EXPECT_EQ(gauge.CalcAngleFromNum(1, 1), 190) << "its own arc is untouched";
    gauge.SetCurrentDialScale(1, 1);
    EXPECT_EQ(LooksOf(gauge), LooksAt(0, 190, 90)) << "the next mark is on its own arc again";
}

TEST_F(DialScale, ClampsAMarkToTheOnesOfNeedle0WhenMarksAreCounted) {
    gauge.SetArc(0, 0, 90, 4);
    gauge.SetArc(2, 180, 270, 20);
    gauge.SetCurrentDialScale(2, 12);
    gauge.SetDialScaleNum(2, 15);
    EXPECT_EQ(gauge.GetCurrentDialScale(2), 12);
    EXPECT_EQ(LooksOf(gauge), LooksAt(0, 90, 90)) << "needle 0 has marks up to 3, at 90 degrees";
}

TEST_F(DialScale, GivesNeedle0TwoMarksForANumberOf1OrLess) {
    for (const int count : {1, 0, -1, INT_MIN}) {
        gauge.SetArc(0, 0, 90, 10);
        gauge.SetCurrentDialScale(0, 5);
        gauge.SetArc(2, 180, 270, 10);
        gauge.SetCurrentDialScale(2, 4);
        ASSERT_EQ(LooksOf(gauge), LooksAt(50, 90, 220));

        gauge.SetDialScaleNum(2, count);
        EXPECT_EQ(gauge.GetCurrentDialScale(2), 4);
        EXPECT_EQ(gauge.CalcAngleFromNum(2, 1), 190) << "needle 2 has its ten marks";
        EXPECT_EQ(gauge.CalcAngleFromNum(0, 1), 90) << "needle 0 has two";
        EXPECT_EQ(gauge.GetCurrentDialScale(0), 5) << "and keeps its mark";
        EXPECT_EQ(LooksOf(gauge), LooksAt(50, 90, 220)) << "and its angle";
        gauge.SetEndAngle(0, 80);
        EXPECT_EQ(LooksOf(gauge), LooksAt(80, 90, 220)) << "until its arc is set: the last mark there is";
    }
}

TEST_F(DialScale, TakesAnyNumberOfMarks) {
    gauge.SetDialScaleNum(0, INT_MAX);
    gauge.SetCurrentDialScale(0, INT_MAX);
    EXPECT_EQ(gauge.GetCurrentDialScale(0), INT_MAX - 1);
    EXPECT_EQ(LooksOf(gauge), LooksAt(180, 90, 90));
    gauge.SetCurrentDialScale(0, INT_MAX / 2);
    EXPECT_EQ(LooksOf(gauge), LooksAt(135, 90, 90));
}

TEST_F(DialScale, IgnoresNeedlesThatItDoesNotHave) {
    const auto looks = LooksOf(gauge);
    for (const int i : {-1, 3, 4, INT_MIN, INT_MAX}) {
        POINT point = {10, 10};
        gauge.SetPointerCenter(i, &point);
        gauge.SetStartAngle(i, 10);
        gauge.SetEndAngle(i, 20);
        gauge.SetDialScaleNum(i, 7);
        gauge.SetCurrentDialScale(i, 1);
        EXPECT_EQ(gauge.GetCurrentDialScale(i), 0);
        EXPECT_EQ(gauge.CalcAngleFromNum(i, 1), 0);
        EXPECT_EQ(gauge.CalcNumFromAngle(i, 180), 0);
        int angle = -1;
        EXPECT_FALSE(gauge.GetAngleInRange(i, 100, angle));
        EXPECT_EQ(angle, 0);
    }
    EXPECT_EQ(LooksOf(gauge), looks);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(gauge.CalcAngleFromNum(i, 1), 180);
}

TEST_F(DialScale, AsksForARepaintWhateverItIsSetTo) {
    CLQSurfHandle surface;
    EXPECT_TRUE(Repaints([this] { gauge.SetStartAngle(0, 90); }));
    EXPECT_TRUE(Repaints([this] { gauge.SetEndAngle(0, 180); }));
    EXPECT_TRUE(Repaints([this] { gauge.SetDialScaleNum(0, 2); }));
    EXPECT_TRUE(Repaints([this] { gauge.SetDialScaleNum(0, 1); }));
    EXPECT_TRUE(Repaints([this] { gauge.SetCurrentDialScale(0, 0); }));
    EXPECT_TRUE(Repaints([&] { gauge.SetBkgSurf(surface); }));
    EXPECT_TRUE(Repaints([this] { gauge.SetBkgSurf(L"Face.lqi"); }));
    EXPECT_TRUE(Repaints([&] { gauge.SetPointerSurf(surface, surface, surface); }));
    EXPECT_TRUE(Repaints([this] { gauge.SetPointerSurf(L"A.lqi", L"B.lqi", L"C.lqi"); }));
    EXPECT_TRUE(Repaints([this] { gauge.SetSize(10, 10); }));
}

TEST_F(DialScale, MovesAPivotWithoutARepaint) {
    POINT point = {10, 6};
    EXPECT_FALSE(Repaints([&] { gauge.SetPointerCenter(0, &point); }));
    gauge.SetPointerCenter(1, nullptr);
    const std::array<CLQSurfHandle, 3> needles = Needles();
    EXPECT_EQ(LooksOf(gauge),
              LooksOf({{needles[0], 10, 6, 90}, {needles[1], 0, 3, 90}, {needles[2], 0, 2, 90}}, kGaugeX + 80,
                      kGaugeY + 80));
}

TEST_F(DialScale, TurnsAboutAPivotAnywhere) {
    gauge.SetArc(0, 0, 359, 360);
    gauge.SetCurrentDialScale(0, 77);
    const std::array<CLQSurfHandle, 3> needles = Needles();
    for (const POINT pivot :
         {POINT{-10, 4}, POINT{69, 8}, POINT{35, -20}, POINT{-32000, 32000}, POINT{INT_MAX, INT_MIN}}) {
        POINT point = pivot;
        gauge.SetPointerCenter(0, &point);
        const int x = static_cast<int>(pivot.x);
        const int y = static_cast<int>(pivot.y);
        EXPECT_EQ(LooksOf(gauge),
                  LooksOf({{needles[0], x, y, 77}, {needles[1], 0, 3, 90}, {needles[2], 0, 2, 90}},
                          kGaugeX + 80, kGaugeY + 80));
    }
}

TEST_F(DialScale, CreationAlwaysSucceedsAlsoWhereTheBaseRefuses) {
    EXPECT_TRUE(gauge.Create(1, 2, 30, 40));
    EXPECT_TRUE(gauge.Create(5, 6, -1, 40));
    EXPECT_TRUE(gauge.Create(5, 6, 30, 1000000));
    EXPECT_TRUE(gauge.Create(INT_MIN, INT_MAX, 30, 40));
    int x = 0, y = 0, width = 0, height = 0;
    gauge.GetPos(x, y);
    gauge.GetSize(width, height);
    EXPECT_EQ(x, 1);
    EXPECT_EQ(y, 2);
    EXPECT_EQ(width, 30);
    EXPECT_EQ(height, 40);
    EXPECT_EQ(gauge.CalcDialScaleAngle(1 + 15 + 7, 2 + 20 + 7), 44) << "the middle is that of 30 by 40";
}

TEST_F(DialScale, TurnsAboutItsMiddle) {
    const std::array<CLQSurfHandle, 3> needles = Needles();
    const std::vector<Turned> turned = {
        {needles[0], 0, 4, 90}, {needles[1], 0, 3, 90}, {needles[2], 0, 2, 90}};
    gauge.Create(30, 40, 101, 51);
    EXPECT_EQ(LooksOf(gauge), LooksOf(turned, 30 + 50, 40 + 25)) << "halves are cut";
    gauge.SetSize(61, 120);
    EXPECT_EQ(LooksOf(gauge), LooksOf(turned, 30 + 30, 40 + 60));
    gauge.MoveTo(0, 0);
    EXPECT_EQ(LooksOf(gauge), LooksOf(turned, 30, 60));
    gauge.SetSize(0, 0);
    EXPECT_EQ(LooksOf(gauge), LooksOf(turned, 0, 0));
    gauge.SetSize(-50, -50);
    EXPECT_EQ(LooksOf(gauge), LooksOf(turned, 0, 0));
}

TEST_F(DialScale, MeasuresTheAngleOfAScreenPointAboutItsMiddle) {
    constexpr int kMiddleX = kGaugeX + 80;
    constexpr int kMiddleY = kGaugeY + 80;
    EXPECT_EQ(gauge.CalcDialScaleAngle(kMiddleX, kMiddleY), 0);
    EXPECT_EQ(gauge.CalcDialScaleAngle(kMiddleX + 50, kMiddleY), 0);
    EXPECT_EQ(gauge.CalcDialScaleAngle(kMiddleX + 50, kMiddleY + 50), 44);
    EXPECT_EQ(gauge.CalcDialScaleAngle(kMiddleX, kMiddleY + 50), 89);
    EXPECT_EQ(gauge.CalcDialScaleAngle(kMiddleX - 50, kMiddleY), 179);
    EXPECT_EQ(gauge.CalcDialScaleAngle(kMiddleX, kMiddleY - 50), 271);
    EXPECT_EQ(gauge.CalcDialScaleAngle(kMiddleX + 50, kMiddleY - 50), 316);
    EXPECT_EQ(gauge.CalcDialScaleAngle(INT_MAX, INT_MAX), 44) << "the corner of the world";
    EXPECT_EQ(gauge.CalcDialScaleAngle(INT_MIN, INT_MIN), 226);

    CLQWindow window;
    window.Create(300, 200, 400, 200);
    window.AddChild(&gauge);
    EXPECT_EQ(gauge.CalcDialScaleAngle(300 + kMiddleX - 50, 200 + kMiddleY), 179) << "on the screen";
    window.DelChild(&gauge, false);
}

TEST_F(DialScale, FindsMarksAndEndsForADialThatIsTurned) {
    gauge.SetArc(0, 90, 180, 10);
    gauge.SetArc(1, 300, 60, 5);
    EXPECT_EQ(gauge.CalcNumFromAngle(0, 95), 1);
    EXPECT_EQ(gauge.CalcNumFromAngle(0, 185), 0);
    EXPECT_EQ(gauge.CalcNumFromAngle(1, 345), 2);
    int angle = 0;
    EXPECT_FALSE(gauge.GetAngleInRange(0, 200, angle));
    EXPECT_EQ(angle, 180);
    EXPECT_FALSE(gauge.GetAngleInRange(0, 10, angle));
    EXPECT_EQ(angle, 90);
    EXPECT_TRUE(gauge.GetAngleInRange(0, 135, angle));
    EXPECT_EQ(angle, 135);
    EXPECT_TRUE(gauge.GetAngleInRange(1, 0, angle));
    EXPECT_EQ(angle, 0);
}

TEST_F(DialScale, ConsumesATouchAndTurnsNoNeedle) {
    gauge.SetCurrentDialScale(0, 1);
    const auto looks = LooksOf(gauge);
    gauge.Redraw(false);
    EXPECT_TRUE(Press(gauge, kGaugeX + 80, kGaugeY + 150));
    EXPECT_TRUE(gauge.IsPressed());
    EXPECT_TRUE(Drag(gauge, kGaugeX + 150, kGaugeY + 80));
    EXPECT_TRUE(Drag(gauge, -5000, 9000)) << "a drag counts anywhere";
    EXPECT_TRUE(gauge.IsPressed());
    EXPECT_TRUE(Release(gauge, INT_MAX, INT_MIN)) << "and so does the release";
    EXPECT_FALSE(gauge.IsPressed());
    EXPECT_EQ(gauge.GetCurrentDialScale(0), 1);
    EXPECT_FALSE(gauge.IsNeedRedraw());
    EXPECT_EQ(LooksOf(gauge), looks);
}

TEST_F(DialScale, LeavesATouchOutsideToOthers) {
    EXPECT_FALSE(Press(gauge, kGaugeX - 1, kGaugeY));
    EXPECT_FALSE(Press(gauge, kGaugeX, kGaugeY - 1));
    EXPECT_FALSE(Press(gauge, kGaugeX + kGaugeSize, kGaugeY));
    EXPECT_FALSE(Press(gauge, kGaugeX, kGaugeY + kGaugeSize));
    EXPECT_FALSE(gauge.IsPressed());
    EXPECT_TRUE(Press(gauge, kGaugeX, kGaugeY)) << "its rectangle counts, not its face";
    EXPECT_TRUE(Press(gauge, kGaugeX + kGaugeSize - 1, kGaugeY + kGaugeSize - 1));
}

TEST_F(DialScale, LeavesMovesAndReleasesWithoutAPressToOthers) {
    EXPECT_FALSE(Drag(gauge, kGaugeX + 80, kGaugeY + 80));
    EXPECT_FALSE(Release(gauge, kGaugeX + 80, kGaugeY + 80));
    EXPECT_TRUE(Press(gauge, kGaugeX + 80, kGaugeY + 80));
    EXPECT_TRUE(Release(gauge, kGaugeX + 80, kGaugeY + 80));
    EXPECT_FALSE(Drag(gauge, kGaugeX + 80, kGaugeY + 80));
    EXPECT_FALSE(Release(gauge, kGaugeX + 80, kGaugeY + 80));
}

TEST_F(DialScale, LeavesOtherMessagesToOthers) {
    EXPECT_TRUE(Press(gauge, kGaugeX + 80, kGaugeY + 80));
    for (const unsigned int code : {0u, 256u, 257u, 273u, 511u, 515u, 1191u, 0xFFFFFFFFu})
        EXPECT_FALSE(Hand(gauge, code, kGaugeX + 80, kGaugeY + 80)) << code;
    EXPECT_TRUE(gauge.IsPressed());
    EXPECT_FALSE(gauge.DoMessage(nullptr));
}

/// Nowhere to be touched.
class UntouchableGauge : public TestGauge {
  public:
    bool CheckPoint(int, int) override { return false; }
};

TEST(DialScaleTouch, AsksTheVirtualHitTest) {
    UntouchableGauge gauge;
    gauge.Prepare();
    EXPECT_FALSE(Press(gauge, kGaugeX + 80, kGaugeY + 80));
}

}  // namespace
}  // namespace korvane::test
