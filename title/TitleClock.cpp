#include <algorithm>
#include <iterator>

#include "engine/system/DateTime.h"
#include "title/TitleDialog.h"

namespace {

enum class DayHalf { Unknown, Morning, Afternoon };

constexpr std::size_t kDesignatorLength = 2;
// In Chinese, English and Japanese.
constexpr const wchar_t* kMorning[] = {L"\u4E0A\u5348", L"AM", L"\u5348\u524D"};
constexpr const wchar_t* kAfternoon[] = {L"\u4E0B\u5348", L"PM", L"\u5348\u5F8C"};

DayHalf DayHalfOf(const std::wstring& designator) {
    if (std::find(std::begin(kMorning), std::end(kMorning), designator) != std::end(kMorning))
        return DayHalf::Morning;
    if (std::find(std::begin(kAfternoon), std::end(kAfternoon), designator) != std::end(kAfternoon))
        return DayHalf::Afternoon;
    return DayHalf::Unknown;
}

}  // namespace

void CLQTitleDialog::OnTimerUpdateTime(void*, int) {
    UpdateTime();
}

void CLQTitleDialog::UpdateTime() {
    if (!m_pSt12HR || !m_pSt24HR || !m_pGp12HR || !m_pIconAM || !m_pIconPM)
        return;
    const CLQDateTime now = CLQDateTime::now();
    const bool is24Hours = m_pSysInfo && m_pSysInfo->clock24h != 0;
    m_pGp12HR->SetShow(!is24Hours);
    m_pSt24HR->SetShow(is24Hours);
    if (is24Hours) {
        ShowTime(*m_pSt24HR, now.toTimeString(L"HH:mm"));
        return;
    }

    std::wstring time = now.toTimeString(L"hh:mmtt");
    const std::size_t digits = time.size() - std::min(time.size(), kDesignatorLength);
    const DayHalf half = DayHalfOf(time.substr(digits));
    // A designator that nobody knows leaves digits and icons as they were, so that they fit together.
    if (half == DayHalf::Unknown)
        return;
    time.resize(digits);
    ShowTime(*m_pSt12HR, time);
    m_pIconAM->SetShow(half == DayHalf::Morning);
    m_pIconPM->SetShow(half == DayHalf::Afternoon);
}

/// Both forms share the last text, so a form that shows anew the digits that the other one showed last keeps
/// what it had, until the minute or the setting changes.
void CLQTitleDialog::ShowTime(CLQStatic& label, const std::wstring& time) {
    if (time == m_strTime)
        return;
    m_strTime = time;
    label.SetText(time.c_str());
}
