#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "engine/system/IniReadWrite.h"

#include "tools/lqlayout/Findings.h"

namespace korvane::tools {

/// All that stands in the sections of one name.
struct TextSection {
    std::wstring name;  ///< as it is written first
    int line = 0;       ///< where it stands first
    /// Where the entries that count stand: of each key the first. Keys are folded, as they are compared.
    std::map<std::wstring, int> lineOfKey;

    /// The line of a folded key; that of the section when it does not have it.
    int LineOf(const std::wstring& key) const;
};

/// A text layout that knows its lines, which count from 1.
class LayoutText {
  public:
    /// The engine reads no longer ini files.
    static constexpr std::size_t kMaxSize = std::size_t{1} << 20;

    /// Takes the bytes of a file of at most kMaxSize. Lines that mean nothing are findings.
    LayoutText(const std::string& bytes, Findings& findings);

    CLQIniReadWrite& Ini() { return ini_; }
    const std::vector<TextSection>& Sections() const { return sections_; }
    /// Null when there is no such section.
    const TextSection* Find(const std::wstring& name) const;

  private:
    std::size_t Open(const std::wstring& name, int line, Findings& findings);

    CLQIniReadWrite ini_;
    std::vector<TextSection> sections_;
    std::map<std::wstring, std::size_t> indexOfName_;  ///< names are folded
};

}  // namespace korvane::tools
