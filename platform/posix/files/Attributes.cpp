#include "platform/posix/files/Attributes.h"

namespace korvane {

DWORD AttributesOf(const struct stat& status) {
    DWORD attributes = S_ISDIR(status.st_mode) ? FILE_ATTRIBUTE_DIRECTORY : 0;
    if ((status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0)
        attributes |= FILE_ATTRIBUTE_READONLY;
    return attributes != 0 ? attributes : FILE_ATTRIBUTE_NORMAL;
}

FILETIME FileTimeOf(const timespec& time) {
    constexpr std::int64_t kSecondsFrom1601To1970 = 11644473600;
    const auto ticks =
        static_cast<std::uint64_t>((time.tv_sec + kSecondsFrom1601To1970) * 10000000 + time.tv_nsec / 100);
    return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
}

}  // namespace korvane
