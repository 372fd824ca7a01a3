// Shows one number wheel off-screen and prints what that took: the time from the start of the process to the
// first frame, and the memory that is resident by then.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "KorvaneEx.h"

namespace {

/// Kilobytes resident, 0 where the system does not say.
long ResidentKilobytes() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.compare(0, 6, "VmRSS:") == 0)
            return std::strtol(line.c_str() + 6, nullptr, 10);
    }
    return 0;
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
    if (!screen->Open("memory", 800, 480, L"One wheel")) {
        std::fprintf(stderr, "wheel: cannot open the memory display\n");
        return 1;
    }
    CLQWindow window;
    window.Create(0, 0, 800, 480);
    CLQNumSlider wheel;
    wheel.Create(248, 118, 312, 212);
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
