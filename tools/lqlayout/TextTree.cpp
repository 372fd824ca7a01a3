#include "tools/lqlayout/TextTree.h"

#include <set>
#include <string>

#include "engine/widgets/layout/CompileLayout.h"
#include "engine/widgets/layout/CtrlFactory.h"
#include "engine/widgets/layout/IniArchive.h"
#include "engine/widgets/layout/MemBlob.h"
#include "engine/window/BaseCtrl.h"
#include "platform/Unicode.h"

namespace korvane::tools {
namespace {

const std::wstring kKind = L"kind";
const std::wstring kChildren = L"children";

class Walk {
  public:
    Walk(LayoutText& text, Findings& findings) : text_(text), findings_(findings) {}

    /// `line` names the section.
    void Visit(const std::wstring& name, int line, int depth) {
        if (isTooLarge_)
            return;
        if (depth > CLQMemBlob::kMaxDepth) {
            StopAt(line, "groups are nested more than " + std::to_string(CLQMemBlob::kMaxDepth) +
                             " deep, or in a circle");
            return;
        }
        if (sections_.size() >= static_cast<std::size_t>(CLQMemBlob::kMaxRecords)) {
            StopAt(line, "there are more than " + std::to_string(CLQMemBlob::kMaxRecords) + " controls");
            return;
        }
        const TextSection* section = text_.Find(name);
        if (!section) {
            if (missing_.insert(name).second)
                findings_.AddError(line, "there is no section [" + ToUtf8(name) + "]");
            return;
        }
        sections_.push_back(section);
        IniArchive archive(text_.Ini(), section->name.c_str(), true);
        if (visited_.insert(section).second)
            CheckKind(*section, archive.Kind(), depth == 1);
        if (archive.Kind() != kKindGroup)
            return;
        for (const std::wstring& child : archive.Children())
            Visit(child, section->LineOf(kChildren), depth + 1);
    }

    void ReportUnused() {
        for (const TextSection& section : text_.Sections()) {
            if (visited_.count(&section) == 0)
                findings_.AddWarning(section.line, "[" + ToUtf8(section.name) + "] is in no group");
        }
    }

    std::vector<const TextSection*> TakeSections() { return std::move(sections_); }

  private:
    void CheckKind(const TextSection& section, int kind, bool isOutermost) {
        const int line = section.LineOf(kKind);
        if (section.lineOfKey.count(kKind) == 0) {
            findings_.AddError(line, "[" + ToUtf8(section.name) + "] does not say its kind");
        } else if (!MakeCtrl(kind)) {
            const std::wstring written = text_.Ini().GetString(section.name.c_str(), kKind.c_str(), L"");
            findings_.AddError(line, "\"" + ToUtf8(written) + "\" is no kind of control");
        } else if (isOutermost && kind != kKindGroup) {
            findings_.AddError(line, "the outermost control must be a group");
        } else if (kind != kKindGroup && section.lineOfKey.count(kChildren) != 0) {
            findings_.AddError(section.LineOf(kChildren), "only a group has children");
        }
    }

    void StopAt(int line, const std::string& text) {
        findings_.AddError(line, text);
        isTooLarge_ = true;
    }

    LayoutText& text_;
    Findings& findings_;
    std::vector<const TextSection*> sections_;
    std::set<const TextSection*> visited_;
    std::set<std::wstring> missing_;
    bool isTooLarge_ = false;
};

}  // namespace

std::vector<const TextSection*> ListCtrlSections(LayoutText& text, Findings& findings) {
    Walk walk(text, findings);
    walk.Visit(kLayoutRoot, 0, 1);
    if (!findings.HasErrors())
        walk.ReportUnused();
    return walk.TakeSections();
}

}  // namespace korvane::tools
