#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "platform/windows/Handle.h"

namespace korvane {

/// A new, empty file beside the one whose next contents are written into it: a rename is atomic only within a
/// volume.
///
/// Its name is the same for each writer of the target, one after the other, so that what a killed one left
/// goes with the next. A writer that meets another one at work has a name of its own.
class TemporaryFile {
  public:
    /// Null, with the last error set, when none can be made. `attributes` are those of the file.
    static std::unique_ptr<TemporaryFile> Create(const std::wstring& target, DWORD attributes);
    /// Removes the file, unless it was renamed.
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// Writes all of it through to the disk. False, with the last error set, when that fails.
    bool Write(const void* bytes, std::size_t size);

    /// Puts the file in the target's place. False, with the last error set, when that fails, which it also
    /// does when a program keeps the target open that does not let it be replaced.
    bool Rename();

  private:
    TemporaryFile(std::wstring target, Handle file);

    std::wstring target_;
    Handle file_;
    bool renamed_ = false;
};

}  // namespace korvane
