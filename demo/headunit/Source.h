#pragma once

namespace korvane::demo {

/// The source that plays unless another one was chosen.
constexpr int kRadioSource = 0;
constexpr int kUsbMusicSource = 6;

enum class SourceScreenKind { Radio, Other };

/// A source as the head unit shows it.
struct Source {
    int id;       ///< as the main application and the system record number it
    int caption;  ///< its name in the language table
    int hint;     ///< what there is to say about it, likewise
    const wchar_t* picture;
    SourceScreenKind screen;
    bool hasPlayTime;
};

/// Null for an id that is no source.
const Source* FindSource(int id);

}  // namespace korvane::demo
