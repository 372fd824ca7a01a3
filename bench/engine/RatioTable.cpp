#include "bench/engine/RatioTable.h"

#include <algorithm>
#include <cstdio>

#include "bench/engine/Register.h"

namespace korvane::bench {

namespace {

constexpr const char* kPeers[] = {"memcpy", "pixman", "cairo"};

}  // namespace

bool RatioTable::ReportContext(const Context&) {
    return true;
}

void RatioTable::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration)
            continue;
        // "<work>|<party>" and what the library appends behind a slash.
        const std::string name = run.run_name.function_name;
        const std::size_t bar = name.find('|');
        if (bar == std::string::npos)
            continue;
        const std::string work = name.substr(0, bar);
        const std::string party = name.substr(bar + 1);
        const double time = run.real_accumulated_time / static_cast<double>(run.iterations) * 1e6;
        double& least = microseconds_[work].emplace(party, time).first->second;
        least = std::min(least, time);
        const auto pixels = run.counters.find("pixels");
        if (pixels != run.counters.end())
            pixels_[work] = pixels->second;
    }
}

void RatioTable::Finalize() {
    std::printf("%-44s %10s %8s", "work into an 800 by 480 ARGB surface", "ours us", "pixels");
    for (const char* peer : kPeers)
        std::printf("  x %-7s", peer);
    std::printf("\n");
    for (const std::string& work : RegisteredWorks()) {
        const std::map<std::string, double>& times = microseconds_[work];
        const auto ours = times.find("ours");
        if (ours == times.end())
            continue;
        std::printf("%-44s %10.2f", work.c_str(), ours->second);
        const auto pixels = pixels_.find(work);
        if (pixels == pixels_.end())
            std::printf(" %8s", "-");
        else
            std::printf(" %8.0f", pixels->second);
        for (const char* peer : kPeers) {
            const auto theirs = times.find(peer);
            if (theirs == times.end())
                std::printf("  %9s", "-");
            else
                std::printf("  %9.2f", theirs->second / ours->second);
        }
        std::printf("\n");
    }
    std::printf("\n");
}

}  // namespace korvane::bench
