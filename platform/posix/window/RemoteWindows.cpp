#include "platform/posix/window/RemoteWindows.h"

#include <atomic>

namespace korvane {
namespace {

std::atomic<RemoteWindows*> remoteWindows{nullptr};

}  // namespace

void SetRemoteWindows(RemoteWindows* windows) {
    remoteWindows = windows;
}

RemoteWindows* RemoteWindowsFor(HWND window) {
    const bool mayBeRemote = !window || (reinterpret_cast<UINT_PTR>(window) & RemoteWindows::kHandleBit) != 0;
    return mayBeRemote ? remoteWindows.load() : nullptr;
}

}  // namespace korvane
