#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace korvane {

/// A top-level window as its process lets others find it.
struct ListedWindow {
    std::uint32_t handle = 0;  // in its own process
    std::uint64_t born = 0;    // nanoseconds of the machine's steady clock
    std::wstring className;
    std::wstring title;
};

/// The start of a list. Fields are in the machine's byte order.
struct WindowListHeader {
    static constexpr std::uint32_t kMagic = 0x4C57564B;  // "KVWL"
    static constexpr std::uint16_t kVersion = 1;
    static constexpr std::uint32_t kMostBytes = 1 << 20;

    std::uint32_t magic = kMagic;
    std::uint16_t version = kVersion;
    std::uint16_t reserved = 0;
    std::uint64_t generation = 0;  // another one after each change
    std::uint32_t count = 0;
    std::uint32_t bytes = 0;     // of the windows behind the header, at most kMostBytes
    std::uint64_t checksum = 0;  // FNV-1a of header and windows, taken with 0 in this place
};
static_assert(sizeof(WindowListHeader) == 32, "the header has no gaps");

/// Windows beyond kMostBytes are left out, from the end. A title is cut to 1024 characters.
std::vector<std::uint8_t> EncodeWindowList(std::uint64_t generation,
                                           const std::vector<ListedWindow>& windows);

/// False for bytes that do not start with the header of a list.
bool DecodeWindowListHeader(const void* bytes, std::size_t size, WindowListHeader& header);

/// Bytes behind the list's end do not matter. False, with `windows` unchanged, for what is no list or is
/// damaged, as a list is that is being written.
bool DecodeWindowList(const std::vector<std::uint8_t>& bytes, std::vector<ListedWindow>& windows);

}  // namespace korvane
