#include <gtest/gtest.h>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/files/TestFileView.h"
#include "tests/support/AllocationCount.h"

namespace korvane::test {
namespace {

TEST(FileViewRepaint, AllocatesNothingOnceItsNamesWereShown) {
    Scene scene(500, 480);
    CLQSurfHandle image = Filled(24, 21, {57, 208, 242, 128});
    for (const char* name : {"FileViewUp.lqi", "FileViewDown.lqi", "FileViewTop.lqi", "fileviewfolder.lqi"})
        WriteImage(scene.ImageFolder() / name, image);
    CLQWindow window;
    _LQColor navy = {16, 24, 40, 255};
    window.Create(0, 0, 500, 480);
    window.EnableBkgColor(true, &navy);
    TestFileView view;
    view.Create(kViewX, kViewY, kViewWidth, kViewHeight);
    view.ChangImage(L"Above", L"Below", L"Current", false);
    window.AddChild(&view);
    scene.Pump();

    CLQScreen::GetInstance()->ResetCounters();
    const int before = AllocationCount();
    for (int i = 0; i < 20; ++i) {
        view.Invalidate();
        scene.Pump();
    }
    EXPECT_EQ(AllocationCount(), before);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 20u);
}

}  // namespace
}  // namespace korvane::test
