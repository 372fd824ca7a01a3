#include <gtest/gtest.h>
#include <memory>

#include "platform/Simulation.h"

#include "tests/support/Scene.h"
#include "tests/window/Probe.h"

namespace {

using korvane::test::Probe;
using korvane::test::Scene;

class Input : public ::testing::Test {
  protected:
    void SetUp() override {
        window.Create(0, 0, 800, 480);
        left.Create(10, 10, 100, 100);
        right.Create(200, 10, 100, 100);
        window.AddChild(&left);
        window.AddChild(&right);
    }

    Scene scene;
    CLQWindow window;
    Probe left;
    Probe right;
};

unsigned LastCode(const Probe& probe) {
    return probe.messages.empty() ? 0 : probe.messages.back().code;
}

TEST_F(Input, GivesMoveAndReleaseToTheControlThatTookThePressWhereverTheFingerIs) {
    scene.Press(20, 20);
    scene.Move(250, 50);
    EXPECT_EQ(LastCode(left), korvane::kMsgMove);
    scene.Release(700, 400);
    EXPECT_EQ(left.releases, 1);
    EXPECT_EQ(right.messages.size(), 1U) << "the right control saw the press alone, and did not take it";
}

TEST_F(Input, EndsAPressAtTheTopmostControlThatConsumesIt) {
    right.MoveTo(10, 10);
    scene.Press(20, 20);
    scene.Release(20, 20);
    EXPECT_EQ(right.releases, 1);
    EXPECT_EQ(left.messages.size(), 0U);
}

TEST_F(Input, KeepsPressesFromHiddenDisabledAndDeafControls) {
    left.SetShow(false);
    scene.Press(20, 20);
    scene.Release(20, 20);
    left.SetShow(true);
    left.EnableWindow(false);
    scene.Press(20, 20);
    scene.Release(20, 20);
    left.EnableWindow(true);
    left.EnableRecvMsg(false);
    scene.Press(20, 20);
    scene.Release(20, 20);
    EXPECT_TRUE(left.messages.empty());
    left.EnableRecvMsg(true);
    scene.Press(20, 20);
    EXPECT_EQ(LastCode(left), korvane::kMsgPress);
}

TEST_F(Input, DropsAPressWhenItsControlIsHiddenMeanwhile) {
    scene.Press(20, 20);
    left.SetShow(false);
    scene.Release(20, 20);
    EXPECT_EQ(left.releases, 0);
    left.SetShow(true);
    EXPECT_FALSE(left.IsPressed());
}

TEST_F(Input, DropsAPressWhenItsControlTurnsDeafMeanwhile) {
    scene.Press(20, 20);
    left.EnableRecvMsg(false);
    scene.Release(20, 20);
    EXPECT_EQ(left.releases, 0);
    EXPECT_FALSE(left.IsPressed());
}

TEST_F(Input, DropsAPressWhenItsGroupIsDisabledOrItsWindowHiddenMeanwhile) {
    CLQGroupCtrl group;
    Probe inner;
    inner.Create(300, 300, 50, 50);
    group.AddChild(&inner);
    window.AddChild(&group);
    scene.Press(310, 310);
    group.EnableWindow(false);
    scene.Release(310, 310);
    EXPECT_EQ(inner.releases, 0);
    EXPECT_FALSE(inner.IsPressed());
    group.EnableWindow(true);
    scene.Press(310, 310);
    window.SetShow(false);
    scene.Release(310, 310);
    EXPECT_EQ(inner.releases, 0);
    EXPECT_FALSE(inner.IsPressed());
}

TEST_F(Input, DropsAPressWhenItsWindowIsDisabledOrTurnsDeafMeanwhile) {
    scene.Press(20, 20);
    window.EnableWindow(false);
    scene.Release(20, 20);
    EXPECT_FALSE(left.IsPressed());
    window.EnableWindow(true);
    scene.Press(20, 20);
    EXPECT_TRUE(left.IsPressed());
    window.EnableRecvMsg(false);
    scene.Release(20, 20);
    EXPECT_FALSE(left.IsPressed());
    EXPECT_EQ(left.releases, 0);
}

TEST_F(Input, DropsAPressWhenItsControlLeavesItsWindow) {
    scene.Press(20, 20);
    window.DelChild(&left, false);
    scene.Release(20, 20);
    window.AddChild(&left);
    EXPECT_FALSE(left.IsPressed());

    CLQGroupCtrl group;
    group.AddChild(&left);
    window.AddChild(&group);
    scene.Press(20, 20);
    group.DelChild(&left, false);
    scene.Release(20, 20);
    EXPECT_FALSE(left.IsPressed());
    EXPECT_EQ(left.releases, 0);
}

TEST_F(Input, ShowsAControlWhosePressWasDroppedAsItIs) {
    scene.Press(20, 20);
    scene.Pump();
    const int draws = left.draws;
    left.EnableRecvMsg(false);
    scene.Release(20, 20);
    scene.Pump();
    EXPECT_FALSE(left.IsPressed());
    EXPECT_EQ(left.draws, draws + 1);
}

TEST_F(Input, DropsAPressWhenAnotherOneFollowsWithoutARelease) {
    scene.Press(20, 20);
    scene.Press(210, 20);
    EXPECT_FALSE(left.IsPressed());
    EXPECT_TRUE(right.IsPressed());
    scene.Release(210, 20);
    EXPECT_EQ(left.releases, 0);
    EXPECT_EQ(right.releases, 1);
}

TEST_F(Input, DropsAPressWhenAReceiverIsNamedMeanwhile) {
    scene.Press(20, 20);
    window.SetRecvMsgCtrl(&right);
    scene.Release(20, 20);
    EXPECT_FALSE(left.IsPressed());
    EXPECT_EQ(LastCode(right), korvane::kMsgRelease);
}

TEST_F(Input, LeavesOutAControlThatAnotherOneHasJustRemoved) {
    right.MoveTo(10, 10);
    right.onMessage = [this](const _LQMessage&) { window.DelChild(&left, false); };
    right.SetSize(5, 5);
    scene.Press(50, 50);
    EXPECT_TRUE(left.messages.empty());
}

TEST_F(Input, DoesNotFollowAControlThatRemovedItselfDuringItsPress) {
    left.onMessage = [this](const _LQMessage&) { window.DelChild(&left, false); };
    scene.Press(20, 20);
    scene.Release(20, 20);
    EXPECT_EQ(left.messages.size(), 1U);
}

TEST_F(Input, GivesTheTopmostWindowUnderThePointTheFirstSay) {
    CLQWindow above;
    above.Create(0, 0, 150, 150);
    Probe covering;
    covering.Create(0, 0, 50, 50);
    above.AddChild(&covering);
    scene.Press(20, 20);
    scene.Release(20, 20);
    EXPECT_EQ(covering.releases, 1);
    EXPECT_EQ(left.releases, 0);
    scene.Press(80, 80);
    scene.Release(80, 80);
    EXPECT_EQ(left.releases, 1) << "a window without a background lets through what no control takes";
}

TEST_F(Input, IsHeldBackByAWindowWithABackground) {
    CLQWindow above;
    above.Create(0, 0, 150, 150);
    _LQColor gray{90, 90, 90, 255};
    above.EnableBkgColor(true, &gray);
    scene.Press(20, 20);
    scene.Release(20, 20);
    EXPECT_TRUE(left.messages.empty());
    above.EnableWindow(false);
    scene.Press(20, 20);
    scene.Release(20, 20);
    EXPECT_TRUE(left.messages.empty()) << "a disabled window holds back all the same";
    scene.Press(250, 50);
    scene.Release(250, 50);
    EXPECT_EQ(right.releases, 1) << "beside the window nothing is held back";
}

TEST_F(Input, GoesToTheNamedReceiverUntilTheNextRelease) {
    window.SetRecvMsgCtrl(&right);
    scene.Press(20, 20);
    scene.Release(20, 20);
    EXPECT_TRUE(left.messages.empty());
    EXPECT_EQ(right.messages.size(), 2U) << "press and release, also when it wants neither";
    EXPECT_EQ(LastCode(right), korvane::kMsgRelease);
    scene.Press(20, 20);
    EXPECT_EQ(LastCode(left), korvane::kMsgPress);
}

TEST_F(Input, ReachesControlsInsideGroups) {
    CLQGroupCtrl group;
    group.Create(0, 200, 10, 10);
    auto* inner = new Probe;
    inner->Create(300, 300, 50, 50);
    group.AddChild(inner);
    window.AddChild(&group);
    scene.Press(310, 310);
    scene.Move(0, 0);
    scene.Release(0, 0);
    EXPECT_EQ(inner->releases, 1) << "a group does not cut its children at its own edges";
    group.SetShow(false);
    scene.Press(310, 310);
    scene.Release(310, 310);
    EXPECT_EQ(inner->releases, 1);
}

TEST_F(Input, SurvivesAHandlerThatDeletesItsControl) {
    auto* doomed = new Probe;
    doomed->Create(400, 300, 50, 50);
    window.AddChild(doomed);
    struct Killer : CLQWindow {
        Probe* victim = nullptr;
        void OnReleased(Probe* sender) {
            EXPECT_EQ(sender, victim);
            delete victim;
        }
    } killer;
    killer.victim = doomed;
    doomed->AddCallBack(korvane::kEventReleased, &killer, &Killer::OnReleased);
    scene.Press(410, 310);
    scene.Release(410, 310);
    EXPECT_EQ(window.GetChild(2), nullptr);
    scene.Press(20, 20);
    scene.Release(20, 20);
    EXPECT_EQ(left.releases, 1);
}

TEST_F(Input, SurvivesAHandlerThatDeletesItsWindow) {
    auto* doomed = new CLQWindow;
    doomed->Create(0, 0, 800, 480);
    auto* button = new Probe;
    button->Create(10, 10, 100, 100);
    doomed->AddChild(button);
    button->onMessage = [doomed](const _LQMessage& msg) {
        if (msg.code == korvane::kMsgPress)
            delete doomed;
    };
    scene.Press(20, 20);
    scene.Release(20, 20);
    EXPECT_EQ(CLQScreen::GetInstance()->GetWindowCount(), 1);
}

TEST_F(Input, MovesTheFocusByKeysAndPressesIt) {
    left.EnableFocus(true);
    right.EnableFocus(true);
    EXPECT_FALSE(IsCursorState());
    scene.Key(VK_RIGHT);
    EXPECT_TRUE(IsCursorState());
    EXPECT_TRUE(left.IsFocus()) << "the first key shows the focus";
    scene.Key(VK_RIGHT);
    EXPECT_TRUE(right.IsFocus());
    EXPECT_FALSE(left.IsFocus());
    EXPECT_EQ(left.focusGained, 1);
    EXPECT_EQ(left.focusLost, 1);
    scene.Key(VK_RIGHT);
    EXPECT_TRUE(right.IsFocus()) << "nothing lies further right";
    scene.Key(VK_RETURN);
    EXPECT_EQ(right.releases, 1);
    scene.Key(VK_TAB);
    EXPECT_TRUE(left.IsFocus());
    scene.Press(250, 50);
    EXPECT_FALSE(IsCursorState()) << "a touch ends the cursor mode";
}

TEST_F(Input, ReleasesWhatAKeyPressedWhateverHappensMeanwhile) {
    left.EnableFocus(true);
    right.EnableFocus(true);
    scene.Key(VK_RIGHT);
    const HWND hwnd = CLQScreen::GetInstance()->GetHWND();
    korvane::PostInput(hwnd, WM_KEYDOWN, VK_RETURN, 0);
    korvane::PostInput(hwnd, WM_KEYDOWN, VK_RETURN, 0);
    scene.Pump();
    EXPECT_TRUE(left.IsPressed());
    scene.Press(700, 400);
    scene.Release(700, 400);
    korvane::PostInput(hwnd, WM_KEYUP, VK_RETURN, 0);
    scene.Pump();
    EXPECT_EQ(left.releases, 1);
    EXPECT_FALSE(left.IsPressed());
}

TEST_F(Input, TakesTheFocusFromAControlThatLeavesItsWindow) {
    left.EnableFocus(true);
    window.SetFocusCtrl(&left);
    window.DelChild(&left, false);
    EXPECT_FALSE(left.IsFocus());
    EXPECT_EQ(left.focusLost, 1);
    EXPECT_EQ(window.GetFocusCtrl(), nullptr);
}

TEST_F(Input, HandsSystemInformationChangesToEveryWindow) {
    struct Listener : CLQWindow {
        int item = 0;
        bool DoMessage(_LQMessage* msg) override {
            if (msg->code == korvane::kMsgSysInfoChanged)
                item = msg->param;
            return CLQWindow::DoMessage(msg);
        }
    };
    Listener first;
    Listener second;
    first.Create(0, 0, 10, 10);
    second.Create(0, 0, 10, 10);
    for (const int item : {17, 1, 28, 29, 1000, 0, -1}) {
        PostMessageW(CLQScreen::GetInstance()->GetHWND(), korvane::kMsgSysInfoChanged,
                     static_cast<WPARAM>(item), 0);
        scene.Pump();
        EXPECT_EQ(first.item, item) << "unchanged, also beyond the items that there are";
        EXPECT_EQ(second.item, item);
    }
}

TEST_F(Input, HandsACommandToTheWindowThatHoldsItsControl) {
    struct Commanded : CLQWindow {
        int commands = 0;
        const void* source = nullptr;
        int param = 0;
        bool DoCommand(_LQMessage* msg) override {
            ++commands;
            source = msg->source;
            param = msg->param;
            return true;
        }
    };
    Commanded owner;
    Commanded other;
    owner.Create(0, 0, 100, 100);
    other.Create(0, 0, 100, 100);
    CLQGroupCtrl group;
    Probe inner;
    group.AddChild(&inner);
    owner.AddChild(&group);
    PostMessageW(CLQScreen::GetInstance()->GetHWND(), korvane::kMsgCommand,
                 reinterpret_cast<WPARAM>(static_cast<CLQBaseCtrl*>(&inner)), 514);
    scene.Pump();
    EXPECT_EQ(owner.commands, 1);
    EXPECT_EQ(owner.source, static_cast<void*>(static_cast<CLQBaseCtrl*>(&inner)));
    EXPECT_EQ(owner.param, 514);
    EXPECT_EQ(other.commands, 0);
    PostMessageW(CLQScreen::GetInstance()->GetHWND(), korvane::kMsgCommand, 12345, 514);
    scene.Pump();
    EXPECT_EQ(other.commands, 1) << "an address that nobody knows goes to the topmost window that takes it";
}

TEST_F(Input, TakesPositionsLeftOfAndAboveTheScreenAsNegative) {
    scene.Press(20, 20);
    scene.Move(-7, -9);
    EXPECT_EQ(left.messages.back().x, -7);
    EXPECT_EQ(left.messages.back().y, -9);
}

TEST_F(Input, RefusesANullMessage) {
    EXPECT_FALSE(window.DoMessage(nullptr));
    CLQGroupCtrl group;
    EXPECT_FALSE(group.DoMessage(nullptr));
}

}  // namespace
