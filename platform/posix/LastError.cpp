#include "platform/posix/LastError.h"

#include <cerrno>

namespace {

thread_local DWORD lastError = ERROR_SUCCESS;

}  // namespace

extern "C" {

DWORD GetLastError() {
    return lastError;
}
void SetLastError(DWORD error) {
    lastError = error;
}
}

namespace korvane {

DWORD ErrorFromErrno(int error) {
    switch (error) {
        case ENOENT:
            return ERROR_FILE_NOT_FOUND;
        case ENOTDIR:
            return ERROR_PATH_NOT_FOUND;
        case EACCES:
        case EPERM:
        case EROFS:
        case EISDIR:
        case EBUSY:
            return ERROR_ACCESS_DENIED;
        case EEXIST:
            return ERROR_ALREADY_EXISTS;
        case ENOTEMPTY:
            return ERROR_DIR_NOT_EMPTY;
        case ENAMETOOLONG:
            return ERROR_FILENAME_EXCED_RANGE;
        case ENOSPC:
        case EDQUOT:
            return ERROR_DISK_FULL;
        case ENOMEM:
            return ERROR_NOT_ENOUGH_MEMORY;
        case EINVAL:
            return ERROR_INVALID_PARAMETER;
        default:
            return ERROR_GEN_FAILURE;
    }
}

bool Fail(DWORD error) {
    lastError = error;
    return false;
}

}  // namespace korvane
