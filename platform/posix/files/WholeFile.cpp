#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Files.h"
#include "platform/posix/LastError.h"
#include "platform/posix/files/Descriptor.h"
#include "platform/posix/files/DevicePath.h"
#include "platform/posix/files/TemporaryFile.h"

namespace korvane {
namespace {

bool WriteAll(int file, const void* bytes, std::size_t size) {
    const auto* at = static_cast<const unsigned char*>(bytes);
    while (size > 0) {
        const ssize_t written = write(file, at, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        at += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool WriteContents(int file, mode_t mode, const void* bytes, std::size_t size) {
    const bool modeKept = mode == 0 || fchmod(file, mode) == 0;
    return modeKept && WriteAll(file, bytes, size) && fsync(file) == 0;
}

// Makes the rename itself survive a power failure. File systems that cannot are left as they are.
void SyncFolderOf(const std::string& hostPath) {
    const std::string folder = hostPath.substr(0, hostPath.rfind('/') + 1);
    const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.IsOpen())
        fsync(opened.Number());
}

}  // namespace

bool ReplaceFileAtomically(const wchar_t* devicePath, const void* bytes, std::size_t size) {
    const std::string target = RequireHostPath(devicePath);
    if (target.empty() || (!bytes && size > 0))
        return false;
    struct stat status {};
    const bool exists = stat(target.c_str(), &status) == 0;
    if (exists && !S_ISREG(status.st_mode))
        return Fail(ERROR_ACCESS_DENIED);
    const std::unique_ptr<TemporaryFile> next = TemporaryFile::Create(target);
    if (!next || !WriteContents(next->Number(), exists ? status.st_mode & 0777 : 0, bytes, size) ||
        !next->Rename())
        return Fail(ErrorFromErrno(errno));
    SyncFolderOf(target);
    return true;
}

bool ReadWholeFile(const wchar_t* devicePath, std::size_t limit, std::vector<unsigned char>& bytes) {
    bytes.clear();
    const std::string host = RequireHostPath(devicePath);
    if (host.empty())
        return false;
    // Not blocking: a pipe in the place of the file must not hold the caller up.
    const Descriptor file(open(host.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!file.IsOpen() || fstat(file.Number(), &status) != 0)
        return Fail(ErrorFromErrno(errno));
    if (!S_ISREG(status.st_mode) || static_cast<std::uint64_t>(status.st_size) > limit)
        return Fail(ERROR_ACCESS_DENIED);
    bytes.resize(static_cast<std::size_t>(status.st_size));
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t got = read(file.Number(), bytes.data() + filled, bytes.size() - filled);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            bytes.clear();
            return Fail(ErrorFromErrno(errno));
        }
        if (got == 0)
            break;
        filled += static_cast<std::size_t>(got);
    }
    bytes.resize(filled);
    return true;
}

}  // namespace korvane
