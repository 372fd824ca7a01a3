#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "tests/controls/Touches.h"
#include "tests/controls/dials/TestGauge.h"

namespace korvane::test {
namespace {

/// The parameter: true for copy construction, false for assignment to a gauge with looks of its own.
class DialScaleCopy : public testing::TestWithParam<bool> {
  protected:
    DialScaleCopy() : original(std::make_unique<TestGauge>()) {
        original->Prepare();
        original->SetBkgSurf(face);
        original->SetArc(0, 135, 45, 10);
        original->SetArc(1, 210, 330, 5);
        original->SetArc(2, 45, 135, 7);
        original->SetCurrentDialScale(0, 2);
        original->SetCurrentDialScale(1, 3);
        original->SetCurrentDialScale(2, 1);
        POINT point = {8, 3};
        original->SetPointerCenter(1, &point);
    }

    void Copy() {
        if (GetParam()) {
            copy = std::make_unique<TestGauge>(*original);
            return;
        }
        copy = std::make_unique<TestGauge>();
        copy->Create(0, 0, 10, 10);
        copy->SetBkgSurf(L"Other.lqi");
        copy->SetPointerSurf(L"Other.lqi", L"Other.lqi", L"Other.lqi");
        copy->SetArc(0, 1, 2, 300);
        copy->SetCurrentDialScale(0, 200);
        *copy = *original;
    }

    static CLQSurfHandle Plain() { return Filled(100, 100, {90, 60, 30, 255}); }

    Scene scene;
    CLQSurfHandle face = Plain();
    std::unique_ptr<TestGauge> original;
    std::unique_ptr<TestGauge> copy;
};

TEST_P(DialScaleCopy, LooksLikeItsOriginal) {
    Copy();
    EXPECT_EQ(copy->GetKind(), 58);
    EXPECT_EQ(LooksOf(*copy), LooksOf(*original));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(copy->GetCurrentDialScale(i), original->GetCurrentDialScale(i));
        EXPECT_EQ(copy->CalcAngleFromNum(i, 1), original->CalcAngleFromNum(i, 1));
    }
    copy->SetSize(100, 60);
    original->SetSize(100, 60);
    EXPECT_EQ(LooksOf(*copy), LooksOf(*original));
}

TEST_P(DialScaleCopy, KeepsAnAngleThatWasTakenOnAnotherArc) {
    original->SetDialScaleNum(1, 8);
    Copy();
    EXPECT_EQ(LooksOf(*copy), LooksOf(*original)) << "needle 1 stands on the arc of needle 0";
}

TEST_P(DialScaleCopy, TurnsItsOwnNeedles) {
    Copy();
    const auto looks = LooksOf(*original);
    copy->SetCurrentDialScale(0, 7);
    copy->SetArc(1, 0, 90, 4);
    POINT point = {1, 1};
    copy->SetPointerCenter(2, &point);
    EXPECT_NE(LooksOf(*copy), looks);
    EXPECT_EQ(LooksOf(*original), looks);
}

TEST_P(DialScaleCopy, SharesTheSurfaces) {
    Copy();
    const auto looks = LooksOf(*original);
    _LQColor white = {255, 255, 255, 255};
    face.FillRect(0, 0, 100, 20, white, false);
    EXPECT_NE(LooksOf(*original), looks);
    EXPECT_EQ(LooksOf(*copy), LooksOf(*original));
}

TEST_P(DialScaleCopy, KnowsTheNamesOfImagesThatAreNotLoadedYet) {
    original->SetBkgSurf(L"Later.lqi");
    original->SetPointerSurf(L"Later.lqi", L"Never.lqi", L"Later.lqi");
    Copy();
    original.reset();
    const auto blank = PixelsOf(NewSurface(kCanvasSize, kCanvasSize));
    EXPECT_EQ(LooksOf(*copy), blank);
    CLQSurfHandle image = Plain();
    WriteImage(scene.ImageFolder() / "Later.lqi", image);
    EXPECT_NE(LooksOf(*copy), blank);
}

TEST_P(DialScaleCopy, HoldsNoPress) {
    Press(*original, kGaugeX + 5, kGaugeY + 5);
    Copy();
    EXPECT_FALSE(copy->IsPressed());
    EXPECT_FALSE(Release(*copy, kGaugeX + 5, kGaugeY + 5));
    EXPECT_TRUE(Release(*original, kGaugeX + 5, kGaugeY + 5));
}

TEST_P(DialScaleCopy, EndsBeforeItsOriginal) {
    const auto looks = LooksOf(*original);
    Copy();
    copy.reset();
    EXPECT_EQ(LooksOf(*original), looks);
}

TEST_P(DialScaleCopy, OutlivesItsOriginal) {
    const auto looks = LooksOf(*original);
    Copy();
    original.reset();
    EXPECT_EQ(LooksOf(*copy), looks);
}

INSTANTIATE_TEST_SUITE_P(Gauges, DialScaleCopy, testing::Bool(), [](const auto& way) {
    return way.param ? std::string("Constructed") : std::string("Assigned");
});

TEST(DialScaleCopyOfItself, ChangesNothing) {
    TestGauge gauge;
    gauge.Prepare();
    gauge.SetCurrentDialScale(1, 1);
    const auto looks = LooksOf(gauge);
    TestGauge& same = gauge;
    gauge = same;
    EXPECT_EQ(LooksOf(gauge), looks);
}

}  // namespace
}  // namespace korvane::test
