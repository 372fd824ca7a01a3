#pragma once

#include <utility>

#include "platform/windows/System.h"

namespace korvane {

/// Owns a handle of the system.
class Handle {
  public:
    Handle() = default;
    /// Null and INVALID_HANDLE_VALUE are none.
    explicit Handle(HANDLE handle) : handle_(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
    ~Handle() {
        if (handle_)
            CloseHandle(handle_);
    }
    Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }

    bool IsOpen() const { return handle_ != nullptr; }
    HANDLE Get() const { return handle_; }
    HANDLE Release() { return std::exchange(handle_, nullptr); }

  private:
    HANDLE handle_ = nullptr;
};

}  // namespace korvane
