#pragma once

#include <unistd.h>
#include <utility>

namespace korvane {

/// Owns a file descriptor.
class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { Close(); }
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }

    /// False when what was written may be lost.
    bool Close() {
        const int number = std::exchange(number_, -1);
        return number < 0 || close(number) == 0;
    }

  private:
    int number_ = -1;
};

}  // namespace korvane
