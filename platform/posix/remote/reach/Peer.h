#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/coredll.h"
#include "platform/posix/files/Descriptor.h"
#include "platform/posix/remote/wire/Channel.h"
#include "platform/posix/remote/wire/WindowList.h"

namespace korvane {

/// The endpoint of another process, as seen from this one. Once it has ended, with its process or with all of
/// its windows, it stays dead.
class Peer {
  public:
    /// Null when the file is no endpoint's list.
    static std::shared_ptr<Peer> Open(std::shared_ptr<const Descriptor> folder, std::string_view endpoint);

    /// False when it has ended; what it left behind is removed then.
    bool IsAlive();

    /// As they are at this moment, newest first.
    const std::vector<ListedWindow>& Windows();
    const ListedWindow* FindWindowOf(std::uint32_t handle);

    /// Connects, unless it is, so that the process knows that it has been found.
    Handover Reach();

    Handover Post(const Packet& packet);

    /// Hands over a message on a connection of its own, on which the answer comes.
    Handover Send(const Packet& packet, Descriptor& channel);

    /// Takes a connection back whose answer has come.
    void Reuse(Descriptor channel);

    /// To be called when it has closed a connection, which it does only at its end. That takes effect in
    /// parts, within microseconds.
    void AwaitEnd();

    /// Closes all connections.
    void Disconnect();

    /// The handles that this process knows its windows by.
    std::map<std::uint32_t, UINT_PTR> handles;

  private:
    Peer(std::shared_ptr<const Descriptor> folder, std::string_view endpoint, Descriptor list);

    Handover Connect(Descriptor& channel);
    Handover HandOverOn(Descriptor& channel, const Packet& packet);
    bool ReadWindows();

    std::shared_ptr<const Descriptor> folder_;
    std::string name_;
    Descriptor list_;
    bool isDead_ = false;
    std::uint64_t generation_ = 0;
    std::vector<ListedWindow> windows_;
    Descriptor posts_;
    Descriptor idle_;  // open for the next message that is sent
};

}  // namespace korvane
