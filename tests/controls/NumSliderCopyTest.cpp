#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "engine/Korvane.h"
#include "platform/Simulation.h"

#include "tests/controls/TestWheel.h"
#include "tests/support/Scene.h"

namespace korvane::test {
namespace {

constexpr int kX = kWheelX + 10;
constexpr int kY = kWheelY + 90;

/// Which wheel called what, in order.
struct Calls {
    std::string order;  // u, d and s for move up, move down and stop
    std::vector<void*> senders;

    static void Note(char which, void* context, void* sender) {
        auto& calls = *static_cast<Calls*>(context);
        calls.order += which;
        calls.senders.push_back(sender);
    }
};

class Listener : public CLQWindow {
  public:
    void OnValue(CLQNumSlider* sender, float* value) {
        senders.push_back(sender);
        values.push_back(*value);
    }
    std::vector<CLQNumSlider*> senders;
    std::vector<float> values;
};

std::vector<std::uint32_t> LooksOf(TestWheel& wheel) {
    CLQSurfHandle canvas = CLQSurfManager::GetInstance()->CreateSurface(400, 270, eSurface_ARGB8888, true);
    wheel.Draw(canvas);
    return PixelsOf(canvas);
}

/// The parameter: true for copy construction, false for assignment to a wheel that rolls.
class NumSliderCopy : public testing::TestWithParam<bool> {
  protected:
    NumSliderCopy() : original(std::make_unique<TestWheel>()) {
        original->Prepare(FmBounds(), 87.95f);
        original->SetMoveUpCallBack([](void* c, void* s) { Calls::Note('u', c, s); }, &calls);
        original->SetMoveDownCallBack([](void* c, void* s) { Calls::Note('d', c, s); }, &calls);
        original->SetMoveStopCallBack([](void* c, void* s) { Calls::Note('s', c, s); }, &calls);
        original->AddCallBack(kEventValueChanged, &listener, &Listener::OnValue);
    }

    void RollHalfAStep(bool down) {
        original->SlideMove(down);
        original->StartMove();
        scene.Advance(100);
        calls = Calls();
    }

    void Copy() {
        if (GetParam()) {
            copy = std::make_unique<TestWheel>(*original);
            return;
        }
        copy = std::make_unique<TestWheel>();
        copy->Prepare(AmBounds(), 999.0f);
        copy->SlideMove(true);
        copy->StartMove();
        *copy = *original;
    }

    static int Hundredths(const TestWheel& wheel) { return wheel.IntegerPart() * 100 + wheel.DecimalPart(); }

    Scene scene;
    Calls calls;
    Listener listener;
    std::unique_ptr<TestWheel> original;
    std::unique_ptr<TestWheel> copy;
};

TEST_P(NumSliderCopy, OfAHalfRolledWheelLooksLikeItAndRollsOnByItself) {
    RollHalfAStep(false);
    Copy();
    EXPECT_TRUE(copy->IsMove());
    EXPECT_EQ(copy->IntegerOffset(), -38);
    EXPECT_EQ(copy->DecimalOffset(), -38);
    EXPECT_EQ(LooksOf(*copy), LooksOf(*original));

    const auto looks = LooksOf(*original);
    copy->Tick(1);
    EXPECT_EQ(copy->IntegerOffset(), -57);
    EXPECT_EQ(copy->DecimalOffset(), -57);
    copy->Tick(1);
    EXPECT_EQ(Hundredths(*copy), 8800);
    EXPECT_EQ(listener.values, std::vector<float>{copy->Value()});
    EXPECT_EQ(listener.senders, std::vector<CLQNumSlider*>{copy.get()});
    EXPECT_NE(LooksOf(*copy), looks);
    EXPECT_EQ(LooksOf(*original), looks) << "a copy's step leaves its original alone";
    EXPECT_EQ(Hundredths(*original), 8795);
}

TEST_P(NumSliderCopy, KeepsTheDirection) {
    original->SetVaule(88.0f);
    RollHalfAStep(true);
    Copy();
    EXPECT_EQ(copy->IntegerOffset(), 38);
    copy->Tick(2);
    EXPECT_EQ(Hundredths(*copy), 8795);
    copy->StartMove();
    copy->Tick(kTicksPerStep);
    EXPECT_EQ(Hundredths(*copy), 8790) << "a new start keeps to the direction of the last swipe";
}

TEST_P(NumSliderCopy, CallsBackAsItsOriginalDoesAndNamesItself) {
    RollHalfAStep(false);
    Copy();
    EXPECT_TRUE(copy->Press(kX, kY));
    EXPECT_EQ(calls.order, "s") << "it moves, so a touch asks for a stop";
    copy->MoveStop();
    copy->Press(kX, kY);
    copy->Release(kX, kY - 10);
    copy->Press(kX, kY);
    copy->Release(kX, kY + 10);
    EXPECT_EQ(calls.order, "sud");
    EXPECT_EQ(calls.senders, std::vector<void*>(3, static_cast<CLQNumSlider*>(copy.get())));
}

TEST_P(NumSliderCopy, HoldsNoPressAndLeavesTheOriginalItsOwn) {
    original->Press(kX, kY);
    Copy();
    EXPECT_FALSE(copy->IsPressed());
    EXPECT_EQ(copy->PressY(), kY);
    EXPECT_TRUE(copy->Release(kX, kY + 50)) << "every release is consumed";
    EXPECT_EQ(calls.order, "") << "a release without a press is no swipe";

    copy->MoveStop();
    copy->Press(kX, kY + 60);
    EXPECT_EQ(original->PressY(), kY);
    copy->Release(kX, kY + 50);
    EXPECT_EQ(calls.order, "u") << "measured from the copy's own press";
    original->Release(kX, kY + 50);
    EXPECT_EQ(calls.order, "ud") << "measured from the original's";
}

TEST_P(NumSliderCopy, GetsNoTicksOfTheTimerItShares) {
    Copy();
    original->StartMove();
    copy->SlideMove(false);
    copy->StartMove();
    EXPECT_TRUE(original->TimerRuns());
    scene.Advance(200);
    EXPECT_EQ(Hundredths(*original), 8800) << "the ticks go to the wheel that was copied";
    EXPECT_EQ(Hundredths(*copy), 8795);
    copy->MoveStop();
    EXPECT_FALSE(original->TimerRuns());
}

TEST_P(NumSliderCopy, EndsBeforeItsOriginalWhichRollsOn) {
    RollHalfAStep(false);
    Copy();
    copy.reset();
    EXPECT_TRUE(original->IsMove());
    EXPECT_TRUE(original->TimerRuns());
    scene.Advance(100);
    EXPECT_EQ(Hundredths(*original), 8800);
    scene.Advance(200);
    EXPECT_EQ(Hundredths(*original), 8805);
}

TEST_P(NumSliderCopy, OutlivesItsOriginalAndStandsStill) {
    RollHalfAStep(false);
    Copy();
    const auto looks = LooksOf(*original);
    original.reset();
    scene.Advance(1000);
    EXPECT_TRUE(listener.values.empty());
    EXPECT_EQ(LooksOf(*copy), looks);
    unsigned due = 0;
    EXPECT_FALSE(NextTimerDue(due)) << "the timer stops where nobody takes its ticks";
}

TEST_P(NumSliderCopy, OfARestingWheelRunsNoTimer) {
    Copy();
    EXPECT_FALSE(copy->IsMove());
    EXPECT_FALSE(copy->TimerRuns());
    unsigned due = 0;
    EXPECT_FALSE(NextTimerDue(due)) << "a wheel that is assigned to while it rolls gives its timer up";
}

INSTANTIATE_TEST_SUITE_P(Wheels, NumSliderCopy, testing::Bool(), [](const auto& way) {
    return way.param ? std::string("Constructed") : std::string("Assigned");
});

TEST(NumSliderCopyOfItself, ChangesNothing) {
    Scene scene;
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 87.95f);
    wheel.SlideMove(false);
    wheel.StartMove();
    scene.Advance(100);
    const auto looks = LooksOf(wheel);
    TestWheel& same = wheel;
    wheel = same;
    EXPECT_EQ(LooksOf(wheel), looks);
    scene.Advance(100);
    EXPECT_EQ(wheel.IntegerPart(), 88);
}

}  // namespace
}  // namespace korvane::test
