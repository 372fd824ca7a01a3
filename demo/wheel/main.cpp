// Shows one number wheel off-screen and prints what that took: the time from the start of the process to the
// first frame, and the memory that is resident by then.

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "KorvaneEx.h"

namespace {

/// The wheel and its screen.
constexpr int kWidth = 312;
constexpr int kHeight = 212;

/// Kilobytes resident, 0 where the system does not say. Without the standard library's streams, which would
/// be resident themselves.
long ResidentKilobytes() {
    std::FILE* status = std::fopen("/proc/self/status", "r");
    if (!status)
        return 0;
    long kilobytes = 0;
    char line[128];
    while (kilobytes == 0 && std::fgets(line, sizeof line, status))
        std::sscanf(line, "VmRSS: %ld", &kilobytes);
    std::fclose(status);
    return kilobytes;
}

long long NowNanoseconds() {
    using std::chrono::nanoseconds;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<nanoseconds>(now).count();
}

}  // namespace

/// The argument, when given, is the steady clock's nanoseconds when the process was started; else the time
/// counts from main.
int main(int argc, char** argv) {
    const long long start = argc > 1 ? std::strtoll(argv[1], nullptr, 10) : NowNanoseconds();

    CLQScreen* screen = CLQScreen::GetInstance();
    if (!screen->Open("memory", kWidth, kHeight, L"One wheel")) {
        std::fprintf(stderr, "wheel: cannot open the memory display\n");
        return 1;
    }
    CLQWindow window;
    window.Create(0, 0, kWidth, kHeight);
    CLQNumSlider wheel;
    wheel.Create(0, 0, kWidth, kHeight);
    wheel.SetFont(CLQFontManager::GetInstance()->GetDefaultFont());
    wheel.SetFontSize(72, 72);
    wheel.SetSeekUpGnd(L"SeekUp.lqi");
    wheel.SetSeekDownGnd(L"SeekDown.lqi");
    wheel.SetBoundScalFreqID({87.5f, 108.0f, 0.05f, true, L"MHz"});
    wheel.SetVaule(98.5f);
    window.AddChild(&wheel);
    screen->Paint();

    const double milliseconds = static_cast<double>(NowNanoseconds() - start) / 1e6;
    std::printf("first_frame_ms %.3f resident_kb %ld\n", milliseconds, ResidentKilobytes());
    return 0;
}
