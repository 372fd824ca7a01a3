#pragma once

#include <cstddef>
#include <string>

namespace korvane {

/// A region that this process has mapped. The address holds as long as the process lives.
struct Region {
    void* bytes = nullptr;
    std::size_t size = 0;
};

/// What was kept under this key, a region without bytes when that is nothing. Any thread may ask.
Region KnownRegion(const std::string& key);
void KeepRegion(const std::string& key, const Region& region);

}  // namespace korvane
