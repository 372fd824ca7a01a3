#pragma once

#include <vector>

namespace korvane::demo {

/// One step of a tour.
struct TourStep {
    enum class Action { Press, Move, Release, Set, Wait, Picture };

    Action action = Action::Wait;
    int x = 0;  ///< where the finger is, in screen pixels
    int y = 0;
    const wchar_t* field = L"";  ///< of the system record
    int value = 0;
    unsigned ms = 0;
    const char* name = "";  ///< of the picture
};

/// The steps of a tour, written down one after the other.
class TourScript {
  public:
    TourScript& Press(int x, int y);
    TourScript& Move(int x, int y);
    TourScript& Release(int x, int y);
    /// A press and a release in one place.
    TourScript& Touch(int x, int y);
    /// Has the service set a field of the system record.
    TourScript& Set(const wchar_t* field, int value);
    TourScript& Wait(unsigned ms);
    TourScript& Picture(const char* name);

    const std::vector<TourStep>& Steps() const { return steps_; }

  private:
    TourStep& Add(TourStep::Action action);
    TourScript& AddTouch(TourStep::Action action, int x, int y);

    std::vector<TourStep> steps_;
};

}  // namespace korvane::demo
