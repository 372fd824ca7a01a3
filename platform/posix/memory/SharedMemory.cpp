#include "platform/SharedMemory.h"

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <vector>

#include "platform/Unicode.h"
#include "platform/posix/memory/SharedObject.h"

namespace korvane {
namespace {

constexpr char kKind[] = "memory";
// Where the system shows its shared memory as files: there is no call that lists it.
constexpr char kObjectFolder[] = "/dev/shm";
constexpr std::size_t kMaxSize = std::size_t{16} << 20;
constexpr unsigned kPatienceMs = 2000;
constexpr char kMagic[8] = {'K', 'V', 'S', 'H', 'M', 'E', 'M', '1'};

// Stands in front of the region's bytes. The magic is written last, when the region has been filled; until
// then it is all zero.
struct alignas(64) Header {
    char magic[sizeof(kMagic)];
    std::uint64_t size;
};

struct Mapping {
    void* bytes = nullptr;
    std::size_t size = 0;
};

struct Mappings {
    std::mutex mutex;
    std::map<std::string, Mapping> byName;
};

Mappings& TheMappings() {
    // Never destroyed: the addresses hold as long as the process lives.
    static Mappings& mappings = *new Mappings;
    return mappings;
}

Mapping KnownMapping(const std::string& key) {
    Mappings& mappings = TheMappings();
    const std::lock_guard<std::mutex> lock(mappings.mutex);
    const auto found = mappings.byName.find(key);
    return found == mappings.byName.end() ? Mapping() : found->second;
}

void Keep(const std::string& key, const Mapping& mapping) {
    Mappings& mappings = TheMappings();
    const std::lock_guard<std::mutex> lock(mappings.mutex);
    mappings.byName.emplace(key, mapping);
}

bool IsNew(const Header& header) {
    constexpr char kNone[sizeof(kMagic)] = {};
    return std::memcmp(header.magic, kNone, sizeof(kNone)) == 0;
}

bool IsReady(const Header& header, const struct stat& status) {
    return std::memcmp(header.magic, kMagic, sizeof(kMagic)) == 0 && header.size >= 1 &&
           header.size <= kMaxSize &&
           status.st_size >= static_cast<off_t>(sizeof(Header) + static_cast<std::size_t>(header.size));
}

bool Reserve(int file, std::size_t bytes) {
    int failure;
    do {
        failure = posix_fallocate(file, 0, static_cast<off_t>(bytes));
    } while (failure == EINTR);
    return failure == 0;
}

Header* MapObject(int file, std::size_t size) {
    void* const address = mmap(nullptr, sizeof(Header) + size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    return address == MAP_FAILED ? nullptr : static_cast<Header*>(address);
}

// Works under the object's lock; nobody uses the region before it is ready.
Mapping MakeRegion(int file, std::size_t size, const std::function<void(void*)>& fill) {
    Header* const header = Reserve(file, sizeof(Header) + size) ? MapObject(file, size) : nullptr;
    if (!header)
        return {};
    void* const bytes = header + 1;
    std::memset(bytes, 0, size);
    if (fill)
        fill(bytes);
    header->size = size;
    std::memcpy(header->magic, kMagic, sizeof(kMagic));
    return {bytes, size};
}

Mapping OpenRegion(const SharedObject& object, std::size_t size, const std::function<void(void*)>& fill) {
    Header header = {};
    if (pread(object.Number(), &header, sizeof(header), 0) < 0)
        return {};
    if (IsNew(header))
        return MakeRegion(object.Number(), size, fill);
    struct stat status {};
    if (fstat(object.Number(), &status) != 0 || !IsReady(header, status) || header.size < size)
        return {};
    const auto whole = static_cast<std::size_t>(header.size);
    Header* const mapped = MapObject(object.Number(), whole);
    return mapped ? Mapping{mapped + 1, whole} : Mapping();
}

}  // namespace

void* MapSharedMemory(const wchar_t* name, std::size_t size, const std::function<void(void*)>& fill) {
    if (!name || size < 1 || size > kMaxSize)
        return nullptr;
    const std::string key = SharedObjectPrefix() + ToUtf8(name);
    Mapping mapping = KnownMapping(key);
    if (!mapping.bytes) {
        const std::unique_ptr<SharedObject> object = SharedObject::Lock(kKind, name, kPatienceMs);
        if (!object)
            return nullptr;
        // Another thread may have held the lock.
        mapping = KnownMapping(key);
        if (!mapping.bytes) {
            mapping = OpenRegion(*object, size, fill);
            if (mapping.bytes)
                Keep(key, mapping);
        }
    }
    return mapping.size >= size ? mapping.bytes : nullptr;
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
