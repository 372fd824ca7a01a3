#pragma once

#include <cstddef>
#include <cstdint>

/// The contract between the library and an audio module. A module uses nothing of the library.
namespace korvane {

/// An open audio device.
class Speaker {
  public:
    virtual ~Speaker() = default;

    /// Plays these samples of one channel behind what still plays, without waiting. What comes faster than it
    /// can be heard is dropped. False when the device is gone.
    virtual bool Play(const std::int16_t* samples, std::size_t count) = 0;
};

/// Changes with every change of Speaker; a module of another version gives null.
constexpr int kAudioModuleVersion = 1;

/// A module exports one function of this type and name. It may take its time, and gives null when there is no
/// audio device. The caller owns the result.
using AudioModuleEntry = Speaker* (*)(int version, int samplesPerSecond);
constexpr char kAudioModuleEntryName[] = "KorvaneOpenSpeaker";

}  // namespace korvane
