#pragma once

#include "platform/coredll.h"

namespace korvane {

/// Makes of what a finger or pen does to the display's window the message that the mouse's left button would
/// cause. The system's own translation waits until it knows a tap from a long press, which is the controls'
/// to tell. Of several fingers the first counts.
void TranslateTouch(MSG& message);

/// Whether a pointer message is about the finger or pen whose press was translated last.
bool IsTheTouch(WPARAM wParam);

}  // namespace korvane
