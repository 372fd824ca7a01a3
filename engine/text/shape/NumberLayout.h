#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/text/face/FontIndex.h"
#include "engine/text/face/PixelSize.h"
#include "engine/text/shape/TextRun.h"

namespace korvane {

/// Lays out clocks, frequencies and counters, which change all the time, without shaping each of them:
/// advances come from a table. Only pairs of characters that the face neither kerns nor replaces are taken,
/// so the result is what shaping gives.
class NumberLayout {
  public:
    static constexpr std::size_t kMaxLength = 32;

    struct Line {
        int width = 0;
        std::size_t count = 0;
        std::array<PlacedGlyph, kMaxLength> glyphs;
    };

    explicit NumberLayout(FontIndex& index);

    /// Null when the text is not a number of that kind, empty or longer than kMaxLength. Valid until the next
    /// call. Allocates nothing for a size that is in use.
    const Line* Place(const wchar_t* text, FaceId face, PixelSize size);

    /// Characters of which numbers consist.
    static constexpr std::size_t kCharacters = 18;

  private:
    struct FaceTable {
        FaceId face = kNoFace;
        std::array<std::uint32_t, kCharacters> glyphs = {};
        std::bitset<kCharacters * kCharacters> simplePairs;
    };
    struct SizeTable {
        FaceId face = kNoFace;
        PixelSize size;
        std::array<int, kCharacters> advances = {};
    };

    const FaceTable& TableOfFace(FaceId face);
    const SizeTable& TableOfSize(FaceId face, PixelSize size);

    FontIndex& index_;
    std::vector<FaceTable> faces_;
    std::array<SizeTable, 16> sizes_;
    std::size_t nextSize_ = 0;
    std::size_t lastSize_ = 0;
    Line line_;
};

}  // namespace korvane
