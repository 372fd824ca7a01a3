#include "engine/widgets/layout/IniArchive.h"

#include <algorithm>

#include "engine/system/IniReadWrite.h"
#include "engine/widgets/layout/CtrlFactory.h"

namespace korvane {

namespace {

constexpr wchar_t kKindKey[] = L"kind";
constexpr wchar_t kChildrenKey[] = L"children";
/// Stands for a missing key; no value in a file can contain it.
constexpr wchar_t kMissing[] = L"\n";

int HexDigit(wchar_t character) {
    if (character >= L'0' && character <= L'9')
        return character - L'0';
    if (character >= L'A' && character <= L'F')
        return character - L'A' + 10;
    if (character >= L'a' && character <= L'f')
        return character - L'a' + 10;
    return -1;
}

/// The code that stands at a % sign, -1 when it is just that sign.
int EscapedCode(const std::wstring& text, std::size_t at) {
    if (text[at] != L'%' || text.size() - at < 3)
        return -1;
    const int high = HexDigit(text[at + 1]);
    const int low = HexDigit(text[at + 2]);
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

bool IsControl(wchar_t character) {
    // Where wchar_t is signed, what is below 0 is no character at all.
    return character == L'\0' || (character > L'\0' && character < L' ') ||
           (character >= L'\x7f' && character < L'\xa0');
}

std::wstring Trim(const std::wstring& text) {
    const std::size_t begin = text.find_first_not_of(L" \t");
    return begin == std::wstring::npos ? std::wstring()
                                       : text.substr(begin, text.find_last_not_of(L" \t") + 1 - begin);
}

std::vector<std::wstring> SplitAtCommas(const std::wstring& text) {
    std::vector<std::wstring> parts;
    std::size_t begin = 0;
    while (begin <= text.size()) {
        const std::size_t end = std::min(text.find(L',', begin), text.size());
        parts.push_back(Trim(text.substr(begin, end - begin)));
        begin = end + 1;
    }
    return parts;
}

/// A decimal number of 0 to 255, -1 for anything else.
int ParseByte(const std::wstring& text) {
    constexpr std::size_t kMaxDigits = 3;
    if (text.empty() || text.size() > kMaxDigits)
        return -1;
    int value = 0;
    for (const wchar_t character : text) {
        if (character < L'0' || character > L'9')
            return -1;
        value = value * 10 + (character - L'0');
    }
    return value <= 255 ? value : -1;
}

}  // namespace

std::wstring EscapeLayoutText(const std::wstring& text) {
    static const wchar_t kDigits[] = L"0123456789ABCDEF";
    std::wstring written;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const wchar_t character = text[i];
        if (IsControl(character) || EscapedCode(text, i) >= 0) {
            written += L'%';
            written += kDigits[character / 16];
            written += kDigits[character % 16];
        } else {
            written += character;
        }
    }
    return written;
}

std::wstring UnescapeLayoutText(const std::wstring& written) {
    std::wstring text;
    for (std::size_t i = 0; i < written.size(); ++i) {
        const int code = EscapedCode(written, i);
        text += code < 0 ? written[i] : static_cast<wchar_t>(code);
        if (code >= 0)
            i += 2;
    }
    return text;
}

IniArchive::IniArchive(CLQIniReadWrite& ini, const wchar_t* section, bool loading)
    : LayoutArchive(loading), ini_(ini), section_(section ? section : L"") {}

bool IniArchive::Read(const std::wstring& key, std::wstring& value) {
    if (section_.empty())
        return false;
    std::wstring read = ini_.GetString(section_.c_str(), key.c_str(), kMissing);
    if (read == kMissing)
        return false;
    value = std::move(read);
    return true;
}

int IniArchive::Kind() {
    std::wstring name;
    return Read(kKindKey, name) ? CtrlKindFromName(name) : -1;
}

void IniArchive::WriteKind(int kind) {
    Note(ini_.SetValue(section_.c_str(), kKindKey, CtrlKindName(kind).c_str(), true));
}

std::vector<std::wstring> IniArchive::Children() {
    std::vector<std::wstring> sections;
    std::wstring list;
    if (!Read(kChildrenKey, list))
        return sections;
    for (std::wstring& section : SplitAtCommas(list)) {
        if (!section.empty())
            sections.push_back(std::move(section));
    }
    return sections;
}

void IniArchive::WriteChildren(const std::vector<std::wstring>& sections) {
    std::wstring list;
    for (const std::wstring& section : sections)
        list += list.empty() ? section : L", " + section;
    Note(ini_.SetValue(section_.c_str(), kChildrenKey, list.c_str(), true));
}

bool IniArchive::ReadNumber(const std::wstring& key, int& value) {
    std::wstring written;
    if (!Read(key, written))
        return false;
    const int read = ini_.GetInt(section_.c_str(), key.c_str(), 0);
    // What is not a number gives the fallback, whatever it is.
    if (read == 0 && ini_.GetInt(section_.c_str(), key.c_str(), 1) == 1)
        return false;
    value = read;
    return true;
}

bool IniArchive::ReadText(const std::wstring& key, std::wstring& value) {
    std::wstring written;
    if (!Read(key, written))
        return false;
    value = UnescapeLayoutText(written);
    return true;
}

bool IniArchive::ReadColor(const std::wstring& key, _LQColor& value) {
    std::wstring written;
    if (!Read(key, written))
        return false;
    const std::vector<std::wstring> parts = SplitAtCommas(written);
    if (parts.size() != 3 && parts.size() != 4)
        return false;
    int channels[4] = {0, 0, 0, 255};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        channels[i] = ParseByte(parts[i]);
        if (channels[i] < 0)
            return false;
    }
    value.r = static_cast<unsigned char>(channels[0]);
    value.g = static_cast<unsigned char>(channels[1]);
    value.b = static_cast<unsigned char>(channels[2]);
    value.a = static_cast<unsigned char>(channels[3]);
    return true;
}

bool IniArchive::WriteNumber(const std::wstring& key, int value) {
    return ini_.SetValue(section_.c_str(), key.c_str(), value, true);
}

bool IniArchive::WriteText(const std::wstring& key, const std::wstring& value) {
    return ini_.SetValue(section_.c_str(), key.c_str(), EscapeLayoutText(value).c_str(), true);
}

bool IniArchive::WriteColor(const std::wstring& key, const _LQColor& value) {
    const std::wstring written = std::to_wstring(value.r) + L"," + std::to_wstring(value.g) + L"," +
                                 std::to_wstring(value.b) + L"," + std::to_wstring(value.a);
    return ini_.SetValue(section_.c_str(), key.c_str(), written.c_str(), true);
}

}  // namespace korvane
