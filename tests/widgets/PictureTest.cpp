#include "tests/support/ReferenceImage.h"
#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

class Picture : public WidgetsTest {
  protected:
    /// A rounded plate with a light upper and a dark lower half, soft at its corners.
    void MakePlate(const std::string& name, int width, int height, std::uint32_t pixel) {
        CLQSurfHandle surface = Plain(width, height, 0);
        for (int inset = 0; inset < 3; ++inset) {
            _LQColor color = ColorOf(pixel);
            color.a = static_cast<unsigned char>(85 * (inset + 1));
            surface.FillRect(inset, 2 - inset, width - inset, height - 2 + inset, color, false);
        }
        _LQColor shine = {255, 255, 255, 60};
        surface.FillRect(2, 2, width - 2, height / 2, shine, true);
        WriteImage(scene.ImageFolder() / name, surface);
    }

    CLQButton* AddButton(int x, int y) {
        auto* button = new CLQButton;
        button->Create(x, y, 46, 26);
        button->SetImagePath(0, eImage_Normal, L"n.lqi");
        button->SetImagePath(0, eImage_Pressed, L"p.lqi");
        button->SetImagePath(0, eImage_Focus, L"f.lqi");
        button->SetImagePath(0, eImage_Disabled, L"d.lqi");
        button->SetText(L"Band");
        static_cast<CLQTextElement*>(button->GetGUIElement(1))->SetFontSize(13, 13);
        window.AddChild(button);
        return button;
    }
};

TEST_F(Picture, ShowsTheLooksOfEveryControl) {
    MakePlate("n.lqi", 46, 26, 0xFF3060A0);
    MakePlate("p.lqi", 46, 26, 0xFFC06020);
    MakePlate("f.lqi", 46, 26, 0xFF30A060);
    MakePlate("d.lqi", 46, 26, 0xFF404040);
    MakePlate("track.lqi", 190, 16, 0xFF303030);
    MakePlate("fill.lqi", 190, 16, 0xFF2080C0);
    MakePlate("thumb.lqi", 18, 16, 0xFFD0D0D0);

    AddButton(2, 2);
    AddButton(52, 2)->EnableWindow(false);
    CLQButton* focused = AddButton(102, 2);
    AddButton(152, 2);

    CLQStatic centred;
    centred.Create(2, 32, 96, 20);
    centred.SetText(L"Zażółć 87.50");
    centred.SetTextStyle(18);
    centred.SetFontSize(14, 14);
    centred.SetBkgSurf(L"track.lqi");
    CLQStatic scrolled;
    scrolled.Create(102, 32, 96, 20);
    scrolled.SetText(L"上午 接收到交通信息 Traffic Information");
    scrolled.SetFontSize(14, 14);
    scrolled.SetTextStyle(eText_VCenter);
    _LQColor blue = {33, 140, 217, 255};
    scrolled.SetTextColor(blue);
    scrolled.EnableTextScroll(true);
    scrolled.EnableScrollTextTooLong(true);
    CLQSliderCtrl slider;
    slider.Create(2, 58, 196, 16);
    slider.SetInset(3, 0);
    slider.SetTrackOffset(2);
    slider.SetBkgSurf(L"track.lqi");
    slider.SetFillSurf(L"fill.lqi");
    slider.SetThumbSurf(L"thumb.lqi");
    slider.SetValue(40);
    CLQImageView view;
    view.Create(2, 78, 30, 20);
    view.SetImagePath(L"f.lqi");
    for (CLQBaseCtrl* ctrl : std::initializer_list<CLQBaseCtrl*>{&centred, &scrolled, &slider, &view})
        window.AddChild(ctrl);

    window.SetFocusCtrl(focused);
    _LQMessage press = Pointer(kMsgPress, 160, 10);
    window.DoMessage(&press);
    SetCursorState(true);
    scene.Advance(150 * 9);
    CLQScreen::GetInstance()->InvalidateAll();
    scene.Pump();
    EXPECT_TRUE(MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), "widgets"));
    SetCursorState(false);
}

}  // namespace
}  // namespace korvane::test
