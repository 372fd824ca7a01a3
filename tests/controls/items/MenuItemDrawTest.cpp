#include <gtest/gtest.h>
#include <limits>
#include <memory>

#include "engine/system/System.h"
#include "engine/text/LangManager.h"
#include "engine/widgets/Button.h"
#include "engine/widgets/elements/TextElement.h"
#include "engine/window/Screen.h"
#include "platform/Files.h"

#include "tests/controls/Touches.h"
#include "tests/controls/items/TestTile.h"

namespace korvane::test {
namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

/// A caption that tells of its end.
class CountedElement : public CLQTextElement {
  public:
    explicit CountedElement(int& count) : count_(count) { ++count_; }
    ~CountedElement() override { --count_; }

  private:
    int& count_;
};

/// What is painted without a window. All images are translucent, so that their order shows.
class MenuItemPaint : public testing::Test {
  protected:
    MenuItemPaint() {
        Write("Text.lqi", text);
        Write("Grey.lqi", greyText);
        Write("Shader.lqi", shader);
        Write("Source.lqi", source);
        Write("Ash.lqi", ash);
        Write("Shade.lqi", shade);
        Write("Piece.lqi", piece);
        tile.SetImagePos(10, 8);
    }

    void Write(const std::string& name, CLQSurfHandle image) {
        WriteImage(scene.ImageFolder() / name, image);
    }
    void PressTile() { Press(tile, kTileX + 5, kTileY + 5); }

    Scene scene;
    CLQSurfHandle still = Block(60, 50, {0, 200, 90, 180});
    CLQSurfHandle text = Block(31, 11, {255, 255, 255, 160});
    CLQSurfHandle greyText = Block(41, 7, {90, 90, 90, 160});
    CLQSurfHandle shader = Block(70, 20, {0, 0, 80, 140});
    CLQSurfHandle source = Block(15, 33, {255, 120, 0, 150});
    CLQSurfHandle ash = Block(300, 300, {128, 128, 128, 120});
    CLQSurfHandle shade = Block(300, 300, {0, 0, 0, 100});
    CLQSurfHandle piece = Block(20, 6, {255, 0, 255, 200});
    TestTile tile;
};

TEST_F(MenuItemPaint, PaintsNothingAsANewTile) {
    TestTile fresh;
    Press(fresh, kTileX + 5, kTileY + 5);
    EXPECT_EQ(LooksOf(fresh), TileDrawing().Pixels());
}

TEST_F(MenuItemPaint, CentresWhatBelongsToTheCaptionOnItsPoint) {
    tile.SetTextPos(50, 60);
    tile.SetTextShaderSurf(L"Shader.lqi");
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(shader, 15, 50).Pixels());
    tile.SetTextShaderSurf(nullptr);
    tile.SetTextSurf(L"Text.lqi");
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(text, 35, 55).Pixels()) << "31 / 2 is 15, 11 / 2 is 5";
    tile.SetTextSurf(L"Missing.lqi");
    tile.SetCurSourceSurf(L"Source.lqi");
    EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels());
    tile.EnableCurSource(true);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(source, 43, 44).Pixels());
    tile.SetTextPos(-20, 5);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(source, -27, -11).Pixels());
}

TEST_F(MenuItemPaint, ShowsTheDisabledCaptionAndNoMarkerOnADisabledTile) {
    tile.SetTextPos(50, 60);
    tile.SetTextSurf(L"Text.lqi");
    tile.SetDesableTextSurf(L"Grey.lqi");
    tile.SetCurSourceSurf(L"Source.lqi");
    tile.EnableCurSource(true);
    tile.EnableDesableState(true);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(greyText, 30, 57).Pixels());
    tile.SetDesableTextSurf(nullptr);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels()) << "the normal caption takes no place";
    tile.EnableDesableState(false);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(source, 43, 44).Image(text, 35, 55).Pixels());
}

TEST_F(MenuItemPaint, PaintsFromThePictureToTheVeil) {
    tile.SetThumbNail(still);
    tile.SetBorderSurf(piece, 0, 40, eBorder_Left);
    tile.SetTextPos(40, 45);
    tile.SetTextShaderSurf(L"Shader.lqi");
    tile.SetCurSourceSurf(L"Source.lqi");
    tile.EnableCurSource(true);
    tile.SetTextSurf(L"Text.lqi");
    tile.SetPressedShaderSurf(L"Shade.lqi");
    PressTile();
    TileDrawing layers;
    layers.Image(still, 10, 8).Image(piece, 0, 40).Image(shader, 5, 35);
    layers.Image(source, 33, 29).Image(text, 25, 40).Image(shade, 10, 8, 90, 72);
    EXPECT_EQ(LooksOf(tile), layers.Pixels());
}

TEST_F(MenuItemPaint, VeilsThePictureArea) {
    tile.SetRectAshSurf(L"Ash.lqi");
    EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels());
    tile.EnableRectAshSurf(true);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(ash, 10, 8, 90, 72).Pixels());
    tile.SetImagePos(0, 0);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(ash, 0, 0, 100, 80).Pixels());
    tile.SetImagePos(-15, -10);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(ash, -15, -10, 115, 90).Pixels());
    tile.SetImagePos(100, 0);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels()) << "no width is left";
    tile.EnableRectAshSurf(false);
    tile.SetImagePos(0, 0);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels());
}

TEST_F(MenuItemPaint, ShadesAPressedTileUnlessItIsVeiledOrDisabled) {
    tile.SetPressedShaderSurf(shade);
    tile.SetRectAshSurf(L"Ash.lqi");
    EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels());
    PressTile();
    const auto shaded = TileDrawing().Image(shade, 10, 8, 90, 72).Pixels();
    EXPECT_EQ(LooksOf(tile), shaded);
    tile.EnableDesableState(true);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels());
    tile.EnableRectAshSurf(true);
    const auto veiled = TileDrawing().Image(ash, 10, 8, 90, 72).Pixels();
    EXPECT_EQ(LooksOf(tile), veiled);
    tile.EnableDesableState(false);
    EXPECT_EQ(LooksOf(tile), veiled);
    tile.SetRectAshSurf(nullptr);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels())
        << "an enabled veil without an image hides the shade, too";
    tile.EnableRectAshSurf(false);
    EXPECT_EQ(LooksOf(tile), shaded);
    Release(tile, 0, 0);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels());
}

TEST_F(MenuItemPaint, ShowsTheFocusFrameInCursorModeAlone) {
    for (int i = 0; i < 8; ++i)
        tile.SetBorderSurf(piece, 10 * (i % 4), 8 * i, static_cast<eBorderDirection>(i));
    TileDrawing normal;
    normal.Image(piece, 0, 32).Image(piece, 10, 40).Image(piece, 20, 48).Image(piece, 30, 56);
    TileDrawing focus;
    focus.Image(piece, 0, 0).Image(piece, 10, 8).Image(piece, 20, 16).Image(piece, 30, 24);
    EXPECT_EQ(LooksOf(tile), normal.Pixels());
    SetCursorState(true);
    EXPECT_EQ(LooksOf(tile), normal.Pixels());
    tile.SetFocus(true);
    EXPECT_EQ(LooksOf(tile), focus.Pixels());
    SetCursorState(false);
    EXPECT_EQ(LooksOf(tile), normal.Pixels());
}

TEST_F(MenuItemPaint, TakesBorderPiecesFromFilesAndSurfaces) {
    tile.SetBorderSurf(L"Piece.lqi", 3, 4, eBorder_Top);
    tile.SetBorderSurf(text, -3, 70, eBorder_Bottom);
    const auto looks = TileDrawing().Image(piece, 3, 4).Image(text, -3, 70).Pixels();
    EXPECT_EQ(LooksOf(tile), looks);
    for (const int none : {8, -1, 100, kMin, kMax}) {
        tile.SetBorderSurf(piece, 0, 0, static_cast<eBorderDirection>(none));
        tile.SetBorderSurf(L"Piece.lqi", 0, 0, static_cast<eBorderDirection>(none));
    }
    EXPECT_EQ(LooksOf(tile), looks);
    tile.SetBorderSurf(L"Missing.lqi", 3, 4, eBorder_Top);
    CLQSurfHandle empty;
    tile.SetBorderSurf(empty, 0, 0, eBorder_Bottom);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels());
}

TEST_F(MenuItemPaint, LoadsImagesOfItsOwn) {
    tile.SetTextPos(50, 60);
    tile.SetTextSurf(L"Text.lqi");
    CLQSurfHandle shared = CLQSurfManager::GetInstance()->CreateSurface(L"Text.lqi", true);
    _LQColor red = {255, 0, 0, 255};
    shared.FillRect(0, 0, 31, 11, red, false);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(text, 35, 55).Pixels());
}

TEST_F(MenuItemPaint, SharesSurfacesThatAreHandedOver) {
    tile.SetThumbNail(still);
    _LQColor red = {255, 0, 0, 255};
    still.FillRect(0, 0, 60, 50, red, false);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(still, 10, 8).Pixels());
}

TEST_F(MenuItemPaint, TakesAnyPlace) {
    tile.SetThumbNail(still);
    tile.SetTextSurf(L"Text.lqi");
    tile.SetRectAshSurf(L"Ash.lqi");
    tile.EnableRectAshSurf(true);
    for (const int place : {kMin, kMin + 1, kMax - 1, kMax}) {
        tile.SetImagePos(place, place);
        tile.SetTextPos(place, place);
        tile.SetBorderSurf(piece, place, place, eBorder_Left);
        if (place > 0)
            EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels()) << place;
        else
            LooksOf(tile);
    }
}

/// A call of a setter, and whether it asks for a repaint.
struct TileSetting {
    const char* name;
    bool repaints;
    void (*call)(TestTile&);
};

const TileSetting kTileSettings[] = {
    {"images", true, [](auto& tile) { tile.SetImage(L"", 0, 0, 0, 100); }},
    {"image place", true, [](auto& tile) { tile.SetImagePos(0, 0); }},
    {"thumbnail", true,
     [](auto& tile) {
         CLQSurfHandle none;
         tile.SetThumbNail(none);
     }},
    {"playing", false, [](auto& tile) { tile.EnableImagePlay(false); }},
    {"border", false, [](auto& tile) { tile.SetBorderSurf(L"Piece.lqi", 0, 0, eBorder_Left); }},
    {"pressed shade", false, [](auto& tile) { tile.SetPressedShaderSurf(L"Shade.lqi"); }},
    {"caption pictures", false,
     [](auto& tile) {
         tile.SetTextSurf(L"Text.lqi");
         tile.SetDesableTextSurf(L"Grey.lqi");
         tile.SetTextShaderSurf(L"Shader.lqi");
     }},
    {"veil image", false, [](auto& tile) { tile.SetRectAshSurf(L"Ash.lqi"); }},
    {"marker image", false, [](auto& tile) { tile.SetCurSourceSurf(L"Source.lqi"); }},
    {"caption place", true, [](auto& tile) { tile.SetTextPos(0, 0); }},
    {"veil", true, [](auto& tile) { tile.EnableRectAshSurf(false); }},
    {"disabled look", true, [](auto& tile) { tile.EnableDesableState(false); }},
    {"marker", true, [](auto& tile) { tile.EnableCurSource(false); }},
    {"long press", false, [](auto& tile) { tile.SetLongPressTime(100); }},
    {"caption", true, [](auto& tile) { tile.BindTextElement(nullptr); }},
};

TEST_F(MenuItemPaint, AsksForARepaintOfWhatItsSettersChange) {
    for (const TileSetting& setting : kTileSettings) {
        tile.Redraw(false);
        setting.call(tile);
        EXPECT_EQ(tile.IsNeedRedraw(), setting.repaints) << setting.name;
    }
}

/// A tile with a text as its caption.
class MenuItemCaption : public MenuItemPaint {
  protected:
    MenuItemCaption() {
        element->SetText(L"Radio");
        tile.BindTextElement(element);
    }

    /// The element's looks on a plain control at that place.
    static std::vector<std::uint32_t> LooksOn(int x, int y, const wchar_t* text, int state) {
        CLQBaseCtrl plain;
        plain.Create(x, y, kTileWidth, kTileHeight);
        CLQTextElement lookalike;
        lookalike.SetText(text);
        lookalike.SetFatherCtrl(&plain);
        TileDrawing drawing;
        lookalike.Draw(drawing.Canvas(), state);
        return drawing.Pixels();
    }
    static std::vector<std::uint32_t> TileLooks(const wchar_t* text, int state = eImage_Normal) {
        return LooksOn(kTileX, kTileY, text, state);
    }

    int alive = 0;
    CLQTextElement* element = new CountedElement(alive);
};

TEST_F(MenuItemCaption, ShowsOnTheTileInPlaceOfThePicture) {
    tile.SetTextSurf(L"Text.lqi");
    tile.SetDesableTextSurf(L"Grey.lqi");
    EXPECT_EQ(element->GetFatherCtrl(), &tile);
    EXPECT_EQ(LooksOf(tile), TileLooks(L"Radio"));
    tile.EnableDesableState(true);
    EXPECT_EQ(LooksOf(tile), TileLooks(L"Radio", 3));
    EXPECT_NE(TileLooks(L"Radio", 3), TileLooks(L"Radio"));
}

TEST_F(MenuItemCaption, HasTheTileRepaintedWhenItChanges) {
    tile.Redraw(false);
    element->SetText(L"Media");
    EXPECT_TRUE(tile.IsNeedRedraw());
}

TEST_F(MenuItemCaption, IsDeletedWithTheTileOrInPlaceOfAnother) {
    tile.Redraw(false);
    tile.BindTextElement(new CountedElement(alive));
    EXPECT_EQ(alive, 1);
    EXPECT_TRUE(tile.IsNeedRedraw());
    tile.BindTextElement(nullptr);
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels());
    {
        TestTile other;
        other.BindTextElement(new CountedElement(alive));
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST_F(MenuItemCaption, MayBeBoundAgain) {
    tile.BindTextElement(element);
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(LooksOf(tile), TileLooks(L"Radio"));
}

TEST_F(MenuItemCaption, MayBeBoundToAnotherTileToo) {
    auto other = std::make_unique<TestTile>();
    other->BindTextElement(element);
    EXPECT_EQ(element->GetFatherCtrl(), other.get());
    EXPECT_EQ(LooksOf(tile), TileLooks(L"Radio"));
    EXPECT_EQ(element->GetFatherCtrl(), other.get());
    tile.BindTextElement(nullptr);
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(LooksOf(*other), TileLooks(L"Radio"));
    other.reset();
    EXPECT_EQ(alive, 0);
}

TEST_F(MenuItemCaption, StaysOnAControlOfAnotherKind) {
    CLQButton button;
    auto* taken = new CountedElement(alive);
    ASSERT_TRUE(button.AddGUIElement(taken));
    tile.BindTextElement(taken);
    EXPECT_EQ(taken->GetFatherCtrl(), &button);
    EXPECT_EQ(alive, 2);
    EXPECT_EQ(LooksOf(tile), TileLooks(L"Radio"));
}

TEST_F(MenuItemCaption, FollowsTheLanguageByItsIdentifier) {
    const auto load = [](const std::string& texts) {
        const std::string table = "[language]\nname = Test\n[text]\n" + texts;
        ASSERT_TRUE(ReplaceFileAtomically(L"\\test.lng", table.data(), table.size()));
        ASSERT_TRUE(CLQLangManager::GetInstance()->LoadLanguage(L"\\test.lng"));
    };
    TileListener window;
    window.Create(0, 0, 400, 300);
    window.AddChild(&tile);
    load("7 = Radio\n");
    element->SetLangID(7);
    scene.Pump();
    load("7 = Rundfunk\n");
    EXPECT_EQ(element->GetText(), L"Rundfunk");
    EXPECT_TRUE(tile.IsNeedRedraw());
    element->SetLangID(0);
    element->SetText(L"Own");
    load("7 = Radio\n");
    EXPECT_EQ(element->GetText(), L"Own") << "no identifier";
    tile.BindTextElement(nullptr);
    load("7 = Rundfunk\n");
}

/// A tile in a window.
class MenuItemInAWindow : public MenuItemPaint {
  protected:
    MenuItemInAWindow() {
        _LQColor navy = {16, 32, 72, 255};
        window.Create(20, 10, 400, 300);
        window.EnableBkgColor(true, &navy);
        tile.SetThumbNail(still);
        tile.SetPressedShaderSurf(L"Shade.lqi");
        tile.SetRectAshSurf(L"Ash.lqi");
        tile.SetBorderSurf(piece, 70, 70, eBorder_Left);
        tile.SetBorderSurf(piece, 0, 0, eBorder_FocusLeft);
        tile.EnableFocus(true);
        tile.BindTextElement(new CLQTextElement);
        window.AddChild(&tile);
        scene.Pump();
    }

    TileListener window;
};

TEST_F(MenuItemInAWindow, PaintsOnlyWhenItIsMarked) {
    CLQSurfHandle canvas = TileCanvas();
    const auto before = PixelsOf(canvas);
    EXPECT_FALSE(tile.IsNeedRedraw());
    tile.Draw(canvas);
    EXPECT_EQ(PixelsOf(canvas), before);
    tile.Invalidate();
    tile.Draw(canvas);
    EXPECT_NE(PixelsOf(canvas), before);
    EXPECT_FALSE(tile.IsNeedRedraw());
}

TEST_F(MenuItemInAWindow, PaintsWithoutAWindowAlwaysAndTakesItsMarkAway) {
    TestTile alone;
    alone.SetThumbNail(still);
    EXPECT_TRUE(alone.IsNeedRedraw());
    const auto looks = LooksOf(alone);
    EXPECT_FALSE(alone.IsNeedRedraw());
    EXPECT_EQ(LooksOf(alone), looks);
}

TEST_F(MenuItemInAWindow, RepaintsWhatChangedAsThoughItWereAll) {
    const auto check = [this](const char* what) {
        scene.Pump();
        const auto partial = scene.Pixels();
        scene.FillWithGarbage();
        CLQScreen::GetInstance()->InvalidateAll();
        scene.Pump();
        EXPECT_TRUE(partial == scene.Pixels()) << what;
    };
    check("as it is");
    scene.Press(20 + kTileX + 5, 10 + kTileY + 5);
    check("pressed");
    scene.Release(20 + kTileX + 5, 10 + kTileY + 5);
    check("released");
    tile.EnableRectAshSurf(true);
    check("veiled");
    tile.EnableDesableState(true);
    check("disabled");
    window.SetFocusCtrl(&tile);
    SetCursorState(true);
    check("focus");
    SetCursorState(false);
    check("no cursor");
    Write("Frame1.lqi", still);
    CLQSurfHandle none;
    tile.SetThumbNail(none);
    tile.SetImage(L"Frame%d.lqi", 2, 60, 50, 100);
    check("first frame");
    scene.Advance(100);
    check("second frame, which is missing");
    tile.MoveTo(200, 60);
    check("moved");
}

}  // namespace
}  // namespace korvane::test
