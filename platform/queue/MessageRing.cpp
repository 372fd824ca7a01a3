#include "platform/queue/MessageRing.h"

#include <algorithm>
#include <utility>

namespace korvane {

bool MessageRing::Push(const MSG& message) {
    if (size_ >= kLimit)
        return false;
    if (size_ == messages_.size())
        Grow();
    messages_[Slot(size_)] = message;
    ++size_;
    return true;
}

void MessageRing::Erase(std::size_t index) {
    for (; index > 0; --index)
        At(index) = At(index - 1);
    begin_ = Slot(1);
    --size_;
}

void MessageRing::EraseOf(HWND window) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < size_; ++i) {
        if (At(i).hwnd != window)
            At(kept++) = At(i);
    }
    size_ = kept;
}

void MessageRing::Grow() {
    std::vector<MSG> larger(std::max<std::size_t>(16, messages_.size() * 2));
    for (std::size_t i = 0; i < size_; ++i)
        larger[i] = At(i);
    messages_ = std::move(larger);
    begin_ = 0;
}

}  // namespace korvane
