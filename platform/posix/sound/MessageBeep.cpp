#include <chrono>
#include <condition_variable>
#include <csignal>
#include <dlfcn.h>
#include <memory>
#include <mutex>
#include <string>
#include <system_error>
#include <thread>

#include "platform/AudioModule.h"
#include "platform/Simulation.h"
#include "platform/posix/LastError.h"
#include "platform/posix/files/OwnFolder.h"
#include "platform/posix/sound/Tone.h"

namespace korvane {
namespace {

constexpr int kSamplesPerSecond = 48000;
constexpr std::chrono::milliseconds kPatience{250};

// The module stays loaded: what it brought with it may not be unloadable.
std::unique_ptr<Speaker> OpenSpeaker() {
    const std::string path = OwnFolder() + "korvane-audio-sdl.so";
    void* const module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const entry = module ? dlsym(module, kAudioModuleEntryName) : nullptr;
    if (!entry)
        return nullptr;
    return std::unique_ptr<Speaker>(
        reinterpret_cast<AudioModuleEntry>(entry)(kAudioModuleVersion, kSamplesPerSecond));
}

// Opens the device on a thread of its own at the first tone, since that may take long.
class Beeper {
  public:
    bool Beep() {
        std::unique_lock<std::mutex> lock(mutex_);
        if (state_ == State::New) {
            StartOpening();
            opened_.wait_for(lock, kPatience, [this] { return state_ != State::Opening; });
        }
        switch (state_) {
            case State::Open:
                return Play();
            case State::Opening:
                waits_ = true;
                return true;
            case State::New:
            case State::Silent:
                break;
        }
        return false;
    }

    void End() {
        if (opening_.joinable())
            opening_.join();
        const std::lock_guard<std::mutex> lock(mutex_);
        state_ = State::Silent;
        speaker_.reset();
    }

  private:
    enum class State { New, Opening, Open, Silent };

    void StartOpening() {
        // Signals are for the program's own threads.
        sigset_t all;
        sigset_t before;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before);
        state_ = State::Opening;
        try {
            opening_ = std::thread(&Beeper::Open, this);
        } catch (const std::system_error&) {
            state_ = State::Silent;
        }
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
    }

    void Open() {
        std::unique_ptr<Speaker> opened = OpenSpeaker();
        const std::lock_guard<std::mutex> lock(mutex_);
        speaker_ = std::move(opened);
        state_ = speaker_ ? State::Open : State::Silent;
        // However many tones were asked for meanwhile, they are one by now.
        if (speaker_ && waits_)
            Play();
        opened_.notify_all();
    }

    bool Play() { return speaker_->Play(tone_.data(), tone_.size()); }

    const std::vector<std::int16_t> tone_ = KeyTone(kSamplesPerSecond);
    std::mutex mutex_;
    std::condition_variable opened_;
    State state_ = State::New;
    bool waits_ = false;
    std::unique_ptr<Speaker> speaker_;
    std::thread opening_;
};

// Closes the device when the program ends.
struct BeeperEnd {
    Beeper& beeper;

    ~BeeperEnd() { beeper.End(); }
};

}  // namespace
}  // namespace korvane

using namespace korvane;

extern "C" {

BOOL MessageBeep(UINT) {
    if (IsManualClock())
        return Fail(ERROR_NOT_SUPPORTED);
    // Never destroyed: static destructors of other modules may still beep.
    static Beeper& beeper = *new Beeper;
    static const BeeperEnd end{beeper};
    return beeper.Beep() || Fail(ERROR_GEN_FAILURE);
}
}
