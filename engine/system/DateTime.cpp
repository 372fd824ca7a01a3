#include "engine/system/DateTime.h"

#include <algorithm>

#include "engine/text/LangManager.h"
#include "platform/coredll.h"

namespace {

constexpr int kHoursPerHalf = 12;

int DaysInMonth(int year, int month) {
    static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leapYear = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leapYear ? 29 : kDays[month - 1];
}

std::wstring Digits(int value, bool two) {
    const std::wstring digits = std::to_wstring(value);
    return two && digits.size() < 2 ? L'0' + digits : digits;
}

/// The text of a quotation and, in `at`, the position behind it. `at` lies on the opening apostrophe.
std::wstring TakeQuoted(const std::wstring& format, std::size_t& at) {
    constexpr wchar_t kApostrophe = L'\'';
    ++at;
    if (at < format.size() && format[at] == kApostrophe) {
        ++at;
        return {kApostrophe};
    }
    std::wstring text;
    for (; at < format.size(); ++at) {
        if (format[at] == kApostrophe) {
            ++at;
            if (at == format.size() || format[at] != kApostrophe)
                break;
        }
        text += format[at];
    }
    return text;
}

}  // namespace

CLQDateTime::CLQDateTime() = default;

CLQDateTime::CLQDateTime(int year, int month, int day, int hour, int minute, int second)
    : m_nYear(std::clamp(year, 1, 9999)),
      m_nMonth(std::clamp(month, 1, 12)),
      m_nDay(std::clamp(day, 1, DaysInMonth(m_nYear, m_nMonth))),
      m_nHour(std::clamp(hour, 0, 23)),
      m_nMinute(std::clamp(minute, 0, 59)),
      m_nSecond(std::clamp(second, 0, 59)) {}

CLQDateTime CLQDateTime::now() {
    SYSTEMTIME time = {};
    GetLocalTime(&time);
    return CLQDateTime(time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond);
}

std::wstring CLQDateTime::toTimeString(const std::wstring& format) const {
    std::wstring text;
    for (std::size_t at = 0; at < format.size();) {
        const wchar_t letter = format[at];
        if (letter == L'\'') {
            text += TakeQuoted(format, at);
            continue;
        }
        const bool two = at + 1 < format.size() && format[at + 1] == letter;
        std::size_t taken = two ? 2 : 1;
        switch (letter) {
            case L'H':
                text += Digits(m_nHour, two);
                break;
            case L'h':
                // Midnight and noon are 12.
                text += Digits(m_nHour % kHoursPerHalf == 0 ? kHoursPerHalf : m_nHour % kHoursPerHalf, two);
                break;
            case L'm':
                text += Digits(m_nMinute, two);
                break;
            case L's':
                text += Digits(m_nSecond, two);
                break;
            case L't':
                if (two) {
                    const CLQLangManager& language = *CLQLangManager::GetInstance();
                    text += m_nHour < kHoursPerHalf ? language.GetMorning() : language.GetAfternoon();
                    break;
                }
                text += letter;
                break;
            default:
                text += letter;
                taken = 1;
        }
        at += taken;
    }
    return text;
}
