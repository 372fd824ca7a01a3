#include "platform/posix/remote/reach/Neighbours.h"

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include "platform/DeviceKey.h"
#include "platform/Simulation.h"
#include "platform/posix/files/RuntimeFolder.h"
#include "platform/posix/remote/RemoteHandle.h"
#include "platform/posix/remote/receive/Station.h"
#include "platform/posix/remote/wire/EndpointName.h"

namespace korvane {
namespace {

// More than one device has. Files beyond are left alone.
constexpr std::size_t kMostPeers = 4096;

std::vector<std::string> EndpointsIn(int folder, const std::string& deviceKey) {
    const int opened = openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(opened < 0 ? nullptr : fdopendir(opened), &closedir);
    std::vector<std::string> endpoints;
    while (const dirent* entry = entries ? readdir(entries.get()) : nullptr) {
        const std::string_view endpoint = EndpointOfListFile(entry->d_name, deviceKey);
        if (!endpoint.empty() && endpoints.size() < kMostPeers)
            endpoints.emplace_back(endpoint);
    }
    return endpoints;
}

bool IsRemoved(int folder) {
    struct stat status {};
    return fstat(folder, &status) != 0 || status.st_nlink == 0;
}

UINT_PTR KeyOf(HWND handle) {
    return reinterpret_cast<UINT_PTR>(handle);
}

}  // namespace

Neighbours& TheNeighbours() {
    // Never destroyed: static destructors of other modules may still post.
    static Neighbours& neighbours = *new Neighbours;
    return neighbours;
}

void Neighbours::EnterFolder() {
    std::string root = DeviceRoot();
    const bool isOpen = folder_ && !IsRemoved(folder_->Number());
    if (isOpen && root == root_)
        return;
    peers_.clear();
    if (!isOpen)
        folder_ = std::make_shared<const Descriptor>(OpenRuntimeFolder(IfMissing::Fail));
    deviceKey_ = DeviceKey();
    root_ = std::move(root);
}

std::vector<std::shared_ptr<Peer>> Neighbours::LookAround() {
    EnterFolder();
    if (folder_->IsOpen())
        MeetNew();
    std::vector<std::shared_ptr<Peer>> living;
    for (auto at = peers_.begin(); at != peers_.end();) {
        if (at->second->IsAlive()) {
            living.push_back(at->second);
            ++at;
        } else {
            Forget(*at->second);
            at = peers_.erase(at);
        }
    }
    return living;
}

void Neighbours::MeetNew() {
    const std::vector<std::string> endpoints = EndpointsIn(folder_->Number(), deviceKey_);
    // After the files: another thread may open this process's own endpoint at this moment.
    const std::string ownEndpoint = OwnEndpoint();
    for (const std::string& endpoint : endpoints) {
        if (endpoint == ownEndpoint || peers_.count(endpoint) != 0)
            continue;
        if (std::shared_ptr<Peer> peer = Peer::Open(folder_, endpoint))
            peers_.emplace(endpoint, std::move(peer));
    }
}

HWND Neighbours::HandleOf(const std::shared_ptr<Peer>& peer, std::uint32_t window) {
    UINT_PTR& handle = peer->handles[window];
    while (handle == 0) {
        lastHandle_ = (lastHandle_ + 1) % kRemoteHandleBit;
        if (targets_.emplace(lastHandle_ | kRemoteHandleBit, Target{peer, window}).second)
            handle = lastHandle_ | kRemoteHandleBit;
    }
    const HWND result = reinterpret_cast<HWND>(handle);
    ForgetGoneWindows(*peer);
    return result;
}

Neighbours::Target Neighbours::Resolve(HWND handle) {
    const auto found = targets_.find(KeyOf(handle));
    if (found == targets_.end())
        return {};
    const Target target = found->second;
    return target.peer->FindWindowOf(target.window) ? target : Target();
}

const ListedWindow* Neighbours::Describe(HWND handle) {
    const auto found = targets_.find(KeyOf(handle));
    if (found == targets_.end())
        return nullptr;
    const std::shared_ptr<Peer> peer = found->second.peer;
    if (peer->IsAlive())
        return peer->FindWindowOf(found->second.window);
    Forget(*peer);
    return nullptr;
}

void Neighbours::Disconnect() {
    for (const auto& [endpoint, peer] : peers_)
        peer->Disconnect();
    // Those of a root that is no longer this process's, too.
    for (const auto& [handle, target] : targets_)
        target.peer->Disconnect();
}

void Neighbours::Forget(const Peer& peer) {
    for (const auto& [window, handle] : peer.handles)
        targets_.erase(handle);
}

// Now and then, so that the handles of a process that makes and ends windows again and again do not pile up.
void Neighbours::ForgetGoneWindows(Peer& peer) {
    constexpr std::size_t kSpare = 64;
    if (peer.handles.size() < 2 * peer.Windows().size() + kSpare)
        return;
    for (auto at = peer.handles.begin(); at != peer.handles.end();) {
        if (peer.FindWindowOf(at->first)) {
            ++at;
        } else {
            targets_.erase(at->second);
            at = peer.handles.erase(at);
        }
    }
}

}  // namespace korvane
