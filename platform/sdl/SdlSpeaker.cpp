#include <SDL.h>
#include <dlfcn.h>
#include <limits>
#include <memory>

#include "platform/AudioModule.h"
#include "platform/Export.h"

namespace korvane {
namespace {

extern "C" void IgnoreAlsaError(const char*, int, const char*, int, const char*, ...) {}

// ALSA says on the standard error output, unless told otherwise, that a machine has no sound card.
void HushAlsa() {
    using SetHandler = int (*)(decltype(&IgnoreAlsaError));
    void* const alsa = dlopen("libasound.so.2", RTLD_NOW | RTLD_NOLOAD);
    if (!alsa)
        return;
    if (void* const entry = dlsym(alsa, "snd_lib_error_set_handler"))
        reinterpret_cast<SetHandler>(entry)(&IgnoreAlsaError);
    dlclose(alsa);
}

class SdlSpeaker : public Speaker {
  public:
    ~SdlSpeaker() override {
        if (device_ != 0)
            SDL_CloseAudioDevice(device_);
        if (started_)
            SDL_QuitSubSystem(SDL_INIT_AUDIO);
        if (SDL_WasInit(0) == 0)
            SDL_Quit();
    }

    bool Open(int samplesPerSecond) {
        SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_ROLE, "event");
        started_ = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
        if (!started_)
            return false;
        HushAlsa();
        SDL_AudioSpec wanted{};
        wanted.freq = samplesPerSecond;
        wanted.format = AUDIO_S16SYS;
        wanted.channels = 1;
        wanted.samples = 1024;
        device_ = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
        if (device_ != 0)
            SDL_PauseAudioDevice(device_, 0);
        return device_ != 0;
    }

    bool Play(const std::int16_t* samples, std::size_t count) override {
        if (SDL_GetAudioDeviceStatus(device_) == SDL_AUDIO_STOPPED)
            return false;
        const std::size_t bytes = count * sizeof(*samples);
        if (bytes > std::numeric_limits<Uint32>::max() || SDL_GetQueuedAudioSize(device_) >= bytes)
            return true;
        return SDL_QueueAudio(device_, samples, static_cast<Uint32>(bytes)) == 0;
    }

  private:
    SDL_AudioDeviceID device_ = 0;
    bool started_ = false;
};

}  // namespace
}  // namespace korvane

extern "C" KORVANE_EXPORTED korvane::Speaker* KorvaneOpenSpeaker(int version, int samplesPerSecond) {
    if (version != korvane::kAudioModuleVersion)
        return nullptr;
    auto speaker = std::make_unique<korvane::SdlSpeaker>();
    if (!speaker->Open(samplesPerSecond))
        speaker.reset();
    // The thread may end here, without SDL's knowledge.
    SDL_TLSCleanup();
    return speaker.release();
}
