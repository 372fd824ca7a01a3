#include <gtest/gtest.h>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/Touches.h"
#include "tests/controls/items/TestSwitchList.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::test {
namespace {

constexpr int kTile = 120;
constexpr int kTileHeight = 52;

/// A plate with a rim and a disc, as wide as the list.
CLQSurfHandle Plate(_LQColor face, _LQColor rim, _LQColor disc) {
    CLQSurfHandle plate = NewPicture(kTile, kTileHeight, {0, 0, 0, 0});
    plate.FillRect(2, 2, kTile - 2, kTileHeight - 2, rim, false);
    plate.FillRect(4, 4, kTile - 4, kTileHeight - 4, face, false);
    for (int y = -10; y <= 10; ++y) {
        for (int x = -10; x <= 10; ++x) {
            if (x * x + y * y <= 100)
                plate.FillRect(60 + x, 18 + y, 61 + x, 19 + y, disc, false);
        }
    }
    return plate;
}

/// Looks of a list in a window, with captions as an application would set them.
class SwitchListPicture : public testing::Test {
  protected:
    SwitchListPicture() : scene(200, 320) {
        _LQColor night = {12, 20, 34, 255};
        window.Create(0, 0, 200, 320);
        window.EnableBkgColor(true, &night);
        CLQSurfHandle ground = NewPicture(kTile, 5 * kTileHeight, {24, 36, 58, 255});
        WriteImage(scene.ImageFolder() / "Ground.lqi", ground);

        list.Create(40, 30, kTile, 5 * kTileHeight);
        list.SetBkgSurf(L"Ground.lqi");
        list.SetIconNumPrePage(5);
        std::vector<CLQSurfHandle*> icons(8, &normal);
        icons.resize(10, &normal);
        list.SetIconNormalSurf(icons);
        icons.assign(10, &active);
        list.SetIconActiveSurf(icons);
        icons.assign(10, &focus);
        list.SetIconFocusSurf(icons);
        icons.assign(10, &disabled);
        list.SetIconDisableSurf(icons);
        std::vector<std::wstring> captions = {
            L"Radio", L"Media", L"Navigationssystem", L"Phone", L"More", L"AUX 1", L"AUX 2", L"Camera",
            L"TV",    L"Back"};
        list.SetText(captions);
        _LQColor colors[] = {
            {230, 238, 250, 255}, {255, 255, 255, 255}, {255, 181, 74, 255}, {90, 104, 132, 255}};
        for (int slot = 0; slot < 4; ++slot)
            list.SetTextColor(static_cast<_eTextColorType>(slot), colors[slot]);
        list.SetFouceIndex(1);
        window.AddChild(&list);
        scene.Pump();
    }

    testing::AssertionResult LooksLike(const char* name) {
        scene.Pump();
        return MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name);
    }

    Scene scene;
    CLQSurfHandle normal = Plate({32, 46, 72, 255}, {65, 86, 122, 255}, {57, 208, 242, 255});
    CLQSurfHandle active = Plate({14, 104, 132, 255}, {57, 208, 242, 255}, {255, 255, 255, 255});
    CLQSurfHandle focus = Plate({42, 58, 88, 255}, {255, 181, 74, 255}, {255, 181, 74, 255});
    CLQSurfHandle disabled = Plate({24, 32, 48, 255}, {38, 49, 72, 255}, {79, 95, 125, 255});
    CLQWindow window;
    TestSwitchList list;
};

TEST_F(SwitchListPicture, ShowsTheSelectedItem) {
    EXPECT_TRUE(LooksLike("switch-list"));
}

TEST_F(SwitchListPicture, ShowsTheTouchedItem) {
    scene.Press(100, 30 + 3 * kTileHeight + 10);
    EXPECT_TRUE(LooksLike("switch-list-touched"));
}

TEST_F(SwitchListPicture, ShowsTheSecondPage) {
    scene.Press(100, 30 + 4 * kTileHeight + 10);
    scene.Release(100, 30 + 4 * kTileHeight + 10);
    EXPECT_TRUE(LooksLike("switch-list-second-page"));
}

TEST_F(SwitchListPicture, ShowsADisabledList) {
    list.SetDisable(true);
    EXPECT_TRUE(LooksLike("switch-list-disabled"));
}

}  // namespace
}  // namespace korvane::test
