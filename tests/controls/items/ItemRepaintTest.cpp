#include <gtest/gtest.h>

#include "engine/widgets/elements/TextElement.h"
#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/items/TestSwitchList.h"
#include "tests/controls/items/TestTile.h"
#include "tests/support/AllocationCount.h"

namespace korvane::test {
namespace {

TEST(SwitchListRepaint, AllocatesNothingOnceItsCaptionsWereShown) {
    Scene scene(200, 280);
    CLQWindow window;
    _LQColor navy = {16, 32, 72, 255};
    window.Create(0, 0, 200, 280);
    window.EnableBkgColor(true, &navy);
    ListIcons icons;
    TestSwitchList list;
    list.Prepare(icons);
    std::vector<std::wstring> texts = {L"Radio",   L"Media", L"Navigation", L"Telephone",  L"More",
                                       L"AUX one", L"AUX 2", L"Camera",     L"Television", L"Back"};
    list.SetText(texts);
    window.AddChild(&list);
    const auto showAll = [&] {
        for (int item = 0; item < kItems; ++item) {
            list.SetPageDown(item >= kCells);
            list.SetFouceIndex(item);
            scene.Pump();
        }
        list.SetDisable(true);
        scene.Pump();
        list.SetDisable(false);
        scene.Pump();
    };
    showAll();

    CLQScreen::GetInstance()->ResetCounters();
    const int before = AllocationCount();
    showAll();
    EXPECT_EQ(AllocationCount(), before);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, kItems + 2u);
}

TEST(MenuItemRepaint, AllocatesNothingOnceItsImagesWereShownMissingOnesAmongThem) {
    Scene scene(200, 280);
    CLQSurfHandle image = Block(40, 30, {255, 170, 0, 128});
    for (const char* name : {"Frame1.lqi", "Frame2.lqi", "Frame4.lqi", "Piece.lqi"})
        WriteImage(scene.ImageFolder() / name, image);
    CLQWindow window;
    _LQColor navy = {16, 32, 72, 255};
    window.Create(0, 0, 200, 280);
    window.EnableBkgColor(true, &navy);
    TestTile tile;
    tile.SetImage(L"Frame%d.lqi", 4, 40, 30, 100);
    tile.SetBorderSurf(L"Piece.lqi", 0, 0, eBorder_Left);
    tile.SetTextShaderSurf(L"Piece.lqi");
    tile.SetPressedShaderSurf(L"Piece.lqi");
    tile.SetCurSourceSurf(L"Missing.lqi");
    tile.EnableCurSource(true);
    auto* caption = new CLQTextElement;
    caption->SetText(L"Radio");
    tile.BindTextElement(caption);
    window.AddChild(&tile);
    constexpr int kFrames = 4;
    for (int frame = 0; frame < kFrames; ++frame)
        scene.Advance(100);

    CLQScreen::GetInstance()->ResetCounters();
    const int before = AllocationCount();
    for (int frame = 0; frame < 3 * kFrames; ++frame)
        scene.Advance(100);
    EXPECT_EQ(AllocationCount(), before);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 3u * kFrames);
}

}  // namespace
}  // namespace korvane::test
