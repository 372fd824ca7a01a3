#include "engine/widgets/layout/IniTree.h"

#include <cstddef>
#include <set>

#include "engine/system/IniReadWrite.h"
#include "engine/system/IniText.h"
#include "engine/widgets/layout/CtrlFactory.h"
#include "engine/widgets/layout/IniArchive.h"
#include "engine/widgets/layout/MemBlob.h"
#include "engine/window/BaseCtrl.h"

namespace korvane {

namespace {

/// What copies of sections may add up to, in bytes of the whole text for each.
constexpr std::size_t kMaxCopiedText = std::size_t{64} * 1024 * 1024;
/// So many copies stay below that whatever the text.
constexpr std::size_t kHarmlessCopies = 64;

class TreeCheck {
  public:
    TreeCheck(CLQIniReadWrite& ini, LayoutRule rule, LayoutProblem& problem)
        : ini_(ini), rule_(rule), problem_(problem) {}

    bool Visit(const std::wstring& section, int depth) {
        if (depth > CLQMemBlob::kMaxDepth)
            return Report(section, "groups are nested too deeply, or in a circle");
        if (++count_ > CLQMemBlob::kMaxRecords)
            return Report(section, "too many controls");
        if (!visited_.insert(FoldIniName(section)).second && !IsCopyBounded())
            return Report(section, "too many copies of a section");
        IniArchive archive(ini_, section.c_str(), true);
        if (rule_ == LayoutRule::Complete && !IsComplete(archive.Kind(), section))
            return false;
        for (const std::wstring& child : archive.Children()) {
            if (!Visit(child, depth + 1))
                return false;
        }
        return true;
    }

  private:
    /// A section that is named again makes a control with all texts of the first.
    bool IsCopyBounded() {
        if (++copies_ <= kHarmlessCopies)
            return true;
        if (textSize_ == 0)
            textSize_ = ini_.GetContents().size();
        return copies_ * textSize_ <= kMaxCopiedText;
    }

    bool IsComplete(int kind, const std::wstring& section) {
        if (kind < 0)
            return Report(section, "no such section, or its kind is missing or unknown");
        return MakeCtrl(kind) != nullptr || Report(section, "the kind is unknown");
    }

    bool Report(const std::wstring& section, const char* message) {
        problem_ = {section, message};
        return false;
    }

    CLQIniReadWrite& ini_;
    LayoutRule rule_;
    LayoutProblem& problem_;
    int count_ = 0;
    std::set<std::wstring> visited_;  ///< folded, as names are compared
    std::size_t copies_ = 0;
    std::size_t textSize_ = 0;
};

}  // namespace

bool CheckIniTree(CLQIniReadWrite& ini, const std::wstring& root, LayoutRule rule, LayoutProblem& problem) {
    return TreeCheck(ini, rule, problem).Visit(root, 1);
}

}  // namespace korvane
