#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "KorvaneEx.h"

#include "tests/demo/DemoScene.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::demo {

namespace {

constexpr int kTileWidth = 236;
constexpr int kTileHeight = 184;
constexpr int kImages = 8;
constexpr const wchar_t* kStates[] = {L"_n.lqi", L"_p.lqi", L"_f.lqi", L"_d.lqi"};
constexpr const wchar_t* kCells[] = {L"tuner",      L"dab",      L"disc_audio", L"usb_audio", L"page_down",
                                     L"ipod_audio", L"bt_audio", L"aux1",       L"tv",        L"page_up"};

CLQSurfHandle Image(const std::wstring& file) {
    return CLQSurfManager::GetInstance()->CreateSurface(file.c_str(), true);
}

std::wstring ImageOfSequence(const wchar_t* name, int number) {
    return std::wstring(L"menu_") + name + L"_" + std::to_wstring(number) + L".lqi";
}

/// A dark screen.
class Tiles : public testing::Test {
  protected:
    Tiles() {
        window_.Create(0, 0, 800, 480);
        _LQColor night = {11, 17, 29, 255};
        window_.EnableBkgColor(true, &night);
    }

    testing::AssertionResult LooksLike(const char* name) {
        scene_.Pump();
        return test::MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name);
    }

    test::DemoScene scene_;
    CLQWindow window_;
};

/// Sets a tile up with what all tiles of the menu have.
void SetUpTile(CLQMenuItemCtrl& tile, int column, int row, const wchar_t* caption) {
    tile.Create(23 + 259 * column, 76 + 200 * row, kTileWidth, kTileHeight);
    tile.SetImagePos(4, 4);
    struct Piece {
        const wchar_t* name;
        int x;
        int y;
    };
    constexpr Piece kPieces[] = {{L"MenuFrameLeft", 0, 20},
                                 {L"MenuFrameTop", 0, 0},
                                 {L"MenuFrameRight", 232, 20},
                                 {L"MenuFrameBottom", 0, 164}};
    for (int i = 0; i < 4; ++i) {
        const Piece& piece = kPieces[i];
        const std::wstring name = piece.name;
        tile.SetBorderSurf((name + L"_f.lqi").c_str(), piece.x, piece.y, static_cast<eBorderDirection>(i));
        tile.SetBorderSurf((name + L"_n.lqi").c_str(), piece.x, piece.y,
                           static_cast<eBorderDirection>(i + 4));
    }
    tile.SetTextShaderSurf(L"MenuCaption.lqi");
    tile.SetTextPos(118, 158);
    tile.SetCurSourceSurf(L"MenuPlaying.lqi");
    tile.SetPressedShaderSurf(L"MenuShade.lqi");
    tile.SetRectAshSurf(L"MenuVeil.lqi");
    tile.EnableFocus(true);
    auto* const text = new CLQTextElement;
    text->SetRect(0, 136, kTileWidth, 44);
    text->SetText(caption);
    // The veil dims it further.
    _LQColor disabled = {190, 200, 216, 255};
    text->SetTextColor(eImage_Disabled, disabled);
    tile.BindTextElement(text);
}

}  // namespace

TEST_F(Tiles, HaveEightDifferentImagesForEachSequence) {
    for (const wchar_t* const name : {L"radio", L"media", L"gauges"}) {
        std::vector<std::vector<std::uint32_t>> images;
        for (int number = 1; number <= kImages; ++number) {
            CLQSurfHandle image = Image(ImageOfSequence(name, number));
            ASSERT_EQ(image.GetWidth(), kTileWidth - 8) << number;
            ASSERT_EQ(image.GetHeight(), 132) << number;
            images.push_back(test::PixelsOf(image));
            for (std::size_t other = 0; other + 1 < images.size(); ++other)
                EXPECT_TRUE(images.back() != images[other]) << number << " looks like " << other + 1;
        }
    }
    for (const wchar_t* const name : {L"sources", L"files", L"settings"})
        EXPECT_EQ(Image(std::wstring(L"menu_") + name + L".lqi").GetWidth(), kTileWidth - 8);
}

TEST_F(Tiles, FitTogetherInAMenu) {
    std::array<CLQMenuItemCtrl, 6> tiles;
    constexpr const wchar_t* kCaptions[] = {L"Radio", L"Media", L"Sources", L"Gauges", L"Files", L"Settings"};
    for (int i = 0; i < 6; ++i) {
        SetUpTile(tiles[static_cast<std::size_t>(i)], i % 3, i / 3, kCaptions[i]);
        window_.AddChild(&tiles[static_cast<std::size_t>(i)]);
    }
    tiles[0].SetImage(L"menu_radio_%d.lqi", kImages, 228, 132, 100);
    tiles[1].SetImage(L"menu_media_%d.lqi", kImages, 228, 132, 100);
    tiles[2].SetImage(L"menu_sources.lqi", 1, 228, 132, 1000);
    tiles[3].SetImage(L"menu_gauges_%d.lqi", kImages, 228, 132, 100);
    tiles[4].SetImage(L"menu_files.lqi", 1, 228, 132, 1000);
    tiles[5].SetImage(L"menu_settings.lqi", 1, 228, 132, 1000);
    tiles[0].EnableCurSource(true);
    tiles[4].EnableDesableState(true);
    tiles[4].EnableRectAshSurf(true);
    window_.SetFocusCtrl(&tiles[2]);
    scene_.Advance(200);
    scene_.Press(100, 350);
    SetCursorState(true);
    EXPECT_TRUE(LooksLike("demo-menu"));
    SetCursorState(false);
}

TEST_F(Tiles, FitTogetherInAListOfSources) {
    std::array<std::vector<CLQSurfHandle>, 4> looks;
    std::array<std::vector<CLQSurfHandle*>, 4> icons;
    for (std::size_t state = 0; state < 4; ++state) {
        for (const wchar_t* const cell : kCells)
            looks[state].push_back(Image(std::wstring(L"switch_") + cell + kStates[state]));
        for (CLQSurfHandle& look : looks[state]) {
            EXPECT_EQ(look.GetWidth(), 240);
            EXPECT_EQ(look.GetHeight(), 80);
            icons[state].push_back(&look);
        }
    }
    std::array<CLQSwitchList, 3> lists;
    std::vector<std::wstring> captions = {L"Radio",      L"DAB radio", L"Disc",  L"USB music", L"More",
                                          L"iPod music", L"Bluetooth", L"AUX 1", L"TV",        L"Back"};
    _LQColor colors[] = {{230, 238, 250, 255}, {255, 255, 255, 255}, {255, 181, 74, 255}, {79, 95, 125, 255}};
    for (int i = 0; i < 3; ++i) {
        CLQSwitchList& list = lists[static_cast<std::size_t>(i)];
        list.Create(20 + 260 * i, 70, 240, 400);
        list.SetBkgSurf(L"SwitchBkg.lqi");
        list.SetIconNumPrePage(5);
        list.SetIconNormalSurf(icons[0]);
        list.SetIconActiveSurf(icons[1]);
        list.SetIconFocusSurf(icons[2]);
        list.SetIconDisableSurf(icons[3]);
        list.SetText(captions);
        list.SetFontSize(17, 17);
        for (int slot = 0; slot < 4; ++slot)
            list.SetTextColor(static_cast<_eTextColorType>(slot), colors[slot]);
        window_.AddChild(&list);
    }
    lists[0].SetFouceIndex(1);
    lists[1].SetPageDown(true);
    lists[2].SetDisable(true);
    scene_.Press(100, 70 + 2 * 80 + 20);
    EXPECT_TRUE(LooksLike("demo-source-list"));
}

}  // namespace korvane::demo
