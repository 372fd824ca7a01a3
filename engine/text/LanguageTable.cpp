#include "engine/text/LanguageTable.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "engine/system/EncodedText.h"
#include "engine/system/IniLine.h"
#include "engine/system/IniText.h"
#include "platform/Unicode.h"

namespace korvane {
namespace {

constexpr std::size_t kMaxTexts = 65536;

bool IsDigit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

/// Translates \n, \t and \\; false for a backslash before anything else.
bool Unescape(std::wstring& text) {
    std::size_t written = 0;
    for (std::size_t at = 0; at < text.size(); ++at, ++written) {
        if (text[at] != L'\\') {
            text[written] = text[at];
            continue;
        }
        ++at;
        if (at == text.size())
            return false;
        switch (text[at]) {
            case L'n':
                text[written] = L'\n';
                break;
            case L't':
                text[written] = L'\t';
                break;
            case L'\\':
                text[written] = L'\\';
                break;
            default:
                return false;
        }
    }
    text.resize(written);
    return true;
}

/// An identifier from 1 to the largest int.
bool ParseId(std::wstring_view digits, int& id) {
    if (digits.empty() || !std::all_of(digits.begin(), digits.end(), IsDigit))
        return false;
    constexpr std::int64_t kMaxId = std::numeric_limits<int>::max();
    std::int64_t value = 0;
    for (const wchar_t digit : digits) {
        value = value * 10 + (digit - L'0');
        if (value > kMaxId)
            return false;
    }
    id = static_cast<int>(value);
    return value > 0;
}

}  // namespace

std::optional<LanguageTable> LanguageTable::Parse(std::string bytes) {
    const EncodedText text(std::move(bytes));
    const std::string& content = text.Bytes();
    const bool validUtf8 = text.IsUtf8() && ToUtf8(FromUtf8(content)) == content;
    if (content.size() > kMaxFileBytes || !validUtf8 || content.find('\0') != std::string::npos)
        return std::nullopt;

    enum class Part { None, Language, Text, Unknown };
    Part part = Part::None;
    LanguageTable table;
    for (std::size_t begin = 0; begin < text.Size();) {
        const IniLine line = ScanIniLine(text, begin);
        begin = line.next;
        if (line.kind == IniLine::Kind::Blank || line.kind == IniLine::Kind::Comment)
            continue;
        if (line.kind == IniLine::Kind::Other)
            return std::nullopt;

        std::wstring name = text.Decode(line.nameBegin, line.nameEnd);
        if (line.kind == IniLine::Kind::Section) {
            const std::wstring folded = FoldIniName(name);
            part = folded == L"language" ? Part::Language : folded == L"text" ? Part::Text : Part::Unknown;
            continue;
        }
        std::wstring value = UnquoteIniValue(text.Decode(line.valueBegin, line.valueEnd));
        if (part == Part::None || !Unescape(value))
            return std::nullopt;
        if (part == Part::Language)
            table.SetProperty(FoldIniName(name), value);
        else if (part == Part::Text && !table.AddText(name, std::move(value)))
            return std::nullopt;
    }
    if (table.name_.empty())
        return std::nullopt;
    return table;
}

void LanguageTable::SetProperty(const std::wstring& foldedName, const std::wstring& value) {
    if (value.empty())
        return;
    if (foldedName == L"name")
        name_ = value;
    else if (foldedName == L"am")
        morning_ = value;
    else if (foldedName == L"pm")
        afternoon_ = value;
}

bool LanguageTable::AddText(std::wstring_view names, std::wstring text) {
    constexpr std::wstring_view kBlanks = L" \t";
    if (texts_.size() == kMaxTexts)
        return false;
    if (IsDigit(names.front())) {
        const std::size_t idEnd = std::min(names.find_first_of(kBlanks), names.size());
        int id = 0;
        if (!ParseId(names.substr(0, idEnd), id))
            return false;
        indexOfId_.try_emplace(id, texts_.size());
        names.remove_prefix(std::min(names.find_first_not_of(kBlanks, idEnd), names.size()));
    }
    if (names.find_first_of(kBlanks) != std::wstring_view::npos)
        return false;
    if (!names.empty())
        indexOfKey_.try_emplace(FoldIniName(names), texts_.size());
    texts_.push_back(std::move(text));
    return true;
}

const std::wstring* LanguageTable::Find(int id) const {
    const auto found = indexOfId_.find(id);
    return found == indexOfId_.end() ? nullptr : &texts_[found->second];
}

const std::wstring* LanguageTable::Find(std::wstring_view key) const {
    const auto found = indexOfKey_.find(FoldIniName(key));
    return found == indexOfKey_.end() ? nullptr : &texts_[found->second];
}

}  // namespace korvane
