#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "demo/headunit/media/Track.h"

namespace korvane::demo {

/// Plays the tracks of a medium one after the other and over and over, or a passage of one of them. It has no
/// clock of its own: `Advance` tells it how much time has passed.
///
/// A passage goes from A to B, whole seconds of the track. Whenever the playback reaches B it goes on from A;
/// a seek beyond B leaves the passage, and plays on from there. The passage ends with its track.
class Player {
  public:
    /// Plays from the start of the first track. A medium without tracks counts as one with a nameless track
    /// of a second; a track is a second to a hundred hours long.
    explicit Player(Tracks tracks);

    void Play(bool play) { isPlaying_ = play; }
    bool IsPlaying() const { return isPlaying_; }
    /// Lets time pass. None passes for a player that rests.
    void Advance(unsigned ms);

    /// Goes to a moment of the track, in seconds, clamped.
    void Seek(int seconds);
    void Next();
    /// To the start of the track; in its first three seconds to the track before.
    void Previous();
    /// To the start of a track, counted from 0. A number out of range is ignored.
    void ChooseTrack(std::size_t index);

    /// Sets A at the present second. A passage whose B does not lie behind it ends.
    void SetRepeatStart();
    /// Sets B at the present second, and goes to A. The earlier of the two is A from then on, and B lies at
    /// least a second behind it. Ignored while A is not set.
    void SetRepeatEnd();
    void CancelRepeat();
    std::optional<int> RepeatStart() const { return repeatStart_; }
    std::optional<int> RepeatEnd() const { return repeatEnd_; }

    const Track& CurrentTrack() const { return tracks_[current_]; }
    /// Counted from 0.
    std::size_t CurrentIndex() const { return current_; }
    std::size_t TrackCount() const { return tracks_.size(); }
    /// How much of the track has been played, in whole seconds, and in how much time it is a second more: 1
    /// to 1000 milliseconds.
    int Seconds() const;
    int MsToNextSecond() const;

  private:
    void EnterTrack(std::size_t index);
    std::int64_t LengthMs() const;

    Tracks tracks_;
    std::int64_t mediumMs_ = 0;  // all tracks together
    std::size_t current_ = 0;
    std::int64_t positionMs_ = 0;
    bool isPlaying_ = true;
    std::optional<int> repeatStart_;
    std::optional<int> repeatEnd_;  // only with a start, and behind it
};

}  // namespace korvane::demo
