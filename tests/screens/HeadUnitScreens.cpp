#include "tests/screens/HeadUnitScreens.h"

namespace korvane::test {

HeadUnitScreens::HeadUnitScreens() {
    CLQScreen* const display = CLQScreen::GetInstance();
    const int count = display->GetWindowCount();
    headUnit_.Create(0, 0);
    for (int i = count; i < display->GetWindowCount(); ++i) {
        CLQWindow* const window = display->GetWindow(i);
        const std::wstring name = window->GetDialogName();
        if (name.empty())
            strips_.push_back(window);
        else
            screens_.push_back({std::string(name.begin(), name.end()), window});
    }
}

void HeadUnitScreens::ShowAlone(const Screen& screen) {
    for (const Screen& other : screens_)
        other.window->SetShow(other.window == screen.window);
    CLQScreen::GetInstance()->BringToTop(screen.window);
    for (CLQWindow* const strip : strips_)
        CLQScreen::GetInstance()->BringToTop(strip);
}

}  // namespace korvane::test
