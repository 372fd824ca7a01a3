#include "service/Announcement.h"

#include "engine/core/Message.h"
#include "platform/coredll.h"
#include "sysinfo/MainApplication.h"

namespace korvane {
namespace {

constexpr const wchar_t* kListeners[] = {L"KorvaneScreen", kMainWindowName};

}  // namespace

void AnnounceChange(int item) {
    for (const wchar_t* const windowClass : kListeners) {
        if (const HWND window = FindWindowW(windowClass, nullptr))
            PostMessageW(window, kMsgSysInfoChanged, static_cast<WPARAM>(item), 0);
    }
}

}  // namespace korvane
