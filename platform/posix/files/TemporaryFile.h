#pragma once

#include <memory>
#include <string>

#include "platform/posix/files/Descriptor.h"

namespace korvane {

/// A new, empty file beside the one whose next contents are written into it: a rename is atomic only within a
/// file system.
///
/// Its name is the same for each writer of the target, one after the other, so that what a killed one left
/// goes with the next. A writer that meets another one at work has a name of its own.
class TemporaryFile {
  public:
    /// Null, with errno set, when none can be made.
    static std::unique_ptr<TemporaryFile> Create(const std::string& target);
    /// Removes the file, unless it was renamed.
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    int Number() const { return file_.Number(); }

    /// Puts the file in the target's place. False, with errno set, when that fails.
    bool Rename();

  private:
    TemporaryFile(const std::string& target, std::string path, int number);

    std::string target_;
    std::string path_;
    Descriptor file_;
    bool renamed_ = false;
};

}  // namespace korvane
