#include "bench/engine/Register.h"
#include "bench/screens/Repaint.h"
#include "tests/screens/HeadUnitScreens.h"

namespace korvane::bench {

void RegisterHeadUnitFrames() {
    const auto headUnit = std::make_shared<test::HeadUnitScreens>();
    for (const test::HeadUnitScreens::Screen& screen : headUnit->All())
        RegisterFullRepaint("head unit: " + screen.name,
                            [headUnit, &screen] { headUnit->ShowAlone(screen); });
}

}  // namespace korvane::bench
