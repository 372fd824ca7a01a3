#pragma once

#include <string>

class CLQIniReadWrite;

namespace korvane {

/// What is wrong with a text layout, and in which section.
struct LayoutProblem {
    std::wstring section;
    std::string message;
};

/// How well the sections of a text layout must hang together.
enum class LayoutRule {
    Bounded,   ///< no deeper and not more controls than CLQMemBlob's bounds, which a circle of sections
               ///< exceeds
    Complete,  ///< and every section in the tree is there and names a known kind
};

/// Looks at the tree of controls that starts at a section. False, saying why, when it breaks the rule.
bool CheckIniTree(CLQIniReadWrite& ini, const std::wstring& root, LayoutRule rule, LayoutProblem& problem);

}  // namespace korvane
