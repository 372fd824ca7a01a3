#include "tests/support/AllocationCount.h"
#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

class SteadyRepaint : public WidgetsTest {
  protected:
    SteadyRepaint() {
        MakeImage("a.lqi", 40, 20, kRed);
        MakeImage("b.lqi", 20, 20, kGreen);
        button.Create(0, 0, 60, 30);
        button.SetImagePath(0, eImage_Normal, L"a.lqi");
        button.SetText(L"Band");
        label.Create(60, 0, 60, 30);
        label.SetText(L"a text that is much too long for its label");
        label.SetBkgSurf(L"a.lqi");
        label.EnableTextScroll(true);
        view.Create(120, 0, 60, 30);
        view.SetImagePath(L"b.lqi");
        slider.Create(0, 40, 150, 20);
        slider.SetBkgSurf(L"a.lqi");
        slider.SetFillSurf(L"b.lqi");
        slider.SetThumbSurf(L"b.lqi");
        for (CLQBaseCtrl* ctrl : std::initializer_list<CLQBaseCtrl*>{&button, &label, &view, &slider})
            window.AddChild(ctrl);
    }

    CLQButton button;
    CLQStatic label;
    CLQImageView view;
    CLQSliderCtrl slider;
};

TEST_F(SteadyRepaint, OfEveryControlAllocatesNothing) {
    const auto repaint = [this] {
        slider.SetValue((slider.GetValue() + 7) % 100);
        button.Invalidate();
        view.Invalidate();
        scene.Advance(150);
    };
    for (int round = 0; round < 200; ++round)
        repaint();
    const int before = AllocationCount();
    for (int round = 0; round < 20; ++round)
        repaint();
    EXPECT_EQ(AllocationCount(), before);
}

}  // namespace
}  // namespace korvane::test
