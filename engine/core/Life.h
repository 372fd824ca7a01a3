#pragma once

#include <memory>

namespace korvane {

/// Tells, without keeping it alive, whether an object still exists. Code that calls out (an event handler, a
/// timer handler) takes a watch first and touches the object afterwards only if it is still there.
class LifeWatch {
  public:
    LifeWatch() = default;
    explicit LifeWatch(const std::shared_ptr<const char>& token) : token_(token) {}
    bool IsAlive() const { return !token_.expired(); }

  private:
    std::weak_ptr<const char> token_;
};

/// A member that ends with its object. A copy of the object has a life of its own.
class Life {
  public:
    Life() : token_(std::make_shared<const char>('\0')) {}
    Life(const Life&) : Life() {}
    Life& operator=(const Life&) { return *this; }
    LifeWatch Watch() const { return LifeWatch(token_); }

  private:
    std::shared_ptr<const char> token_;
};

}  // namespace korvane
