#pragma once

#include <string>

#include "platform/Export.h"

/// A calendar date (years 1 to 9999 of the Gregorian calendar) and time of day.
class KORVANE_API CLQDateTime {
  public:
    /// The first second of 1970.
    CLQDateTime();
    /// A field beyond its range becomes the nearest within: the 31st of a short month is its last day.
    CLQDateTime(int year, int month, int day, int hour, int minute, int second);

    /// The local time.
    static CLQDateTime now();

    /// Formats the time by a pattern of HH, H (0 to 23), hh, h (1 to 12), mm, m, ss, s, tt (the day half in
    /// the current language, see CLQLangManager) and literal characters; the doubled letters give two digits.
    /// A pair of apostrophes quotes; two in a row are an apostrophe.
    std::wstring toTimeString(const std::wstring& format) const;

    int year() const { return m_nYear; }
    int month() const { return m_nMonth; }
    int day() const { return m_nDay; }
    int hour() const { return m_nHour; }
    int minute() const { return m_nMinute; }
    int second() const { return m_nSecond; }

  private:
    int m_nYear = 1970;
    int m_nMonth = 1;
    int m_nDay = 1;
    int m_nHour = 0;
    int m_nMinute = 0;
    int m_nSecond = 0;
};
