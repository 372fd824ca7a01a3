#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "controls/MenuItemCtrl.h"
#include "engine/draw/SurfManager.h"
#include "engine/window/Window.h"

#include "tests/support/Scene.h"

namespace korvane::test {

constexpr int kTileX = 30;
constexpr int kTileY = 20;
constexpr int kTileWidth = 100;
constexpr int kTileHeight = 80;

/// A menu item that lets tests read what a derived class can read.
class TestTile : public CLQMenuItemCtrl {
  public:
    TestTile() { Create(kTileX, kTileY, kTileWidth, kTileHeight); }

    int Frame() const { return m_nFrame; }
    bool IsPlaying() const { return m_bPlaying; }
    bool IsTicking() { return m_timerRefresh.IsActived(); }
    bool IsTimingLongPress() const { return m_pLongPressTimer && m_pLongPressTimer->IsActived(); }
    bool HasLongPressTimer() const { return m_pLongPressTimer != nullptr; }
};

inline CLQSurfHandle Block(int width, int height, _LQColor color) {
    CLQSurfHandle block =
        CLQSurfManager::GetInstance()->CreateSurface(width, height, eSurface_ARGB8888, true);
    block.FillRect(0, 0, width, height, color, false);
    return block;
}

/// What the tile paints without a window, over a grey canvas.
inline CLQSurfHandle TileCanvas() {
    return Block(170, 130, {110, 130, 150, 255});
}

inline std::vector<std::uint32_t> LooksOf(CLQMenuItemCtrl& tile) {
    CLQSurfHandle canvas = TileCanvas();
    tile.Draw(canvas);
    return PixelsOf(canvas);
}

/// Paints by hand what a tile is expected to look like. Positions count from the tile's top-left corner.
class TileDrawing {
  public:
    TileDrawing& Image(CLQSurfHandle image, int x, int y) {
        return Image(image, x, y, image.GetWidth(), image.GetHeight());
    }
    TileDrawing& Image(CLQSurfHandle image, int x, int y, int width, int height) {
        canvas_.BitBlt(image, kTileX + x, kTileY + y, width, height, 0, 0);
        return *this;
    }
    CLQSurfHandle& Canvas() { return canvas_; }
    std::vector<std::uint32_t> Pixels() const { return PixelsOf(canvas_); }

  private:
    CLQSurfHandle canvas_ = TileCanvas();
};

/// A window that notes what its tiles tell.
class TileListener : public CLQWindow {
  public:
    bool DoCommand(_LQMessage* msg) override {
        commands.push_back(*msg);
        return true;
    }
    void OnPressed(TestTile* sender) { pressed.push_back(sender); }
    void OnLongPress(TestTile* sender) {
        longPressed.push_back(sender);
        wasAnswered = sender->HasResponseLongPress();
    }
    void OnDelete(TestTile* sender) { delete sender; }

    std::vector<_LQMessage> commands;
    std::vector<TestTile*> pressed;
    std::vector<TestTile*> longPressed;
    bool wasAnswered = false;
};

}  // namespace korvane::test
