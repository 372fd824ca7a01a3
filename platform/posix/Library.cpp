#include <dlfcn.h>
#include <map>
#include <mutex>
#include <string>
#include <sys/stat.h>

#include "platform/Unicode.h"
#include "platform/posix/LastError.h"
#include "platform/posix/files/DevicePath.h"

namespace korvane {
namespace {

// The loaded libraries and how often each was loaded: what the loader is asked about must be one of them,
// since it trusts every handle that it is given.
struct Libraries {
    std::mutex mutex;
    std::map<void*, unsigned> loads;

    bool Has(void* library) {
        const std::lock_guard<std::mutex> lock(mutex);
        return loads.count(library) != 0;
    }
};

Libraries& TheLibraries() {
    // Never destroyed: a static object may free its library as the last thing it does.
    static Libraries& libraries = *new Libraries;
    return libraries;
}

}  // namespace
}  // namespace korvane

using namespace korvane;

extern "C" {

HMODULE LoadLibraryW(LPCWSTR path) {
    const std::string host = RequireHostPath(path);
    struct stat status {};
    const bool isFile = !host.empty() && stat(host.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    void* const library = isFile ? dlopen(host.c_str(), RTLD_NOW | RTLD_LOCAL) : nullptr;
    if (!library) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    Libraries& libraries = TheLibraries();
    const std::lock_guard<std::mutex> lock(libraries.mutex);
    ++libraries.loads[library];
    return static_cast<HMODULE>(library);
}

FARPROC GetProcAddressW(HMODULE module, LPCWSTR name) {
    const bool named = name && *name && TheLibraries().Has(module);
    void* const address = named ? dlsym(module, ToUtf8(name).c_str()) : nullptr;
    if (!address)
        SetLastError(ERROR_PROC_NOT_FOUND);
    return reinterpret_cast<FARPROC>(address);
}

BOOL FreeLibrary(HMODULE module) {
    Libraries& libraries = TheLibraries();
    {
        const std::lock_guard<std::mutex> lock(libraries.mutex);
        const auto found = libraries.loads.find(module);
        if (found == libraries.loads.end())
            return Fail(ERROR_INVALID_HANDLE);
        if (--found->second == 0)
            libraries.loads.erase(found);
    }
    return dlclose(module) == 0 || Fail(ERROR_INVALID_HANDLE);
}
}
