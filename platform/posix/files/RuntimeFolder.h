#pragma once

#include <string>

#include "platform/posix/files/Descriptor.h"

namespace korvane {

enum class IfMissing { Make, Fail };

/// Where the processes of one device meet: a folder for each device in the runtime folder of the user.
///
/// The runtime folder is that of the environment variable KORVANE_RUNTIME_DIR, else "korvane" in that of
/// XDG_RUNTIME_DIR, else "/tmp/korvane-<user id>". Both folders belong to the user, and nobody else may enter
/// them; what is found otherwise, such as a link, is not used.
class RuntimeFolder {
  public:
    RuntimeFolder() = default;

    /// Not open when there is no such folder.
    RuntimeFolder(const std::string& deviceKey, IfMissing ifMissing);

    bool IsOpen() const { return folder_.IsOpen(); }
    int Number() const { return folder_.Number(); }

    /// Another process may have removed it; one that comes later makes a new one of the same name.
    bool IsRemoved() const;

    /// Takes the folder away if nobody has anything in it.
    void RemoveIfEmpty() const;

  private:
    std::string deviceKey_;
    Descriptor parent_;
    Descriptor folder_;
};

}  // namespace korvane
