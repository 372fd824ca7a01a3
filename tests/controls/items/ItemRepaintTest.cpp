#include <gtest/gtest.h>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/items/TestSwitchList.h"
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

}  // namespace
}  // namespace korvane::test
