#pragma once

#include "engine/core/Life.h"

namespace korvane {

/// A pointer to an object with `WatchLife` that somebody else owns, and may destroy: it then reads as null.
/// It converts to and from a plain pointer, to be used in the place of one.
template <class T>
class Borrowed {
  public:
    Borrowed() = default;
    Borrowed(T* object) : object_(object), life_(object ? object->WatchLife() : LifeWatch()) {}

    T* Get() const { return life_.IsAlive() ? object_ : nullptr; }
    operator T*() const { return Get(); }
    T* operator->() const { return Get(); }

  private:
    T* object_ = nullptr;
    LifeWatch life_;
};

}  // namespace korvane
