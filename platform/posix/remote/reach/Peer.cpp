#include "platform/posix/remote/reach/Peer.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "platform/posix/remote/wire/EndpointName.h"

namespace korvane {

Peer::Peer(std::shared_ptr<const Descriptor> folder, std::string_view endpoint, Descriptor list)
    : folder_(std::move(folder)), name_(endpoint), list_(std::move(list)) {}

std::shared_ptr<Peer> Peer::Open(std::shared_ptr<const Descriptor> folder, std::string_view endpoint) {
    Descriptor list(openat(folder->Number(), ListFileOf(endpoint).c_str(),
                           O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!list.IsOpen() || fstat(list.Number(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_uid != geteuid())
        return nullptr;
    return std::shared_ptr<Peer>(new Peer(std::move(folder), endpoint, std::move(list)));
}

bool Peer::IsAlive() {
    if (isDead_)
        return false;
    // Its process holds the lock for as long as it lives.
    if (flock(list_.Number(), LOCK_SH | LOCK_NB) != 0)
        return true;
    isDead_ = true;
    unlinkat(folder_->Number(), SocketOf(name_).c_str(), 0);
    unlinkat(folder_->Number(), ListFileOf(name_).c_str(), 0);
    list_.Close();
    windows_.clear();
    Disconnect();
    return false;
}

const std::vector<ListedWindow>& Peer::Windows() {
    // Its process may be writing; that takes microseconds, unless the system has something else to do.
    constexpr int kAttempts = 1000;
    for (int i = 0; i < kAttempts && !isDead_ && !ReadWindows(); ++i)
        sched_yield();
    return windows_;
}

// False when the list is damaged.
bool Peer::ReadWindows() {
    std::vector<std::uint8_t> bytes(sizeof(WindowListHeader));
    const ssize_t read = pread(list_.Number(), bytes.data(), bytes.size(), 0);
    WindowListHeader header;
    if (read <= 0)
        return true;  // Nothing has been published so far.
    if (!DecodeWindowListHeader(bytes.data(), static_cast<std::size_t>(read), header))
        return false;
    if (header.generation == generation_)
        return true;
    bytes.resize(sizeof(header) + header.bytes);
    if (pread(list_.Number(), bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size()) ||
        !DecodeWindowList(bytes, windows_) || !DecodeWindowListHeader(bytes.data(), bytes.size(), header))
        return false;
    generation_ = header.generation;
    return true;
}

const ListedWindow* Peer::FindWindowOf(std::uint32_t handle) {
    const std::vector<ListedWindow>& windows = Windows();
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [handle](const ListedWindow& window) { return window.handle == handle; });
    return found == windows.end() ? nullptr : &*found;
}

Handover Peer::Connect(Descriptor& channel) {
    return isDead_ ? Handover::Broken : ConnectTo(folder_->Number(), SocketOf(name_), channel);
}

Handover Peer::Reach() {
    return posts_.IsOpen() ? Handover::Done : Connect(posts_);
}

Handover Peer::HandOverOn(Descriptor& channel, const Packet& packet) {
    Handover result = channel.IsOpen() ? Handover::Done : Connect(channel);
    if (result == Handover::Done)
        result = HandOver(channel.Number(), packet);
    if (result == Handover::Broken)
        AwaitEnd();
    return result;
}

Handover Peer::Post(const Packet& packet) {
    return HandOverOn(posts_, packet);
}

Handover Peer::Send(const Packet& packet, Descriptor& channel) {
    channel = std::move(idle_);
    return HandOverOn(channel, packet);
}

void Peer::AwaitEnd() {
    constexpr int kAttempts = 1000;
    for (int i = 0; i < kAttempts && IsAlive(); ++i)
        sched_yield();
    isDead_ = true;
    windows_.clear();
    Disconnect();
}

void Peer::Reuse(Descriptor channel) {
    if (!isDead_)
        idle_ = std::move(channel);
}

void Peer::Disconnect() {
    posts_.Close();
    idle_.Close();
}

}  // namespace korvane
