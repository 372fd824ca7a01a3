#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/coredll.h"
#include "platform/posix/remote/reach/Peer.h"

namespace korvane {

/// The other processes of the device, and the handles that this process knows their windows by. All of it
/// needs the mutex, which is taken before the station's and the session's.
class Neighbours {
  public:
    struct Target {
        std::shared_ptr<Peer> peer;
        std::uint32_t window = 0;  // as its own process knows it
    };

    std::mutex mutex;

    /// Those who live at this moment, apart from this process itself. What others have left behind is
    /// removed.
    std::vector<std::shared_ptr<Peer>> LookAround();

    HWND HandleOf(const std::shared_ptr<Peer>& peer, std::uint32_t window);

    /// Null peer for a window that does not exist any more.
    Target Resolve(HWND handle);

    /// The window by its handle, if it is not dead, otherwise null; valid until the next call of anything.
    const ListedWindow* Describe(HWND handle);

    /// Closes all connections.
    void Disconnect();

  private:
    void EnterFolder();
    void MeetNew();
    void Forget(const Peer& peer);
    void ForgetGoneWindows(Peer& peer);

    std::string root_;
    std::string deviceKey_;
    std::shared_ptr<const Descriptor> folder_;
    std::map<std::string, std::shared_ptr<Peer>, std::less<>> peers_;  // by endpoint, those of the root
    std::map<UINT_PTR, Target> targets_;                               // by handle
    UINT_PTR lastHandle_ = 0;
};

Neighbours& TheNeighbours();

}  // namespace korvane
