#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/posix/files/RuntimeFolder.h"
#include "platform/posix/remote/wire/WindowList.h"

namespace korvane {

/// What other processes of the device see of this one: the list of its windows and the socket that takes
/// messages for them. Both end with the object, or with the process however that ends.
class Endpoint {
  public:
    /// Null when there is no folder to meet in.
    static std::unique_ptr<Endpoint> Open(const std::string& deviceKey);
    ~Endpoint();
    Endpoint(const Endpoint&) = delete;
    Endpoint& operator=(const Endpoint&) = delete;

    const std::string& Name() const { return name_; }
    int Listener() const { return listener_.Number(); }

    /// The windows that can be found from here on, newest first.
    void Publish(const std::vector<ListedWindow>& windows);

    /// Leaves the files to another process, of which this one is a copy.
    void Abandon();

  private:
    Endpoint() = default;

    bool MakeList(const std::string& deviceKey);

    std::string name_;
    Descriptor folder_;
    Descriptor list_;
    Descriptor listener_;
    std::uint64_t generation_ = 0;
};

}  // namespace korvane
