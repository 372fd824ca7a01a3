#pragma once

#include <string>

#include "engine/draw/Surface.h"

namespace korvane {

/// An image that somebody named by file or handed over as a surface. A file is loaded when the image is first
/// asked for, and shared with all others that name it; a file that cannot be loaded is tried again each time.
class KORVANE_API NamedImage {
  public:
    /// Null counts as empty, which is no image. Returns whether this changed anything.
    bool SetFile(const wchar_t* file);
    void SetSurface(const CLQSurfHandle& surface);

    /// Empty for a surface that was handed over.
    const std::wstring& File() const { return file_; }
    /// Empty when there is no image or it cannot be loaded.
    CLQSurfHandle& Surface();

  private:
    std::wstring file_;
    CLQSurfHandle surface_;
};

}  // namespace korvane
