#include "bench/engine/ProgramFigures.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace korvane::bench {

namespace {

struct Start {
    double firstFrameMs;
    long residentKb;
};

std::string Quoted(const fs::path& path) {
    return "'" + path.string() + "'";
}

/// Runs the program without a shell, whose own start would count.
bool RunWheel(Start& start) {
    const std::string program = (fs::path(KORVANE_BENCH_PROGRAM_DIR) / "wheel").string();
    int ends[2];
    if (pipe(ends) != 0)
        return false;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);

    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::string argument = std::to_string(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
    std::string name = "wheel";
    char* arguments[] = {name.data(), argument.data(), nullptr};
    pid_t child = 0;
    const bool started = posix_spawn(&child, program.c_str(), &actions, nullptr, arguments, environ) == 0;
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    FILE* const output = fdopen(ends[0], "r");
    const int fields = output ? std::fscanf(output, "first_frame_ms %lf resident_kb %ld", &start.firstFrameMs,
                                            &start.residentKb)
                              : 0;
    if (output)
        std::fclose(output);
    int status = 1;
    return started && waitpid(child, &status, 0) == child && status == 0 && fields == 2;
}

/// Size without symbols, in bytes; 0 when it cannot be found out.
std::uintmax_t StrippedSize(const fs::path& library) {
    const fs::path stripped = fs::temp_directory_path() / ("korvane-stripped-" + library.filename().string());
    const std::string command = "strip -o " + Quoted(stripped) + " " + Quoted(library);
    if (std::system(command.c_str()) != 0)
        return 0;
    std::error_code failure;
    const std::uintmax_t size = fs::file_size(stripped, failure);
    fs::remove(stripped, failure);
    return size;
}

}  // namespace

bool PrintProgramFigures() {
    constexpr int kRuns = 15;
    std::vector<Start> starts;
    for (int i = 0; i < kRuns; ++i) {
        Start start = {};
        if (!RunWheel(start)) {
            std::fprintf(stderr, "korvane_bench: %s/wheel does not run\n", KORVANE_BENCH_PROGRAM_DIR);
            return false;
        }
        starts.push_back(start);
    }
    std::sort(starts.begin(), starts.end(),
              [](const Start& a, const Start& b) { return a.firstFrameMs < b.firstFrameMs; });
    std::printf("%-44s %10s %10s %10s\n", "one wheel off-screen", "least", "median", "most");
    std::printf("%-44s %10.2f %10.2f %10.2f\n", "first frame after the process start, ms",
                starts.front().firstFrameMs, starts[kRuns / 2].firstFrameMs, starts.back().firstFrameMs);
    std::sort(starts.begin(), starts.end(),
              [](const Start& a, const Start& b) { return a.residentKb < b.residentKb; });
    std::printf("%-44s %10.1f %10.1f %10.1f\n\n", "resident then, MB",
                static_cast<double>(starts.front().residentKb) / 1024,
                static_cast<double>(starts[kRuns / 2].residentKb) / 1024,
                static_cast<double>(starts.back().residentKb) / 1024);
    std::printf("%-44s %10s\n", "library, stripped", "KB");
    for (const char* name : {"libkorvane.so", "libkorvaneex.so", "korvane-display-sdl.so"}) {
        const fs::path library = fs::path(KORVANE_BENCH_PROGRAM_DIR) / name;
        // Built only where the desktop's libraries are.
        if (!fs::exists(library))
            continue;
        const std::uintmax_t size = StrippedSize(fs::canonical(library));
        std::printf("%-44s %10.0f\n", name, static_cast<double>(size) / 1024);
    }
    return true;
}

}  // namespace korvane::bench
