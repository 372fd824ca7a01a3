#include "tools/lqlayout/LayoutText.h"

#include "engine/system/EncodedText.h"
#include "engine/system/IniLine.h"
#include "engine/system/IniText.h"
#include "platform/Unicode.h"

namespace korvane::tools {

int TextSection::LineOf(const std::wstring& key) const {
    const auto found = lineOfKey.find(key);
    return found == lineOfKey.end() ? line : found->second;
}

LayoutText::LayoutText(const std::string& bytes, Findings& findings) {
    ini_.SetContents(bytes);
    const EncodedText text(bytes);
    bool isInSection = false;
    std::size_t section = 0;
    int number = 1;
    IniLine line;
    for (std::size_t begin = 0; begin < text.Size(); begin = line.next, ++number) {
        line = ScanIniLine(text, begin);
        const std::wstring name = text.Decode(line.nameBegin, line.nameEnd);
        switch (line.kind) {
            case IniLine::Kind::Blank:
            case IniLine::Kind::Comment:
                break;
            case IniLine::Kind::Section:
                section = Open(name, number, findings);
                isInSection = true;
                break;
            case IniLine::Kind::Entry: {
                if (!isInSection) {
                    findings.AddError(number, "stands above the first section");
                    break;
                }
                const auto [known, added] =
                    sections_[section].lineOfKey.try_emplace(FoldIniName(name), number);
                if (!added)
                    findings.AddWarning(number, ToUtf8(name) + " is given again; line " +
                                                    std::to_string(known->second) + " counts");
                break;
            }
            case IniLine::Kind::Other:
                findings.AddError(number, "is neither a section, an entry (key = value) nor a comment");
                break;
        }
    }
}

std::size_t LayoutText::Open(const std::wstring& name, int line, Findings& findings) {
    const auto [known, added] = indexOfName_.try_emplace(FoldIniName(name), sections_.size());
    if (added)
        sections_.push_back({name, line, {}});
    else
        findings.AddWarning(line, "[" + ToUtf8(name) + "] goes on with the section of line " +
                                      std::to_string(sections_[known->second].line));
    return known->second;
}

const TextSection* LayoutText::Find(const std::wstring& name) const {
    const auto found = indexOfName_.find(FoldIniName(name));
    return found == indexOfName_.end() ? nullptr : &sections_[found->second];
}

}  // namespace korvane::tools
