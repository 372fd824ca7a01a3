#include "platform/posix/remote/wire/Packet.h"

#include <cstring>

#include "platform/posix/remote/RemoteHandle.h"
#include "platform/queue/PointerMessage.h"

namespace korvane {

bool DecodePacket(const void* bytes, std::size_t size, Packet& packet) {
    if (size != sizeof(Packet))
        return false;
    std::memcpy(&packet, bytes, sizeof(Packet));
    if (packet.magic != Packet::kMagic || packet.version != Packet::kVersion || packet.reserved != 0)
        return false;
    switch (packet.kind) {
        case PacketKind::Post:
            return IsOwnHandle(packet.window) && !CarriesPointers(packet.message) && packet.serial == 0;
        case PacketKind::Send:
            return IsOwnHandle(packet.window) && !CarriesPointers(packet.message);
        case PacketKind::Answer:
            return packet.window == 0 && packet.message == 0 && packet.wParam == 0;
    }
    return false;
}

}  // namespace korvane
