#include "demo/headunit/tour/TourScript.h"

namespace korvane::demo {

TourScript& TourScript::Press(int x, int y) {
    return AddTouch(TourStep::Action::Press, x, y);
}

TourScript& TourScript::Move(int x, int y) {
    return AddTouch(TourStep::Action::Move, x, y);
}

TourScript& TourScript::Release(int x, int y) {
    return AddTouch(TourStep::Action::Release, x, y);
}

TourScript& TourScript::Touch(int x, int y) {
    return Press(x, y).Release(x, y);
}

TourScript& TourScript::Set(const wchar_t* field, int value) {
    TourStep& step = Add(TourStep::Action::Set);
    step.field = field;
    step.value = value;
    return *this;
}

TourScript& TourScript::Wait(unsigned ms) {
    Add(TourStep::Action::Wait).ms = ms;
    return *this;
}

TourScript& TourScript::Picture(const char* name) {
    Add(TourStep::Action::Picture).name = name;
    return *this;
}

TourStep& TourScript::Add(TourStep::Action action) {
    steps_.emplace_back();
    steps_.back().action = action;
    return steps_.back();
}

TourScript& TourScript::AddTouch(TourStep::Action action, int x, int y) {
    TourStep& step = Add(action);
    step.x = x;
    step.y = y;
    return *this;
}

}  // namespace korvane::demo
