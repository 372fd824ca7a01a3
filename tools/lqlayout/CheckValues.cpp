#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <string>

#include "engine/system/IniText.h"
#include "engine/widgets/layout/CtrlFactory.h"
#include "engine/widgets/layout/IniArchive.h"
#include "platform/Unicode.h"

#include "tools/lqlayout/Checks.h"

namespace korvane::tools {
namespace {

/// The entries of one section beside the record that they were compiled to, which is what counts.
class ValueCheck {
  public:
    ValueCheck(Layout& layout, const LayoutCtrl& ctrl, Findings& findings)
        : layout_(layout),
          ctrl_(ctrl),
          findings_(findings),
          archive_(layout.Text()->Ini(), ctrl.section->name.c_str(), true) {}

    void Check(const std::wstring& key, int line) {
        int number = 0;
        std::wstring text;
        std::uint32_t color = 0;
        if (layout_.Records().GetNumber(ctrl_.record, key, number))
            CheckNumber(key, line, number);
        else if (layout_.Records().GetText(ctrl_.record, key, text))
            CheckText(key, line, text);
        else if (layout_.Records().GetColor(ctrl_.record, key, color))
            CheckColor(key, line);
        else
            findings_.AddError(line,
                               ToUtf8(key) + " is no property of this " + ToUtf8(CtrlKindName(ctrl_.kind)));
    }

  private:
    std::string Written(const std::wstring& key) {
        return "\"" + ToUtf8(layout_.Text()->Ini().GetString(ctrl_.section->name.c_str(), key.c_str(), L"")) +
               "\"";
    }

    void CheckNumber(const std::wstring& key, int line, int taken) {
        bool isNumber = false;
        archive_.Number(key.c_str(), 0, [&](int written) {
            isNumber = true;
            if (written != taken)
                findings_.AddError(line, ToUtf8(key) + " cannot be " + std::to_string(written) +
                                             "; it becomes " + std::to_string(taken));
        });
        if (!isNumber)
            findings_.AddError(line, ToUtf8(key) + " needs a number, not " + Written(key));
    }

    void CheckText(const std::wstring& key, int line, const std::wstring& taken) {
        archive_.Text(key.c_str(), std::wstring(), [&](const std::wstring& written) {
            if (written == taken)
                return;
            // A control that takes its text from the language table does not keep another.
            if (taken.empty())
                findings_.AddWarning(line, ToUtf8(key) + " has no effect beside a langid");
            else
                findings_.AddError(line, ToUtf8(key) + " cannot be " + Written(key) + "; it becomes \"" +
                                             ToUtf8(taken) + "\"");
        });
    }

    void CheckColor(const std::wstring& key, int line) {
        bool isColor = false;
        archive_.Color(key.c_str(), {}, [&isColor](_LQColor) { isColor = true; });
        if (!isColor)
            findings_.AddError(line, ToUtf8(key) + " needs a colour such as 255,190,60, not " + Written(key));
    }

    Layout& layout_;
    const LayoutCtrl& ctrl_;
    Findings& findings_;
    IniArchive archive_;
};

bool IsStructure(const std::wstring& key) {
    return key == L"kind" || key == L"children";
}

bool IsProperty(const CLQMemBlob& records, int record, const std::wstring& key) {
    int number = 0;
    std::wstring text;
    std::uint32_t color = 0;
    return records.GetNumber(record, key, number) || records.GetText(record, key, text) ||
           records.GetColor(record, key, color);
}

/// Ini files look names up in both orders: a section with the name of a property is taken for its key.
void CheckSectionNames(Layout& layout, Findings& findings) {
    std::map<int, int> recordOfKind;
    for (const LayoutCtrl& ctrl : layout.Ctrls())
        recordOfKind.try_emplace(ctrl.kind, ctrl.record);
    for (const TextSection& section : layout.Text()->Sections()) {
        const std::wstring name = FoldIniName(section.name);
        const bool isTaken =
            IsStructure(name) || std::any_of(recordOfKind.begin(), recordOfKind.end(), [&](const auto& kind) {
                return IsProperty(layout.Records(), kind.second, name);
            });
        if (isTaken)
            findings.AddError(
                section.line,
                "[" + ToUtf8(section.name) + "] is also the name of a property; name the section otherwise");
    }
}

}  // namespace

void CheckValues(Layout& layout, Findings& findings) {
    if (!layout.Text())
        return;
    CheckSectionNames(layout, findings);
    std::set<const TextSection*> done;
    for (const LayoutCtrl& ctrl : layout.Ctrls()) {
        if (!done.insert(ctrl.section).second)
            continue;
        ValueCheck check(layout, ctrl, findings);
        for (const auto& [key, line] : ctrl.section->lineOfKey) {
            if (!IsStructure(key))
                check.Check(key, line);
        }
    }
}

}  // namespace korvane::tools
