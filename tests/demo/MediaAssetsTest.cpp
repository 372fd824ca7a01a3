#include <array>
#include <gtest/gtest.h>
#include <string>

#include "KorvaneEx.h"

#include "tests/demo/DemoScene.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::demo {

namespace {

constexpr const wchar_t* kStates[] = {L"_n.lqi", L"_p.lqi", L"_f.lqi", L"_d.lqi"};
constexpr const wchar_t* kButtons[] = {L"media_play", L"media_pause", L"media_a", L"media_b",
                                       L"media_cancel"};

CLQSurfHandle Image(const std::wstring& file) {
    return CLQSurfManager::GetInstance()->CreateSurface(file.c_str(), true);
}

class MediaAssets : public testing::Test {
  protected:
    MediaAssets() {
        window_.Create(0, 0, 800, 480);
        window_.SetBkgSurf(L"SourceBkg.lqi");
    }

    testing::AssertionResult LooksLike(const char* name) {
        scene_.Pump();
        return test::MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name);
    }

    test::DemoScene scene_;
    CLQWindow window_;
};

/// A slider whose marks show has to be higher than the row of the screen that they are in.
void SetUpProgress(CLQSliderExCtrl& slider) {
    slider.Create(0, 170, 800, 210);
    slider.SetInset(0, 32);
    slider.SetTrackOffset(64);
    slider.SetThumbOffset(32);
    slider.SetBkgSurf(L"MediaTrack.lqi");
    slider.SetFillSurf(L"MediaFill.lqi");
    slider.SetThumbSurf(L"MediaThumb.lqi");
    slider.SetThumbPressedSurf(L"MediaThumbPressed.lqi");
    slider.SetReapetBkgSurf(L"MediaBand.lqi");
    slider.SetReapetASurf(L"MediaPointA.lqi");
    slider.SetReapetBSurf(L"MediaPointB.lqi");
    slider.SetReapetIconOffset(172);
    slider.SetRange(0, 328);
}

}  // namespace

TEST_F(MediaAssets, FitOneAnother) {
    for (const wchar_t* const name : {L"MediaTrack.lqi", L"MediaFill.lqi", L"MediaBand.lqi"}) {
        EXPECT_EQ(Image(name).GetWidth(), 800);
        EXPECT_EQ(Image(name).GetHeight(), 40);
    }
    for (const wchar_t* const name : {L"MediaThumb.lqi", L"MediaThumbPressed.lqi"}) {
        EXPECT_EQ(Image(name).GetWidth(), 16);
        EXPECT_EQ(Image(name).GetHeight(), 40);
    }
    for (const wchar_t* const name : {L"MediaPointA.lqi", L"MediaPointB.lqi"})
        EXPECT_EQ(Image(name).GetWidth(), 28);
    for (const std::wstring button : kButtons) {
        for (const wchar_t* const state : kStates) {
            EXPECT_EQ(Image(button + state).GetWidth(), 136);
            EXPECT_EQ(Image(button + state).GetHeight(), 84);
        }
    }
}

TEST_F(MediaAssets, FitTogetherOnAScreen) {
    CLQSliderExCtrl slider;
    SetUpProgress(slider);
    slider.SetValue(180);
    slider.EnableReapetAIcon(90);
    slider.EnableReapetBIcon(240);
    window_.AddChild(&slider);
    std::array<CLQButton, 5> buttons;
    for (int i = 0; i < 5; ++i) {
        CLQButton& button = buttons[static_cast<std::size_t>(i)];
        button.Create(32 + 150 * i, 384, 136, 84);
        for (int state = 0; state < 4; ++state)
            button.SetImagePath(0, static_cast<_eImageType>(state),
                                (std::wstring(kButtons[i]) + kStates[state]).c_str());
        window_.AddChild(&button);
    }
    buttons[4].EnableWindow(false);
    buttons[3].EnableFocus(true);
    window_.SetFocusCtrl(&buttons[3]);
    scene_.Press(70, 400);
    SetCursorState(true);
    EXPECT_TRUE(LooksLike("demo-media"));
    SetCursorState(false);
}

TEST_F(MediaAssets, ShowWhereAPassageIsDragged) {
    CLQSliderExCtrl slider;
    SetUpProgress(slider);
    slider.EnableReapetAIcon(0);
    slider.EnableReapetBIcon(328);
    window_.AddChild(&slider);
    scene_.Press(400, 220);
    EXPECT_EQ(slider.GetValue(), 164);
    EXPECT_TRUE(LooksLike("demo-media-dragged"));
}

TEST_F(MediaAssets, ShowAFolderAndTheMedium) {
    CLQFileView view;
    view.Create(250, 60, 300, 410);
    window_.AddChild(&view);
    view.ChangImage(L"Concerts", L"Ελληνικά", L"Grüße aus Zürich", false);
    EXPECT_TRUE(LooksLike("demo-files"));
    view.ChangImage(L"", L"", L"", false);
    EXPECT_TRUE(LooksLike("demo-files-root"));
}

}  // namespace korvane::demo
