#include "platform/SharedMemory.h"

#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "platform/Unicode.h"
#include "platform/memory/KnownRegions.h"
#include "platform/memory/RegionHeader.h"
#include "platform/windows/Handle.h"
#include "platform/windows/memory/NamedMutex.h"
#include "platform/windows/memory/ObjectName.h"

namespace korvane {
namespace {

// What keeps the regions' names in the system: one goes with the last handle to it, mapped or not.
struct Sections {
    std::mutex mutex;
    std::map<std::wstring, Handle> byName;
};

Sections& TheSections() {
    // Never destroyed: the names hold as long as the process lives.
    static Sections& sections = *new Sections;
    return sections;
}

// The bytes that can be used from that address on.
std::size_t AvailableAt(const void* address) {
    MEMORY_BASIC_INFORMATION info = {};
    return VirtualQuery(address, &info, sizeof(info)) != 0 && info.State == MEM_COMMIT ? info.RegionSize : 0;
}

// Works under the region's mutex.
Region FillOrTake(RegionHeader& header, std::size_t size, const std::function<void(void*)>& fill) {
    const std::size_t available = AvailableAt(&header);
    if (available < sizeof(RegionHeader))
        return {};
    if (header.IsNew() && available >= sizeof(RegionHeader) + size)
        header.Fill(size, fill);
    if (!header.IsReady(available) || header.size < size)
        return {};
    return {header.Bytes(), static_cast<std::size_t>(header.size)};
}

Region OpenRegion(const std::wstring& name, std::size_t size, const std::function<void(void*)>& fill) {
    const auto wanted = static_cast<DWORD>(sizeof(RegionHeader) + size);
    Handle section(
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, wanted, name.c_str()));
    void* const address =
        section.IsOpen() ? MapViewOfFile(section.Get(), FILE_MAP_READ | FILE_MAP_WRITE, 0, 0, 0) : nullptr;
    if (!address)
        return {};
    const Region region = FillOrTake(*static_cast<RegionHeader*>(address), size, fill);
    if (!region.bytes) {
        UnmapViewOfFile(address);
        return {};
    }
    Sections& sections = TheSections();
    const std::lock_guard<std::mutex> lock(sections.mutex);
    sections.byName[name] = std::move(section);
    return region;
}

}  // namespace

void* MapSharedMemory(const wchar_t* name, std::size_t size, const std::function<void(void*)>& fill) {
    const std::wstring objectName = ObjectName(L"memory", name);
    if (objectName.empty() || size < 1 || size > kMaxRegionSize)
        return nullptr;
    const std::string key = ToUtf8(objectName);
    Region region = KnownRegion(key);
    if (!region.bytes) {
        const std::unique_ptr<NamedMutex> mutex =
            NamedMutex::Lock(ObjectName(L"making", name), kRegionPatienceMs);
        if (!mutex)
            return nullptr;
        // Another thread may have held the mutex.
        region = KnownRegion(key);
        if (!region.bytes) {
            region = OpenRegion(objectName, size, fill);
            if (region.bytes)
                KeepRegion(key, region);
        }
    }
    return region.size >= size ? region.bytes : nullptr;
}

void RemoveSharedMemory() {
    const std::wstring prefix = ObjectPrefix();
    Sections& sections = TheSections();
    const std::lock_guard<std::mutex> lock(sections.mutex);
    for (auto at = sections.byName.lower_bound(prefix);
         at != sections.byName.end() && at->first.compare(0, prefix.size(), prefix) == 0;)
        at = sections.byName.erase(at);
}

}  // namespace korvane
