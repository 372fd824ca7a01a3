#pragma once

#include "engine/text/face/FontIndex.h"
#include "engine/text/face/PixelSize.h"

namespace korvane {

class TextEngine;

/// What a CLQFont consists of: a face with a size.
class FontFace {
  public:
    /// `face` may be kNoFace: its text is empty boxes.
    FontFace(TextEngine& engine, FaceId face) : engine_(engine), face_(face) {}

    TextEngine& Engine() const { return engine_; }
    FaceId Id() const { return face_; }
    PixelSize Size() const { return size_; }
    void SetSize(PixelSize size) { size_ = size; }

  private:
    TextEngine& engine_;
    FaceId face_;
    PixelSize size_ = {16, 16};
};

}  // namespace korvane
