#include <limits>

#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

constexpr int kMinInt = std::numeric_limits<int>::min();
constexpr int kMaxInt = std::numeric_limits<int>::max();

class OpenSlider : public CLQSliderCtrl {
  public:
    using CLQSliderCtrl::CalcPosFromValue;
    using CLQSliderCtrl::GetThumbPos;
};

class Listener : public CLQWindow {
  public:
    void OnChange(CLQSliderCtrl* from, int* value) {
        ++changes;
        sender = from;
        last = *value;
    }
    void OnChangeDelete(CLQSliderCtrl* from, int*) {
        ++changes;
        delete from;
    }

    int changes = 0;
    int last = -1;
    CLQSliderCtrl* sender = nullptr;
};

/// A slider of 120 by 20 at (10, 30) with a thumb of 20 by 20, so that value 0 to 100 is its position in
/// pixels.
class Slider : public WidgetsTest {
  protected:
    Slider() {
        MakeImage("bkg.lqi", 200, 100, kBlue);
        MakeImage("fill.lqi", 200, 100, kGreen);
        MakeImage("thumb.lqi", 20, 20, kRed);
        MakeImage("held.lqi", 20, 20, kYellow);
        slider->Create(10, 30, 120, 20);
        slider->SetBkgSurf(L"bkg.lqi");
        slider->SetFillSurf(L"fill.lqi");
        slider->SetThumbSurf(L"thumb.lqi");
        slider->SetThumbPressedSurf(L"held.lqi");
        slider->AddCallBack(kEventValueChanged, &listener, &Listener::OnChange);
        window.AddChild(slider);
        scene.Pump();
    }

    Listener listener;
    OpenSlider* slider = new OpenSlider;
};

TEST_F(Slider, GoesFrom0To100UnlessToldOtherwise) {
    int minimum = -1;
    int maximum = -1;
    slider->GetRange(minimum, maximum);
    EXPECT_EQ(minimum, 0);
    EXPECT_EQ(maximum, 100);
    EXPECT_EQ(slider->GetValue(), 0);
    EXPECT_EQ(slider->GetKind(), kKindSlider);
}

TEST_F(Slider, DrawsBackgroundThenFillToTheThumbsMiddleThenThumb) {
    slider->SetValue(50);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(10, 30), kGreen);
    EXPECT_EQ(scene.PixelAt(59, 30), kGreen);
    EXPECT_EQ(scene.PixelAt(60, 30), kRed);
    EXPECT_EQ(scene.PixelAt(79, 49), kRed);
    EXPECT_EQ(scene.PixelAt(80, 30), kBlue);
    EXPECT_EQ(scene.PixelAt(129, 49), kBlue);
    EXPECT_EQ(scene.PixelAt(130, 30), kBlack);

    slider->SetThumbSurf(L"");
    slider->SetThumbPressedSurf(L"");
    slider->SetRange(0, 120);
    slider->SetValue(60);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(69, 40), kGreen);
    EXPECT_EQ(scene.PixelAt(70, 40), kBlue);
}

TEST_F(Slider, ShowsThePressedThumbWhileItIsHeld) {
    scene.Press(12, 40);
    EXPECT_EQ(scene.PixelAt(12, 32), kYellow);
    scene.Release(12, 40);
    EXPECT_EQ(scene.PixelAt(12, 32), kRed);
    slider->SetThumbPressedSurf(L"missing.lqi");
    scene.Press(12, 40);
    EXPECT_EQ(scene.PixelAt(12, 32), kRed);
    scene.Release(12, 40);
}

TEST_F(Slider, BringsTheThumbsMiddleUnderTheFinger) {
    scene.Press(10 + 10 + 37, 40);
    EXPECT_EQ(slider->GetValue(), 37);
    EXPECT_EQ(listener.changes, 1);
    EXPECT_EQ(listener.last, 37);
    EXPECT_EQ(listener.sender, slider);
}

TEST_F(Slider, FollowsTheFingerAlsoOutside) {
    scene.Press(20, 40);
    EXPECT_EQ(listener.changes, 0) << "the value was 0 already";
    scene.Move(60, 95);
    EXPECT_EQ(slider->GetValue(), 40);
    scene.Move(199, 0);
    EXPECT_EQ(slider->GetValue(), 100);
    scene.Move(0, 0);
    EXPECT_EQ(slider->GetValue(), 0);
    EXPECT_EQ(listener.changes, 3);
    scene.Move(0, 50);
    EXPECT_EQ(listener.changes, 3) << "nothing changed";
    scene.Release(100, 50);
    EXPECT_EQ(slider->GetValue(), 0) << "the release only ends it";
    scene.Move(100, 40);
    EXPECT_EQ(slider->GetValue(), 0);
}

TEST_F(Slider, ConsumesOnlyWhatBelongsToItsPress) {
    _LQMessage move = Pointer(kMsgMove, 50, 40);
    _LQMessage release = Pointer(kMsgRelease, 50, 40);
    _LQMessage outside = Pointer(kMsgPress, 50, 50);
    _LQMessage press = Pointer(kMsgPress, 50, 49);
    EXPECT_FALSE(slider->DoMessage(&move));
    EXPECT_FALSE(slider->DoMessage(&release));
    EXPECT_FALSE(slider->DoMessage(&outside));
    EXPECT_TRUE(slider->DoMessage(&press));
    EXPECT_TRUE(slider->DoMessage(&move));
    EXPECT_TRUE(slider->DoMessage(&release));
    EXPECT_FALSE(slider->DoMessage(&release));
    EXPECT_FALSE(slider->DoMessage(nullptr));
}

TEST_F(Slider, TakesNoTouchWhileItIsDisabled) {
    slider->EnableWindow(false);
    _LQMessage press = Pointer(kMsgPress, 50, 40);
    EXPECT_FALSE(slider->DoMessage(&press));
    EXPECT_EQ(slider->GetValue(), 0);
}

TEST_F(Slider, RepaintsTheThumbsWayAlone) {
    slider->SetValue(50);
    scene.Pump();
    CLQScreen::GetInstance()->ResetCounters();
    scene.FillWithGarbage();
    const auto before = scene.Pixels();
    slider->SetValue(53);
    scene.Pump();
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paintedPixels, 23u * 20u);
    const auto after = scene.Pixels();
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 200; ++x) {
            const bool inside = x >= 60 && x < 83 && y >= 30 && y < 50;
            const auto at = static_cast<std::size_t>(y * 200 + x);
            ASSERT_TRUE(inside || after[at] == before[at]) << x << ", " << y;
        }
    }
}

TEST_F(Slider, ShowsAfterAChangeOfTheValueWhatAFullRepaintShows) {
    MakeImage("long.lqi", 36, 36, kYellow);
    slider->SetSize(170, 66);
    for (const wchar_t* const held : {L"held.lqi", L"long.lqi", L""}) {
        slider->SetThumbPressedSurf(held);
        for (const wchar_t* const thumb : {L"thumb.lqi", L""}) {
            slider->SetThumbSurf(thumb);
            for (const int offset : {-15, 0, 9}) {
                slider->SetInset(offset, -offset);
                slider->SetTrackOffset(offset);
                slider->SetThumbOffset(offset);
                for (const bool vertical : {false, true}) {
                    slider->SetVertical(vertical);
                    scene.Press(70, 50);
                    for (const int value : {0, 1, 100, 99, 50, 51, 47, 3}) {
                        scene.Pump();
                        slider->SetValue(value);
                        if (value == 50)
                            scene.Release(70, 50);
                        scene.Pump();
                        const auto partial = scene.Pixels();
                        scene.FillWithGarbage();
                        CLQScreen::GetInstance()->InvalidateAll();
                        scene.Pump();
                        ASSERT_TRUE(scene.Pixels() == partial) << value << ' ' << offset << ' ' << vertical;
                    }
                }
            }
        }
    }
}

TEST_F(Slider, FiresNothingWhenTheValueIsSet) {
    slider->SetValue(12);
    slider->SetRange(20, 30);
    EXPECT_EQ(slider->GetValue(), 20);
    EXPECT_EQ(listener.changes, 0);
}

TEST_F(Slider, MayBeDeletedByItsOwnHandler) {
    slider->AddCallBack(kEventValueChanged, &listener, &Listener::OnChangeDelete);
    scene.Press(70, 40);
    scene.Move(90, 40);
    scene.Release(90, 40);
    EXPECT_EQ(listener.changes, 1);
}

TEST_F(Slider, MayBeDeletedByItsOwnHandlerWhileItIsDragged) {
    scene.Press(20, 40);
    slider->AddCallBack(kEventValueChanged, &listener, &Listener::OnChangeDelete);
    scene.Move(90, 40);
    scene.Release(90, 40);
    EXPECT_EQ(listener.changes, 1);
}

TEST_F(Slider, PutsItsMinimumAt0AndItsMaximumAtTheEndOfTheTrack) {
    slider->SetRange(-50, 150);
    EXPECT_EQ(slider->CalcPosFromValue(-50), 0);
    EXPECT_EQ(slider->CalcPosFromValue(150), 100);
    EXPECT_EQ(slider->CalcPosFromValue(50), 50);
    EXPECT_EQ(slider->CalcPosFromValue(kMinInt), 0);
    EXPECT_EQ(slider->CalcPosFromValue(kMaxInt), 100);
}

TEST_F(Slider, CountsInsetAndTrackOffsetOffItsTrack) {
    slider->SetInset(10, 5);
    slider->SetTrackOffset(15);
    slider->SetThumbOffset(3);
    EXPECT_EQ(slider->CalcPosFromValue(100), 120 - 10 - 2 * 15 - 20);
    slider->SetValue(100);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(19, 40), kBlack) << "left of the inset";
    EXPECT_EQ(scene.PixelAt(20, 35), kGreen);
    EXPECT_EQ(scene.PixelAt(20, 34), kBlack) << "above the inset";
    EXPECT_EQ(scene.PixelAt(10 + 10 + 15 + 60, 33), kRed);
    EXPECT_EQ(scene.PixelAt(10 + 10 + 15 + 60, 32), kBlack) << "above the thumb";
    EXPECT_EQ(scene.PixelAt(10 + 10 + 15 + 80, 40), kBlue);
}

TEST_F(Slider, FollowsItsSizeAndRangeWithTheThumb) {
    slider->SetValue(50);
    EXPECT_EQ(slider->GetThumbPos(), 50);
    slider->SetSize(220, 20);
    EXPECT_EQ(slider->GetThumbPos(), 100);
    slider->SetRange(50, 150);
    EXPECT_EQ(slider->GetThumbPos(), 0);
}

TEST_F(Slider, HasPosition0WhereThereIsNoWay) {
    slider->SetRange(7, 7);
    EXPECT_EQ(slider->CalcPosFromValue(7), 0);
    slider->SetRange(7, -9);
    EXPECT_EQ(slider->GetValue(), 7);
    EXPECT_EQ(slider->CalcPosFromValue(3), 0);
    slider->SetRange(0, 100);
    slider->SetValue(60);
    slider->SetSize(10, 20);
    EXPECT_EQ(slider->CalcPosFromValue(100), 0);
    scene.Press(12, 40);
    EXPECT_EQ(slider->GetValue(), 60) << "a touch finds no way either";
}

TEST_F(Slider, HoldsTheWholeRangeOfAnInt) {
    slider->SetRange(kMinInt, kMaxInt);
    EXPECT_EQ(slider->CalcPosFromValue(kMinInt), 0);
    EXPECT_EQ(slider->CalcPosFromValue(0), 50);
    EXPECT_EQ(slider->CalcPosFromValue(kMaxInt), 100);
    scene.Press(129, 40);
    EXPECT_EQ(slider->GetValue(), kMaxInt);
    scene.Move(0, 40);
    EXPECT_EQ(slider->GetValue(), kMinInt);
    _LQMessage distant = Pointer(kMsgMove, kMaxInt, kMinInt);
    EXPECT_TRUE(slider->DoMessage(&distant));
    EXPECT_EQ(slider->GetValue(), kMaxInt);
    distant.x = kMinInt;
    slider->DoMessage(&distant);
    EXPECT_EQ(slider->GetValue(), kMinInt);
}

TEST_F(Slider, FindsEachValueUnderItsOwnThumb) {
    slider->SetRange(0, 30);
    for (int value = 0; value <= 30; ++value) {
        const int middle = 10 + slider->CalcPosFromValue(value) + 10;
        _LQMessage press = Pointer(kMsgPress, middle, 40);
        ASSERT_TRUE(slider->DoMessage(&press));
        EXPECT_EQ(slider->GetValue(), value);
    }
}

TEST_F(Slider, RunsDownwardsWhenItIsVertical) {
    slider->Create(50, 0, 20, 100);
    slider->SetVertical(true);
    slider->SetInset(2, 10);
    slider->SetThumbOffset(4);
    EXPECT_EQ(slider->CalcPosFromValue(100), 100 - 10 - 20);
    slider->SetValue(50);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(52, 10), kGreen);
    EXPECT_EQ(scene.PixelAt(51, 10), kBlack);
    EXPECT_EQ(scene.PixelAt(53, 44), kGreen);
    EXPECT_EQ(scene.PixelAt(54, 45), kRed);
    EXPECT_EQ(scene.PixelAt(53, 45), kGreen);
    EXPECT_EQ(scene.PixelAt(53, 55), kBlue) << "the fill ends at the thumb's middle";
    EXPECT_EQ(scene.PixelAt(69, 64), kRed);
    EXPECT_EQ(scene.PixelAt(69, 65), kBlue);

    scene.Press(55, 10 + 10 + 7);
    EXPECT_EQ(slider->GetValue(), 10);
    scene.Move(55, 99);
    EXPECT_EQ(slider->GetValue(), 100);
    scene.Release(55, 99);
}

TEST_F(Slider, CopiesItsLooksAndItsValueButNotItsPress) {
    slider->SetValue(50);
    scene.Press(70, 40);
    OpenSlider copy(*slider);
    scene.Release(70, 40);
    EXPECT_FALSE(copy.IsPressed());
    EXPECT_EQ(copy.GetValue(), slider->GetValue());
    copy.MoveTo(10, 60);
    window.AddChild(&copy);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(129, 60), kBlue);
    OpenSlider assigned;
    assigned = copy;
    EXPECT_EQ(assigned.GetValue(), copy.GetValue());
    const std::unique_ptr<CLQBaseCtrl> clone(slider->Clone());
    EXPECT_EQ(static_cast<CLQSliderCtrl*>(clone.get())->GetValue(), slider->GetValue());
}

}  // namespace
}  // namespace korvane::test
