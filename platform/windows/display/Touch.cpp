#include "platform/windows/display/Touch.h"

#include "platform/windows/display/ActiveDisplay.h"

namespace korvane {
namespace {

// Of the display's thread alone.
UINT32 touchingPointer = 0;

UINT MouseMessageOf(UINT message, WPARAM wParam) {
    if (!IS_POINTER_PRIMARY_WPARAM(wParam))
        return WM_NULL;
    switch (message) {
        case WM_POINTERDOWN:
            return WM_LBUTTONDOWN;
        case WM_POINTERUP:
            return WM_LBUTTONUP;
        default:
            return IS_POINTER_INCONTACT_WPARAM(wParam) ? WM_MOUSEMOVE : WM_NULL;
    }
}

}  // namespace

void TranslateTouch(MSG& message) {
    if (message.message != WM_POINTERDOWN && message.message != WM_POINTERUPDATE &&
        message.message != WM_POINTERUP)
        return;
    if (message.hwnd != DisplayWindow())
        return;
    POINT place{static_cast<SHORT>(LOWORD(message.lParam)), static_cast<SHORT>(HIWORD(message.lParam))};
    ScreenToClient(message.hwnd, &place);
    const UINT32 pointer = GET_POINTERID_WPARAM(message.wParam);
    message.message = MouseMessageOf(message.message, message.wParam);
    if (message.message == WM_LBUTTONDOWN)
        touchingPointer = pointer;
    message.wParam = message.message == WM_LBUTTONUP ? 0 : MK_LBUTTON;
    message.lParam = MAKELPARAM(place.x, place.y);
}

bool IsTheTouch(WPARAM wParam) {
    return GET_POINTERID_WPARAM(wParam) == touchingPointer;
}

}  // namespace korvane
