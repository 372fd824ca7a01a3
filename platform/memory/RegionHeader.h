#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace korvane {

constexpr std::size_t kMaxRegionSize = std::size_t{16} << 20;
/// How long another process may hold a region up.
constexpr unsigned kRegionPatienceMs = 2000;

/// Stands in front of a region's bytes. The magic is written last, when the region has been filled; until
/// then it is all zero.
struct alignas(64) RegionHeader {
    char magic[8];
    std::uint64_t size;

    bool IsNew() const;
    /// Whether this is the header of a filled region that has `available` bytes, the header included.
    bool IsReady(std::uint64_t available) const;

    void* Bytes() { return this + 1; }
    /// Zeroes the `bytes` bytes behind the header, has `fill` fill them, which may be empty, and is ready.
    void Fill(std::size_t bytes, const std::function<void(void*)>& fill);
};

}  // namespace korvane
