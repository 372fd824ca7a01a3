#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <string>

#include "engine/window/Screen.h"

#include "bench/engine/Register.h"
#include "bench/screens/CopiedRect.h"

namespace korvane::bench {

/// Adds a benchmark that repeats a change and the repaint that it asks for, up to the display, and one that
/// only copies as many pixels. `bringToTop` puts the window that changes on top of the others.
inline void RegisterRepaint(const std::string& work, std::function<void()> bringToTop,
                            std::function<void()> change, const _LQRect& rect) {
    NoteWork(work);
    benchmark::RegisterBenchmark((work + "|ours").c_str(), [=](benchmark::State& state) {
        CLQScreen* const screen = CLQScreen::GetInstance();
        bringToTop();
        // Both looks of the change, so that nothing is loaded any more.
        for (int i = 0; i < 2; ++i) {
            screen->Paint();
            change();
        }
        screen->Paint();
        screen->ResetCounters();
        for (auto _ : state) {
            change();
            screen->Paint();
        }
        const ScreenCounters counters = screen->GetCounters();
        state.counters["pixels"] =
            static_cast<double>(counters.paintedPixels) / static_cast<double>(state.iterations());
    });
    Register(work + "|memcpy", CopiedRect(rect));
}

/// The same for a repaint of the whole screen.
inline void RegisterFullRepaint(const std::string& work, std::function<void()> bringToTop) {
    RegisterRepaint(
        work, std::move(bringToTop), [] { CLQScreen::GetInstance()->InvalidateAll(); },
        _LQRect{0, 800, 0, 480});
}

}  // namespace korvane::bench
