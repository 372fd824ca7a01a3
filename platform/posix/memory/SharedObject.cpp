#include "platform/posix/memory/SharedObject.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <string_view>
#include <sys/mman.h>
#include <thread>

#include "platform/DeviceKey.h"
#include "platform/memory/SharedName.h"

namespace korvane {
namespace {

constexpr mode_t kOwnerOnly = S_IRUSR | S_IWUSR;

using Clock = std::chrono::steady_clock;

// The folder of these objects is open to all users, so one of another user may stand in this one's place.
bool IsOurs(int file, struct stat& status) {
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != geteuid())
        return false;
    return (status.st_mode & 07777) == kOwnerOnly || fchmod(file, kOwnerOnly) == 0;
}

// The bytes that are locked. The object need not be so long.
enum LockedByte : off_t { kOwner = 0, kNext = 1 };

// The locks of an open file go with it. False, with errno set, when another one has the lock.
bool SetLock(int file, LockedByte byte, short type) {
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = byte;
    lock.l_len = 1;
    return fcntl(file, F_OFD_SETLK, &lock) == 0;
}

// There is no wait with an end, so this asks again and again; everybody as often, so that all have the same
// chance.
bool TakeUntil(int file, LockedByte byte, Clock::time_point deadline) {
    constexpr Clock::duration kPause = std::chrono::microseconds(500);
    while (!SetLock(file, byte, F_WRLCK)) {
        const bool busy = errno == EAGAIN || errno == EACCES || errno == EINTR;
        const Clock::time_point now = Clock::now();
        if (!busy || now >= deadline)
            return false;
        std::this_thread::sleep_for(std::min(kPause, deadline - now));
    }
    return true;
}

}  // namespace

std::string SharedObjectPrefix() {
    return "/korvane-" + DeviceKey() + '-';
}

std::unique_ptr<SharedObject> SharedObject::Lock(const char* kind, const wchar_t* name, unsigned timeoutMs) {
    const std::string narrow = SharedName(name);
    if (narrow.empty())
        return nullptr;
    const std::string path = SharedObjectPrefix() + kind + '-' + narrow;
    const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(timeoutMs);
    for (;;) {
        std::unique_ptr<SharedObject> object(
            new SharedObject(shm_open(path.c_str(), O_RDWR | O_CREAT, kOwnerOnly)));
        struct stat status {};
        if (!object->file_.IsOpen() || !IsOurs(object->Number(), status) || !object->LockUntil(deadline))
            return nullptr;
        // Removed while this waited, it would be shared with nobody who comes later.
        if (fstat(object->Number(), &status) == 0 && status.st_nlink > 0)
            return object;
        if (Clock::now() >= deadline)
            return nullptr;
    }
}

// A lock that is taken again right after it was given up would pass by all who wait. So the way to it leads
// through a place for one, who keeps it until the lock is free: whoever has just had the lock is not the
// next, too.
bool SharedObject::LockUntil(Clock::time_point deadline) const {
    const bool locked =
        TakeUntil(file_.Number(), kNext, deadline) && TakeUntil(file_.Number(), kOwner, deadline);
    SetLock(file_.Number(), kNext, F_UNLCK);
    return locked;
}

SharedObject::~SharedObject() {
    // A child process forked meanwhile has the descriptor, too, and would keep the lock by it.
    if (file_.IsOpen())
        SetLock(file_.Number(), kOwner, F_UNLCK);
}

}  // namespace korvane
