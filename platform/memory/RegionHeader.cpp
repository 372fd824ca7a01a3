#include "platform/memory/RegionHeader.h"

#include <cstring>

namespace korvane {
namespace {

constexpr char kMagic[8] = {'K', 'V', 'S', 'H', 'M', 'E', 'M', '1'};

}  // namespace

bool RegionHeader::IsNew() const {
    constexpr char kNone[sizeof(magic)] = {};
    return std::memcmp(magic, kNone, sizeof(magic)) == 0;
}

bool RegionHeader::IsReady(std::uint64_t available) const {
    return std::memcmp(magic, kMagic, sizeof(magic)) == 0 && size >= 1 && size <= kMaxRegionSize &&
           available >= sizeof(RegionHeader) + size;
}

void RegionHeader::Fill(std::size_t bytes, const std::function<void(void*)>& fill) {
    std::memset(Bytes(), 0, bytes);
    if (fill)
        fill(Bytes());
    size = bytes;
    std::memcpy(magic, kMagic, sizeof(magic));
}

}  // namespace korvane
