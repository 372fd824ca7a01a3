#pragma once

#include <unistd.h>

namespace korvane {

/// Owns a file descriptor.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }

    /// False when what was written may be lost.
    bool Close() {
        const int number = number_;
        number_ = -1;
        return number < 0 || close(number) == 0;
    }

  private:
    int number_;
};

}  // namespace korvane
