#include "demo/headunit/media/ProgressBar.h"

namespace korvane::demo {

namespace {

/// The pictures, inside the part that shows: marks on top, the track below them.
constexpr int kMarkTop = 2;
constexpr int kMarkHeight = 32;
constexpr int kTrackTop = 32;
/// The groove begins and ends this far from the edges of the pictures.
constexpr int kTrackOffset = 64;
constexpr int kScreenWidth = 800;

}  // namespace

void ProgressBar::Place(int x, int y) {
    top_ = y + kTop;
    // The marks stand in a row of the screen, and are cut at the row and the column whose numbers are the
    // slider's height and width: so it begins at the screen's left edge, and reaches down as far as it takes.
    const int markRow = top_ + kMarkTop;
    Create(-x, kTop, x + kScreenWidth, markRow + kMarkHeight);
    SetReapetIconOffset(markRow);
    SetInset(x, kTrackTop);
    SetTrackOffset(kTrackOffset);
    SetThumbOffset(kTrackTop);
    SetBkgSurf(L"MediaTrack.lqi");
    SetFillSurf(L"MediaFill.lqi");
    SetThumbSurf(L"MediaThumb.lqi");
    SetThumbPressedSurf(L"MediaThumbPressed.lqi");
    SetReapetBkgSurf(L"MediaBand.lqi");
    SetReapetASurf(L"MediaPointA.lqi");
    SetReapetBSurf(L"MediaPointB.lqi");
}

bool ProgressBar::DoMessage(_LQMessage* msg) {
    const bool wasHeld = IsPressed();
    const bool result = CLQSliderExCtrl::DoMessage(msg);
    if (IsPressed() != wasHeld && onHeld_)
        onHeld_(IsPressed());
    return result;
}

bool ProgressBar::CheckPoint(int x, int y) {
    return y >= top_ && y < top_ + kHeight && CLQSliderExCtrl::CheckPoint(x, y);
}

}  // namespace korvane::demo
