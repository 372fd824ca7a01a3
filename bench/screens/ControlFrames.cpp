#include "bench/engine/Register.h"
#include "bench/screens/Repaint.h"
#include "tests/screens/ControlScreen.h"

namespace korvane::bench {

void RegisterControlFrames() {
    for (const test::ControlScreenKind& kind : test::ControlScreenKinds()) {
        const std::shared_ptr<test::ControlScreen> screen = kind.make();
        const auto bringToTop = [screen] { screen->BringToTop(); };
        const std::string name = kind.name;
        RegisterFullRepaint(name + ": whole screen", bringToTop);
        RegisterRepaint(
            name + ": smallest change", bringToTop, [screen] { screen->Change(); }, screen->ChangedRect());
    }
}

}  // namespace korvane::bench
