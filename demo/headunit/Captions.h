#pragma once

namespace korvane::demo {

/// Identifiers of the texts in the language tables.
enum Caption : int {
    // Sources
    kCaptionTuner = 1,
    kCaptionDab = 2,
    kCaptionDiscAudio = 3,
    kCaptionDiscVideo = 4,
    kCaptionBtAudio = 5,
    kCaptionUsbAudio = 6,
    kCaptionUsbVideo = 7,
    kCaptionIpodAudio = 8,
    kCaptionIpodVideo = 9,
    kCaptionAux1 = 10,
    kCaptionAux2 = 11,
    kCaptionTv = 12,
    kCaptionTelephone = 13,
    kCaptionNavi = 14,
    kCaptionUsbCamera = 15,
    kCaptionAudioOff = 16,

    // Everywhere
    kCaptionBack = 20,
    kCaptionCancel = 21,
    kCaptionDone = 22,
    kCaptionOn = 23,
    kCaptionOff = 24,
    kCaptionGuidance = 25,
    kCaptionFrontSeats = 26,
    kCaptionRearSeats = 27,
    kCaptionMore = 28,

    // Screens
    kCaptionMenu = 30,
    kCaptionRadio = 31,
    kCaptionMedia = 32,
    kCaptionSources = 33,
    kCaptionGauges = 34,
    kCaptionFiles = 35,
    kCaptionSettings = 36,
    kCaptionChooseTile = 37,
    kCaptionChoosePlace = 38,

    // Radio
    kCaptionSwipeToSeek = 40,
    kCaptionSeekingUp = 41,
    kCaptionSeekingDown = 42,
    kCaptionStore = 43,
    kCaptionHoldToStore = 44,
    kCaptionPreset1 = 45,
    kCaptionPreset2 = 46,
    kCaptionPreset3 = 47,
    kCaptionPreset4 = 48,
    kCaptionPreset5 = 49,
    kCaptionPreset6 = 50,
    kCaptionPresets = 51,

    // Media
    kCaptionPlay = 60,
    kCaptionPause = 61,
    kCaptionRepeatStart = 62,
    kCaptionRepeatEnd = 63,
    kCaptionRepeat = 64,
    kCaptionTrack = 65,
    kCaptionNowPlaying = 66,
    kCaptionNoMedium = 67,
    kCaptionReading = 68,

    // Gauges
    kCaptionSpeed = 70,
    kCaptionEngineSpeed = 71,
    kCaptionFuel = 72,
    kCaptionTemperature = 73,
    kCaptionUnitSpeed = 74,
    kCaptionUnitEngineSpeed = 75,
    kCaptionStartDrive = 76,
    kCaptionStopDrive = 77,

    // Files
    kCaptionFolderEmpty = 80,
    kCaptionFolderAbove = 81,
    kCaptionFolderGone = 82,
    kCaptionSwipeToOpen = 83,
    kCaptionSwipeToPlay = 84,

    // Settings
    kCaptionLanguage = 90,
    kCaptionClock24h = 91,
    kCaptionShortcuts = 92,
    kCaptionTrafficAnnouncements = 93,
    kCaptionAlternativeFrequencies = 94,
    kCaptionMute = 95,

    // Sources that are not simulated, or not there
    kCaptionNotConnected = 100,
    kCaptionParkedOnly = 101,
    kCaptionReadyForCalls = 102,
    kCaptionNoNavigation = 103,
    kCaptionNoPicture = 104,
    kCaptionAudioIsOff = 105,

    // Languages, each in its own
    kCaptionGerman = 110,
    kCaptionEnglish = 111,
    kCaptionSpanish = 112,
    kCaptionFrench = 113,
    kCaptionItalian = 114,
    kCaptionDutch = 115,
    kCaptionPolish = 116,
    kCaptionPortuguese = 117,
    kCaptionSwedish = 118,
    kCaptionGreek = 119,
    kCaptionChinese = 120,
    kCaptionJapanese = 121,
};

}  // namespace korvane::demo
