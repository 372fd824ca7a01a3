#include "platform/posix/remote/RemoteWindows.h"

#include "platform/CaseFold.h"
#include "platform/posix/LastError.h"
#include "platform/posix/remote/Fork.h"
#include "platform/posix/remote/reach/Neighbours.h"
#include "platform/queue/PointerMessage.h"

namespace korvane {
namespace {

bool Fits(const ListedWindow& window, LPCWSTR className, LPCWSTR title) {
    return (!className || EqualFolded(window.className, className)) &&
           (!title || EqualFolded(window.title, title));
}

}  // namespace

HWND FindRemoteWindow(LPCWSTR className, LPCWSTR title, std::uint64_t born) {
    PrepareForFork();
    Neighbours& neighbours = TheNeighbours();
    const std::lock_guard<std::mutex> lock(neighbours.mutex);
    std::shared_ptr<Peer> owner;
    std::uint32_t handle = 0;
    for (const std::shared_ptr<Peer>& peer : neighbours.LookAround()) {
        for (const ListedWindow& window : peer->Windows()) {
            if (window.born <= born || !Fits(window, className, title))
                continue;
            owner = peer;
            handle = window.handle;
            born = window.born;
        }
    }
    if (!owner)
        return nullptr;
    owner->Reach();
    return neighbours.HandleOf(owner, handle);
}

std::vector<TopLevelWindow> RemoteWindows() {
    Neighbours& neighbours = TheNeighbours();
    const std::lock_guard<std::mutex> lock(neighbours.mutex);
    std::vector<TopLevelWindow> windows;
    for (const std::shared_ptr<Peer>& peer : neighbours.LookAround()) {
        const std::vector<ListedWindow> listed = peer->Windows();
        for (const ListedWindow& window : listed)
            windows.push_back({neighbours.HandleOf(peer, window.handle), window.born});
    }
    return windows;
}

std::optional<RemoteWindowNames> NamesOfRemoteWindow(HWND window) {
    Neighbours& neighbours = TheNeighbours();
    const std::lock_guard<std::mutex> lock(neighbours.mutex);
    const ListedWindow* const listed = neighbours.Describe(window);
    if (!listed)
        return std::nullopt;
    return RemoteWindowNames{listed->className, listed->title};
}

bool PostToRemoteWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (CarriesPointers(message))
        return Fail(ERROR_MESSAGE_SYNC_ONLY);
    PrepareForFork();
    Neighbours& neighbours = TheNeighbours();
    const std::lock_guard<std::mutex> lock(neighbours.mutex);
    const Neighbours::Target target = neighbours.Resolve(window);
    if (!target.peer)
        return Fail(ERROR_INVALID_WINDOW_HANDLE);
    Packet packet;
    packet.kind = PacketKind::Post;
    packet.window = target.window;
    packet.message = message;
    packet.wParam = wParam;
    packet.lParam = lParam;
    switch (target.peer->Post(packet)) {
        case Handover::Done:
            return true;
        case Handover::Full:
            return Fail(ERROR_NOT_ENOUGH_QUOTA);
        case Handover::Broken:
            break;
    }
    return Fail(ERROR_INVALID_WINDOW_HANDLE);
}

}  // namespace korvane
