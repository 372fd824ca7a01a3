#pragma once

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/DisplayModule.h"
#include "platform/sdl/SdlEvents.h"
#include "platform/sdl/SdlPicture.h"

namespace korvane {

/// A window of the desktop, or the whole screen of a device without one.
class SdlDisplay : public Display {
  public:
    explicit SdlDisplay(const DisplayHost& host) : host_(host) {}
    ~SdlDisplay() override;

    bool Open(int width, int height, const wchar_t* title, HWND owner) override;
    void Present(const std::uint32_t* pixels, int stridePixels, int left, int top, int right,
                 int bottom) override;
    void WaitEvents(int timeoutMs) override;
    void Wake() override;

  private:
    bool OpenWindow(const wchar_t* title);
    bool NextEvent(SDL_Event& event, int timeoutMs);
    bool PollFor(SDL_Event& event, int timeoutMs);
    void Close();

    const DisplayHost& host_;
    int width_ = 0;
    int height_ = 0;
    bool started_ = false;
    bool driverWaits_ = false;  // the driver sleeps until an event comes instead of asking again and again
    std::unique_ptr<SDL_Window, WindowDeleter> window_;
    SdlPicture picture_;
    std::optional<SdlEvents> events_;

    Uint32 wakeEvent_ = 0;
    std::atomic<bool> wakeWaits_{false};
    std::mutex wakeMutex_;
    std::condition_variable woken_;
};

}  // namespace korvane
