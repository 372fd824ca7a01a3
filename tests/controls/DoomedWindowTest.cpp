#include <gtest/gtest.h>

#include "engine/Korvane.h"

#include "tests/controls/TestWheel.h"
#include "tests/controls/media/TestProgress.h"
#include "tests/support/Scene.h"

namespace korvane::test {
namespace {

/// A window that goes, with its control, when it hears of it.
class DoomedWindow : public CLQWindow {
  public:
    DoomedWindow() { Create(0, 0, 400, 270); }

    template <class Ctrl>
    Ctrl& Add(Ctrl* ctrl) {
        AddChild(ctrl);  // the window deletes it
        return *ctrl;
    }
    void OnEvent() { delete this; }
    static void OnMove(void* window, void*) { static_cast<DoomedWindow*>(window)->OnEvent(); }
};

class DoomedWindowTest : public testing::Test {
  protected:
    void ExpectGone(const LifeWatch& ctrl) {
        EXPECT_FALSE(ctrl.IsAlive());
        EXPECT_EQ(CLQScreen::GetInstance()->GetWindowCount(), 0);
        scene.Release(60, 60);
        scene.Advance(1000);
    }

    Scene scene{400, 270};
    DoomedWindow* window = new DoomedWindow;  // deletes itself
};

TEST_F(DoomedWindowTest, MayGoWhenAButtonIsReleased) {
    auto& button = window->Add(new CLQButton);
    button.Create(40, 40, 100, 60);
    button.AddCallBack(kEventReleased, window, &DoomedWindow::OnEvent);
    const LifeWatch life = button.WatchLife();
    scene.Press(60, 60);
    ASSERT_TRUE(life.IsAlive());
    scene.Release(60, 60);
    ExpectGone(life);
}

TEST_F(DoomedWindowTest, MayGoWhenASliderIsTouched) {
    auto& slider = window->Add(new TestProgress);
    slider.Prepare();
    slider.AddCallBack(kEventValueChanged, window, &DoomedWindow::OnEvent);
    const LifeWatch life = slider.WatchLife();
    scene.Press(kBarTrackLeft + 110, kBarY + 50);
    ExpectGone(life);
}

TEST_F(DoomedWindowTest, MayGoWhenASliderIsDragged) {
    WriteProgressImages(scene.ImageFolder());
    auto& slider = window->Add(new TestProgress);
    slider.Prepare();
    slider.SetValue(100);
    slider.AddCallBack(kEventValueChanged, window, &DoomedWindow::OnEvent);
    const LifeWatch life = slider.WatchLife();
    scene.Press(kBarTrackLeft + 110, kBarY + 50);
    ASSERT_TRUE(life.IsAlive()) << "the value is that already";
    scene.Move(kBarTrackLeft + 150, kBarY + 50);
    ExpectGone(life);
}

class DoomedWindowOfAWheel : public DoomedWindowTest {
  protected:
    DoomedWindowOfAWheel() : wheel(window->Add(new TestWheel)), life(wheel.WatchLife()) {
        wheel.Prepare(FmBounds(), 98.5f);
    }

    TestWheel& wheel;
    LifeWatch life;
};

TEST_F(DoomedWindowOfAWheel, MayGoWhenItIsSwiped) {
    wheel.SetMoveUpCallBack(&DoomedWindow::OnMove, window);
    int x = 0;
    int y = 0;
    wheel.GetScreenXY(x, y);
    scene.Press(x + 10, y + 60);
    scene.Release(x + 10, y + 20);
    ExpectGone(life);
}

TEST_F(DoomedWindowOfAWheel, MayGoWhenItIsStopped) {
    wheel.SetMoveStopCallBack(&DoomedWindow::OnMove, window);
    wheel.StartMove();
    int x = 0;
    int y = 0;
    wheel.GetScreenXY(x, y);
    scene.Press(x + 10, y + 60);
    ExpectGone(life);
}

TEST_F(DoomedWindowOfAWheel, MayGoInTheTickThatCompletesAStep) {
    wheel.AddCallBack(kEventValueChanged, window, &DoomedWindow::OnEvent);
    wheel.SlideMove(false);
    wheel.StartMove();
    scene.Advance(199);
    ASSERT_TRUE(life.IsAlive());
    scene.Advance(1);
    ExpectGone(life);
}

}  // namespace
}  // namespace korvane::test
