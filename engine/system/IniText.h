#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "engine/system/EncodedText.h"
#include "engine/system/IniLine.h"

namespace korvane {

/// The form in which names of sections and keys are compared, which has no regard to case.
std::wstring FoldIniName(std::wstring_view name);

/// True for what can be the name of a section and of a key: 1 to 255 characters without control characters,
/// '=', '[' or ']', without blanks at its ends, not beginning like a comment, and valid Unicode.
bool IsIniName(std::wstring_view name);

/// True for what can stand in one line: up to 65535 characters of valid Unicode without line breaks and
/// zeros.
bool IsIniValue(std::wstring_view value);

struct IniChange {
    std::wstring section;
    std::wstring key;
    std::wstring value;
};

/// The contents of an ini file. The sections of one name are one section; of several entries with the same
/// section and key the first counts. Keys above the first section belong to none and are not found.
class IniText {
  public:
    IniText() = default;
    explicit IniText(std::string bytes);

    /// Takes folded names, in this order only. `value` may be null.
    bool Find(const std::wstring& section, const std::wstring& key, std::wstring* value) const;

    bool HasSection(const std::wstring& section) const;

    /// The file's bytes with the changes applied: an entry found as (section, key), else as (key, section),
    /// gets the value; what is found in neither order is added behind the last entry of its section. No two
    /// changes may have the same section and key. All bytes but those of the values stay as they are.
    std::string With(const std::vector<IniChange>& changes) const;

    const EncodedText& Text() const { return text_; }

  private:
    struct Entry {
        std::size_t valueBegin;
        std::size_t valueEnd;
    };
    struct Section {
        std::map<std::wstring, Entry> entries;
        IniLine addBehind;    ///< the last entry, or else the name, of the section's first occurrence
        bool spaced = false;  ///< whether that entry has a blank before its '='
    };

    const Entry* FindEntry(const std::wstring& section, const std::wstring& key) const;
    std::vector<const Entry*> Targets(const std::vector<IniChange>& changes) const;
    std::wstring LineBreakOf(const IniLine& line) const;
    bool IsSpaced(const IniLine& entry) const;

    EncodedText text_;
    std::map<std::wstring, Section> sections_;
    std::wstring lineBreak_ = L"\r\n";  ///< the file's first, as on the device where it has none
    bool spaced_ = false;               ///< whether its first entry has a blank before its '='
    IniLine lastLine_;
};

}  // namespace korvane
