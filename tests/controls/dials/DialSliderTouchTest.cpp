#include <climits>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/Touches.h"
#include "tests/controls/dials/TestTuner.h"

namespace korvane::test {
namespace {

constexpr int kX = kTunerX + 100;
constexpr int kY = kTunerY + 120;

/// Notes events in their order: v, c and r for value changed, item chosen and released.
class Listener : public CLQWindow {
  public:
    void Listen(TestTuner& tuner) {
        tuner.AddCallBack(kEventValueChanged, this, &Listener::OnValue);
        tuner.AddCallBack(kEventItemChosen, this, &Listener::OnChosen);
        tuner.AddCallBack(kEventReleased, this, &Listener::OnReleased);
    }

    void OnValue(TestTuner* tuner, float* value) {
        Note('v', tuner);
        EXPECT_EQ(*value, tuner->Value());
        values.push_back(*value);
    }
    void OnChosen(TestTuner* tuner, int index) {
        Note('c', tuner);
        chosen.push_back(index);
    }
    void OnReleased(TestTuner* tuner) { Note('r', tuner); }

    std::string order;
    std::vector<float> values;
    std::vector<int> chosen;
    CLQBaseCtrl* sender = nullptr;
    bool wasPressed = false;
    float valueThen = 0.0f;

  private:
    void Note(char what, TestTuner* from) {
        order += what;
        sender = from;
        wasPressed = from->IsPressed();
        valueThen = from->Value();
    }
};

class DialSliderTouch : public testing::Test {
  protected:
    DialSliderTouch() {
        tuner.Prepare(FmScale(), 98.0f);
        listener.Listen(tuner);
    }

    /// Presses and moves by so many pixels upwards.
    void DragBy(int upwards) {
        EXPECT_TRUE(Press(tuner, kX, kY));
        EXPECT_TRUE(Drag(tuner, kX, kY - upwards));
    }

    /// Shows presets with markers and lets them be painted.
    void ShowPresets(const std::vector<float>& presets) {
        CLQSurfHandle icon = Icon();
        WriteImage(scene.ImageFolder() / "Icon.lqi", icon);
        tuner.SetIcongnd(L"Icon.lqi");
        for (const float preset : presets)
            tuner.AddShortcut(preset);
        LooksOf(tuner);
    }

    /// A tap on the scale, given from its corner.
    void Tap(int x, int y) {
        EXPECT_TRUE(Press(tuner, kTunerX + x, kTunerY + y));
        EXPECT_TRUE(Release(tuner, kTunerX + x, kTunerY + y));
    }

    Scene scene;
    TestTuner tuner;
    Listener listener;
};

TEST_F(DialSliderTouch, TunesBy12PixelsAStepBothWays) {
    for (int distance = 0; distance <= 40; ++distance) {
        int steps = 0;
        if (distance >= 37)
            steps = 4;
        else if (distance >= 25)
            steps = 3;
        else if (distance >= 13)
            steps = 2;
        else if (distance >= 5)
            steps = 1;
        for (const int sign : {1, -1}) {
            tuner.SetVaule(98.0f);
            listener.order.clear();
            DragBy(sign * distance);
            EXPECT_EQ(tuner.Value(), static_cast<float>(sign * steps) * 0.1f + 98.0f) << sign * distance;
            EXPECT_NEAR(tuner.Value(), 98.0 + 0.1 * sign * steps, 0.0001) << sign * distance;
            EXPECT_EQ(listener.order, steps == 0 ? "" : "v") << sign * distance;
            Release(tuner, kX, kY);
        }
    }
}

TEST_F(DialSliderTouch, TunesWholeNumbersByTheirStep) {
    tuner.Prepare(AmScale(), 999.0f);
    DragBy(13);
    EXPECT_EQ(tuner.Value(), 1017.0f);
    Release(tuner, kX, kY);
    DragBy(-5);
    EXPECT_EQ(tuner.Value(), 1008.0f);
    EXPECT_EQ(listener.values, (std::vector<float>{1017.0f, 1008.0f}));
    EXPECT_EQ(listener.sender, &tuner);
}

TEST_F(DialSliderTouch, MeasuresADragFromItsPress) {
    EXPECT_TRUE(Press(tuner, kX, kY));
    EXPECT_TRUE(Drag(tuner, kX, kY - 24));
    EXPECT_EQ(tuner.Value(), 2.0f * 0.1f + 98.0f);
    EXPECT_TRUE(Drag(tuner, kX, kY - 36));
    EXPECT_EQ(tuner.Value(), 3.0f * 0.1f + 98.0f);
    EXPECT_TRUE(Drag(tuner, kX, kY - 12));
    EXPECT_EQ(tuner.Value(), 1.0f * 0.1f + 98.0f);
    EXPECT_TRUE(Drag(tuner, kX, kY));
    EXPECT_EQ(tuner.Value(), 1.0f * 0.1f + 98.0f) << "back at the press the last value stays";
    EXPECT_TRUE(Drag(tuner, kX, kY + 12));
    EXPECT_EQ(tuner.Value(), -1.0f * 0.1f + 98.0f);
    EXPECT_EQ(listener.order, "vvvv");
}

TEST_F(DialSliderTouch, StopsAtTheBounds) {
    tuner.SetVaule(107.9f);
    DragBy(60);
    EXPECT_EQ(tuner.Value(), 108.0f);
    EXPECT_TRUE(Drag(tuner, kX, kY - 72));
    EXPECT_EQ(listener.values, (std::vector<float>{108.0f, 108.0f})) << "an event also without a change";
    Release(tuner, kX, kY);

    tuner.SetVaule(87.6f);
    DragBy(-60);
    EXPECT_EQ(tuner.Value(), 87.5f);
}

TEST_F(DialSliderTouch, BringsAValueOutsideTheBoundsToThem) {
    tuner.SetVaule(200.0f);
    DragBy(-12);
    EXPECT_EQ(tuner.Value(), 108.0f);
    Release(tuner, kX, kY);
    tuner.SetVaule(-200.0f);
    DragBy(12);
    EXPECT_EQ(tuner.Value(), 87.5f);
}

TEST_F(DialSliderTouch, AsksForNoRepaintWhereTheValueStays) {
    tuner.SetVaule(108.0f);
    EXPECT_TRUE(Press(tuner, kX, kY));
    tuner.Redraw(false);
    EXPECT_TRUE(Drag(tuner, kX, kY - 40));
    EXPECT_FALSE(tuner.IsNeedRedraw());
    EXPECT_TRUE(Drag(tuner, kX, kY + 40));
    EXPECT_TRUE(tuner.IsNeedRedraw());
}

TEST_F(DialSliderTouch, TakesNoDragWithoutAValue) {
    tuner.SetVaule(0.0f);
    DragBy(40);
    EXPECT_EQ(tuner.Value(), 0.0f);
    EXPECT_EQ(listener.order, "");
    tuner.SetVaule(98.0f);
    EXPECT_TRUE(Drag(tuner, kX, kY - 40));
    EXPECT_EQ(tuner.Value(), 87.5f) << "four steps from 0, the value at the press, brought to the bounds";
    tuner.SetVaule(0.0f);
    EXPECT_TRUE(Drag(tuner, kX, kY - 40));
    EXPECT_EQ(tuner.Value(), 0.0f);
}

TEST_F(DialSliderTouch, IgnoresMovesOutsideItself) {
    EXPECT_TRUE(Press(tuner, kX, kY));
    EXPECT_FALSE(Drag(tuner, kTunerX - 1, kY - 40));
    EXPECT_FALSE(Drag(tuner, kTunerX + kTunerWidth, kY - 40));
    EXPECT_FALSE(Drag(tuner, kX, kTunerY - 1));
    EXPECT_FALSE(Drag(tuner, kX, kTunerY + kTunerHeight));
    EXPECT_EQ(tuner.Value(), 98.0f);
    EXPECT_EQ(listener.order, "");
    EXPECT_TRUE(tuner.IsPressed());
    EXPECT_TRUE(Drag(tuner, kX, kTunerY)) << "back inside it goes on";
    EXPECT_EQ(tuner.Value(), 10.0f * 0.1f + 98.0f) << "120 pixels";
}

TEST_F(DialSliderTouch, LeavesAPressOutsideToOthers) {
    EXPECT_FALSE(Press(tuner, kTunerX - 1, kY));
    EXPECT_FALSE(Press(tuner, kX, kTunerY + kTunerHeight));
    EXPECT_FALSE(tuner.IsPressed());
    EXPECT_FALSE(Drag(tuner, kX, kY)) << "a move without a press";
    EXPECT_TRUE(Press(tuner, kTunerX, kTunerY));
    EXPECT_TRUE(tuner.IsPressed());
}

TEST_F(DialSliderTouch, ConsumesEveryReleaseAndFiresNothingWithoutAPress) {
    EXPECT_TRUE(Release(tuner, kX, kY));
    EXPECT_TRUE(Release(tuner, -5000, -5000));
    EXPECT_EQ(listener.order, "");
    EXPECT_EQ(tuner.PressY(), 0) << "nothing is noted";
}

TEST_F(DialSliderTouch, LeavesOtherMessagesToOthers) {
    EXPECT_TRUE(Press(tuner, kX, kY));
    for (const unsigned int code : {0u, 256u, 257u, 273u, 511u, 515u, 1191u, 0xFFFFFFFFu})
        EXPECT_FALSE(Hand(tuner, code, kX, kY - 40)) << code;
    EXPECT_TRUE(tuner.IsPressed());
    EXPECT_EQ(tuner.Value(), 98.0f);
    EXPECT_FALSE(tuner.DoMessage(nullptr));
}

TEST_F(DialSliderTouch, FiresReleasedWhereverThePressEnds) {
    EXPECT_TRUE(Press(tuner, kX, kY));
    EXPECT_TRUE(Release(tuner, INT_MAX, INT_MIN));
    EXPECT_EQ(listener.order, "r");
    EXPECT_TRUE(listener.wasPressed) << "the press lasts until the handler has run";
    EXPECT_FALSE(tuner.IsPressed());
    EXPECT_EQ(tuner.PressY(), INT_MIN);
    EXPECT_TRUE(Press(tuner, kX, kY));
    EXPECT_TRUE(Release(tuner, INT_MIN, INT_MAX));
    EXPECT_EQ(listener.order, "rr");
}

TEST_F(DialSliderTouch, FiresReleasedAfterADrag) {
    DragBy(12);
    EXPECT_TRUE(Release(tuner, kX, kY - 12));
    EXPECT_EQ(listener.order, "vr");
    EXPECT_EQ(tuner.Value(), 1.0f * 0.1f + 98.0f);
}

TEST_F(DialSliderTouch, ChoosesThePresetUnderTheRelease) {
    // One step below the value stands 12 pixels higher, one step above 12 pixels lower.
    ShowPresets({98.5f, 97.5f});
    EXPECT_EQ(tuner.IsInRect(5, 120 + 60 + 5), 0);
    EXPECT_EQ(tuner.IsInRect(5, 120 - 60 + 5), 1);
    Tap(5, 120 - 60 + 5);
    EXPECT_EQ(listener.order, "c");
    EXPECT_EQ(listener.chosen, std::vector<int>{1});
    EXPECT_EQ(listener.sender, &tuner);
    EXPECT_EQ(listener.valueThen, 98.0f) << "the event comes before the value";
    EXPECT_TRUE(listener.wasPressed);
    EXPECT_EQ(tuner.Value(), 97.5f);
    EXPECT_FALSE(tuner.IsPressed());
    EXPECT_EQ(tuner.PressY(), kTunerY + 65);
}

TEST_F(DialSliderTouch, ChoosesAPresetAlsoWhenThePressWasElsewhere) {
    ShowPresets({98.0f});
    EXPECT_TRUE(Press(tuner, kX, kTunerY + 125));
    EXPECT_TRUE(Release(tuner, kTunerX + 5, kTunerY + 125));
    EXPECT_EQ(listener.order, "c");

    EXPECT_TRUE(Press(tuner, kTunerX + 5, kTunerY + 125));
    EXPECT_TRUE(Release(tuner, kX, kTunerY + 125));
    EXPECT_EQ(listener.order, "cr") << "and not when the release is";
}

TEST_F(DialSliderTouch, HitsAPresetStrictlyInsideItsMarker) {
    ShowPresets({98.0f});
    constexpr int kRight = kIconWidth;
    constexpr int kBottom = 120 + kIconHeight;
    EXPECT_EQ(tuner.IsInRect(1, 121), 0);
    EXPECT_EQ(tuner.IsInRect(kRight - 1, kBottom - 1), 0);
    EXPECT_EQ(tuner.IsInRect(0, 121), -1);
    EXPECT_EQ(tuner.IsInRect(1, 120), -1);
    EXPECT_EQ(tuner.IsInRect(kRight, 121), -1);
    EXPECT_EQ(tuner.IsInRect(1, kBottom), -1);
    EXPECT_EQ(tuner.IsInRect(INT_MIN, INT_MIN), -1);
    EXPECT_EQ(tuner.IsInRect(INT_MAX, INT_MAX), -1);
}

TEST_F(DialSliderTouch, HitsTheFirstOfPresetsThatOverlap) {
    // 97.9 covers 108 to 132, 98.0 covers 120 to 144.
    ShowPresets({98.0f, 97.9f, 98.0f});
    EXPECT_EQ(tuner.IsInRect(5, 115), 1);
    EXPECT_EQ(tuner.IsInRect(5, 125), 0);
    EXPECT_EQ(tuner.IsInRect(5, 140), 0);
    tuner.SetShortCut(0, 97.9f);
    LooksOf(tuner);
    EXPECT_EQ(tuner.IsInRect(5, 115), 0);
    EXPECT_EQ(tuner.IsInRect(5, 140), 2);
}

TEST_F(DialSliderTouch, HitsSixPresetsAndNoMore) {
    ShowPresets({97.2f, 97.4f, 97.6f, 97.8f, 98.0f, 98.2f, 98.6f});
    // Six and a seventh: 97.2 stands at 120 - 96, 98.2 at 120 + 24, 98.6 at 120 + 72.
    EXPECT_EQ(tuner.IsInRect(5, 24 + 5), 0);
    EXPECT_EQ(tuner.IsInRect(5, 144 + 5), 5);
    EXPECT_EQ(tuner.IsInRect(5, 192 + 5), -1);
    Tap(5, 192 + 5);
    EXPECT_EQ(listener.order, "r");
}

TEST_F(DialSliderTouch, HitsAPresetWhereItWasLastShown) {
    ShowPresets({98.0f});
    tuner.SetVaule(90.0f);
    LooksOf(tuner);
    EXPECT_EQ(tuner.IsInRect(5, 125), 0) << "out of view since";
    Tap(5, 125);
    EXPECT_EQ(listener.chosen, std::vector<int>{0});
    EXPECT_EQ(tuner.Value(), 98.0f);
}

TEST_F(DialSliderTouch, HitsWhatWasLastPaintedNotWhatIsSet) {
    ShowPresets({98.0f});
    tuner.SetVaule(97.5f);
    EXPECT_EQ(tuner.IsInRect(5, 125), 0);
    LooksOf(tuner);
    EXPECT_EQ(tuner.IsInRect(5, 125), -1);
    EXPECT_EQ(tuner.IsInRect(5, 185), 0) << "five steps lower";
}

TEST_F(DialSliderTouch, TunesToTheFrequencyThatThePresetHasBySetting) {
    ShowPresets({98.0f, 97.5f});
    tuner.SetShortCut(0, 104.0f);
    Tap(5, 125);
    EXPECT_EQ(listener.chosen, std::vector<int>{0});
    EXPECT_EQ(tuner.Value(), 104.0f);
    tuner.DeleteShortcut(104.0f);
    LooksOf(tuner);
    Tap(5, 125);
    EXPECT_EQ(listener.chosen, (std::vector<int>{0, 0}));
    EXPECT_EQ(tuner.Value(), 97.5f) << "presets move up in the list, not on the screen";
}

TEST_F(DialSliderTouch, HitsNoPresetWithoutAMarker) {
    tuner.AddShortcut(98.0f);
    LooksOf(tuner);
    EXPECT_EQ(tuner.IsInRect(0, 120), -1);
    EXPECT_EQ(tuner.IsInRect(1, 121), -1);
}

using DialSliderDeathTest = DialSliderTouch;

TEST_F(DialSliderDeathTest, EndsTheProgramForAPresetThatIsGone) {
    ShowPresets({98.0f, 97.5f});
    tuner.DeleteAllCut();
    EXPECT_TRUE(Press(tuner, kTunerX + 5, kTunerY + 125));
    EXPECT_DEATH(Release(tuner, kTunerX + 5, kTunerY + 125),
                 "^CLQDialSlider::DoMessage: invalid parameter: index 0 of 0 elements\n$");
    tuner.AddShortcut(98.0f);
    EXPECT_DEATH(Release(tuner, kTunerX + 5, kTunerY + 65), "index 1 of 1 elements");
    EXPECT_TRUE(Release(tuner, kTunerX + 5, kTunerY + 125));
    EXPECT_EQ(listener.chosen, std::vector<int>{0});
}

/// Handlers that tune by themselves.
class Tuning : public CLQWindow {
  public:
    explicit Tuning(TestTuner& tuner) : tuner_(tuner) {}
    void OnValue(TestTuner*, float*) { tuner_.SetVaule(100.0f); }
    void OnChosen(TestTuner*, int) {
        tuner_.DeleteAllCut();
        tuner_.AddShortcut(101.0f);
    }
    void OnReleased(TestTuner*) { tuner_.SetShow(false); }

  private:
    TestTuner& tuner_;
};

TEST_F(DialSliderTouch, KeepsWhatItsHandlersSet) {
    Tuning tuning(tuner);
    tuner.AddCallBack(kEventValueChanged, &tuning, &Tuning::OnValue);
    tuner.AddCallBack(kEventItemChosen, &tuning, &Tuning::OnChosen);
    tuner.AddCallBack(kEventReleased, &tuning, &Tuning::OnReleased);
    DragBy(12);
    EXPECT_EQ(tuner.Value(), 100.0f);
    EXPECT_TRUE(Drag(tuner, kX, kY - 13));
    EXPECT_EQ(tuner.Value(), 100.0f);
    Release(tuner, kX, kY);
    EXPECT_FALSE(tuner.IsPressed());
    EXPECT_FALSE(tuner.IsShow());

    tuner.SetVaule(98.0f);
    ShowPresets({98.0f});
    Tap(5, 125);
    EXPECT_EQ(tuner.Value(), 101.0f) << "the preset as the handler left it";
}

TEST_F(DialSliderTouch, EventsWithoutHandlersDoNothing) {
    TestTuner lonely;
    lonely.Prepare(FmScale(), 98.0f);
    lonely.AddCallBack(kEventValueChanged, static_cast<Listener*>(nullptr), &Listener::OnValue);
    EXPECT_TRUE(Press(lonely, kX, kY));
    EXPECT_TRUE(Drag(lonely, kX, kY - 12));
    EXPECT_TRUE(Release(lonely, kX, kY));
    EXPECT_EQ(lonely.Value(), 1.0f * 0.1f + 98.0f);
    EXPECT_FALSE(lonely.IsPressed());
}

TEST_F(DialSliderTouch, DragsOfAnyLengthAreSafe) {
    // As large as a control can be, at the far end of the range.
    TestTuner large;
    large.Create(-1000000, -1000000, kMaxExtent, kMaxExtent);
    large.SetBoundScalFreqID(FmScale());
    large.SetVaule(98.0f);
    EXPECT_TRUE(Press(large, -1000000, -1000000));
    EXPECT_TRUE(Drag(large, -1000000, -1000000 + kMaxExtent - 1));
    EXPECT_EQ(large.Value(), 87.5f);
    EXPECT_FALSE(Drag(large, INT_MIN, INT_MIN));
    EXPECT_FALSE(Drag(large, INT_MAX, INT_MAX));
    EXPECT_TRUE(Release(large, INT_MAX, INT_MAX));
}

TEST_F(DialSliderTouch, WorksInAWindowOnTheScreen) {
    _LQColor navy = {16, 32, 72, 255};
    CLQWindow window;
    window.Create(200, 100, 300, 300);
    window.EnableBkgColor(true, &navy);
    window.AddChild(&tuner);
    ShowPresets({97.5f});
    scene.Pump();
    const int x = 200 + kTunerX;
    const int y = 100 + kTunerY;
    scene.Press(x + 100, y + 120);
    scene.Move(x + 100, y + 108);
    EXPECT_EQ(listener.order, "v");
    scene.Release(0, 0);
    EXPECT_EQ(listener.order, "vr");
    // At 98.1 the preset stands six steps higher.
    scene.Press(x + 5, y + 120 - 72 + 5);
    scene.Release(x + 5, y + 120 - 72 + 5);
    EXPECT_EQ(listener.order, "vrc");
    EXPECT_EQ(tuner.Value(), 97.5f);
    window.DelChild(&tuner, false);
}

/// Ends the scale in the handler of its choice.
class Destroyer : public CLQWindow {
  public:
    void OnValue(TestTuner*, float*) { tuner.reset(); }
    void OnChosen(TestTuner*, int) { tuner.reset(); }
    void OnReleased(TestTuner*) { tuner.reset(); }
    std::unique_ptr<TestTuner> tuner = std::make_unique<TestTuner>();
};

TEST_F(DialSliderTouch, HandlersMayDeleteTheScale) {
    CLQSurfHandle icon = Icon();
    WriteImage(scene.ImageFolder() / "Icon.lqi", icon);
    for (const int event : {kEventValueChanged, kEventItemChosen, kEventReleased}) {
        Destroyer destroyer;
        TestTuner& touched = *destroyer.tuner;
        touched.Prepare(FmScale(), 98.0f);
        touched.SetIcongnd(L"Icon.lqi");
        touched.AddShortcut(98.0f);
        LooksOf(touched);
        if (event == kEventValueChanged)
            touched.AddCallBack(event, &destroyer, &Destroyer::OnValue);
        else if (event == kEventItemChosen)
            touched.AddCallBack(event, &destroyer, &Destroyer::OnChosen);
        else
            touched.AddCallBack(event, &destroyer, &Destroyer::OnReleased);

        EXPECT_TRUE(Press(touched, kX, kY));
        if (event == kEventValueChanged)
            EXPECT_TRUE(Drag(touched, kX, kY - 12));
        else if (event == kEventItemChosen)
            EXPECT_TRUE(Release(touched, kTunerX + 5, kTunerY + 125));
        else
            EXPECT_TRUE(Release(touched, kX, kY));
        EXPECT_EQ(destroyer.tuner, nullptr);
    }
}

/// Ends the window in which the scale lies, and so the scale.
class Closer : public CLQWindow {
  public:
    void OnValue(TestTuner*, float*) { window.reset(); }
    void OnChosen(TestTuner*, int) { window.reset(); }
    void OnReleased(TestTuner*) { window.reset(); }
    std::unique_ptr<CLQWindow> window = std::make_unique<CLQWindow>();
};

TEST_F(DialSliderTouch, HandlersMayDeleteTheWindowOfTheScale) {
    CLQSurfHandle icon = Icon();
    WriteImage(scene.ImageFolder() / "Icon.lqi", icon);
    for (const int event : {kEventValueChanged, kEventItemChosen, kEventReleased}) {
        Closer closer;
        closer.window->Create(0, 0, 400, 300);
        auto* const scale = new TestTuner;
        scale->Prepare(FmScale(), 98.0f);
        scale->SetIcongnd(L"Icon.lqi");
        scale->AddShortcut(98.0f);
        closer.window->AddChild(scale);
        if (event == kEventValueChanged)
            scale->AddCallBack(event, &closer, &Closer::OnValue);
        else if (event == kEventItemChosen)
            scale->AddCallBack(event, &closer, &Closer::OnChosen);
        else
            scale->AddCallBack(event, &closer, &Closer::OnReleased);
        scene.Pump();

        const LifeWatch life = scale->WatchLife();
        scene.Press(kX, kY);
        if (event == kEventValueChanged)
            scene.Move(kX, kY - 12);
        else if (event == kEventItemChosen)
            scene.Release(kTunerX + 5, kTunerY + 125);
        else
            scene.Release(kX, kY);
        EXPECT_EQ(closer.window, nullptr) << event;
        EXPECT_FALSE(life.IsAlive()) << event;
        scene.Release(kX, kY);
    }
}

}  // namespace
}  // namespace korvane::test
