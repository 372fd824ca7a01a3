#include "platform/SharedMemory.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <vector>

#include "platform/Unicode.h"
#include "platform/memory/KnownRegions.h"
#include "platform/memory/RegionHeader.h"
#include "platform/posix/memory/SharedObject.h"

namespace korvane {
namespace {

constexpr char kKind[] = "memory";
// Where the system shows its shared memory as files: there is no call that lists it.
constexpr char kObjectFolder[] = "/dev/shm";

bool Reserve(int file, std::size_t bytes) {
    int failure;
    do {
        failure = posix_fallocate(file, 0, static_cast<off_t>(bytes));
    } while (failure == EINTR);
    return failure == 0;
}

RegionHeader* MapObject(int file, std::size_t size) {
    void* const address =
        mmap(nullptr, sizeof(RegionHeader) + size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    return address == MAP_FAILED ? nullptr : static_cast<RegionHeader*>(address);
}

// Works under the object's lock; nobody uses the region before it is ready.
Region MakeRegion(int file, std::size_t size, const std::function<void(void*)>& fill) {
    RegionHeader* const header = Reserve(file, sizeof(RegionHeader) + size) ? MapObject(file, size) : nullptr;
    if (!header)
        return {};
    header->Fill(size, fill);
    return {header->Bytes(), size};
}

Region OpenRegion(const SharedObject& object, std::size_t size, const std::function<void(void*)>& fill) {
    RegionHeader header = {};
    if (pread(object.Number(), &header, sizeof(header), 0) < 0)
        return {};
    if (header.IsNew())
        return MakeRegion(object.Number(), size, fill);
    struct stat status {};
    if (fstat(object.Number(), &status) != 0 || status.st_size < 0 ||
        !header.IsReady(static_cast<std::uint64_t>(status.st_size)) || header.size < size)
        return {};
    const auto whole = static_cast<std::size_t>(header.size);
    RegionHeader* const mapped = MapObject(object.Number(), whole);
    return mapped ? Region{mapped->Bytes(), whole} : Region();
}

}  // namespace

void* MapSharedMemory(const wchar_t* name, std::size_t size, const std::function<void(void*)>& fill) {
    if (!name || size < 1 || size > kMaxRegionSize)
        return nullptr;
    const std::string key = SharedObjectPrefix() + ToUtf8(name);
    Region region = KnownRegion(key);
    if (!region.bytes) {
        const std::unique_ptr<SharedObject> object = SharedObject::Lock(kKind, name, kRegionPatienceMs);
        if (!object)
            return nullptr;
        // Another thread may have held the lock.
        region = KnownRegion(key);
        if (!region.bytes) {
            region = OpenRegion(*object, size, fill);
            if (region.bytes)
                KeepRegion(key, region);
        }
    }
    return region.size >= size ? region.bytes : nullptr;
}

void RemoveSharedMemory() {
    const std::string prefix = SharedObjectPrefix().substr(1);
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(kObjectFolder), &closedir);
    if (!folder)
        return;
    std::vector<std::string> names;
    while (const dirent* entry = readdir(folder.get())) {
        if (std::string_view(entry->d_name).substr(0, prefix.size()) == prefix)
            names.push_back(std::string("/") + entry->d_name);
    }
    for (const std::string& name : names)
        shm_unlink(name.c_str());
}

}  // namespace korvane
