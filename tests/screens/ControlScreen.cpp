#include "tests/screens/ControlScreen.h"

namespace korvane::test {

ControlScreen::ControlScreen() {
    window_.Create(0, 0, 800, 480);
    window_.SetBkgSurf(L"SourceBkg.lqi");
}

void ControlScreen::BringToTop() {
    CLQScreen::GetInstance()->BringToTop(&window_);
}

void ControlScreen::Change() {
    changed_ = !changed_;
    Show(changed_);
}

}  // namespace korvane::test
