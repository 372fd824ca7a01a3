#include <benchmark/benchmark.h>
#include <cstdio>
#include <filesystem>

#include "engine/Korvane.h"
#include "platform/Display.h"
#include "platform/Simulation.h"

#include "bench/engine/ProgramFigures.h"
#include "bench/engine/RatioTable.h"
#include "bench/engine/Register.h"

namespace fs = std::filesystem;

int main(int argc, char** argv) {
    // A device root of its own, with the head unit's files and room for the pictures.
    const fs::path root = fs::temp_directory_path() / "korvane-bench-device";
    fs::remove_all(root);
    const fs::path resource = root / "NandFlash/Application/Resource";
    fs::create_directories(resource);
    for (const char* const folder : {"Font", "Image", "Language", "Layout"})
        fs::create_directory_symlink(
            fs::path(KORVANE_BENCH_DEVICE_DIR) / "NandFlash/Application/Resource" / folder,
            resource / folder);
    korvane::SetDeviceRoot(root.string());
    CLQLangManager::GetInstance()->LoadLanguage(L"English.lng");
    if (!CLQScreen::GetInstance()->Open("memory", 800, 480, L"Bench")) {
        std::fprintf(stderr, "korvane_bench: cannot open the screen: %s\n", korvane::DisplayFailure());
        return 1;
    }

    // Repetitions in random order spread the noise of a busy machine over all parties.
    char program[] = "korvane_bench";
    char repetitions[] = "--benchmark_repetitions=9";
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char minimum[] = "--benchmark_min_time=0.04";
    std::vector<char*> arguments = {program, repetitions, interleaving, minimum};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    korvane::bench::RegisterBlits();
    korvane::bench::RegisterTexts();
    korvane::bench::RegisterFrames();
    korvane::bench::RegisterControlFrames();
    korvane::bench::RegisterHeadUnitFrames();
    korvane::bench::RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    // The windows end before their screen.
    benchmark::ClearRegisteredBenchmarks();
    CLQScreen::GetInstance()->Close();
    fs::remove_all(root);
    return korvane::bench::PrintProgramFigures() ? 0 : 1;
}
