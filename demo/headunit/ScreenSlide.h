#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// Lets one screen slide over another within a rectangle of the display; what lies around it stays as it is.
///
///     ScreenSlide slide(place);
///     first.SetShow(false);
///     second.SetShow(true);
///     slide.Play(second, ScreenSlide::Way::In);
class ScreenSlide {
  public:
    enum class Way {
        In,  ///< the next screen comes over the one that is shown
        Out  ///< the one that is shown goes and uncovers the next
    };
    static constexpr int kFrames = 4;

    /// Shows what waits to be repainted, and keeps what the rectangle shows.
    explicit ScreenSlide(const _LQRect& place);

    /// Plays the slide to `next`, which has its controls as they are to be shown. Returns when it stands, 80
    /// milliseconds for each frame later. Touches and keys that begin meanwhile, or before and still wait,
    /// are dropped: what they were meant for is gone.
    void Play(CLQWindow& next, Way way);

  private:
    CLQSurfHandle NewPicture() const;
    CLQSurfHandle PictureOf(CLQWindow& window) const;

    _LQRect place_;
    CLQSurfHandle shown_;
};

}  // namespace korvane::demo
