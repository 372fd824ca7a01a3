#include "bench/engine/Register.h"
#include "bench/screens/Repaint.h"
#include "demo/headunit/HeadUnit.h"

namespace korvane::bench {

namespace {

/// The head unit's windows: the screens, which have names, and the strip that lies over them, which has none.
std::vector<CLQWindow*> WindowsAbove(int count) {
    std::vector<CLQWindow*> windows;
    for (int i = count; i < CLQScreen::GetInstance()->GetWindowCount(); ++i)
        windows.push_back(CLQScreen::GetInstance()->GetWindow(i));
    return windows;
}

void ShowAlone(CLQWindow& screen, const std::vector<CLQWindow*>& windows) {
    for (CLQWindow* const window : windows) {
        const bool isStrip = window->GetDialogName().empty();
        window->SetShow(window == &screen || isStrip);
        if (window->IsShow())
            CLQScreen::GetInstance()->BringToTop(window);
    }
}

}  // namespace

void RegisterHeadUnitFrames() {
    const int count = CLQScreen::GetInstance()->GetWindowCount();
    const auto headUnit = std::make_shared<demo::HeadUnit>();
    headUnit->Create(0, 0);
    const std::vector<CLQWindow*> windows = WindowsAbove(count);
    for (CLQWindow* const screen : windows) {
        const std::wstring name = screen->GetDialogName();
        if (name.empty())
            continue;
        RegisterFullRepaint("head unit: " + std::string(name.begin(), name.end()),
                            [headUnit, screen, windows] { ShowAlone(*screen, windows); });
    }
}

}  // namespace korvane::bench
