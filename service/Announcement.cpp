#include "service/Announcement.h"

#include <algorithm>
#include <iterator>

#include "engine/core/Message.h"
#include "platform/CaseFold.h"
#include "platform/coredll.h"
#include "sysinfo/MainApplication.h"

namespace korvane {
namespace {

constexpr const wchar_t* kListeners[] = {L"KorvaneScreen", kMainWindowName};

bool IsListener(HWND window) {
    wchar_t name[64];  // more than any listener's: a longer one, cut off, is none
    if (GetClassNameW(window, name, static_cast<int>(std::size(name))) == 0)
        return false;
    return std::any_of(std::begin(kListeners), std::end(kListeners),
                       [&name](const wchar_t* listener) { return EqualFolded(listener, name); });
}

BOOL CALLBACK Tell(HWND window, LPARAM item) {
    if (IsListener(window))
        PostMessageW(window, kMsgSysInfoChanged, static_cast<WPARAM>(item), 0);
    return TRUE;
}

}  // namespace

void AnnounceChange(int item) {
    EnumWindows(&Tell, item);
}

}  // namespace korvane
