#pragma once

#include <array>
#include <cstddef>

#include "engine/core/Rect.h"
#include "platform/Export.h"

namespace korvane {

/// A few rectangles that wait for repainting. Of fixed capacity: it never allocates. Rectangles whose union
/// is no larger than the two together are merged, and so are the cheapest two when the places run out.
class KORVANE_API UpdateRegion {
  public:
    void Add(const _LQRect& rect);
    void Clear() { count_ = 0; }
    bool IsEmpty() const { return count_ == 0; }
    std::size_t Count() const { return count_; }
    const _LQRect& operator[](std::size_t index) const { return rects_[index]; }

  private:
    static constexpr std::size_t kCapacity = 16;
    void MergeCheapest();
    void Remove(std::size_t index);

    std::array<_LQRect, kCapacity + 1> rects_;
    std::size_t count_ = 0;
};

}  // namespace korvane
