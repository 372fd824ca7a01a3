#include "title/TitleDialog.h"

namespace {

/// What the strip says while a traffic announcement plays, by the system's language id. English for ids
/// without a text of their own.
const wchar_t* TrafficText(unsigned char language) {
    switch (language) {
        case 1:
        case 2:
            return L"\u63A5\u6536\u5230\u4EA4\u901A\u4FE1\u606F...";
        case 4:
            return L"Informations de trafic re\u00E7ue...";
        case 5:
            // The only one without dots, which is meant.
            return L"Verkehrsinformationen empfangen";
        case 6:
            return L"Informazioni sul traffico ricevute...";
        case 7:
        case 14:
            return L"Informaci\u00F3n de tr\u00E1fico recibida...";
        case 8:
            return L"Verkeersinformatie ontvangen...";
        case 9:
            return L"Trafikinformation mottagen...";
        case 10:
            return L"Odebrano informacje o ruchu drogowym...";
        case 11:
            return L"\u039B\u03AE\u03C8\u03B7 "
                   L"\u03C0\u03BB\u03B7\u03C1\u03BF\u03C6\u03BF\u03C1\u03B9\u03CE\u03BD "
                   L"\u03BA\u03C5\u03BA\u03BB\u03BF\u03C6\u03BF\u03C1\u03AF\u03B1\u03C2...";
        case 13:
            return L"Information de circulation re\u00E7ue...";
        case 16:
            return L"\u4EA4\u901A\u60C5\u5831\u53D7\u4FE1\u4E2D...";
        case 17:
            return L"Informa\u00E7\u00E3o de Trafego Recebida...";
        default:
            return L"Traffic Information Received...";
    }
}

}  // namespace

/// The texts are the program's own: the language table may not be loaded yet, or be another one.
void CLQTitleDialog::UpdateTAText() {
    if (!m_pStTAText)
        return;
    constexpr unsigned char kEnglish = 0;
    m_pStTAText->SetLangID(0);
    m_pStTAText->SetText(TrafficText(m_pSysInfo ? m_pSysInfo->language : kEnglish));
}
