#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/text/face/FontIndex.h"
#include "engine/text/face/GlyphMask.h"
#include "engine/text/face/PixelSize.h"

namespace korvane {

/// Lays out clocks, frequencies and counters, which change all the time, without shaping each of them:
/// advances and ink come from a table. Only pairs of characters that the face neither kerns nor replaces, and
/// only ink that keeps within its advance, are taken, so that the result is what shaping gives.
class NumberLayout {
  public:
    explicit NumberLayout(FontIndex& index);

    /// False when the text is not a number of that kind, is empty or longer than 32 characters. Allocates
    /// nothing for a size that is in use.
    bool Measure(const wchar_t* text, FaceId face, PixelSize size, int& width);
    /// The same with the ink of the line; null instead of false, and when the ink is too large. Valid until
    /// the next call. Allocates nothing once each of the characters was shown and a line as large.
    const GlyphMask* Join(const wchar_t* text, FaceId face, PixelSize size, int& width);

    /// Characters of which numbers consist.
    static constexpr std::size_t kCharacters = 18;

  private:
    struct FaceTable {
        FaceId face = kNoFace;
        std::array<std::uint32_t, kCharacters> glyphs = {};
        std::bitset<kCharacters * kCharacters> simplePairs;
    };
    /// A character's ink as wide as its advance.
    struct Cell {
        bool isKnown = false;
        bool overhangs = false;
        GlyphMask ink;
    };
    struct SizeTable {
        FaceId face = kNoFace;
        PixelSize size;
        std::array<int, kCharacters> advances = {};
        std::array<Cell, kCharacters> cells;
    };
    /// A text as indexes into the tables.
    struct Number {
        static constexpr std::size_t kMaxLength = 32;
        std::size_t length = 0;
        std::array<std::uint8_t, kMaxLength> slots;
    };

    bool Read(const wchar_t* text, FaceId face, Number& number);
    const FaceTable& TableOfFace(FaceId face);
    SizeTable& TableOfSize(FaceId face, PixelSize size);
    const Cell& CellOf(SizeTable& table, std::uint8_t slot);

    FontIndex& index_;
    std::vector<FaceTable> faces_;
    std::array<SizeTable, 8> sizes_;
    std::size_t nextSize_ = 0;
    std::size_t lastSize_ = 0;
    GlyphMask joined_;  ///< keeps its memory for the next number
};

}  // namespace korvane
