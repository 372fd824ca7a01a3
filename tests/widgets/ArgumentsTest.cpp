#include <algorithm>
#include <fstream>
#include <limits>

#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

constexpr int kMinInt = std::numeric_limits<int>::min();
constexpr int kMaxInt = std::numeric_limits<int>::max();
constexpr int kNumbers[] = {kMinInt, kMinInt + 1, -1000000, -32768, -1, 0, 1, 513, 32768, 1000000, kMaxInt};

std::vector<const wchar_t*> Texts() {
    static const std::wstring huge(100000, L'M');
    static const std::wstring wild = {static_cast<wchar_t>(0xD800), L'\n', static_cast<wchar_t>(0xFFFF), L'%',
                                      L'\\'};
    static const std::wstring deep(300, L'\\');
    return {nullptr,        L"",       L" ", huge.c_str(), wild.c_str(), deep.c_str(), L"..\\..\\etc",
            L"missing.lqi", L"bad.lqi"};
}

/// Every setter takes everything and the control can still be drawn, asked and touched.
class Arguments : public WidgetsTest {
  protected:
    Arguments() { std::ofstream(scene.ImageFolder() / "bad.lqi") << "this is no image"; }

    void DrawAndTouch(CLQBaseCtrl& ctrl) {
        scene.Pump();
        CLQSurfHandle none;
        ctrl.Draw(none);
        CLQSurfHandle target = Plain(30, 30, kBlack);
        ctrl.DrawBaseCtrl(target, 0, 0);
        ctrl.DrawBaseCtrl(target, kMinInt, kMaxInt);
        for (const int number : kNumbers) {
            _LQMessage press = Pointer(kMsgPress, number, -number / 2);
            _LQMessage move = Pointer(kMsgMove, -(number / 3), number);
            _LQMessage release = Pointer(kMsgRelease, number, number);
            ctrl.DoMessage(&press);
            ctrl.DoMessage(&move);
            ctrl.DoMessage(&release);
        }
        EXPECT_FALSE(ctrl.IsPressed());
        scene.Pump();
    }
};

TEST_F(Arguments, OfALabelMayBeAnything) {
    CLQStatic label;
    window.AddChild(&label);
    label.Create(0, 0, 50, 20);
    label.EnableTextScroll(true);
    for (const wchar_t* text : Texts()) {
        label.SetText(text);
        label.SetBkgSurf(text);
        label.SetFontName(text);
        DrawAndTouch(label);
    }
    label.SetText(L"text");
    for (const int number : kNumbers) {
        label.SetTextStyle(number);
        label.SetFontSize(number, kMaxInt - std::max(number, 0));
        label.SetScrollParam(number, number);
        label.SetScrollType(static_cast<eScrollType>(number & 0xFF));
        label.SetTextScrollNum(number);
        label.SetLangID(number);
        label.SetText(L"text");
        label.SetSize(number, number);
        label.MoveTo(number, number);
        DrawAndTouch(label);
        scene.Advance(40);
    }
}

TEST_F(Arguments, OfAButtonMayBeAnything) {
    CLQButton button;
    window.AddChild(&button);
    button.Create(0, 0, 50, 20);
    for (const wchar_t* text : Texts()) {
        button.SetText(text);
        button.SetImagePath(0, eImage_Normal, text);
        button.SetImagePath(kMaxInt, eImage_Normal, text);
        button.SetImagePath(kMinInt, static_cast<_eImageType>(255), text);
        DrawAndTouch(button);
    }
    auto* caption = static_cast<CLQTextElement*>(button.GetGUIElement(1));
    ASSERT_NE(caption, nullptr);
    caption->SetText(L"text");
    for (const int number : kNumbers) {
        caption->SetRect(number, -(number / 2), number, number);
        caption->SetFontSize(number, number);
        caption->SetTextStyle(number);
        caption->SetFontName(L"no such face");
        caption->SetFont(nullptr);
        button.SetLangID(number);
        EXPECT_EQ(button.GetGUIElement(number) == nullptr, number < 0 || number > 1);
        DrawAndTouch(button);
        button.SetSize(number, number);
        button.MoveTo(number, number);
        DrawAndTouch(button);
    }
    caption->SetFatherCtrl(nullptr);
    DrawAndTouch(button);
}

TEST_F(Arguments, OfAnImageMayBeAnything) {
    CLQImageView view;
    window.AddChild(&view);
    view.Create(0, 0, 50, 20);
    for (const wchar_t* text : Texts()) {
        view.SetImagePath(text);
        DrawAndTouch(view);
    }
    CLQSurfHandle none;
    view.SetImageSurf(none);
    DrawAndTouch(view);
}

TEST_F(Arguments, OfASliderMayBeAnything) {
    MakeImage("thumb.lqi", 20, 20, kRed);
    CLQSliderCtrl slider;
    window.AddChild(&slider);
    slider.Create(0, 0, 50, 20);
    for (const wchar_t* text : Texts()) {
        slider.SetBkgSurf(text);
        slider.SetFillSurf(text);
        slider.SetThumbSurf(text);
        slider.SetThumbPressedSurf(text);
        DrawAndTouch(slider);
    }
    slider.SetThumbSurf(L"thumb.lqi");
    slider.SetFillSurf(L"thumb.lqi");
    for (const int number : kNumbers) {
        for (const int other : kNumbers) {
            slider.SetRange(number, other);
            slider.SetValue(other / 2);
            int minimum = 0;
            int maximum = 0;
            slider.GetRange(minimum, maximum);
            EXPECT_LE(minimum, slider.GetValue());
            EXPECT_LE(slider.GetValue(), maximum);
            slider.SetInset(number, other);
            slider.SetTrackOffset(other);
            slider.SetThumbOffset(number);
            slider.SetVertical(other < 0);
            DrawAndTouch(slider);
        }
        slider.SetInset(0, 0);
        slider.SetTrackOffset(0);
        slider.SetSize(number, number);
        slider.MoveTo(number, number);
        DrawAndTouch(slider);
        slider.Create(0, 0, 50, 20);
    }
}

}  // namespace
}  // namespace korvane::test
