#pragma once

#include <cstddef>
#include <cstdint>

namespace korvane {

enum class PacketKind : std::uint16_t { Post = 1, Send = 2, Answer = 3 };

/// What goes from process to process: one message, or the answer to one that was sent. Both run on one
/// machine, so fields are in its byte order.
struct Packet {
    static constexpr std::uint32_t kMagic = 0x4D57564B;  // "KVWM"
    static constexpr std::uint16_t kVersion = 1;

    std::uint32_t magic = kMagic;
    std::uint16_t version = kVersion;
    PacketKind kind = PacketKind::Post;
    std::uint32_t window = 0;   // the receiver's own handle; 0 in an answer
    std::uint32_t message = 0;  // 0 in an answer
    std::uint32_t serial = 0;   // of a send, which its answer repeats; 0 in a post
    std::uint32_t reserved = 0;
    std::uint64_t wParam = 0;  // 0 in an answer
    std::int64_t lParam = 0;   // the result in an answer
};
static_assert(sizeof(Packet) == 40, "packets have no gaps");

/// False, with `packet` undefined, for bytes that are no packet: of another size or version, of no kind, for
/// no possible window, or with a message whose parameters would point into the sender's memory.
bool DecodePacket(const void* bytes, std::size_t size, Packet& packet);

}  // namespace korvane
