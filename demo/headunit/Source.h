#pragma once

#include "KorvaneEx.h"

#include "demo/headunit/Captions.h"

namespace korvane::demo {

/// The source that plays unless another one was chosen.
constexpr int kRadioSource = 0;
constexpr int kUsbMusicSource = 6;

enum class SourceScreenKind { Radio, Media, Other };

/// A source as the head unit shows it.
struct Source {
    int id;       ///< as the main application and the system record number it
    int caption;  ///< its name in the language table
    int hint;     ///< what there is to say about it while its device is there, likewise
    const wchar_t* picture;
    SourceScreenKind screen;
    /// The field of the system record that tells whether its device is there; null for one that always is.
    const unsigned char _LQSysInfo::*presence;

    /// Without a record no device is.
    bool IsPresent(const _LQSysInfo* record) const { return !presence || (record && record->*presence != 0); }
    /// What there is to say about it at the moment.
    int HintFor(const _LQSysInfo* record) const { return IsPresent(record) ? hint : kCaptionNotConnected; }
};

/// Null for an id that is no source.
const Source* FindSource(int id);

}  // namespace korvane::demo
