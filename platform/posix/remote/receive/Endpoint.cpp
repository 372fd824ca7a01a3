#include "platform/posix/remote/receive/Endpoint.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "platform/posix/remote/wire/Channel.h"
#include "platform/posix/remote/wire/EndpointName.h"

namespace korvane {
namespace {

// False when another process has just taken the file for abandoned. This does not wait for that one, which
// may stand still.
bool LockForLife(int file) {
    int result;
    do {
        result = flock(file, LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

}  // namespace

std::unique_ptr<Endpoint> Endpoint::Open(const std::string& deviceKey) {
    // Again when another process takes the list for abandoned before it is locked.
    constexpr int kAttempts = 100;
    std::unique_ptr<Endpoint> endpoint(new Endpoint);
    endpoint->folder_ = OpenRuntimeFolder(IfMissing::Make);
    if (!endpoint->folder_.IsOpen())
        return nullptr;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (!endpoint->MakeList(deviceKey))
            continue;
        endpoint->listener_ = ListenIn(endpoint->folder_.Number(), SocketOf(endpoint->name_));
        return endpoint->listener_.IsOpen() ? std::move(endpoint) : nullptr;
    }
    return nullptr;
}

bool Endpoint::MakeList(const std::string& deviceKey) {
    name_ = NewEndpointName(deviceKey);
    list_ = Descriptor(openat(folder_.Number(), ListFileOf(name_).c_str(),
                              O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    struct stat status {};
    if (!list_.IsOpen())
        return false;
    if (LockForLife(list_.Number()) && fstat(list_.Number(), &status) == 0 && status.st_nlink > 0)
        return true;
    unlinkat(folder_.Number(), ListFileOf(name_).c_str(), 0);
    list_.Close();
    return false;
}

Endpoint::~Endpoint() {
    if (!list_.IsOpen())
        return;
    unlinkat(folder_.Number(), SocketOf(name_).c_str(), 0);
    unlinkat(folder_.Number(), ListFileOf(name_).c_str(), 0);
}

void Endpoint::Publish(const std::vector<ListedWindow>& windows) {
    const std::vector<std::uint8_t> bytes = EncodeWindowList(++generation_, windows);
    // A reader that comes in between sees that the checksum is wrong, and reads again.
    while (pwrite(list_.Number(), bytes.data(), bytes.size(), 0) < 0 && errno == EINTR) {
    }
}

void Endpoint::Abandon() {
    list_.Close();
    listener_.Close();
}

}  // namespace korvane
