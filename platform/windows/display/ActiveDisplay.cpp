#include "platform/windows/display/ActiveDisplay.h"

#include <mutex>

namespace korvane {
namespace {

struct Active {
    std::mutex mutex;
    const Display* display = nullptr;
    HWND owner = nullptr;
};

Active& TheActive() {
    static Active& active = *new Active;
    return active;
}

}  // namespace

bool MayActivateDisplay(const Display* display, HWND owner) {
    if (!owner || GetWindowThreadProcessId(owner, nullptr) != GetCurrentThreadId())
        return FailDisplay("the display's owner is not a window of this thread");
    Active& active = TheActive();
    const std::lock_guard<std::mutex> lock(active.mutex);
    return !active.display || active.display == display || FailDisplay("another display is open");
}

void ActivateDisplay(Display* display, HWND owner) {
    Active& active = TheActive();
    const std::lock_guard<std::mutex> lock(active.mutex);
    active.display = display;
    active.owner = owner;
}

void DeactivateDisplay(const Display* display) {
    Active& active = TheActive();
    const std::lock_guard<std::mutex> lock(active.mutex);
    if (active.display != display)
        return;
    active.display = nullptr;
    active.owner = nullptr;
}

bool IsDisplayThread() {
    const HWND window = DisplayWindow();
    return window && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

HWND DisplayWindow() {
    Active& active = TheActive();
    const std::lock_guard<std::mutex> lock(active.mutex);
    return active.owner;
}

}  // namespace korvane
