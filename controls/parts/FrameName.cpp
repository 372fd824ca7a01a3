#include "controls/parts/FrameName.h"

#include <cwchar>

namespace korvane {

namespace {

/// Enough for all flags and three digits each of width and precision; what is longer makes no sensible name.
constexpr std::size_t kMaxConversionLength = 16;
constexpr int kMaxNumberDigits = 3;

bool IsDigit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

bool IsOneOf(wchar_t character, const wchar_t* set) {
    return character != L'\0' && std::wcschr(set, character) != nullptr;
}

/// One conversion of a pattern, checked and copied, so that nothing else ever gets to the formatting.
class Conversion {
  public:
    /// Reads what stands behind a percent sign and moves `at` behind it. False for anything but the
    /// conversion of an integer.
    bool Read(const wchar_t*& at) {
        if ((*at == L'1' || *at == L'2') && at[1] == L'$') {
            argument_ = static_cast<int>(*at - L'0');
            at += 2;
        }
        bool fits = Add(L'%');
        while (fits && IsOneOf(*at, L"-+ #0"))
            fits = Add(*at++);
        fits = fits && ReadNumber(at);
        if (fits && *at == L'.')
            fits = Add(*at++) && ReadNumber(at);
        while (*at == L'l' || *at == L'h')
            ++at;
        return fits && IsOneOf(*at, L"diuxXo") && Add(*at++);
    }

    /// 1 or 2; 0 for the next one.
    int Argument() const { return argument_; }

    /// Writes the number. Returns the number of characters, or a negative value when they do not fit.
    int Write(int number, wchar_t* out, std::size_t room) const {
        return std::swprintf(out, room, text_, number);
    }

  private:
    bool Add(wchar_t character) {
        if (length_ + 1 >= kMaxConversionLength)
            return false;
        text_[length_++] = character;
        return true;
    }

    bool ReadNumber(const wchar_t*& at) {
        for (int digits = 0; IsDigit(*at); ++digits) {
            if (digits == kMaxNumberDigits || !Add(*at++))
                return false;
        }
        return true;
    }

    wchar_t text_[kMaxConversionLength] = {};
    std::size_t length_ = 0;
    int argument_ = 0;
};

bool WriteName(const wchar_t* at, int first, int second, wchar_t (&name)[kFrameNameLength]) {
    std::size_t length = 0;
    int next = 1;
    while (*at != L'\0') {
        if (length + 1 >= kFrameNameLength)
            return false;
        if (*at != L'%' || at[1] == L'%') {
            name[length++] = *at;
            at += *at == L'%' ? 2 : 1;
            continue;
        }
        Conversion conversion;
        if (!conversion.Read(++at))
            return false;
        const int argument = conversion.Argument() == 0 ? next++ : conversion.Argument();
        if (argument > 2)
            return false;
        const int written =
            conversion.Write(argument == 1 ? first : second, name + length, kFrameNameLength - length);
        if (written < 0)
            return false;
        length += static_cast<std::size_t>(written);
    }
    name[length] = L'\0';
    return true;
}

}  // namespace

bool FormatFrameName(const wchar_t* pattern, int first, int second, wchar_t (&name)[kFrameNameLength]) {
    if (pattern != nullptr && WriteName(pattern, first, second, name))
        return true;
    name[0] = L'\0';
    return false;
}

}  // namespace korvane
