#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

#include "controls/parts/NumSliderLayout.h"
#include "engine/window/Window.h"
#include "platform/Simulation.h"

#include "tests/controls/TestWheel.h"
#include "tests/support/Scene.h"

namespace {

using korvane::test::AmBounds;
using korvane::test::FmBounds;
using korvane::test::kTicksPerStep;
using korvane::test::TestWheel;

constexpr bool kDown = true;
constexpr bool kUp = false;

/// Collects the value-changed events of a wheel, as an application's window does.
class Listener : public CLQWindow {
  public:
    void OnValue(void* sender, void* value) {
        senders.push_back(sender);
        values.push_back(*static_cast<float*>(value));
    }
    void ListenTo(CLQBaseCtrl& ctrl) {
        ctrl.AddCallBack(29706, this, korvane::HandlerCast<void (CLQWnd::*)()>(&Listener::OnValue));
    }
    std::vector<void*> senders;
    std::vector<float> values;
};

void Roll(TestWheel& wheel, bool down) {
    wheel.SlideMove(down);
    wheel.StartMove();
}

int Hundredths(TestWheel& wheel) {
    return wheel.IntegerPart() * 100 + wheel.DecimalPart();
}

TEST(NumSliderRoll, ScrollsTheFractionAQuarterOfAStepPerTick) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 87.90f);
    Roll(wheel, kUp);
    for (int tick = 1; tick < kTicksPerStep; ++tick) {
        wheel.Tick(1);
        EXPECT_EQ(wheel.DecimalOffset(), -19 * tick);
        EXPECT_EQ(wheel.IntegerOffset(), 0) << "from 87.90 only the fraction rolls";
        EXPECT_EQ(Hundredths(wheel), 8790);
    }
    wheel.Tick(1);
    EXPECT_EQ(wheel.DecimalOffset(), 0);
    EXPECT_EQ(Hundredths(wheel), 8795);
}

TEST(NumSliderRoll, RollsTheIntegerColumnWhenTheFractionCarries) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 87.95f);
    Roll(wheel, kUp);
    for (int tick = 1; tick < kTicksPerStep; ++tick) {
        wheel.Tick(1);
        EXPECT_EQ(wheel.DecimalOffset(), -19 * tick);
        EXPECT_EQ(wheel.IntegerOffset(), -19 * tick);
    }
    wheel.Tick(1);
    EXPECT_EQ(wheel.DecimalOffset(), 0);
    EXPECT_EQ(wheel.IntegerOffset(), 0);
    EXPECT_EQ(Hundredths(wheel), 8800);
}

TEST(NumSliderRoll, LeavesTheIntegerColumnRightAfterACarry) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 88.0f);
    Roll(wheel, kUp);
    wheel.Tick(1);
    EXPECT_EQ(wheel.DecimalOffset(), -19);
    EXPECT_EQ(wheel.IntegerOffset(), 0);
}

TEST(NumSliderRoll, StartSplitsTheValueAnew) {
    TestWheel wheel;
    wheel.Prepare({1.0f, 2000.0f, 1.0f, false, L""}, 99.999f);
    ASSERT_EQ(wheel.IntegerPart(), 99);
    wheel.SetDec(true);
    wheel.StartMove();
    EXPECT_EQ(wheel.IntegerPart(), 100);
    EXPECT_EQ(wheel.DecimalPart(), 0);
}

TEST(NumSliderRoll, WholeNumbersLeaveTheHundredthsAndGuardTheStep) {
    TestWheel wheel;
    wheel.Prepare({1.0f, 2000.0f, 1.0f, true, L""}, 98.25f);
    wheel.SetDec(false);
    wheel.SetVaule(98.999f);
    ASSERT_EQ(wheel.IntegerPart(), 98);
    Roll(wheel, kUp);
    wheel.Tick(kTicksPerStep);
    EXPECT_EQ(wheel.IntegerPart(), 100) << "99.999 after a step counts as 100, set by hand as 99";
    EXPECT_EQ(wheel.DecimalPart(), 25);
}

TEST(NumSliderRoll, RollsTheIntegerColumnWhenTheFractionBorrows) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 88.0f);
    Roll(wheel, kDown);
    for (int tick = 1; tick < kTicksPerStep; ++tick) {
        wheel.Tick(1);
        EXPECT_EQ(wheel.DecimalOffset(), 19 * tick);
        EXPECT_EQ(wheel.IntegerOffset(), 19 * tick);
    }
    wheel.Tick(1);
    EXPECT_EQ(Hundredths(wheel), 8795);
}

TEST(NumSliderRoll, LeavesTheIntegerColumnWhenTheFractionDoesNotBorrow) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 88.05f);
    Roll(wheel, kDown);
    wheel.Tick(3);
    EXPECT_EQ(wheel.DecimalOffset(), 57);
    EXPECT_EQ(wheel.IntegerOffset(), 0);
    wheel.Tick(1);
    EXPECT_EQ(Hundredths(wheel), 8800);
}

TEST(NumSliderRoll, BorrowToleratesAHundredthTooFew) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 88.04f);
    Roll(wheel, kDown);
    wheel.Tick(1);
    EXPECT_EQ(wheel.IntegerOffset(), 0);
    wheel.SetVaule(88.03f);
    wheel.Tick(1);
    EXPECT_EQ(wheel.IntegerOffset(), 19);
}

TEST(NumSliderRoll, GoesOnStepAfterStepUntilItIsStopped) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 98.0f);
    Roll(wheel, kUp);
    wheel.Tick(5 * kTicksPerStep);
    EXPECT_EQ(Hundredths(wheel), 9825);
    EXPECT_TRUE(wheel.IsMove());
    wheel.MoveStop();
    EXPECT_FALSE(wheel.IsMove());
    wheel.Tick(5 * kTicksPerStep);
    EXPECT_EQ(Hundredths(wheel), 9825);
}

TEST(NumSliderRoll, StopLeavesTheColumnsWhereTheyAreAndStartLinesThemUp) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 87.95f);
    Roll(wheel, kUp);
    wheel.Tick(2);
    wheel.MoveStop();
    EXPECT_EQ(wheel.IntegerOffset(), -38);
    EXPECT_EQ(wheel.DecimalOffset(), -38);
    wheel.MoveStop();
    wheel.StartMove();
    EXPECT_EQ(wheel.IntegerOffset(), 0);
    EXPECT_EQ(wheel.DecimalOffset(), 0);
    wheel.Tick(kTicksPerStep);
    EXPECT_EQ(Hundredths(wheel), 8800);
}

TEST(NumSliderRoll, WrapsAtBothEndsInsteadOfClamping) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 108.0f);
    Roll(wheel, kUp);
    wheel.Tick(kTicksPerStep);
    EXPECT_EQ(wheel.Value(), 87.5f);
    EXPECT_EQ(Hundredths(wheel), 8750);
    Roll(wheel, kDown);
    wheel.Tick(kTicksPerStep);
    EXPECT_EQ(wheel.Value(), 108.0f);
    EXPECT_EQ(Hundredths(wheel), 10800);
}

TEST(NumSliderRoll, WrapsWholeNumbersAtBothEnds) {
    TestWheel wheel;
    wheel.Prepare(AmBounds(), 1602.0f);
    Roll(wheel, kUp);
    wheel.Tick(kTicksPerStep);
    EXPECT_EQ(wheel.Value(), 531.0f);
    EXPECT_EQ(wheel.IntegerPart(), 531);
    Roll(wheel, kDown);
    wheel.Tick(kTicksPerStep);
    EXPECT_EQ(wheel.Value(), 1602.0f);
    EXPECT_EQ(wheel.IntegerPart(), 1602);
}

TEST(NumSliderRoll, RollsThroughTheWholeAmBand) {
    TestWheel wheel;
    wheel.Prepare(AmBounds(), 531.0f);
    Roll(wheel, kUp);
    for (int expected = 540; expected <= 1602; expected += 9) {
        wheel.Tick(kTicksPerStep);
        EXPECT_EQ(wheel.IntegerPart(), expected);
        EXPECT_EQ(wheel.DecimalOffset(), 0);
    }
}

TEST(NumSliderRoll, ScrollsTheOneColumnOfWholeNumbers) {
    TestWheel wheel;
    wheel.Prepare(AmBounds(), 999.0f);
    Roll(wheel, kUp);
    for (int tick = 1; tick < kTicksPerStep; ++tick) {
        wheel.Tick(1);
        EXPECT_EQ(wheel.IntegerOffset(), -19 * tick);
        EXPECT_EQ(wheel.DecimalOffset(), 0);
    }
    wheel.Tick(1);
    EXPECT_EQ(wheel.IntegerOffset(), 0);
    EXPECT_EQ(wheel.IntegerPart(), 1008);
}

TEST(NumSliderRoll, ShowsEveryHundredthRightThroughTheWholeFmBand) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 87.5f);
    Roll(wheel, kUp);
    for (int expected = 8755; expected <= 10795; expected += 5) {
        wheel.Tick(kTicksPerStep);
        ASSERT_EQ(Hundredths(wheel), expected);
        ASSERT_LT(std::fabs(wheel.Value() - static_cast<float>(expected) / 100.0f), 0.002f);
    }
    wheel.Prepare(FmBounds(), 108.0f);
    Roll(wheel, kDown);
    for (int expected = 10795; expected >= 8755; expected -= 5) {
        wheel.Tick(kTicksPerStep);
        ASSERT_EQ(Hundredths(wheel), expected);
    }
}

TEST(NumSliderRoll, SkipsTheUpperBoundOfTheFmBandThatItsSumPasses) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 87.5f);
    Roll(wheel, kUp);
    wheel.Tick((10795 - 8750) / 5 * kTicksPerStep);
    ASSERT_EQ(Hundredths(wheel), 10795);
    wheel.Tick(kTicksPerStep);
    EXPECT_EQ(wheel.Value(), 87.5f) << "the sum of single precision lies above 108";
}

TEST(NumSliderRoll, KeepsToTheGridOfAHandlerThatSetsTheValueAgain) {
    class Tuner : public CLQWindow {
      public:
        void OnValue(CLQNumSlider* sender, float* value) {
            sender->SetVaule(std::round(*value * 20.0f) / 20.0f);
        }
    };
    TestWheel wheel;
    Tuner tuner;
    wheel.Prepare(FmBounds(), 87.5f);
    wheel.AddCallBack(korvane::kEventValueChanged, &tuner, &Tuner::OnValue);
    Roll(wheel, kUp);
    for (int expected = 8755; expected <= 10800; expected += 5) {
        wheel.Tick(kTicksPerStep);
        ASSERT_EQ(Hundredths(wheel), expected);
    }
    EXPECT_EQ(wheel.Value(), 108.0f);
    wheel.Tick(kTicksPerStep);
    EXPECT_EQ(wheel.Value(), 87.5f);
}

TEST(NumSliderRoll, FiresValueChangedAfterEachStepWithItselfAndItsValue) {
    TestWheel wheel;
    Listener listener;
    wheel.Prepare(FmBounds(), 98.0f);
    listener.ListenTo(wheel);
    Roll(wheel, kDown);
    wheel.Tick(kTicksPerStep - 1);
    EXPECT_TRUE(listener.values.empty());
    wheel.Tick(1);
    ASSERT_EQ(listener.values.size(), 1u);
    EXPECT_EQ(listener.values[0], 98.0f - 0.05f);
    EXPECT_EQ(listener.senders[0], static_cast<CLQNumSlider*>(&wheel));
    wheel.Tick(kTicksPerStep);
    EXPECT_EQ(listener.values.size(), 2u);

    wheel.Prepare(AmBounds(), 999.0f);
    Roll(wheel, kUp);
    wheel.Tick(kTicksPerStep);
    ASSERT_EQ(listener.values.size(), 3u);
    EXPECT_EQ(listener.values[2], 1008.0f);
}

/// Registers its handler with the types of the event.
class TypedListener : public CLQWindow {
  public:
    void OnValue(CLQNumSlider* sender, float* value) {
        lastSender = sender;
        lastValue = *value;
    }
    CLQNumSlider* lastSender = nullptr;
    float lastValue = 0.0f;
};

TEST(NumSliderRoll, FiresValueChangedToATypedHandler) {
    TestWheel wheel;
    TypedListener listener;
    wheel.Prepare(AmBounds(), 999.0f);
    wheel.AddCallBack(korvane::kEventValueChanged, &listener, &TypedListener::OnValue);
    Roll(wheel, kUp);
    wheel.Tick(kTicksPerStep);
    EXPECT_EQ(listener.lastSender, &wheel);
    EXPECT_EQ(listener.lastValue, 1008.0f);
}

TEST(NumSliderRoll, HandlerMaySetAnotherValueAndStopTheWheel) {
    class Jumper : public CLQWindow {
      public:
        void OnValue(CLQNumSlider* sender, float*) {
            sender->MoveStop();
            sender->SetVaule(1206.0f);
        }
    };
    TestWheel wheel;
    Jumper jumper;
    wheel.Prepare(AmBounds(), 999.0f);
    wheel.AddCallBack(korvane::kEventValueChanged, &jumper, &Jumper::OnValue);
    Roll(wheel, kUp);
    wheel.Tick(2 * kTicksPerStep);
    EXPECT_EQ(wheel.IntegerPart(), 1206);
    EXPECT_FALSE(wheel.IsMove());
}

TEST(NumSliderRoll, SettingAValueFiresNothing) {
    TestWheel wheel;
    Listener listener;
    listener.ListenTo(wheel);
    wheel.Prepare(FmBounds(), 98.0f);
    wheel.SetVaule(99.0f);
    EXPECT_TRUE(listener.values.empty());
}

TEST(NumSliderRoll, IgnoresARecordWithoutTargetOrHandler) {
    TestWheel wheel;
    Listener listener;
    wheel.Prepare(AmBounds(), 999.0f);
    wheel.AddCallBack(29706, static_cast<CLQWnd*>(nullptr),
                      korvane::HandlerCast<void (CLQWnd::*)()>(&Listener::OnValue));
    Roll(wheel, kUp);
    wheel.Tick(kTicksPerStep);
    wheel.AddCallBack(29706, static_cast<CLQWnd*>(&listener), nullptr);
    wheel.Tick(kTicksPerStep);
    EXPECT_EQ(wheel.Value(), 1017.0f);
    EXPECT_TRUE(listener.values.empty());
}

TEST(NumSliderRoll, AsksForARepaintAtEachTick) {
    TestWheel wheel;
    for (const _FreqStruct_& bounds : {FmBounds(), AmBounds()}) {
        wheel.Prepare(bounds, bounds.minimum);
        Roll(wheel, kUp);
        for (int tick = 0; tick < kTicksPerStep; ++tick) {
            wheel.Redraw(false);
            wheel.Tick(1);
            EXPECT_TRUE(wheel.IsNeedRedraw());
        }
    }
}

TEST(NumSliderRoll, StandsStillAtATickWithoutAStart) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 98.0f);
    wheel.Tick(100);
    EXPECT_EQ(Hundredths(wheel), 9800);
    EXPECT_EQ(wheel.DecimalOffset(), 0);
}

TEST(NumSliderRoll, TurnsRoundOnlyWithTheNextStart) {
    TestWheel wheel;
    wheel.Prepare(AmBounds(), 999.0f);
    Roll(wheel, kUp);
    wheel.Tick(2);
    Roll(wheel, kDown);
    EXPECT_EQ(wheel.IntegerOffset(), 0);
    wheel.Tick(1);
    EXPECT_EQ(wheel.IntegerOffset(), 19);
    wheel.Tick(3);
    EXPECT_EQ(wheel.Value(), 990.0f);
}

/// Deletes the wheel in its event handler.
class Destroyer : public CLQWindow {
  public:
    void OnValue(void*, void*) { wheel.reset(); }
    std::unique_ptr<TestWheel> wheel;
};

TEST(NumSliderLife, EventHandlerMayDeleteTheWheel) {
    for (const _FreqStruct_& bounds : {FmBounds(), AmBounds()}) {
        Destroyer destroyer;
        destroyer.wheel = std::make_unique<TestWheel>();
        TestWheel& wheel = *destroyer.wheel;
        wheel.Prepare(bounds, bounds.minimum);
        wheel.AddCallBack(29706, &destroyer, korvane::HandlerCast<void (CLQWnd::*)()>(&Destroyer::OnValue));
        Roll(wheel, kUp);
        for (int tick = 0; tick < kTicksPerStep; ++tick)
            wheel.OnTime(nullptr, 0);
        EXPECT_EQ(destroyer.wheel, nullptr);
    }
}

class NumSliderTimer : public testing::Test {
  protected:
    korvane::test::Scene scene;
};

TEST_F(NumSliderTimer, RollsAStepEvery200Milliseconds) {
    TestWheel wheel;
    wheel.Prepare(FmBounds(), 98.0f);
    scene.Advance(1000);
    EXPECT_EQ(wheel.DecimalOffset(), 0) << "nothing rolls before the start";
    Roll(wheel, kUp);
    scene.Advance(49);
    EXPECT_EQ(wheel.DecimalOffset(), 0);
    scene.Advance(1);
    EXPECT_EQ(wheel.DecimalOffset(), -19);
    scene.Advance(149);
    EXPECT_EQ(Hundredths(wheel), 9800);
    scene.Advance(1);
    EXPECT_EQ(Hundredths(wheel), 9805);
    scene.Advance(2000);
    EXPECT_EQ(Hundredths(wheel), 9855);
    wheel.MoveStop();
    EXPECT_FALSE(wheel.TimerRuns());
    scene.Advance(2000);
    EXPECT_EQ(Hundredths(wheel), 9855);
}

TEST_F(NumSliderTimer, GoesOnSteppingWhenTheBandIsSwitchedInMidRoll) {
    constexpr int kTicks = 400;
    // A column runs at most three ticks in each band before the step of either settles both.
    constexpr int kFurthest = 2 * 3 * 19;
    for (const bool down : {kDown, kUp}) {
        for (int ticksPerBand = 1; ticksPerBand <= 3 * kTicksPerStep; ++ticksPerBand) {
            SCOPED_TRACE(testing::Message() << ticksPerBand << " ticks per band, down " << down);
            TestWheel wheel;
            Listener listener;
            wheel.Prepare(AmBounds(), 999.0f);
            listener.ListenTo(wheel);
            Roll(wheel, down);
            bool decimal = false;
            std::size_t steps = 0;
            int ticksSinceStep = 0;
            for (int tick = 1; tick <= kTicks; ++tick) {
                scene.Advance(korvane::num_slider::kTickPeriodMs);
                ++ticksSinceStep;
                if (listener.values.size() > steps) {
                    steps = listener.values.size();
                    ticksSinceStep = 0;
                }
                ASSERT_LT(ticksSinceStep, 2 * kTicksPerStep) << "tick " << tick;
                ASSERT_LE(std::abs(wheel.IntegerOffset()), kFurthest) << "tick " << tick;
                ASSERT_LE(std::abs(wheel.DecimalOffset()), kFurthest) << "tick " << tick;
                if (tick % ticksPerBand == 0) {
                    decimal = !decimal;
                    wheel.SetBoundScalFreqID(decimal ? FmBounds() : AmBounds());
                }
            }
        }
    }
}

TEST_F(NumSliderTimer, EndsWithTheWheel) {
    Listener listener;
    {
        TestWheel wheel;
        wheel.Prepare(FmBounds(), 98.0f);
        listener.ListenTo(wheel);
        Roll(wheel, kUp);
        scene.Advance(60);
    }
    scene.Advance(1000);
    EXPECT_TRUE(listener.values.empty());
    unsigned due = 0;
    EXPECT_FALSE(korvane::NextTimerDue(due));
}

TEST_F(NumSliderTimer, HandlerOfATickMayDeleteTheWheel) {
    Destroyer destroyer;
    destroyer.wheel = std::make_unique<TestWheel>();
    destroyer.wheel->Prepare(AmBounds(), 999.0f);
    destroyer.wheel->AddCallBack(29706, &destroyer,
                                 korvane::HandlerCast<void (CLQWnd::*)()>(&Destroyer::OnValue));
    Roll(*destroyer.wheel, kUp);
    scene.Advance(1000);
    EXPECT_EQ(destroyer.wheel, nullptr);
}

}  // namespace
