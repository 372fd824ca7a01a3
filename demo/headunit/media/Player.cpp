#include "demo/headunit/media/Player.h"

#include <algorithm>
#include <utility>

namespace korvane::demo {

namespace {

constexpr std::int64_t kSecondMs = 1000;
constexpr int kLongestSeconds = 100 * 3600;
/// Later than this, the button for the track before leads to the start of this one.
constexpr std::int64_t kRestartMs = 3 * kSecondMs;

}  // namespace

Player::Player(Tracks tracks) : tracks_(std::move(tracks)) {
    if (tracks_.empty())
        tracks_.push_back({L"", L"", 1});
    for (Track& track : tracks_) {
        track.seconds = std::clamp(track.seconds, 1, kLongestSeconds);
        mediumMs_ += track.seconds * kSecondMs;
    }
}

std::int64_t Player::LengthMs() const {
    return CurrentTrack().seconds * kSecondMs;
}

int Player::Seconds() const {
    return static_cast<int>(positionMs_ / kSecondMs);
}

int Player::MsToNextSecond() const {
    if (positionMs_ >= LengthMs())
        return 1;
    return static_cast<int>(kSecondMs - positionMs_ % kSecondMs);
}

void Player::Advance(unsigned ms) {
    if (!isPlaying_)
        return;
    const std::int64_t before = positionMs_;
    positionMs_ += ms;
    if (repeatEnd_) {
        const std::int64_t start = *repeatStart_ * kSecondMs;
        const std::int64_t end = *repeatEnd_ * kSecondMs;
        if (before < end && positionMs_ >= end) {
            positionMs_ = start + (positionMs_ - end) % (end - start);
            return;
        }
    }
    if (positionMs_ < LengthMs())
        return;
    // Whole rounds of the medium end where they began.
    std::int64_t rest = (positionMs_ - LengthMs()) % mediumMs_;
    EnterTrack(current_ + 1);
    while (rest >= LengthMs()) {
        rest -= LengthMs();
        EnterTrack(current_ + 1);
    }
    positionMs_ = rest;
}

void Player::EnterTrack(std::size_t index) {
    current_ = index % tracks_.size();
    positionMs_ = 0;
    CancelRepeat();
}

void Player::Seek(int seconds) {
    positionMs_ = std::clamp(seconds, 0, CurrentTrack().seconds) * kSecondMs;
}

void Player::Next() {
    EnterTrack(current_ + 1);
}

void Player::Previous() {
    if (positionMs_ >= kRestartMs)
        EnterTrack(current_);
    else
        EnterTrack(current_ + tracks_.size() - 1);
}

void Player::ChooseTrack(std::size_t index) {
    if (index < tracks_.size())
        EnterTrack(index);
}

void Player::SetRepeatStart() {
    // At the very end there would be no room for a passage.
    repeatStart_ = std::min(Seconds(), CurrentTrack().seconds - 1);
    if (repeatEnd_ && *repeatEnd_ <= *repeatStart_)
        repeatEnd_.reset();
}

void Player::SetRepeatEnd() {
    if (!repeatStart_)
        return;
    const int now = Seconds();
    if (now < *repeatStart_) {
        repeatEnd_ = repeatStart_;
        repeatStart_ = now;
        return;
    }
    repeatEnd_ = std::max(now, *repeatStart_ + 1);
    Seek(*repeatStart_);
}

void Player::CancelRepeat() {
    repeatStart_.reset();
    repeatEnd_.reset();
}

}  // namespace korvane::demo
