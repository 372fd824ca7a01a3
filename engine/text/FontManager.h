#pragma once

#include <memory>

#include "engine/text/Font.h"

/// Finds font faces by name among the font files of the device.
class KORVANE_API CLQFontManager {
  public:
    static CLQFontManager* GetInstance();

    /// The user interface's face; never null, also when there is no font file at all (its text is then empty
    /// boxes).
    CLQFont* GetDefaultFont();
    /// The face of that name ("msyh" and others are aliases), without regard to case; the default font when
    /// there is none or the name is null. Each name has one font object with a size of its own.
    CLQFont* GetFont(const wchar_t* face);

    struct Impl;

  private:
    CLQFontManager();
    ~CLQFontManager();
    CLQFontManager(const CLQFontManager&) = delete;
    CLQFontManager& operator=(const CLQFontManager&) = delete;

    std::unique_ptr<Impl> m_pImpl;
};
