#include "demo/headunit/LanguageFile.h"

namespace korvane::demo {

const wchar_t* LanguageFile(unsigned char id) {
    switch (id) {
        case 1:
        case 2:
            return L"Chinese.lng";
        case 4:
        case 13:
            return L"French.lng";
        case 5:
            return L"German.lng";
        case 6:
            return L"Italian.lng";
        case 7:
        case 14:
            return L"Spanish.lng";
        case 8:
            return L"Dutch.lng";
        case 9:
            return L"Swedish.lng";
        case 10:
            return L"Polish.lng";
        case 11:
            return L"Greek.lng";
        case 16:
            return L"Japanese.lng";
        case 17:
            return L"Portuguese.lng";
        default:
            return L"English.lng";
    }
}

}  // namespace korvane::demo
