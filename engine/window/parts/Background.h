#pragma once

#include <string>

#include "engine/draw/Surface.h"

namespace korvane {

/// What a window or group paints below its controls: a plain colour, with its alpha, under a picture at the
/// top-left corner. Both are cut at the owner's edges, and either may be missing.
class Background {
  public:
    /// Loads the picture; an empty or null name removes it.
    void SetImage(const wchar_t* file);
    /// A null colour keeps the last one.
    void EnableColor(bool enable, const _LQColor* color);

    bool IsVisible();
    /// True when it hides everything below `rect`, of an owner at `place`.
    bool IsOpaqueIn(const _LQRect& place, const _LQRect& rect);
    void Draw(CLQSurfHandle& target, const _LQRect& place);

    const std::wstring& File() const { return file_; }
    bool IsColorEnabled() const { return fills_; }
    const _LQColor& Color() const { return color_; }

  private:
    std::wstring file_;
    CLQSurfHandle image_;
    bool fills_ = false;
    _LQColor color_;
};

}  // namespace korvane
