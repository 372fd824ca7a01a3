#include <cerrno>
#include <cstdint>
#include <cwctype>
#include <limits>

#include "platform/coredll.h"

extern "C" {

wchar_t* _itow(int value, wchar_t* text, int radix) {
    if (!text)
        return nullptr;
    wchar_t* end = text;
    if (radix >= 2 && radix <= 36) {
        const bool negative = radix == 10 && value < 0;
        auto rest = static_cast<std::uint32_t>(value);
        if (negative)
            rest = 0 - rest;
        wchar_t digits[32];
        int count = 0;
        do {
            digits[count++] = L"0123456789abcdefghijklmnopqrstuvwxyz"[rest % static_cast<unsigned>(radix)];
            rest /= static_cast<unsigned>(radix);
        } while (rest != 0);
        if (negative)
            *end++ = L'-';
        while (count > 0)
            *end++ = digits[--count];
    }
    *end = L'\0';
    return text;
}

LONG _wtol(const wchar_t* text) {
    if (!text)
        return 0;
    while (*text == L' ' || (*text >= L'\t' && *text <= L'\r'))
        ++text;
    const bool negative = *text == L'-';
    if (*text == L'-' || *text == L'+')
        ++text;
    constexpr std::int64_t kMost = std::numeric_limits<LONG>::max();
    std::int64_t number = 0;
    for (; *text >= L'0' && *text <= L'9'; ++text) {
        number = number * 10 + (*text - L'0');
        if (number > kMost + (negative ? 1 : 0)) {
            errno = ERANGE;
            return negative ? std::numeric_limits<LONG>::min() : std::numeric_limits<LONG>::max();
        }
    }
    return static_cast<LONG>(negative ? -number : number);
}
}
