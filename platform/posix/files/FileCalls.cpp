#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Simulation.h"
#include "platform/Unicode.h"
#include "platform/posix/LastError.h"
#include "platform/posix/files/Attributes.h"
#include "platform/posix/files/DevicePath.h"

namespace korvane {
namespace {

bool FailFromErrno() {
    return Fail(ErrorFromErrno(errno));
}

// Renames unless the new name is taken, in one step where the file system can.
bool RenameToFreeName(const std::string& from, const std::string& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return FailFromErrno();
    struct stat status {};
    if (lstat(to.c_str(), &status) == 0)
        return Fail(ERROR_ALREADY_EXISTS);
    return std::rename(from.c_str(), to.c_str()) == 0 || FailFromErrno();
}

// The host path with its last component spelt as the caller gave it.
std::string WithGivenName(const std::string& hostPath, const std::string& name) {
    return hostPath.substr(0, hostPath.rfind('/') + 1) + name;
}

// fopen's modes hold nothing but these characters; the rest of a wide mode concerns text translation, of
// which there is none.
std::string NarrowMode(const wchar_t* mode) {
    std::string narrow;
    for (; *mode && *mode != L','; ++mode) {
        if (std::wcschr(L"rwab+x", *mode))
            narrow += static_cast<char>(*mode);
    }
    return narrow;
}

}  // namespace
}  // namespace korvane

using namespace korvane;

extern "C" {

BOOL CreateDirectoryW(LPCWSTR path, SECURITY_ATTRIBUTES*) {
    const std::string host = RequireHostPath(path);
    if (host.empty())
        return FALSE;
    if (mkdir(host.c_str(), 0777) == 0)
        return TRUE;
    return errno == ENOENT ? Fail(ERROR_PATH_NOT_FOUND) : FailFromErrno();
}

BOOL RemoveDirectoryW(LPCWSTR path) {
    const std::string host = RequireHostPath(path);
    if (host.empty())
        return FALSE;
    if (DeviceComponents(path).empty())
        return Fail(ERROR_ACCESS_DENIED);
    if (rmdir(host.c_str()) == 0)
        return TRUE;
    return errno == ENOTDIR ? Fail(ERROR_DIRECTORY) : FailFromErrno();
}

BOOL DeleteFileW(LPCWSTR path) {
    const std::string host = RequireHostPath(path);
    return !host.empty() && (unlink(host.c_str()) == 0 || FailFromErrno());
}

BOOL MoveFileW(LPCWSTR from, LPCWSTR to) {
    const std::string hostFrom = RequireHostPath(from);
    std::string hostTo = RequireHostPath(to);
    if (hostFrom.empty() || hostTo.empty())
        return FALSE;
    const std::vector<std::wstring_view> target = DeviceComponents(to);
    if (target.empty() || DeviceComponents(from).empty())
        return Fail(ERROR_ACCESS_DENIED);
    if (hostFrom == hostTo)
        hostTo = WithGivenName(hostTo, ToUtf8(target.back()));
    if (hostFrom == hostTo)
        return GetFileAttributesW(from) != INVALID_FILE_ATTRIBUTES;
    return RenameToFreeName(hostFrom, hostTo);
}

DWORD GetFileAttributesW(LPCWSTR path) {
    const std::string host = RequireHostPath(path);
    struct stat status {};
    if (host.empty())
        return INVALID_FILE_ATTRIBUTES;
    if (stat(host.c_str(), &status) != 0) {
        FailFromErrno();
        return INVALID_FILE_ATTRIBUTES;
    }
    return AttributesOf(status);
}

std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode) {
    const std::string host = mode ? RequireHostPath(path) : std::string();
    const std::string narrowMode = mode ? NarrowMode(mode) : std::string();
    struct stat status {};
    const bool exists = !host.empty() && stat(host.c_str(), &status) == 0;
    if (host.empty() || narrowMode.empty() || narrowMode.front() == '+' || narrowMode.front() == 'b' ||
        narrowMode.front() == 'x') {
        errno = EINVAL;
        return nullptr;
    }
    if (exists && !S_ISREG(status.st_mode)) {
        errno = EACCES;
        return nullptr;
    }
    return std::fopen(host.c_str(), (narrowMode + "e").c_str());
}
}
