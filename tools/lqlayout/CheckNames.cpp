#include <map>

#include "engine/window/BaseCtrl.h"
#include "platform/Unicode.h"

#include "tools/lqlayout/Checks.h"

namespace korvane::tools {

void CheckNames(const Layout& layout, Findings& findings) {
    std::map<std::wstring, const LayoutCtrl*> named;
    for (const LayoutCtrl& ctrl : layout.Ctrls()) {
        if (!ctrl.isKnown) {
            findings.AddWarning(layout.LineOf(ctrl), layout.Describe(ctrl) + " is of kind " +
                                                         std::to_string(ctrl.kind) +
                                                         ", which only its application knows");
        }
        // The outermost control is not looked for.
        if (ctrl.record == 0)
            continue;
        if (ctrl.name.empty()) {
            if (ctrl.kind == kKindButton || ctrl.kind == kKindSlider)
                findings.AddWarning(layout.LineOf(ctrl),
                                    layout.Describe(ctrl) + " cannot be found by its application");
            continue;
        }
        const auto [first, added] = named.try_emplace(ctrl.name, &ctrl);
        if (!added) {
            const int line = layout.LineOf(*first->second);
            findings.AddError(layout.LineOf(ctrl, L"name"),
                              layout.Describe(ctrl) + " is not found: its name is also that of the " +
                                  layout.Describe(*first->second) +
                                  (line > 0 ? " in line " + std::to_string(line) : ""));
        }
    }
    const int lost = layout.RecordCount() - static_cast<int>(layout.Ctrls().size());
    if (lost > 0)
        findings.AddWarning(0, std::to_string(lost) + " of the records are in no group");
}

}  // namespace korvane::tools
