#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// A tile of the menu: a picture that moves or stands still, and a caption.
class MenuTile : public CLQMenuItemCtrl {
  public:
    static constexpr int kWidth = 236;
    static constexpr int kHeight = 184;

    /// A picture of `images` images. The pattern names them, as CLQMenuItemCtrl::SetImage has it.
    struct Picture {
        const wchar_t* pattern;
        int images;
    };

    /// Sets everything up; the tile lies in the window's corner until it is moved. The picture does not play
    /// yet.
    void SetUp(const Picture& picture, int caption);
    /// Lets the picture play, unless it consists of one image or is dimmed.
    void Play(bool play);
    /// The look of a tile that leads to something that is not there.
    void ShowDimmed(bool dimmed);

    /// The look of a tile that can be moved: its picture stands still, and its frame has a handle.
    void ShowHandle(bool show);
    /// The look of the tile that is being moved.
    void ShowInHand(bool show);

  private:
    void AddCaption(int caption);
    void UpdateFrame();
    void UpdateVeil();

    bool moves_ = false;
    bool plays_ = false;
    bool hasHandle_ = false;
    bool isInHand_ = false;
    CLQSurfHandle firstImage_;
};

}  // namespace korvane::demo
