#pragma once

#include "platform/coredll.h"

namespace korvane {

/// The part of a client area that is to be painted, kept as one rectangle.
class UpdateRect {
  public:
    bool IsEmpty() const { return rect_.left >= rect_.right || rect_.top >= rect_.bottom; }
    const RECT& Rect() const { return rect_; }

    /// Grows to hold `rect` as well, as far as it lies in a client area of that size. Null: all of it.
    void Add(const RECT* rect, LONG width, LONG height);

    /// Takes `rect` away where what remains is one rectangle. Null: everything.
    void Remove(const RECT* rect);

  private:
    RECT rect_{};
};

}  // namespace korvane
