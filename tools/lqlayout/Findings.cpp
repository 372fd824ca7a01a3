#include "tools/lqlayout/Findings.h"

#include <algorithm>

namespace korvane::tools {

void Findings::Add(const Finding& finding) {
    (finding.isError ? hasErrors_ : hasWarnings_) = true;
    if (kept_.size() < kMaxKept)
        kept_.push_back(finding);
    else
        ++dropped_;
}

std::vector<std::string> Findings::Describe(const std::string& name) const {
    std::vector<Finding> sorted = kept_;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Finding& left, const Finding& right) { return left.line < right.line; });
    std::vector<std::string> lines;
    for (const Finding& finding : sorted) {
        const std::string place = finding.line > 0 ? name + ":" + std::to_string(finding.line) : name;
        lines.push_back(place + (finding.isError ? ": " : ": warning: ") + finding.text);
    }
    if (dropped_ > 0)
        lines.push_back(name + ": and " + std::to_string(dropped_) + " more");
    return lines;
}

}  // namespace korvane::tools
