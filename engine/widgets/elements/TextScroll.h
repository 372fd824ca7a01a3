#pragma once

#include "engine/core/Types.h"

namespace korvane {

/// How a line of text runs through its label, without knowing the label. One pass takes it over the width of
/// the label and its own.
struct TextScroll {
    bool enabled = false;
    bool onlyTooLong = false;
    eScrollType type = eScroll_Left;
    int step = 4;      ///< pixels, 1 or more
    int period = 150;  ///< milliseconds a step, 1 or more
    int count = 0;     ///< passes, 0 and less: for ever

    int scrolled = 0;  ///< pixels moved in the current pass
    int passes = 0;    ///< passes completed, as far as they are counted

    void Restart();
    /// Whether a text of that width, of which some is to be seen, moves on in a label of that width.
    bool IsWanted(int textWidth, int labelWidth) const;
    /// Moves one step on. At the end of the last pass the text is back where it began.
    void Advance(int textWidth, int labelWidth);
    /// How far to the right of its place the text is drawn, which lies `start` pixels inside the label.
    int Shift(int start, int textWidth, int labelWidth) const;
};

}  // namespace korvane
