#include "platform/posix/memory/SharedObject.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/mman.h>
#include <thread>

#include "platform/posix/files/DeviceKey.h"

namespace korvane {
namespace {

constexpr std::size_t kMaxName = 64;
constexpr mode_t kOwnerOnly = S_IRUSR | S_IWUSR;

using Clock = std::chrono::steady_clock;

// Empty for what is no name.
std::string NarrowName(const wchar_t* name) {
    std::string narrow;
    for (; name && *name; ++name) {
        const wchar_t c = *name;
        const bool plain = (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') ||
                           c == L'-' || c == L'_';
        if (!plain || narrow.size() == kMaxName)
            return {};
        narrow += static_cast<char>(c);
    }
    return narrow;
}

// The folder of these objects is open to all users, so one of another user may stand in this one's place.
bool IsOurs(int file, struct stat& status) {
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != geteuid())
        return false;
    return (status.st_mode & 07777) == kOwnerOnly || fchmod(file, kOwnerOnly) == 0;
}

}  // namespace

std::string SharedObjectPrefix() {
    return "/korvane-" + DeviceKey() + '-';
}

std::unique_ptr<SharedObject> SharedObject::Lock(const char* kind, const wchar_t* name, unsigned timeoutMs) {
    const std::string narrow = NarrowName(name);
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

// The system wakes no waiter at a given time, so this asks again and again, ever less often.
bool SharedObject::LockUntil(Clock::time_point deadline) const {
    constexpr Clock::duration kLongestPause = std::chrono::milliseconds(8);
    Clock::duration pause = std::chrono::microseconds(100);
    while (flock(file_.Number(), LOCK_EX | LOCK_NB) != 0) {
        const Clock::time_point now = Clock::now();
        if ((errno != EWOULDBLOCK && errno != EINTR) || now >= deadline)
            return false;
        std::this_thread::sleep_for(std::min(pause, deadline - now));
        pause = std::min(pause * 2, kLongestPause);
    }
    return true;
}

SharedObject::~SharedObject() {
    // A child process forked meanwhile has the descriptor, too, and would keep the lock by it.
    if (file_.IsOpen())
        flock(file_.Number(), LOCK_UN);
}

}  // namespace korvane
