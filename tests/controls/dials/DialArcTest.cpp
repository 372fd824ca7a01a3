#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "controls/parts/DialArc.h"

namespace korvane::test {
namespace {

constexpr double kPi = 3.14159265358979323846;

/// The angles of all marks of an arc, in order.
std::vector<int> AnglesOf(const DialArc& arc) {
    std::vector<int> angles;
    for (int mark = 0; mark < arc.marks; ++mark)
        angles.push_back(arc.AngleOfMark(mark));
    return angles;
}

struct Snapped {
    bool isOnArc;
    int angle;
};

bool operator==(const Snapped& a, const Snapped& b) {
    return a.isOnArc == b.isOnArc && a.angle == b.angle;
}

std::ostream& operator<<(std::ostream& stream, const Snapped& snapped) {
    return stream << snapped.angle << (snapped.isOnArc ? " on the arc" : " at an end");
}

Snapped Snap(const DialArc& arc, int angle) {
    Snapped snapped{};
    snapped.isOnArc = arc.Snap(angle, snapped.angle);
    return snapped;
}

TEST(DialArc, BringsEveryAngleIntoOneTurn) {
    EXPECT_EQ(NormalAngle(0), 0);
    EXPECT_EQ(NormalAngle(359), 359);
    EXPECT_EQ(NormalAngle(360), 0);
    EXPECT_EQ(NormalAngle(361), 1);
    EXPECT_EQ(NormalAngle(720), 0);
    EXPECT_EQ(NormalAngle(-1), 359);
    EXPECT_EQ(NormalAngle(-90), 270);
    EXPECT_EQ(NormalAngle(-359), 1);
    EXPECT_EQ(NormalAngle(-360), 0);
    EXPECT_EQ(NormalAngle(-361), 359);
    EXPECT_EQ(NormalAngle(INT_MAX), 127);
    EXPECT_EQ(NormalAngle(INT_MIN), 232);
}

TEST(DialArc, SpreadsItsMarksEvenlyFromItsStartToItsEnd) {
    EXPECT_EQ(AnglesOf({90, 180, 10}), (std::vector<int>{90, 100, 110, 120, 130, 140, 150, 160, 170, 180}));
    EXPECT_EQ(AnglesOf({90, 180, 2}), (std::vector<int>{90, 180}));
    EXPECT_EQ(AnglesOf({0, 359, 2}), (std::vector<int>{0, 359}));
}

TEST(DialArc, RunsThrough0WhenItsEndIsBelowItsStart) {
    EXPECT_EQ(AnglesOf({300, 60, 5}), (std::vector<int>{300, 330, 0, 30, 60}));
    EXPECT_EQ(AnglesOf({350, 20, 4}), (std::vector<int>{350, 0, 10, 20}));
    EXPECT_EQ(AnglesOf({1, 0, 2}), (std::vector<int>{1, 0}));
    EXPECT_EQ(AnglesOf({180, 0, 3}), (std::vector<int>{180, 270, 0}));
}

TEST(DialArc, CutsTheAngleOfAMarkToWholeDegrees) {
    // A third of 100 degrees, 33.3 and 66.7; a seventh of 20, 2.86 each.
    EXPECT_EQ(AnglesOf({0, 100, 4}), (std::vector<int>{0, 33, 66, 100}));
    EXPECT_EQ(AnglesOf({350, 10, 8}), (std::vector<int>{350, 352, 355, 358, 1, 4, 7, 10}));
    // More marks than degrees.
    EXPECT_EQ(AnglesOf({10, 12, 6}), (std::vector<int>{10, 10, 10, 11, 11, 12}));
}

TEST(DialArc, WithoutLengthHasAllItsMarksAtOneAngle) {
    EXPECT_EQ(AnglesOf({77, 77, 3}), (std::vector<int>{77, 77, 77}));
}

TEST(DialArc, TakesAMarkBeyondItsEndsForTheOneAtThatEnd) {
    const DialArc arc{300, 60, 5};
    for (const int mark : {-1, -100, INT_MIN})
        EXPECT_EQ(arc.AngleOfMark(mark), 300) << mark;
    for (const int mark : {5, 100, INT_MAX})
        EXPECT_EQ(arc.AngleOfMark(mark), 60) << mark;
}

TEST(DialArc, HoldsAnyNumberOfMarks) {
    const DialArc arc{1, 0, INT_MAX};
    EXPECT_EQ(arc.AngleOfMark(0), 1);
    EXPECT_EQ(arc.AngleOfMark(INT_MAX / 2), 1 + 179) << "359 degrees halved";
    EXPECT_EQ(arc.AngleOfMark(INT_MAX - 1), 0);
    EXPECT_EQ(arc.MarkNearest(0), INT_MAX - 1);
    EXPECT_EQ(arc.MarkNearest(1), 0);
}

TEST(DialArc, FindsTheNearestMarkTheHigherOneOfTwo) {
    const DialArc arc{90, 180, 10};
    EXPECT_EQ(arc.MarkNearest(90), 0);
    EXPECT_EQ(arc.MarkNearest(94), 0);
    EXPECT_EQ(arc.MarkNearest(95), 1);
    EXPECT_EQ(arc.MarkNearest(100), 1);
    EXPECT_EQ(arc.MarkNearest(104), 1);
    EXPECT_EQ(arc.MarkNearest(105), 2);
    EXPECT_EQ(arc.MarkNearest(174), 8);
    EXPECT_EQ(arc.MarkNearest(175), 9);
    EXPECT_EQ(arc.MarkNearest(180), 9);
}

TEST(DialArc, FindsTheNearestMarkOnBothSidesOf0) {
    const DialArc arc{300, 60, 5};
    EXPECT_EQ(arc.MarkNearest(300), 0);
    EXPECT_EQ(arc.MarkNearest(314), 0);
    EXPECT_EQ(arc.MarkNearest(315), 1);
    EXPECT_EQ(arc.MarkNearest(344), 1);
    EXPECT_EQ(arc.MarkNearest(345), 2);
    EXPECT_EQ(arc.MarkNearest(359), 2);
    EXPECT_EQ(arc.MarkNearest(0), 2);
    EXPECT_EQ(arc.MarkNearest(14), 2);
    EXPECT_EQ(arc.MarkNearest(15), 3);
    EXPECT_EQ(arc.MarkNearest(44), 3);
    EXPECT_EQ(arc.MarkNearest(45), 4);
    EXPECT_EQ(arc.MarkNearest(60), 4);
}

TEST(DialArc, FindsMark0OutsideIt) {
    for (const int angle : {89, 181, 185, 0, 359, 270, -1})
        EXPECT_EQ((DialArc{90, 180, 10}.MarkNearest(angle)), 0) << angle;
    for (const int angle : {61, 180, 299})
        EXPECT_EQ((DialArc{300, 60, 5}.MarkNearest(angle)), 0) << angle;
    for (const int angle : {76, 77, 78})
        EXPECT_EQ((DialArc{77, 77, 5}.MarkNearest(angle)), 0) << angle;
}

TEST(DialArc, FindsTheNearestMarkOfAnyAngle) {
    EXPECT_EQ((DialArc{90, 180, 10}.MarkNearest(120 + 360)), 3);
    EXPECT_EQ((DialArc{90, 180, 10}.MarkNearest(120 - 720)), 3);
    EXPECT_EQ((DialArc{300, 60, 5}.MarkNearest(-30)), 1);
    EXPECT_EQ((DialArc{300, 60, 5}.MarkNearest(INT_MIN)), 0) << "232 degrees";
    EXPECT_EQ((DialArc{90, 180, 10}.MarkNearest(INT_MAX)), 4) << "127 degrees: (37 + 5) * 9 / 90";
}

TEST(DialArc, CutsHalfTheDistanceOfMarksToWholeDegrees) {
    // Marks at 0, 33, 66 and 100; half a distance is 16.67 and counts as 16.
    const DialArc arc{0, 100, 4};
    EXPECT_EQ(arc.MarkNearest(17), 0) << "(17 + 16) * 3 / 100";
    EXPECT_EQ(arc.MarkNearest(18), 1) << "(18 + 16) * 3 / 100";
    EXPECT_EQ(arc.MarkNearest(50), 1) << "(50 + 16) * 3 / 100";
    EXPECT_EQ(arc.MarkNearest(51), 2) << "(51 + 16) * 3 / 100";
    EXPECT_EQ(arc.MarkNearest(83), 2) << "(83 + 16) * 3 / 100";
    EXPECT_EQ(arc.MarkNearest(84), 3) << "(84 + 16) * 3 / 100";
    // With marks closer than two degrees it is 0.
    EXPECT_EQ((DialArc{10, 12, 6}.MarkNearest(11)), 2) << "(1 + 0) * 5 / 2";
}

TEST(DialArc, FindsEachMarkAtItsOwnAngle) {
    for (int start = 0; start < kFullTurn; start += 7) {
        for (const int span : {2, 45, 90, 119, 180, 240, 359}) {
            for (const int marks : {2, 3, 5, 8, 13, 61}) {
                const DialArc arc{start, NormalAngle(start + span), marks};
                if (span < 2 * (marks - 1))
                    continue;
                for (int mark = 0; mark < marks; ++mark)
                    ASSERT_EQ(arc.MarkNearest(arc.AngleOfMark(mark)), mark)
                        << start << " + " << span << ", " << marks << " marks";
            }
        }
    }
}

TEST(DialArc, KeepsAnAngleThatLiesOnIt) {
    const DialArc arc{90, 180, 2};
    for (const int angle : {90, 91, 135, 179, 180})
        EXPECT_EQ(Snap(arc, angle), (Snapped{true, angle}));
    const DialArc wrapping{300, 60, 2};
    for (const int angle : {300, 330, 359, 0, 1, 60})
        EXPECT_EQ(Snap(wrapping, angle), (Snapped{true, angle}));
    EXPECT_EQ(Snap(wrapping, -10), (Snapped{true, 350}));
    EXPECT_EQ(Snap(arc, 135 + 720), (Snapped{true, 135}));
}

TEST(DialArc, SnapsAnAngleOutsideToTheNearerEnd) {
    const DialArc arc{90, 180, 2};
    EXPECT_EQ(Snap(arc, 181), (Snapped{false, 180}));
    EXPECT_EQ(Snap(arc, 200), (Snapped{false, 180}));
    EXPECT_EQ(Snap(arc, 314), (Snapped{false, 180})) << "134 after the end, 136 before the start";
    EXPECT_EQ(Snap(arc, 316), (Snapped{false, 90})) << "136 after the end, 134 before the start";
    EXPECT_EQ(Snap(arc, 359), (Snapped{false, 90}));
    EXPECT_EQ(Snap(arc, 0), (Snapped{false, 90}));
    EXPECT_EQ(Snap(arc, 10), (Snapped{false, 90}));
    EXPECT_EQ(Snap(arc, 89), (Snapped{false, 90}));

    // Far from 0 on the other side, the end can be the nearer one of an angle below the start.
    const DialArc late{300, 350, 2};
    EXPECT_EQ(Snap(late, 0), (Snapped{false, 350}));
    EXPECT_EQ(Snap(late, 144), (Snapped{false, 350})) << "154 after the end, 156 before the start";
    EXPECT_EQ(Snap(late, 146), (Snapped{false, 300})) << "156 after the end, 154 before the start";
    EXPECT_EQ(Snap(late, 299), (Snapped{false, 300}));
    EXPECT_EQ(Snap(late, 351), (Snapped{false, 350}));

    const DialArc wrapping{300, 60, 2};
    EXPECT_EQ(Snap(wrapping, 61), (Snapped{false, 60}));
    EXPECT_EQ(Snap(wrapping, 179), (Snapped{false, 60}));
    EXPECT_EQ(Snap(wrapping, 181), (Snapped{false, 300}));
    EXPECT_EQ(Snap(wrapping, 299), (Snapped{false, 300}));
}

TEST(DialArc, SnapsAnAngleAsNearToBothEndsToItsStart) {
    EXPECT_EQ(Snap({90, 180, 2}, 315), (Snapped{false, 90})) << "above the end";
    EXPECT_EQ(Snap({300, 350, 2}, 145), (Snapped{false, 300})) << "below the start";
    EXPECT_EQ(Snap({300, 60, 2}, 180), (Snapped{false, 300})) << "between the ends of a wrapping arc";
}

TEST(DialArc, WithoutLengthHoldsNoAngle) {
    const DialArc arc{77, 77, 2};
    for (const int angle : {0, 76, 77, 78, 257, 359})
        EXPECT_EQ(Snap(arc, angle), (Snapped{false, 77}));
}

TEST(DialArc, AnglesGrowClockwiseFromTheRight) {
    // In degrees 45, 135, 225 and 315, each cut toward zero from its own side of the x axis.
    EXPECT_EQ(AngleOfPoint(1, 0), 0);
    EXPECT_EQ(AngleOfPoint(1, 1), 44);
    EXPECT_EQ(AngleOfPoint(-1, 1), 134);
    EXPECT_EQ(AngleOfPoint(-1, -1), 226);
    EXPECT_EQ(AngleOfPoint(1, -1), 316);
    EXPECT_EQ(AngleOfPoint(0, 0), 0);
}

TEST(DialArc, StraightDownIs89Left179AndUp271) {
    EXPECT_EQ(AngleOfPoint(0, 100), 89);
    EXPECT_EQ(AngleOfPoint(-100, 0), 179);
    EXPECT_EQ(AngleOfPoint(0, -100), 271);
}

TEST(DialArc, CutsAnglesTowardTheRight) {
    // From the right clockwise to the left they are cut, counterclockwise they are cut likewise: so the lower
    // half rounds down and the upper half up.
    for (int degrees = 0; degrees < kFullTurn; ++degrees) {
        const double radians = (degrees + 0.5) * kPi / 180;
        const int expected = degrees < 180 ? degrees : NormalAngle(degrees + 1);
        EXPECT_EQ(AngleOfPoint(1000 * std::cos(radians), 1000 * std::sin(radians)), expected) << degrees;
    }
    EXPECT_EQ(AngleOfPoint(100, 1), 0);
    EXPECT_EQ(AngleOfPoint(100, -1), 0);
    EXPECT_EQ(AngleOfPoint(100, -2), 359);
    EXPECT_EQ(AngleOfPoint(-100, 1), 179);
    EXPECT_EQ(AngleOfPoint(-100, -1), 181);
}

TEST(DialArc, MeasuresPointsAtAnyDistance) {
    EXPECT_EQ(AngleOfPoint(4.0e9, 4.0e9), 44);
    EXPECT_EQ(AngleOfPoint(-4.0e9, 1), 179);
}

}  // namespace
}  // namespace korvane::test
