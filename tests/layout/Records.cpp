// The records and codes that applications and other processes share with the libraries. It compiles or it
// does not.

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

#include "KorvaneEx.h"
#include "platform/coredll.h"

namespace {

// Four bytes, the three components of the colour before alpha.
static_assert(sizeof(_LQColor) == 4 && alignof(_LQColor) == 1);
static_assert(offsetof(_LQColor, r) == 0 && offsetof(_LQColor, g) == 1 && offsetof(_LQColor, b) == 2 &&
              offsetof(_LQColor, a) == 3);

// Left, right, top, bottom.
static_assert(sizeof(_LQRect) == 16 && std::is_same<decltype(_LQRect::left), std::int32_t>::value);
static_assert(offsetof(_LQRect, left) == 0 && offsetof(_LQRect, right) == 4 && offsetof(_LQRect, top) == 8 &&
              offsetof(_LQRect, bottom) == 12);

static_assert(sizeof(tagPOINT) == 8 && offsetof(tagPOINT, x) == 0 && offsetof(tagPOINT, y) == 4);

static_assert(offsetof(_LQMessage, code) == 0 && offsetof(_LQMessage, x) == 4 &&
              offsetof(_LQMessage, y) == 8 && offsetof(_LQMessage, param) == 12 &&
              offsetof(_LQMessage, source) == 16);
static_assert(sizeof(_LQMessage) == 16 + sizeof(void*));

static_assert(korvane::kMsgKeyDown == WM_KEYDOWN && korvane::kMsgKeyUp == WM_KEYUP &&
              korvane::kMsgCommand == WM_COMMAND && korvane::kMsgMove == WM_MOUSEMOVE &&
              korvane::kMsgPress == WM_LBUTTONDOWN && korvane::kMsgRelease == WM_LBUTTONUP);
static_assert(korvane::kMsgCommand == 273 && korvane::kMsgMove == 512 && korvane::kMsgPress == 513 &&
              korvane::kMsgRelease == 514 && korvane::kMsgSysInfoChanged == 1191);
static_assert(korvane::kEventPressed == 513 && korvane::kEventReleased == 514 &&
              korvane::kEventLongPress == 29697 && korvane::kEventValueChanged == 29706 &&
              korvane::kEventItemChosen == 29953);
static_assert(eSurface_ARGB8888 == 3 && eSurface_ARGB4444 == 5 && eError_None == 1);
static_assert(sizeof(_eSurfaceType) == 4 && sizeof(eBorderDirection) == 4);
static_assert(sizeof(_eErrorInfo) == 4 && sizeof(_eImageType) == 4 && sizeof(_eGUIElementType) == 4 &&
              sizeof(eScrollType) == 4);
static_assert(eBorder_FocusLeft == 0 && eBorder_FocusTop == 1 && eBorder_FocusRight == 2 &&
              eBorder_FocusBottom == 3 && eBorder_Left == 4 && eBorder_Top == 5 && eBorder_Right == 6 &&
              eBorder_Bottom == 7);

// The bounds of a tuner, which controls take by value.
static_assert(offsetof(_FreqStruct_, minimum) == 0 && offsetof(_FreqStruct_, maximum) == 4 &&
              offsetof(_FreqStruct_, scale) == 8 && offsetof(_FreqStruct_, decimal) == 12 &&
              offsetof(_FreqStruct_, freqID) == 16);
static_assert(sizeof(_FreqStruct_) == 16 + sizeof(std::wstring));

// The record that all processes of the head unit map.
static_assert(sizeof(_LQSysInfo) == 33 && alignof(_LQSysInfo) == 1);
static_assert(offsetof(_LQSysInfo, btState) == 0 && offsetof(_LQSysInfo, clock24h) == 3 &&
              offsetof(_LQSysInfo, mute) == 4 && offsetof(_LQSysInfo, parking) == 5 &&
              offsetof(_LQSysInfo, gps) == 6 && offsetof(_LQSysInfo, rdsIconMask) == 9 &&
              offsetof(_LQSysInfo, regOn) == 10 && offsetof(_LQSysInfo, ptyOn) == 11 &&
              offsetof(_LQSysInfo, afState) == 12 && offsetof(_LQSysInfo, taOn) == 13 &&
              offsetof(_LQSysInfo, tpOn) == 14 && offsetof(_LQSysInfo, taActive) == 15 &&
              offsetof(_LQSysInfo, frontRearAvail) == 16 && offsetof(_LQSysInfo, guideAvail) == 17 &&
              offsetof(_LQSysInfo, language) == 18 && offsetof(_LQSysInfo, usbPresent) == 22 &&
              offsetof(_LQSysInfo, discAudioPresent) == 23 && offsetof(_LQSysInfo, discVideoPresent) == 24 &&
              offsetof(_LQSysInfo, ipodPresent) == 25 && offsetof(_LQSysInfo, tvPresent) == 26 &&
              offsetof(_LQSysInfo, naviPresent) == 28 && offsetof(_LQSysInfo, aux1Present) == 29 &&
              offsetof(_LQSysInfo, aux2Present) == 30);

// Twelve words: the library, its ten entry points, the record that stands in.
static_assert(sizeof(CLQShareMemLink) == 12 * sizeof(void*));
static_assert(std::is_standard_layout<CLQShareMemLink>::value);

}  // namespace
