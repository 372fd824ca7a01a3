#pragma once

/// One input event, handed to `DoMessage`.
struct _LQMessage {
    unsigned int code = 0;  ///< one of the korvane::kMsg... codes
    int x = 0;              ///< pointer position in screen pixels (pointer codes)
    int y = 0;
    int param = 0;           ///< non-pointer codes: item number, key code or event code
    void* source = nullptr;  ///< kMsgCommand: the control that posted it, to be compared, not used
};

namespace korvane {

/// Message codes. The pointer and key codes are the operating system's own numbers.
enum MessageCode : unsigned int {
    kMsgKeyDown = 256,
    kMsgKeyUp = 257,
    kMsgCommand = 273,  ///< a click that a control posted to the screen's window
    kMsgMove = 512,
    kMsgPress = 513,
    kMsgRelease = 514,
    kMsgSysInfoChanged = 1191,  ///< param names the system-information item
};

/// Codes of the events that controls fire through their callback table.
enum EventCode : int {
    kEventPressed = 513,
    kEventReleased = 514,
    kEventLongPress = 29697,
    kEventValueChanged = 29706,
    kEventItemChosen = 29953,
};

}  // namespace korvane
