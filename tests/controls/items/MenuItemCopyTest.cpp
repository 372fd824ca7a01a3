#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "engine/widgets/elements/TextElement.h"

#include "tests/controls/Touches.h"
#include "tests/controls/items/TestTile.h"

namespace korvane::test {
namespace {

constexpr int kX = kTileX + 10;
constexpr int kY = kTileY + 10;

/// The parameter: true for copy construction, false for assignment to a tile with looks of its own.
class MenuItemCopy : public testing::TestWithParam<bool> {
  protected:
    MenuItemCopy() : original(std::make_unique<TestTile>()) {
        for (int i = 1; i <= 3; ++i)
            WriteFrame(i, {static_cast<unsigned char>(60 * i), 160, 40, 255});
        WriteImage(scene.ImageFolder() / "Piece.lqi", piece);
        original->SetImage(L"Frame%d.lqi", 3, 40, 30, 100);
        original->SetImagePos(6, 4);
        original->SetBorderSurf(piece, 70, 70, eBorder_Left);
        original->SetPressedShaderSurf(piece);
        original->SetTextShaderSurf(L"Piece.lqi");
        original->SetCurSourceSurf(L"Piece.lqi");
        original->EnableCurSource(true);
        original->SetTextPos(50, 60);
        auto* element = new CLQTextElement;
        element->SetText(L"Radio");
        original->BindTextElement(element);
        original->AddCallBack(kEventLongPress, &listener, &TileListener::OnLongPress);
        original->SetLongPressTime(500);
    }

    void WriteFrame(int number, _LQColor color) {
        CLQSurfHandle frame = Block(40, 30, color);
        WriteImage(scene.ImageFolder() / ("Frame" + std::to_string(number) + ".lqi"), frame);
    }

    void Copy() {
        if (GetParam()) {
            copy = std::make_unique<TestTile>(*original);
            return;
        }
        copy = std::make_unique<TestTile>();
        copy->SetImage(L"Frame3.lqi", 1, 10, 10, 70);
        auto* element = new CLQTextElement;
        element->SetText(L"Other");
        copy->BindTextElement(element);
        copy->AddCallBack(kEventLongPress, &listener, &TileListener::OnLongPress);
        *copy = *original;
    }

    Scene scene;
    CLQSurfHandle piece = Block(30, 10, {255, 0, 255, 180});
    TileListener listener;
    std::unique_ptr<TestTile> original;
    std::unique_ptr<TestTile> copy;
};

TEST_P(MenuItemCopy, LooksLikeItsOriginal) {
    scene.Advance(100);
    Copy();
    EXPECT_EQ(copy->GetKind(), 50);
    EXPECT_EQ(copy->Frame(), 1);
    EXPECT_TRUE(copy->IsPlaying());
    int width = 0;
    int height = 0;
    copy->GetImageShowSize(width, height);
    EXPECT_EQ(width, 40);
    EXPECT_EQ(height, 30);
    EXPECT_EQ(LooksOf(*copy), LooksOf(*original));
}

TEST_P(MenuItemCopy, SharesTheImagesThatWereLoaded) {
    const auto looks = LooksOf(*original);
    Copy();
    WriteFrame(1, {255, 0, 0, 255});
    EXPECT_EQ(LooksOf(*copy), looks) << "the first image as it was loaded";
    original->ReleaseImageSurf();
    EXPECT_EQ(LooksOf(*copy), looks) << "and kept";
    EXPECT_NE(LooksOf(*original), looks);
}

TEST_P(MenuItemCopy, PlaysOnInTheOriginalAlone) {
    Copy();
    EXPECT_TRUE(copy->IsTicking());
    scene.Advance(100);
    EXPECT_EQ(original->Frame(), 1);
    EXPECT_EQ(copy->Frame(), 0);
    copy->OnRefreshTimer(nullptr, 0);
    EXPECT_EQ(copy->Frame(), 1);
    copy->EnableImagePlay(false);
    EXPECT_FALSE(original->IsTicking()) << "one timer";
    original->EnableImagePlay(true);
    EXPECT_TRUE(copy->IsTicking());
}

TEST_P(MenuItemCopy, HoldsNoPressAndHasALongPressOfItsOwn) {
    Press(*original, kX, kY);
    Copy();
    EXPECT_FALSE(copy->IsPressed());
    EXPECT_FALSE(Release(*copy, kX, kY));
    scene.Advance(500);
    EXPECT_EQ(listener.longPressed, std::vector<TestTile*>{original.get()});
    EXPECT_TRUE(original->HasResponseLongPress());
    Release(*original, kX, kY);

    Press(*copy, kX, kY);
    scene.Advance(499);
    EXPECT_EQ(listener.longPressed.size(), 1u);
    scene.Advance(1);
    EXPECT_EQ(listener.longPressed, (std::vector<TestTile*>{original.get(), copy.get()}));
    EXPECT_TRUE(copy->HasResponseLongPress());
    Release(*copy, kX, kY);

    Press(*original, kX, kY);
    scene.Advance(500);
    EXPECT_EQ(listener.longPressed.size(), 3u);
    EXPECT_EQ(listener.longPressed.back(), original.get());
}

TEST_P(MenuItemCopy, TimesALongPressByItsOwnTime) {
    Press(*original, kX, kY);
    Release(*original, kX, kY);
    Copy();
    copy->SetLongPressTime(900);
    Press(*original, kX, kY);
    scene.Advance(499);
    EXPECT_TRUE(listener.longPressed.empty());
    scene.Advance(1);
    EXPECT_EQ(listener.longPressed, std::vector<TestTile*>{original.get()});
    Release(*original, kX, kY);
    Press(*copy, kX, kY);
    scene.Advance(899);
    EXPECT_EQ(listener.longPressed.size(), 1u);
    scene.Advance(1);
    EXPECT_EQ(listener.longPressed.size(), 2u);
}

TEST_P(MenuItemCopy, EndsDuringALongPressOfItsOriginal) {
    Press(*original, kX, kY);
    Copy();
    copy.reset();
    scene.Advance(500);
    EXPECT_EQ(listener.longPressed, std::vector<TestTile*>{original.get()});
}

TEST_P(MenuItemCopy, OutlivesALongPressOfItsOriginal) {
    Press(*original, kX, kY);
    Copy();
    original.reset();
    scene.Advance(2000);
    EXPECT_TRUE(listener.longPressed.empty());
    EXPECT_FALSE(copy->HasResponseLongPress());
    Press(*copy, kX, kY);
    scene.Advance(500);
    EXPECT_EQ(listener.longPressed, std::vector<TestTile*>{copy.get()});
}

TEST_P(MenuItemCopy, ShowsTheSharedCaptionOnItself) {
    const auto looks = LooksOf(*original);
    Copy();
    copy->MoveTo(kTileX + 20, kTileY + 10);
    const auto moved = LooksOf(*copy);
    EXPECT_NE(moved, looks);
    copy->MoveTo(kTileX, kTileY);
    EXPECT_EQ(LooksOf(*copy), looks);
    EXPECT_EQ(LooksOf(*original), looks);
}

TEST_P(MenuItemCopy, AsksForARepaintWhenTheSharedCaptionFollowsTheLanguage) {
    auto* element = new CLQTextElement;
    element->SetLangID(7);
    original->BindTextElement(element);
    Copy();
    original->ChangeLanguage();
    copy->Redraw(false);
    copy->ChangeLanguage();
    EXPECT_TRUE(copy->IsNeedRedraw()) << "also when the caption has its new text by then";
}

TEST_P(MenuItemCopy, UnbindsTheSharedCaptionFromItselfAlone) {
    Copy();
    const auto looks = LooksOf(*original);
    copy->BindTextElement(nullptr);
    EXPECT_EQ(LooksOf(*original), looks);
    EXPECT_NE(LooksOf(*copy), looks);
}

TEST_P(MenuItemCopy, EndsBeforeItsOriginal) {
    const auto looks = LooksOf(*original);
    Copy();
    copy.reset();
    EXPECT_EQ(LooksOf(*original), looks);
    scene.Advance(100);
    EXPECT_EQ(original->Frame(), 1);
}

TEST_P(MenuItemCopy, OutlivesItsOriginal) {
    const auto looks = LooksOf(*original);
    Copy();
    original.reset();
    EXPECT_EQ(LooksOf(*copy), looks);
    scene.Advance(1000);
    EXPECT_EQ(copy->Frame(), 0);
    EXPECT_EQ(LooksOf(*copy), looks);
}

TEST_P(MenuItemCopy, LeavesItsCaptionToOthersWhenItsOriginalIsGone) {
    Copy();
    original.reset();
    const auto looks = LooksOf(*copy);
    TestTile third(*copy);
    copy.reset();
    EXPECT_EQ(LooksOf(third), looks);
}

INSTANTIATE_TEST_SUITE_P(Tiles, MenuItemCopy, testing::Bool(), [](const auto& way) {
    return way.param ? std::string("Constructed") : std::string("Assigned");
});

TEST(MenuItemAssignment, LeavesThePressOfTheTileThatItChanges) {
    Scene scene;
    TileListener listener;
    TestTile tile;
    TestTile other;
    tile.AddCallBack(kEventLongPress, &listener, &TileListener::OnLongPress);
    Press(tile, kX, kY);
    tile = other;
    EXPECT_FALSE(tile.IsTimingLongPress());
    scene.Advance(5000);
    EXPECT_TRUE(listener.longPressed.empty());
    EXPECT_TRUE(Release(tile, kX, kY));
}

TEST(MenuItemCopyOfItself, ChangesNothing) {
    Scene scene;
    TestTile tile;
    auto* element = new CLQTextElement;
    element->SetText(L"Radio");
    tile.BindTextElement(element);
    const auto looks = LooksOf(tile);
    TestTile& same = tile;
    tile = same;
    EXPECT_EQ(LooksOf(tile), looks);
    EXPECT_TRUE(tile.IsTicking());
}

}  // namespace
}  // namespace korvane::test
