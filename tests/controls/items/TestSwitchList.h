#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "controls/SwitchList.h"
#include "engine/draw/SurfManager.h"
#include "engine/text/FontManager.h"

#include "tests/support/Scene.h"

namespace korvane::test {

constexpr int kListX = 30;
constexpr int kListY = 20;
constexpr int kListWidth = 80;
constexpr int kListHeight = 200;
constexpr int kCells = 5;
constexpr int kCellHeight = kListHeight / kCells;
constexpr int kItems = 10;

/// The middle of a cell in the coordinates of the list's own position.
constexpr int CellY(int cell) {
    return kListY + cell * kCellHeight + kCellHeight / 2;
}

inline CLQSurfHandle NewPicture(int width, int height, _LQColor color) {
    CLQSurfHandle picture =
        CLQSurfManager::GetInstance()->CreateSurface(width, height, eSurface_ARGB8888, true);
    picture.FillRect(0, 0, width, height, color, false);
    return picture;
}

/// What the list paints without a window, over a grey canvas.
inline CLQSurfHandle ListCanvas() {
    return NewPicture(160, 260, {110, 130, 150, 255});
}

/// Icons of one look, as an application holds them: their colour tells look and item apart.
struct IconSet {
    IconSet(int count, int width, int height, unsigned char red) {
        for (int i = 0; i < count; ++i)
            surfaces.push_back(NewPicture(width, height, {red, static_cast<unsigned char>(20 * i), 90, 255}));
    }

    std::vector<CLQSurfHandle*> Borrow() {
        std::vector<CLQSurfHandle*> icons;
        for (CLQSurfHandle& surface : surfaces)
            icons.push_back(&surface);
        return icons;
    }

    std::vector<CLQSurfHandle> surfaces;
};

struct ListIcons {
    IconSet normal{kItems, 60, kCellHeight, 50};
    IconSet active{kItems, 64, 36, 100};
    IconSet focus{kItems, 56, 38, 150};
    IconSet disabled{kItems, 70, kCellHeight, 200};
};

/// What the click callback, which has no context, was called with.
struct Click {
    int index;
    bool changed;
    bool operator==(const Click& other) const { return index == other.index && changed == other.changed; }
};

inline std::ostream& operator<<(std::ostream& out, const Click& click) {
    return out << '(' << click.index << ", " << (click.changed ? "true" : "false") << ')';
}

inline std::vector<Click>& Clicks() {
    static std::vector<Click> clicks;
    return clicks;
}

inline void NoteClick(int index, bool changed) {
    Clicks().push_back({index, changed});
}

/// A switch list that lets tests read what a derived class can read.
class TestSwitchList : public CLQSwitchList {
  public:
    int Focus() const { return m_nFocus; }
    bool IsPageDown() const { return m_bPageDown; }
    int Touched() const { return m_nCurPress; }
    int PressedAt() const { return m_nPressDown; }
    int ReleasedAt() const { return m_nPressUp; }
    const std::vector<std::wstring>& Texts() const { return m_vecText; }
    const _LQColor& Color(std::size_t slot) const { return m_colorText[slot]; }
    void SetListFont(CLQFont* font) { m_pFont = font; }

    /// Sets the list up as an application does: two pages of five cells.
    void Prepare(ListIcons& icons) {
        Create(kListX, kListY, kListWidth, kListHeight);
        SetIconNumPrePage(kCells);
        std::vector<CLQSurfHandle*> borrowed = icons.normal.Borrow();
        SetIconNormalSurf(borrowed);
        borrowed = icons.active.Borrow();
        SetIconActiveSurf(borrowed);
        borrowed = icons.focus.Borrow();
        SetIconFocusSurf(borrowed);
        borrowed = icons.disabled.Borrow();
        SetIconDisableSurf(borrowed);
        Clicks().clear();
        SetCallBackClick(&NoteClick);
    }
};

inline std::vector<std::uint32_t> LooksOf(CLQSwitchList& list) {
    CLQSurfHandle canvas = ListCanvas();
    list.Draw(canvas);
    return PixelsOf(canvas);
}

}  // namespace korvane::test
