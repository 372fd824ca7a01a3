#include "platform/posix/remote/wire/Channel.h"

#include <cerrno>
#include <cstdio>
#include <sys/socket.h>
#include <sys/un.h>

namespace korvane {
namespace {

constexpr int kBacklog = 128;

// By way of the open folder: its path may be longer than an address, and may lead elsewhere by then.
bool MakeAddress(int folder, const std::string& name, sockaddr_un& address) {
    address = {};
    address.sun_family = AF_UNIX;
    const int length = std::snprintf(address.sun_path, sizeof(address.sun_path), "/proc/self/fd/%d/%s",
                                     folder, name.c_str());
    return length > 0 && static_cast<std::size_t>(length) < sizeof(address.sun_path);
}

Descriptor NewSocket() {
    return Descriptor(socket(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
}

bool IsOfThisUser(int channel) {
    ucred peer{};
    socklen_t size = sizeof(peer);
    return getsockopt(channel, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

}  // namespace

Descriptor ListenIn(int folder, const std::string& name) {
    sockaddr_un address;
    Descriptor listener = NewSocket();
    if (!MakeAddress(folder, name, address) ||
        bind(listener.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 ||
        listen(listener.Number(), kBacklog) != 0)
        listener.Close();
    return listener;
}

Descriptor AcceptFrom(int listener) {
    Descriptor channel(accept4(listener, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
    if (channel.IsOpen() && !IsOfThisUser(channel.Number())) {
        channel.Close();
        errno = ECONNABORTED;
    }
    return channel;
}

Handover ConnectTo(int folder, const std::string& name, Descriptor& channel) {
    sockaddr_un address;
    if (!MakeAddress(folder, name, address))
        return Handover::Broken;
    Descriptor made = NewSocket();
    if (!made.IsOpen())
        return Handover::Full;
    // As much as the system grants; without it some 270 packets fit.
    constexpr int kRoom = 1 << 20;
    setsockopt(made.Number(), SOL_SOCKET, SO_SNDBUF, &kRoom, sizeof(kRoom));
    if (connect(made.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0)
        return errno == EAGAIN ? Handover::Full : Handover::Broken;
    if (!IsOfThisUser(made.Number()))
        return Handover::Broken;
    channel = std::move(made);
    return Handover::Done;
}

Handover HandOver(int channel, const Packet& packet) {
    ssize_t sent;
    do {
        sent = send(channel, &packet, sizeof(packet), MSG_NOSIGNAL | MSG_DONTWAIT);
    } while (sent < 0 && errno == EINTR);
    if (sent == static_cast<ssize_t>(sizeof(packet)))
        return Handover::Done;
    return errno == EAGAIN || errno == ENOBUFS || errno == ENOMEM ? Handover::Full : Handover::Broken;
}

Arrival TakeFrom(int channel, Packet& packet) {
    // One byte more, to tell a longer packet from a right one.
    unsigned char bytes[sizeof(Packet) + 1];
    ssize_t size;
    do {
        size = recv(channel, bytes, sizeof(bytes), MSG_DONTWAIT);
    } while (size < 0 && errno == EINTR);
    if (size < 0)
        return errno == EAGAIN ? Arrival::Nothing : Arrival::Ended;
    if (size == 0)
        return Arrival::Ended;
    return DecodePacket(bytes, static_cast<std::size_t>(size), packet) ? Arrival::Packet : Arrival::Garbage;
}

}  // namespace korvane
