#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "engine/core/Life.h"
#include "platform/Export.h"

class CLQBaseCtrl;

namespace korvane {

/// The children of a group or window, in drawing order. A copy of the list shares the children. A child that
/// was destroyed by somebody else leaves an empty place, which reads as null.
class KORVANE_API ChildList {
  public:
    void Add(CLQBaseCtrl* child);
    /// Takes the child out; deletes it if `destroy` is set and it was created with `new`. False if it is not
    /// there.
    bool Remove(CLQBaseCtrl* child, bool destroy);
    bool Contains(const CLQBaseCtrl* child) const;
    /// Drops the empty places.
    void Compact();
    void Clear() { slots_.clear(); }

    std::size_t Size() const { return slots_.size(); }
    CLQBaseCtrl* At(std::size_t index) const;

  private:
    struct Slot;
    std::vector<std::shared_ptr<Slot>> slots_;
};

}  // namespace korvane
