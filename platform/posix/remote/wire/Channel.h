#pragma once

#include <string>

#include "platform/posix/files/Descriptor.h"
#include "platform/posix/remote/wire/Packet.h"

namespace korvane {

enum class Handover { Done, Full, Broken };
enum class Arrival { Packet, Garbage, Nothing, Ended };

// Sockets that keep packets whole and in order, and that end with the process at either side. Nothing here
// waits or raises a signal.

/// A socket that others connect to by its name in the folder. Not open when it cannot be made.
Descriptor ListenIn(int folder, const std::string& name);

/// A process that waits at the listening socket and runs for this user. Not open when there is none; `errno`
/// is EAGAIN, EINTR or ECONNABORTED then, or says why no more can come in.
Descriptor AcceptFrom(int listener);

/// Connects to a listening socket of the same user. Full: the process lives, but has not accepted those who
/// came before, or this one may open no more files.
Handover ConnectTo(int folder, const std::string& name, Descriptor& channel);

/// Full: the receiver has not taken what it was handed before.
Handover HandOver(int channel, const Packet& packet);

/// Garbage is taken off the channel all the same.
Arrival TakeFrom(int channel, Packet& packet);

}  // namespace korvane
