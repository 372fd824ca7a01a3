#include <gtest/gtest.h>
#include <string>

#include "tests/support/Scene.h"
#include "tests/window/Probe.h"

namespace korvane::test {
namespace {

/// A control with the focus, in a group of a window, beside another window with a group. What happens when
/// its loss of the focus ends something while it leaves: nothing that is gone may be touched.
class LostFocus : public ::testing::Test {
  protected:
    LostFocus() {
        window->Create(0, 0, 800, 480);
        other->Create(0, 0, 800, 480);
        group->AddChild(probe);
        window->AddChild(group);
        other->AddChild(otherGroup);
        window->SetFocusCtrl(probe);
        windowLife = window->WatchLife();
        groupLife = group->WatchLife();
        probeLife = probe->WatchLife();
    }
    ~LostFocus() override {
        scene.Pump();
        if (windowLife.IsAlive())
            delete window;
        delete other;
    }

    Scene scene;
    CLQWindow* const window = new CLQWindow;
    CLQWindow* const other = new CLQWindow;
    CLQGroupCtrl* const group = new CLQGroupCtrl;
    CLQGroupCtrl* const otherGroup = new CLQGroupCtrl;
    Probe* const probe = new Probe;
    LifeWatch windowLife;
    LifeWatch groupLife;
    LifeWatch probeLife;
};

TEST_F(LostFocus, MayEndTheControlThatIsTakenOut) {
    probe->onLostFocus = [this] { delete probe; };
    EXPECT_TRUE(group->DelChild(probe, false));
    EXPECT_FALSE(probeLife.IsAlive());
    EXPECT_EQ(group->GetChild(0), nullptr);
}

TEST_F(LostFocus, MayEndTheControlThatIsTakenOutToBeDestroyed) {
    probe->onLostFocus = [this] { delete probe; };
    EXPECT_TRUE(group->DelChild(probe, true));
    EXPECT_FALSE(probeLife.IsAlive());
}

TEST_F(LostFocus, MayEndTheGroupThatTheControlIsTakenOutOf) {
    probe->onLostFocus = [this] { delete group; };
    EXPECT_TRUE(group->DelChild(probe, false));
    EXPECT_FALSE(groupLife.IsAlive());
    EXPECT_TRUE(probeLife.IsAlive());
    delete probe;
}

TEST_F(LostFocus, MayEndTheGroupThatIsTakenOut) {
    probe->onLostFocus = [this] { delete group; };
    EXPECT_TRUE(window->DelChild(group, true));
    EXPECT_FALSE(groupLife.IsAlive());
}

TEST_F(LostFocus, MayEndTheWindowThatTheGroupIsTakenOutOf) {
    probe->onLostFocus = [this] { delete window; };
    EXPECT_TRUE(window->DelChild(group, true));
    EXPECT_FALSE(windowLife.IsAlive());
    EXPECT_FALSE(groupLife.IsAlive());
}

TEST_F(LostFocus, MayEndTheControlThatMovesToAnotherGroup) {
    probe->onLostFocus = [this] { delete probe; };
    otherGroup->AddChild(probe);
    EXPECT_FALSE(probeLife.IsAlive());
    EXPECT_EQ(otherGroup->GetChild(0), nullptr);
}

TEST_F(LostFocus, MayEndTheControlThatMovesToAnotherWindow) {
    probe->onLostFocus = [this] { delete probe; };
    other->AddChild(probe);
    EXPECT_FALSE(probeLife.IsAlive());
}

TEST_F(LostFocus, MayEndTheGroupThatMovesToAnotherWindow) {
    probe->onLostFocus = [this] { delete group; };
    other->AddChild(group);
    EXPECT_FALSE(groupLife.IsAlive());
}

TEST_F(LostFocus, MayEndAChildOfTheGroupThatEnds) {
    probe->onLostFocus = [this] { delete probe; };
    delete group;
    EXPECT_FALSE(probeLife.IsAlive());
}

TEST_F(LostFocus, MayPutTheControlSomewhereElse) {
    probe->onLostFocus = [this] { otherGroup->AddChild(probe); };
    EXPECT_TRUE(group->DelChild(probe, false));
    EXPECT_EQ(probe->GetFatherWnd(), other);
}

TEST_F(LostFocus, ADrawingControlMayEndItsGroup) {
    group->Create(0, 0, 100, 100);
    probe->Create(0, 0, 50, 50);
    probe->onDraw = [this] { delete group; };
    scene.Pump();
    EXPECT_FALSE(groupLife.IsAlive());
}

TEST_F(LostFocus, ADrawingControlMayEndItsWindow) {
    group->Create(0, 0, 100, 100);
    probe->Create(0, 0, 50, 50);
    probe->onDraw = [this] { delete window; };
    scene.Pump();
    EXPECT_FALSE(windowLife.IsAlive());
}

}  // namespace
}  // namespace korvane::test
