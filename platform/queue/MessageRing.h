#pragma once

#include <cstddef>
#include <vector>

#include "platform/coredll.h"

namespace korvane {

/// Messages in the order of their posting. Grows to what was needed at once and then allocates no more.
class MessageRing {
  public:
    static constexpr std::size_t kLimit = 10000;

    /// False when kLimit messages wait.
    bool Push(const MSG& message);

    std::size_t Size() const { return size_; }
    MSG& At(std::size_t index) { return messages_[Slot(index)]; }
    void Erase(std::size_t index);
    void EraseOf(HWND window);

  private:
    std::size_t Slot(std::size_t index) const { return (begin_ + index) & (messages_.size() - 1); }
    void Grow();

    std::vector<MSG> messages_;  // its size is zero or a power of two
    std::size_t begin_ = 0;
    std::size_t size_ = 0;
};

}  // namespace korvane
