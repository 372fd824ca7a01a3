#include "platform/Unicode.h"

namespace korvane {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kLastCodePoint = 0x10FFFF;

bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

char32_t UnitAt(std::wstring_view text, std::size_t at) {
    if constexpr (sizeof(wchar_t) == 2)
        return static_cast<char16_t>(text[at]);
    return static_cast<char32_t>(text[at]);
}

void AppendUtf8(std::string& text, char32_t codePoint) {
    const auto tail = [&](int shift) {
        text.push_back(static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F)));
    };
    if (codePoint < 0x80) {
        text.push_back(static_cast<char>(codePoint));
    } else if (codePoint < 0x800) {
        text.push_back(static_cast<char>(0xC0 | (codePoint >> 6)));
        tail(0);
    } else if (codePoint < 0x10000) {
        text.push_back(static_cast<char>(0xE0 | (codePoint >> 12)));
        tail(6);
        tail(0);
    } else {
        text.push_back(static_cast<char>(0xF0 | (codePoint >> 18)));
        tail(12);
        tail(6);
        tail(0);
    }
}

// The code point that starts at `at`. A byte that starts no valid sequence is taken alone, as U+FFFD.
char32_t NextUtf8(std::string_view text, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    if (lead < 0x80)
        return lead;
    int tails = 0;
    char32_t lowest = 0;
    char32_t codePoint = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        tails = 1;
        lowest = 0x80;
        codePoint = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        tails = 2;
        lowest = 0x800;
        codePoint = lead & 0x0F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        tails = 3;
        lowest = 0x10000;
        codePoint = lead & 0x07;
    } else {
        return kReplacement;
    }
    std::size_t next = at;
    for (int i = 0; i < tails; ++i, ++next) {
        const unsigned char tail = next < text.size() ? static_cast<unsigned char>(text[next]) : 0;
        if ((tail & 0xC0) != 0x80)
            return kReplacement;
        codePoint = (codePoint << 6) | (tail & 0x3F);
    }
    if (codePoint < lowest || codePoint > kLastCodePoint || IsHighSurrogate(codePoint) ||
        IsLowSurrogate(codePoint))
        return kReplacement;
    at = next;
    return codePoint;
}

}  // namespace

char32_t NextCodePoint(std::wstring_view text, std::size_t& at) {
    const char32_t unit = UnitAt(text, at++);
    if (IsHighSurrogate(unit)) {
        if (at < text.size() && IsLowSurrogate(UnitAt(text, at)))
            return 0x10000 + ((unit - 0xD800) << 10) + (UnitAt(text, at++) - 0xDC00);
        return kReplacement;
    }
    return IsLowSurrogate(unit) || unit > kLastCodePoint ? kReplacement : unit;
}

void AppendCodePoint(std::wstring& text, char32_t codePoint) {
    if (codePoint > kLastCodePoint || IsHighSurrogate(codePoint) || IsLowSurrogate(codePoint))
        codePoint = kReplacement;
    if (sizeof(wchar_t) == 2 && codePoint >= 0x10000) {
        text.push_back(static_cast<wchar_t>(0xD800 + ((codePoint - 0x10000) >> 10)));
        text.push_back(static_cast<wchar_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF)));
    } else {
        text.push_back(static_cast<wchar_t>(codePoint));
    }
}

std::string ToUtf8(std::wstring_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
        AppendUtf8(utf8, NextCodePoint(text, at));
    return utf8;
}

std::wstring FromUtf8(std::string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
        AppendCodePoint(wide, NextUtf8(text, at));
    return wide;
}

}  // namespace korvane
