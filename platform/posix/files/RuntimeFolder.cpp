#include "platform/posix/files/RuntimeFolder.h"

#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>

namespace korvane {
namespace {

std::string AbsolutePathIn(const char* variable) {
    const char* const value = std::getenv(variable);
    return value && value[0] == '/' ? value : "";
}

std::string RuntimePath() {
    if (std::getenv("KORVANE_RUNTIME_DIR"))
        return AbsolutePathIn("KORVANE_RUNTIME_DIR");
    const std::string session = AbsolutePathIn("XDG_RUNTIME_DIR");
    return session.empty() ? "/tmp/korvane-" + std::to_string(geteuid()) : session + "/korvane";
}

bool IsPrivate(int folder) {
    struct stat status {};
    return fstat(folder, &status) == 0 && status.st_uid == geteuid() && (status.st_mode & 0077) == 0;
}

}  // namespace

Descriptor OpenRuntimeFolder(IfMissing ifMissing) {
    const std::string path = RuntimePath();
    // An existing folder is as good as a new one, so only the opening tells.
    if (ifMissing == IfMissing::Make)
        mkdir(path.c_str(), 0700);
    Descriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (folder.IsOpen() && !IsPrivate(folder.Number()))
        folder.Close();
    return folder;
}

}  // namespace korvane
