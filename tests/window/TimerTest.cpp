#include <gtest/gtest.h>
#include <memory>

#include "tests/support/Scene.h"

namespace {

using korvane::test::Scene;

class Ticking : public CLQWindow {
  public:
    void OnTick(void*, int) {
        ++ticks;
        if (stopAfter == ticks)
            timer->StopTimer();
        if (deleteTimer)
            timer.reset();
        if (deleteSelf)
            delete this;
    }
    std::unique_ptr<CLQTimer> timer = std::make_unique<CLQTimer>();
    int ticks = 0;
    int stopAfter = 0;
    bool deleteTimer = false;
    bool deleteSelf = false;
};

using Untyped = void (CLQWnd::*)();

TEST(Timer, TicksOnceAPeriodUntilItIsStopped) {
    Scene scene;
    Ticking target;
    CLQTimer& timer = *target.timer;
    timer.SetTimer(50);
    timer.SetCallBack(&target, (Untyped)&Ticking::OnTick);
    EXPECT_FALSE(timer.IsActived());
    timer.StartTimer();
    EXPECT_TRUE(timer.IsActived());
    scene.Advance(49);
    EXPECT_EQ(target.ticks, 0);
    scene.Advance(1);
    EXPECT_EQ(target.ticks, 1);
    scene.Advance(500);
    EXPECT_EQ(target.ticks, 11);
    timer.StopTimer();
    timer.StopTimer();
    EXPECT_FALSE(timer.IsActived());
    scene.Advance(500);
    EXPECT_EQ(target.ticks, 11);
}

TEST(Timer, BeginsItsPeriodAnewWhenItIsStartedAgain) {
    Scene scene;
    Ticking target;
    target.timer->SetTimer(100);
    target.timer->SetCallBack(&target, &Ticking::OnTick);
    target.timer->StartTimer();
    scene.Advance(90);
    target.timer->StartTimer();
    scene.Advance(90);
    EXPECT_EQ(target.ticks, 0);
    scene.Advance(10);
    EXPECT_EQ(target.ticks, 1);
}

TEST(Timer, TakesANewPeriodWhileItRuns) {
    Scene scene;
    Ticking target;
    target.timer->SetTimer(1000);
    target.timer->SetCallBack(&target, &Ticking::OnTick);
    target.timer->StartTimer();
    target.timer->SetTimer(10);
    scene.Advance(30);
    EXPECT_EQ(target.ticks, 3);
    target.timer->SetTimer(-4);
    scene.Advance(20);
    EXPECT_EQ(target.ticks, 5) << "the shortest period is the system's, 10 ms";
}

TEST(Timer, FallsSilentWhenItsTargetIsDestroyed) {
    Scene scene;
    CLQTimer timer;
    {
        Ticking target;
        timer.SetTimer(10);
        timer.SetCallBack(&target, &Ticking::OnTick);
        timer.StartTimer();
    }
    scene.Advance(100);
    EXPECT_FALSE(timer.IsActived());
}

TEST(Timer, MayBeStoppedOrDeletedByItsHandler) {
    Scene scene;
    Ticking stopping;
    stopping.stopAfter = 2;
    stopping.timer->SetTimer(10);
    stopping.timer->SetCallBack(&stopping, &Ticking::OnTick);
    stopping.timer->StartTimer();
    Ticking deleting;
    deleting.deleteTimer = true;
    deleting.timer->SetTimer(10);
    deleting.timer->SetCallBack(&deleting, &Ticking::OnTick);
    deleting.timer->StartTimer();
    auto* suicidal = new Ticking;
    suicidal->deleteSelf = true;
    suicidal->timer->SetTimer(10);
    suicidal->timer->SetCallBack(suicidal, &Ticking::OnTick);
    suicidal->timer->StartTimer();
    scene.Advance(100);
    EXPECT_EQ(stopping.ticks, 2);
    EXPECT_EQ(deleting.ticks, 1);
}

TEST(Timer, SharesItsClockworkWithItsCopies) {
    Scene scene;
    Ticking target;
    CLQTimer first;
    first.SetTimer(10);
    first.SetCallBack(&target, &Ticking::OnTick);
    first.StartTimer();
    {
        CLQTimer copy(first);
        EXPECT_TRUE(copy.IsActived());
    }
    scene.Advance(10);
    EXPECT_EQ(target.ticks, 1) << "one tick, not one for each copy; and the end of a copy stops nothing";
    CLQTimer other;
    other = first;
    other.StopTimer();
    EXPECT_FALSE(first.IsActived());
}

TEST(Timer, WithoutATargetDoesNothing) {
    Scene scene;
    CLQTimer timer;
    timer.SetCallBack(nullptr, static_cast<Untyped>(nullptr));
    timer.StartTimer();
    scene.Advance(10);
}

}  // namespace
