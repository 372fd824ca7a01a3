#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// A tile of the menu: a picture that moves or stands still, and a caption. A long press on one that moves
/// stills it, the next one lets it move again.
class MenuTile : public CLQMenuItemCtrl {
  public:
    static constexpr int kWidth = 236;
    static constexpr int kHeight = 184;

    /// A picture of `images` images. The pattern names them, as CLQMenuItemCtrl::SetImage has it.
    struct Picture {
        const wchar_t* pattern;
        int images;
    };

    /// Sets everything up, with the top-left corner at (x, y) of the window. The picture does not play yet.
    void SetUp(int x, int y, const Picture& picture, int caption);
    /// Lets the picture play, unless it was stilled, is dimmed or consists of one image.
    void Play(bool play) { EnableImagePlay(play && moves_ && !IsDesableState()); }
    /// A tile that leads nowhere: dimmed, and deaf to long presses.
    void DimOut();

  private:
    void AddFrame();
    void AddCaption(int caption);
    void OnLongPress();

    bool moves_ = false;
    bool isStill_ = false;
    CLQSurfHandle firstImage_;
};

}  // namespace korvane::demo
