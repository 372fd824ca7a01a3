#include "platform/posix/files/OwnFolder.h"

#include <climits>
#include <cstdlib>
#include <dlfcn.h>

namespace korvane {

std::string OwnFolder() {
    Dl_info info{};
    char path[PATH_MAX];
    // The loader knows a program only by the name it was started with, which need not be a path.
    const bool named = dladdr(reinterpret_cast<void*>(&OwnFolder), &info) != 0 && info.dli_fname &&
                       std::string(info.dli_fname).find('/') != std::string::npos &&
                       realpath(info.dli_fname, path);
    if (!named && !realpath("/proc/self/exe", path))
        return {};
    const std::string file = path;
    return file.substr(0, file.rfind('/') + 1);
}

}  // namespace korvane
