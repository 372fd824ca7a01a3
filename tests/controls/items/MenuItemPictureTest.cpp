#include <gtest/gtest.h>

#include "engine/system/System.h"
#include "engine/widgets/elements/TextElement.h"
#include "engine/window/Screen.h"

#include "tests/controls/items/TestTile.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::test {
namespace {

constexpr int kSide = 160;
constexpr int kPictureHeight = 120;

CLQSurfHandle Disc(int size, _LQColor color) {
    CLQSurfHandle disc = Block(size, size, {0, 0, 0, 0});
    const int radius = size / 2;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            if ((x - radius) * (x - radius) + (y - radius) * (y - radius) < radius * radius)
                disc.FillRect(x, y, x + 1, y + 1, color, false);
        }
    }
    return disc;
}

/// Looks of a tile in a window, with everything that a tile can have.
class MenuItemPicture : public testing::Test {
  protected:
    MenuItemPicture() : scene(220, 220) {
        _LQColor night = {12, 20, 34, 255};
        window.Create(0, 0, 220, 220);
        window.EnableBkgColor(true, &night);
        for (int i = 0; i < 3; ++i)
            WriteFrame(i);
        WriteImage(scene.ImageFolder() / "Caption.lqi", caption);
        WriteImage(scene.ImageFolder() / "Playing.lqi", playing);
        WriteImage(scene.ImageFolder() / "Ash.lqi", ash);
        WriteImage(scene.ImageFolder() / "Shade.lqi", shade);

        tile.Create(30, 30, kSide, kSide);
        tile.SetImage(L"Frame%d.lqi", 3, kSide - 8, kPictureHeight, 100);
        tile.SetImagePos(4, 4);
        SetFrame(eBorder_FocusLeft, {255, 181, 74, 255});
        SetFrame(eBorder_Left, {65, 86, 122, 255});
        tile.SetTextPos(kSide / 2, kSide - 20);
        tile.SetTextShaderSurf(L"Caption.lqi");
        tile.SetCurSourceSurf(L"Playing.lqi");
        tile.SetRectAshSurf(L"Ash.lqi");
        tile.SetPressedShaderSurf(L"Shade.lqi");
        auto* text = new CLQTextElement;
        text->SetText(L"Radio");
        text->SetRect(0, kSide - 40, kSide, 40);
        tile.BindTextElement(text);
        tile.EnableFocus(true);
        window.AddChild(&tile);
        scene.Pump();
    }

    /// A bar of three lamps, one of which is lit.
    void WriteFrame(int lit) {
        CLQSurfHandle frame = Block(kSide - 8, kPictureHeight, {24, 46, 72, 255});
        for (int i = 0; i < 3; ++i) {
            const _LQColor color = i == lit ? _LQColor{57, 208, 242, 255} : _LQColor{40, 66, 98, 255};
            CLQSurfHandle lamp = Disc(36, color);
            frame.BitBlt(lamp, 14 + 44 * i, 34, 36, 36, 0, 0);
        }
        WriteImage(scene.ImageFolder() / ("Frame" + std::to_string(lit + 1) + ".lqi"), frame);
    }

    void SetFrame(int first, _LQColor color) {
        CLQSurfHandle upright = Block(4, kSide, color);
        CLQSurfHandle level = Block(kSide, 4, color);
        tile.SetBorderSurf(upright, 0, 0, static_cast<eBorderDirection>(first));
        tile.SetBorderSurf(level, 0, 0, static_cast<eBorderDirection>(first + 1));
        tile.SetBorderSurf(upright, kSide - 4, 0, static_cast<eBorderDirection>(first + 2));
        tile.SetBorderSurf(level, 0, kSide - 4, static_cast<eBorderDirection>(first + 3));
    }

    testing::AssertionResult LooksLike(const char* name) {
        scene.Pump();
        return MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name);
    }

    Scene scene;
    CLQSurfHandle caption = Block(kSide - 8, 32, {32, 46, 72, 255});
    CLQSurfHandle playing = Block(kSide - 20, 24, {14, 104, 132, 255});
    CLQSurfHandle ash = Block(kSide - 8, kSide - 8, {90, 98, 112, 150});
    CLQSurfHandle shade = Block(kSide - 8, kSide - 8, {0, 0, 0, 110});
    CLQWindow window;
    TestTile tile;
};

TEST_F(MenuItemPicture, ShowsATile) {
    EXPECT_TRUE(LooksLike("menu-item"));
}

TEST_F(MenuItemPicture, ShowsTheNextImageOfItsSequence) {
    scene.Advance(100);
    EXPECT_TRUE(LooksLike("menu-item-next-image"));
}

TEST_F(MenuItemPicture, ShowsATileWithTheFocus) {
    window.SetFocusCtrl(&tile);
    SetCursorState(true);
    EXPECT_TRUE(LooksLike("menu-item-focus"));
    SetCursorState(false);
}

TEST_F(MenuItemPicture, ShowsATileThatIsPressed) {
    scene.Press(60, 60);
    EXPECT_TRUE(LooksLike("menu-item-pressed"));
}

TEST_F(MenuItemPicture, ShowsTheTileOfThePlayingSource) {
    tile.EnableCurSource(true);
    EXPECT_TRUE(LooksLike("menu-item-playing"));
}

TEST_F(MenuItemPicture, ShowsADisabledTileUnderItsVeil) {
    tile.EnableCurSource(true);
    tile.EnableDesableState(true);
    tile.EnableRectAshSurf(true);
    EXPECT_TRUE(LooksLike("menu-item-disabled"));
}

TEST_F(MenuItemPicture, ShowsAThumbnail) {
    CLQSurfHandle sun = Disc(100, {255, 190, 90, 255});
    tile.SetThumbNail(sun);
    EXPECT_TRUE(LooksLike("menu-item-thumbnail"));
}

}  // namespace
}  // namespace korvane::test
