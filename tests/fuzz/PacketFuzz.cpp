#include <cstdint>
#include <cstring>

#include "platform/posix/remote/RemoteHandle.h"
#include "platform/posix/remote/wire/Packet.h"
#include "platform/queue/PointerMessage.h"

#include "tests/fuzz/Require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace korvane;
    Packet packet;
    if (!DecodePacket(data, size, packet))
        return 0;
    Require(size == sizeof(Packet), "a packet has its size");
    Require(std::memcmp(&packet, data, size) == 0, "a packet is taken as it came");
    if (packet.kind == PacketKind::Answer) {
        Require(packet.window == 0 && packet.message == 0, "an answer is for no window");
        return 0;
    }
    Require(packet.kind == PacketKind::Post || packet.kind == PacketKind::Send, "a packet has a kind");
    Require(IsOwnHandle(packet.window), "a message is for a window that may exist");
    Require(!CarriesPointers(packet.message), "a message has no pointers");
    return 0;
}
