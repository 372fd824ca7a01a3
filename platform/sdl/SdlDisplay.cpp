#include "platform/sdl/SdlDisplay.h"

#include <SDL.h>
#include <algorithm>
#include <chrono>
#include <string>
#include <string_view>

#include "platform/display/ScreenSize.h"

namespace korvane {
namespace {

// UTF-8 of a window title. The module carries its own, since it links to nothing of the library.
std::string TitleText(const wchar_t* title) {
    const std::size_t length = title ? std::wcslen(title) + 1 : 0;
    char* const converted = length == 0
                                ? nullptr
                                : SDL_iconv_string("UTF-8", "WCHAR_T", reinterpret_cast<const char*>(title),
                                                   length * sizeof(wchar_t));
    std::string text = converted ? converted : "";
    SDL_free(converted);
    return text;
}

std::string_view DriverName() {
    const char* const name = SDL_GetCurrentVideoDriver();
    return name ? name : "";
}

}  // namespace

SdlDisplay::~SdlDisplay() {
    Close();
}

bool SdlDisplay::Open(int width, int height, const wchar_t* title, HWND owner) {
    if (!IsScreenSize(width, height)) {
        host_.fail(kNoScreenSize);
        return false;
    }
    Close();
    width_ = width;
    height_ = height;
    if (!OpenWindow(title)) {
        host_.fail(SDL_GetError());
        Close();
        return false;
    }
    events_.emplace(host_, owner, window_.get(), picture_);
    picture_.Show();
    return true;
}

bool SdlDisplay::OpenWindow(const wchar_t* title) {
    // A touch comes either as a finger or as the mouse, never as both.
    SDL_SetHint(SDL_HINT_TOUCH_MOUSE_EVENTS, "0");
    SDL_SetHint(SDL_HINT_MOUSE_TOUCH_EVENTS, "0");
    SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
    SDL_SetHint(SDL_HINT_RENDER_SCALE_QUALITY, "linear");
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0)
        return false;
    started_ = true;
    // SDL falls back to a display that nobody sees; that takes a program that names it.
    if (DriverName() == "offscreen" && !SDL_GetHint(SDL_HINT_VIDEODRIVER)) {
        SDL_SetError("neither a desktop nor a device's display can be reached");
        return false;
    }
    SDL_StopTextInput();
    wakeEvent_ = SDL_RegisterEvents(1);
    driverWaits_ = DriverName() == "x11" || DriverName() == "wayland";

    Uint32 flags = SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI;
    if (DriverName() == "KMSDRM")
        flags = SDL_WINDOW_FULLSCREEN_DESKTOP;
    window_.reset(SDL_CreateWindow(TitleText(title).c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                   width_, height_, flags));
    return window_ && picture_.Create(window_.get(), width_, height_);
}

void SdlDisplay::Close() {
    events_.reset();
    picture_ = SdlPicture();
    window_.reset();
    if (started_)
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
    started_ = false;
    if (SDL_WasInit(0) == 0)
        SDL_Quit();
}

void SdlDisplay::Present(const std::uint32_t* pixels, int stridePixels, int left, int top, int right,
                         int bottom) {
    if (!window_ || !pixels || !CutToScreen(width_, height_, left, top, right, bottom))
        return;
    picture_.Update({left, top, right - left, bottom - top},
                    pixels + static_cast<std::ptrdiff_t>(top) * stridePixels + left, stridePixels);
    picture_.Show();
    // Touches that come while a program paints for long get the time at which they came.
    SDL_PumpEvents();
}

void SdlDisplay::WaitEvents(int timeoutMs) {
    // More than a person can cause between two calls; the rest comes with the next one.
    constexpr int kMostAtOnce = 256;
    SDL_Event event;
    if (!window_ || !NextEvent(event, timeoutMs))
        return;
    int count = 0;
    do {
        if (event.type == wakeEvent_)
            wakeWaits_ = false;
        else
            events_->Handle(event);
    } while (++count < kMostAtOnce && SDL_PollEvent(&event) != 0);
}

bool SdlDisplay::NextEvent(SDL_Event& event, int timeoutMs) {
    if (timeoutMs == 0)
        return SDL_PollEvent(&event) != 0;
    return driverWaits_ ? SDL_WaitEventTimeout(&event, timeoutMs) != 0 : PollFor(event, timeoutMs);
}

// SDL waits on the other drivers by asking a thousand times a second. A touch may come later by one step
// here, less than a display's frame.
bool SdlDisplay::PollFor(SDL_Event& event, int timeoutMs) {
    using std::chrono::milliseconds;
    using std::chrono::steady_clock;
    constexpr milliseconds kStep{10};
    const auto deadline = steady_clock::now() + milliseconds(timeoutMs);
    while (SDL_PollEvent(&event) == 0) {
        const auto now = steady_clock::now();
        if (timeoutMs > 0 && now >= deadline)
            return false;
        const auto until = timeoutMs > 0 ? std::min(deadline, now + kStep) : now + kStep;
        std::unique_lock<std::mutex> lock(wakeMutex_);
        woken_.wait_until(lock, until, [this] { return wakeWaits_.load(); });
    }
    return true;
}

void SdlDisplay::Wake() {
    // One at a time, so that they cannot fill SDL's queue.
    if (wakeWaits_.exchange(true))
        return;
    SDL_Event event{};
    event.type = wakeEvent_;
    if (SDL_PushEvent(&event) <= 0)
        wakeWaits_ = false;  // The queue is full, which wakes as well.
    const std::lock_guard<std::mutex> lock(wakeMutex_);
    woken_.notify_all();
}

}  // namespace korvane

extern "C" KORVANE_EXPORTED korvane::Display* KorvaneCreateDisplay(int version,
                                                                   const korvane::DisplayHost* host) {
    if (version != korvane::kDisplayModuleVersion || !host)
        return nullptr;
    return std::make_unique<korvane::SdlDisplay>(*host).release();
}
