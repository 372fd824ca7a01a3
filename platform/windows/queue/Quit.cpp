#include "platform/windows/queue/ThreadQueue.h"

namespace korvane {
namespace {

void NoteInvalid(HWND window, std::vector<HWND>& windows) {
    if (GetUpdateRect(window, nullptr, FALSE))
        windows.push_back(window);
}

BOOL CALLBACK VisitChild(HWND window, LPARAM windows) {
    NoteInvalid(window, *reinterpret_cast<std::vector<HWND>*>(windows));
    return TRUE;
}

BOOL CALLBACK VisitTopLevel(HWND window, LPARAM windows) {
    NoteInvalid(window, *reinterpret_cast<std::vector<HWND>*>(windows));
    EnumChildWindows(window, &VisitChild, windows);
    return TRUE;
}

}  // namespace

namespace desktop {

void PostQuitMessage(int exitCode) {
    ThreadQueue& queue = CurrentQueue();
    if (!queue.followsManualClock)
        return ::PostQuitMessage(exitCode);
    queue.quitAsked = true;
    queue.exitCode = exitCode;
    queue.quitMoment = CurrentMoment();
    queue.paintsBeforeQuit.clear();
    EnumThreadWindows(GetCurrentThreadId(), &VisitTopLevel,
                      reinterpret_cast<LPARAM>(&queue.paintsBeforeQuit));
}

}  // namespace desktop
}  // namespace korvane
