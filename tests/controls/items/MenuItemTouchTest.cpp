#include <gtest/gtest.h>
#include <limits>
#include <memory>

#include "engine/system/System.h"
#include "engine/window/Screen.h"
#include "platform/coredll.h"

#include "tests/controls/Touches.h"
#include "tests/controls/items/TestTile.h"

namespace korvane::test {
namespace {

constexpr int kX = kTileX + 10;
constexpr int kY = kTileY + 10;
constexpr unsigned kLongPress = 2000;

/// A tile without a window; posted commands are read from the queue.
class MenuItemMessage : public testing::Test {
  protected:
    /// The commands that wait in the queue.
    std::vector<MSG> Posted() {
        std::vector<MSG> posted;
        MSG msg;
        while (PeekMessageW(&msg, nullptr, kMsgCommand, kMsgCommand, PM_REMOVE))
            posted.push_back(msg);
        return posted;
    }

    Scene scene;
    TileListener listener;
    TestTile tile;
};

TEST_F(MenuItemMessage, TakesAPressInsideAndTellsOfIt) {
    tile.AddCallBack(kEventPressed, &listener, &TileListener::OnPressed);
    EXPECT_FALSE(Press(tile, kTileX - 1, kY));
    EXPECT_FALSE(Press(tile, kTileX + kTileWidth, kY));
    EXPECT_FALSE(Press(tile, kX, kTileY - 1));
    EXPECT_FALSE(Press(tile, kX, kTileY + kTileHeight));
    EXPECT_TRUE(listener.pressed.empty());
    EXPECT_TRUE(Press(tile, kTileX, kTileY));
    EXPECT_TRUE(tile.IsPressed());
    EXPECT_EQ(listener.pressed, std::vector<TestTile*>{&tile});
    EXPECT_TRUE(Posted().empty());
}

TEST_F(MenuItemMessage, PostsTheClickCommandToTheScreenWhereverTheReleaseIs) {
    Press(tile, kX, kY);
    EXPECT_TRUE(Release(tile, 700, -400));
    EXPECT_FALSE(tile.IsPressed());
    const std::vector<MSG> posted = Posted();
    ASSERT_EQ(posted.size(), 1u);
    EXPECT_EQ(posted[0].hwnd, CLQScreen::GetInstance()->GetHWND());
    EXPECT_EQ(posted[0].message, 273u);
    EXPECT_EQ(posted[0].wParam, reinterpret_cast<WPARAM>(&tile));
    EXPECT_EQ(posted[0].lParam, 514);
}

TEST_F(MenuItemMessage, IgnoresWhatIsNotForIt) {
    EXPECT_FALSE(tile.DoMessage(nullptr));
    EXPECT_FALSE(Release(tile, kX, kY));
    EXPECT_FALSE(Drag(tile, kX, kY));
    EXPECT_TRUE(Press(tile, kX, kY));
    EXPECT_FALSE(Drag(tile, kX, kY));
    EXPECT_FALSE(Hand(tile, kMsgKeyDown, kX, kY));
    EXPECT_FALSE(Hand(tile, kMsgSysInfoChanged, kX, kY));
    EXPECT_TRUE(Posted().empty());
    EXPECT_TRUE(Release(tile, kX, kY));
    EXPECT_FALSE(Release(tile, kX, kY));
    EXPECT_EQ(Posted().size(), 1u);
}

TEST_F(MenuItemMessage, TakesTouchesInItsDisabledLook) {
    tile.AddCallBack(kEventPressed, &listener, &TileListener::OnPressed);
    tile.EnableDesableState(true);
    EXPECT_TRUE(tile.IsDesableState());
    EXPECT_TRUE(Press(tile, kX, kY));
    EXPECT_TRUE(Release(tile, kX, kY));
    EXPECT_EQ(listener.pressed.size(), 1u);
    EXPECT_EQ(Posted().size(), 1u);
}

TEST_F(MenuItemMessage, ShowsItsPressAtOnce) {
    tile.Redraw(false);
    Press(tile, kX, kY);
    EXPECT_TRUE(tile.IsNeedRedraw());
    tile.Redraw(false);
    Release(tile, kX, kY);
    EXPECT_TRUE(tile.IsNeedRedraw());
}

TEST_F(MenuItemMessage, PostsWithoutAScreenToNoWindow) {
    CLQScreen::GetInstance()->Close();
    Press(tile, kX, kY);
    EXPECT_TRUE(Release(tile, kX, kY));
    for (const MSG& msg : Posted())
        EXPECT_EQ(msg.hwnd, nullptr);
}

class MenuItemLongPress : public testing::Test {
  protected:
    MenuItemLongPress() {
        listener.Create(0, 0, 400, 300);
        listener.AddChild(&tile);
        tile.EnableImagePlay(false);
        tile.AddCallBack(kEventLongPress, &listener, &TileListener::OnLongPress);
    }

    Scene scene;
    TileListener listener;
    TestTile tile;
};

TEST_F(MenuItemLongPress, IsToldWhenThePressHasLasted) {
    scene.Press(kX, kY);
    scene.Advance(kLongPress - 1);
    EXPECT_TRUE(listener.longPressed.empty());
    EXPECT_FALSE(tile.HasResponseLongPress());
    scene.Advance(1);
    EXPECT_EQ(listener.longPressed, std::vector<TestTile*>{&tile});
    EXPECT_FALSE(listener.wasAnswered) << "not before its handler has run";
    EXPECT_TRUE(tile.HasResponseLongPress());
    EXPECT_FALSE(tile.IsTimingLongPress());
    scene.Advance(10 * kLongPress);
    EXPECT_EQ(listener.longPressed.size(), 1u) << "once";
    EXPECT_TRUE(tile.IsPressed());
}

TEST_F(MenuItemLongPress, EndsWithTheClickCommandAllTheSame) {
    scene.Press(kX, kY);
    scene.Advance(kLongPress);
    EXPECT_TRUE(listener.commands.empty());
    scene.Release(kX, kY);
    ASSERT_EQ(listener.commands.size(), 1u);
    EXPECT_EQ(listener.commands[0].source, &tile);
    EXPECT_EQ(listener.commands[0].param, 514);
    EXPECT_TRUE(tile.HasResponseLongPress());
    scene.Press(kX, kY);
    EXPECT_FALSE(tile.HasResponseLongPress()) << "a new press";
    scene.Release(kX, kY);
    EXPECT_FALSE(tile.HasResponseLongPress());
    EXPECT_EQ(listener.commands.size(), 2u);
}

TEST_F(MenuItemLongPress, DoesNotComeAfterARelease) {
    scene.Press(kX, kY);
    scene.Advance(kLongPress - 1);
    scene.Release(kX, kY);
    EXPECT_FALSE(tile.IsTimingLongPress());
    scene.Advance(2 * kLongPress);
    EXPECT_TRUE(listener.longPressed.empty());
    scene.Press(kX, kY);
    scene.Advance(kLongPress - 1);
    EXPECT_TRUE(listener.longPressed.empty()) << "each press counts from its own start";
    scene.Advance(1);
    EXPECT_EQ(listener.longPressed.size(), 1u);
}

TEST_F(MenuItemLongPress, IsNotTimedWhenNobodyAsksForIt) {
    TestTile silent;
    silent.EnableImagePlay(false);
    for (int record = 0; record < 4; ++record) {
        auto gone = std::make_unique<TileListener>();
        void (CLQWnd::*noHandler)() = nullptr;
        if (record == 1)
            silent.AddCallBack(kEventLongPress, nullptr, noHandler);
        else if (record == 2)
            silent.AddCallBack(kEventLongPress, &listener, noHandler);
        else if (record == 3)
            silent.AddCallBack(kEventLongPress, gone.get(), &TileListener::OnLongPress);
        gone.reset();
        Press(silent, kX, kY);
        EXPECT_FALSE(silent.HasLongPressTimer()) << record;
        scene.Advance(2 * kLongPress);
        EXPECT_FALSE(silent.HasResponseLongPress()) << record;
        Release(silent, kX, kY);
    }
}

TEST_F(MenuItemLongPress, ComesAfterTheTimeThatWasSet) {
    tile.SetLongPressTime(300);
    scene.Press(kX, kY);
    scene.Advance(299);
    EXPECT_TRUE(listener.longPressed.empty());
    scene.Advance(1);
    EXPECT_EQ(listener.longPressed.size(), 1u);
    scene.Release(kX, kY);

    scene.Press(kX, kY);
    scene.Advance(200);
    tile.SetLongPressTime(500);
    scene.Advance(499);
    EXPECT_EQ(listener.longPressed.size(), 1u) << "the new time counts from when it was set";
    scene.Advance(1);
    EXPECT_EQ(listener.longPressed.size(), 2u);
    scene.Release(kX, kY);
    tile.SetLongPressTime(80);
    EXPECT_FALSE(tile.IsTimingLongPress()) << "setting the time starts nothing";
}

TEST_F(MenuItemLongPress, ComesAsSoonAsTimersCanForNoTimeAtAll) {
    for (const int none : {0, -1, std::numeric_limits<int>::min()}) {
        listener.longPressed.clear();
        tile.SetLongPressTime(none);
        scene.Press(kX, kY);
        EXPECT_TRUE(listener.longPressed.empty()) << none;
        scene.Advance(10);
        EXPECT_EQ(listener.longPressed.size(), 1u) << none;
        scene.Release(kX, kY);
    }
}

TEST_F(MenuItemLongPress, EndsWithTheFocusButThePressGoesOn) {
    tile.EnableFocus(true);
    listener.SetFocusCtrl(&tile);
    scene.Press(kX, kY);
    listener.SetFocusCtrl(nullptr);
    EXPECT_FALSE(tile.IsTimingLongPress());
    EXPECT_TRUE(tile.IsPressed());
    scene.Advance(2 * kLongPress);
    EXPECT_TRUE(listener.longPressed.empty());
    scene.Release(kX, kY);
    EXPECT_EQ(listener.commands.size(), 1u);
    tile.OnLostFocus();
}

TEST_F(MenuItemLongPress, DoesNotComeToATileThatWasHiddenOrDisabledMeanwhile) {
    for (int way = 0; way < 4; ++way) {
        scene.Press(kX, kY);
        scene.Advance(100);
        if (way == 0)
            tile.SetShow(false);
        else if (way == 1)
            tile.EnableWindow(false);
        else if (way == 2)
            listener.SetShow(false);
        else
            tile.DropPress();
        scene.Advance(2 * kLongPress);
        EXPECT_TRUE(listener.longPressed.empty()) << way;
        EXPECT_FALSE(tile.HasResponseLongPress()) << way;
        EXPECT_FALSE(tile.IsTimingLongPress()) << way;
        scene.Release(kX, kY);
        tile.SetShow(true);
        tile.EnableWindow(true);
        listener.SetShow(true);
    }
    EXPECT_TRUE(listener.commands.empty());
    scene.Press(kX, kY);
    scene.Advance(kLongPress);
    EXPECT_EQ(listener.longPressed.size(), 1u);
}

TEST_F(MenuItemLongPress, OfAPressThatWasDroppedDoesNotCountForTheNextOne) {
    scene.Press(kX, kY);
    scene.Advance(kLongPress - 100);
    tile.DropPress();
    void (CLQWnd::*noHandler)() = nullptr;
    tile.AddCallBack(kEventLongPress, nullptr, noHandler);
    scene.Press(kX, kY);
    scene.Advance(2 * kLongPress);
    EXPECT_FALSE(tile.HasResponseLongPress());
}

TEST_F(MenuItemLongPress, IsToldByATickOfItsOwnToo) {
    tile.OnLongPressTimer(nullptr, 0);
    EXPECT_EQ(listener.longPressed.size(), 1u);
    EXPECT_TRUE(tile.HasResponseLongPress());
}

TEST_F(MenuItemLongPress, ComesByKeysAsByTouch) {
    tile.EnableFocus(true);
    listener.SetFocusCtrl(&tile);
    SetCursorState(true);
    scene.Key(VK_RETURN);
    ASSERT_EQ(listener.commands.size(), 1u);
    EXPECT_EQ(listener.commands[0].source, &tile);
    EXPECT_TRUE(listener.longPressed.empty());
    SetCursorState(false);
}

TEST_F(MenuItemLongPress, MayDeleteTheTile) {
    auto* doomed = new TestTile;
    doomed->MoveTo(200, 100);
    doomed->AddCallBack(kEventLongPress, &listener, &TileListener::OnDelete);
    listener.AddChild(doomed);
    const LifeWatch life = doomed->WatchLife();
    scene.Press(210, 110);
    scene.Advance(kLongPress);
    EXPECT_FALSE(life.IsAlive());
    scene.Release(210, 110);
    scene.Advance(kLongPress);
    EXPECT_TRUE(listener.commands.empty());
}

TEST_F(MenuItemLongPress, EndsWithItsTile) {
    auto* doomed = new TestTile;
    doomed->MoveTo(200, 100);
    doomed->AddCallBack(kEventLongPress, &listener, &TileListener::OnLongPress);
    listener.AddChild(doomed);
    scene.Press(210, 110);
    scene.Advance(100);
    delete doomed;
    scene.Advance(2 * kLongPress);
    scene.Release(210, 110);
    EXPECT_TRUE(listener.longPressed.empty());
    EXPECT_TRUE(listener.commands.empty());
}

TEST_F(MenuItemLongPress, IsNotTimedForATileThatItsPressHandlerDeletes) {
    auto* doomed = new TestTile;
    doomed->MoveTo(200, 100);
    doomed->AddCallBack(kEventPressed, &listener, &TileListener::OnDelete);
    doomed->AddCallBack(kEventLongPress, &listener, &TileListener::OnLongPress);
    listener.AddChild(doomed);
    scene.Press(210, 110);
    scene.Advance(2 * kLongPress);
    scene.Release(210, 110);
    EXPECT_TRUE(listener.longPressed.empty());
    EXPECT_TRUE(listener.commands.empty());
}

TEST_F(MenuItemLongPress, CommandOfADeletedTileNamesItsAddressOnly) {
    auto* doomed = new TestTile;
    doomed->MoveTo(200, 100);
    listener.AddChild(doomed);
    Press(*doomed, 210, 110);
    Release(*doomed, 210, 110);
    const void* const address = doomed;
    delete doomed;
    scene.Pump();
    ASSERT_EQ(listener.commands.size(), 1u);
    EXPECT_EQ(listener.commands[0].source, address);
}

/// A menu that goes, with its tile, when it hears of it.
class DoomedMenu : public CLQWindow {
  public:
    DoomedMenu() {
        Create(0, 0, 400, 300);
        AddChild(new TestTile);  // the window deletes it
    }
    TestTile& Tile() { return *static_cast<TestTile*>(GetChild(0)); }
    bool DoCommand(_LQMessage*) override {
        delete this;
        return true;
    }
    void OnTile(TestTile*) { delete this; }
};

class MenuItemInDoomedMenu : public testing::Test {
  protected:
    MenuItemInDoomedMenu() : menu(new DoomedMenu), tileLife(menu->Tile().WatchLife()) { scene.Pump(); }

    void ExpectGone() {
        EXPECT_FALSE(tileLife.IsAlive());
        EXPECT_EQ(CLQScreen::GetInstance()->GetWindowCount(), 0);
        scene.Release(kX, kY);
        scene.Advance(2 * kLongPress);
    }

    Scene scene;
    DoomedMenu* menu;  // deletes itself
    LifeWatch tileLife;
};

TEST_F(MenuItemInDoomedMenu, SurvivesAPressHandlerThatDeletesTheWindow) {
    menu->Tile().AddCallBack(kEventPressed, menu, &DoomedMenu::OnTile);
    menu->Tile().AddCallBack(kEventLongPress, menu, &DoomedMenu::OnTile);
    scene.Press(kX, kY);
    ExpectGone();
}

TEST_F(MenuItemInDoomedMenu, SurvivesALongPressHandlerThatDeletesTheWindow) {
    menu->Tile().AddCallBack(kEventLongPress, menu, &DoomedMenu::OnTile);
    scene.Press(kX, kY);
    ASSERT_TRUE(tileLife.IsAlive());
    scene.Advance(kLongPress);
    ExpectGone();
}

TEST_F(MenuItemInDoomedMenu, SurvivesAClickThatDeletesTheWindow) {
    scene.Press(kX, kY);
    ASSERT_TRUE(tileLife.IsAlive());
    scene.Release(kX, kY);
    ExpectGone();
}

}  // namespace
}  // namespace korvane::test
