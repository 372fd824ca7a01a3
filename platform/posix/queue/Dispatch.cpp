#include "platform/posix/LastError.h"
#include "platform/posix/queue/Send.h"

namespace korvane {
namespace {

// The character that a key types, 0 when it types none.
wchar_t CharacterOf(WPARAM key) {
    switch (key) {
        case VK_BACK:
        case VK_TAB:
        case VK_RETURN:
        case VK_ESCAPE:
        case VK_SPACE:
            return static_cast<wchar_t>(key);
        default:
            break;
    }
    if (key >= L'0' && key <= L'9')
        return static_cast<wchar_t>(key);
    return key >= L'A' && key <= L'Z' ? static_cast<wchar_t>(key - L'A' + L'a') : L'\0';
}

TIMERPROC LiveTimerProcedure(const MSG& message) {
    ThreadQueue* queue = CurrentQueueIfAny();
    if (!queue)
        return nullptr;
    const std::lock_guard<std::mutex> lock(TheSession().mutex);
    const Timer* timer = queue->timers.Find(message.hwnd, message.wParam);
    return timer && reinterpret_cast<LPARAM>(reinterpret_cast<void*>(timer->procedure)) == message.lParam
               ? timer->procedure
               : nullptr;
}

}  // namespace
}  // namespace korvane

using namespace korvane;

extern "C" {

BOOL TranslateMessage(const MSG* message) {
    if (!message)
        return Fail(ERROR_INVALID_PARAMETER);
    switch (message->message) {
        case WM_KEYDOWN:
            if (const wchar_t character = CharacterOf(message->wParam))
                PostMessageW(message->hwnd, WM_CHAR, static_cast<WPARAM>(character), message->lParam);
            return TRUE;
        case WM_KEYUP:
        case WM_SYSKEYDOWN:
        case WM_SYSKEYUP:
            return TRUE;
        default:
            return FALSE;
    }
}

LRESULT DispatchMessageW(const MSG* message) {
    if (!message)
        return Fail(ERROR_INVALID_PARAMETER);
    if (message->message == WM_TIMER && message->lParam != 0) {
        if (const TIMERPROC procedure = LiveTimerProcedure(*message))
            procedure(message->hwnd, WM_TIMER, message->wParam, GetTickCount());
        return 0;
    }
    return CallProcedure(message->hwnd, message->message, message->wParam, message->lParam);
}
}
