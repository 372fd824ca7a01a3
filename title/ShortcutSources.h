#pragma once

struct _LQSysInfo;

namespace korvane {

/// Ids of the sources and functions that the shortcut panel can offer. The main application knows them by the
/// same numbers.
enum SourceId : unsigned char {
    kSourceTuner = 0,
    kSourceDiscAudio = 4,
    kSourceDiscVideo = 5,
    kSourceUsbAudio = 6,
    kSourceUsbVideo = 7,
    kSourceIpodAudio = 8,
    kSourceIpodVideo = 9,
    kSourceIpod = 10,  ///< present like the other two; the panel has no images for it
    kSourceBtAudio = 11,
    kSourceTelephone = 12,
    kSourceAux1 = 13,
    kSourceAux2 = 14,
    kSourceUsbCamera = 15,
    kSourceNavi = 17,
    kSourceTv = 18,
    kSourceAudioOff = 35,
    kSourceDab = 37,
};

/// The name of a source: the base of its images' file names, and the key of its caption in the language
/// tables. Null for an id without images.
const wchar_t* SourceName(int id);

/// Whether the source can be chosen at this moment. What does not depend on the presence of a device, an
/// unknown id included, always can; the rest cannot without a record.
bool IsSourcePresent(int id, const _LQSysInfo* info);

}  // namespace korvane
