#pragma once

#include <string>

#include "tests/tools/ProgramFolder.h"

namespace korvane::test {

/// A folder with layouts and, below "device", a device for them, which has the fonts of the build's.
class LayoutFolder : public ProgramFolder {
  protected:
    LayoutFolder();
    void SetUp() override;

    /// Makes an image of one opaque colour, 0xRRGGBB, on the device.
    void WriteImage(const std::string& name, int width, int height, unsigned color) const;
    void WriteLanguage(const std::string& name, const std::string& texts) const;

    /// Writes the text into "a.ini" and checks it on the device; returns what the program printed, without
    /// what stands in front of the line numbers, and keeps its exit status.
    std::string Check(const std::string& text, const std::string& options = {});

    std::string Device() const { return "--device-root " + Quoted("device"); }

    int status_ = 0;
};

}  // namespace korvane::test
