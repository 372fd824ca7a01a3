#pragma once

#include "platform/coredll.h"

/// The head unit's main application, to which the controls turn with what they cannot do themselves.
namespace korvane {

/// Class and title of its window; the spelling is the one that it uses.
constexpr wchar_t kMainWindowName[] = L"NavigRecive";

/// What is posted to it.
enum MainMessage : UINT {
    kMainSourceChosen = 1125,  ///< lParam: id of the source to switch to; wParam 1
    kMainTitleButton = 1133,   ///< wParam: a TitleButton
    kMainKeyBeep = 1137,       ///< sound the key beep
};

enum class TitleButton : WPARAM {
    TrafficCancel = 1,
    SwitchZone = 2,
    Guide = 3,
};

/// Asks it to sound the key beep. Its window is looked up by title at the first call in this process only,
/// also when it is not found: who beeps before the main application is up stays silent.
void RequestKeyBeep();

}  // namespace korvane
