#include "platform/memory/KnownRegions.h"

#include <map>
#include <mutex>

namespace korvane {
namespace {

struct Regions {
    std::mutex mutex;
    std::map<std::string, Region> byKey;
};

Regions& TheRegions() {
    // Never destroyed: the addresses hold as long as the process lives.
    static Regions& regions = *new Regions;
    return regions;
}

}  // namespace

Region KnownRegion(const std::string& key) {
    Regions& regions = TheRegions();
    const std::lock_guard<std::mutex> lock(regions.mutex);
    const auto found = regions.byKey.find(key);
    return found == regions.byKey.end() ? Region() : found->second;
}

void KeepRegion(const std::string& key, const Region& region) {
    Regions& regions = TheRegions();
    const std::lock_guard<std::mutex> lock(regions.mutex);
    regions.byKey.emplace(key, region);
}

}  // namespace korvane
