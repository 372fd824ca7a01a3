#include <CLI/CLI.hpp>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "KorvaneEx.h"
#include "platform/Display.h"
#include "platform/Simulation.h"

#include "demo/headunit/RadioScreen.h"
#include "demo/headunit/Tour.h"

namespace {

using korvane::demo::RadioScreen;
using korvane::demo::Tour;

/// What the program ends with.
enum ExitStatus { kSuccess = 0, kFailure = 1, kUsage = 2, kNoDisplay = 3 };

constexpr wchar_t kTitle[] = L"KorvaneEx head unit";

struct Options {
    std::string display = "sdl";
    int width = RadioScreen::kWidth;
    int height = RadioScreen::kHeight;
    std::string deviceRoot;
    std::string tourFolder;
    std::string screenshot;
};

void Complain(const std::string& text) {
    std::fprintf(stderr, "headunit: %s\n", text.c_str());
}

/// Reads "800x480"; what is wrong with the text, or nothing.
std::string ParseSize(const std::string& text, int& width, int& height) {
    int end = 0;
    if (std::sscanf(text.c_str(), "%9dx%9d%n", &width, &height, &end) != 2 ||
        static_cast<std::size_t>(end) != text.size() || width <= 0 || height <= 0)
        return "is not a size such as 800x480";
    constexpr int kExtent = korvane::kMaxSurfaceExtent;
    constexpr int kPixels = korvane::kMaxSurfacePixels;
    if (width > kExtent || height > kExtent || width > kPixels / height)
        return "is too large: a screen has at most " + std::to_string(kExtent) + " pixels a side and " +
               std::to_string(kPixels) + " in all";
    return {};
}

std::string DescribeWrongUsage(const CLI::App* app, const CLI::Error& error) {
    return "headunit: " + CLI::FailureMessage::simple(app, error);
}

/// Fills in the options; the exit status when there is nothing more to do.
std::optional<int> ReadOptions(int argc, char** argv, Options& options) {
    CLI::App app("A head unit's radio, on a window of the desktop, on a device's display or off-screen.");
    app.failure_message(DescribeWrongUsage);
    auto* display =
        app.add_option("--display", options.display, "Where it is shown: sdl (a window) or memory (nowhere)")
            ->capture_default_str();
    app.add_option_function<std::string>(
           "--size",
           [&options](const std::string& text) {
               const std::string wrong = ParseSize(text, options.width, options.height);
               if (!wrong.empty())
                   throw CLI::ValidationError("--size", "'" + text + "' " + wrong);
           },
           "The screen's size in pixels")
        ->default_str("800x480")
        ->type_name("WxH");
    app.add_option("--device-root", options.deviceRoot,
                   "Folder that holds the device's files; unless given, that of the environment variable "
                   "KORVANE_DEVICE_ROOT, else the one that the build filled")
        ->check(CLI::ExistingDirectory);
    auto* tour =
        app.add_option("--tour", options.tourFolder,
                       "Play a tour off-screen, in virtual time, and write its pictures into a folder")
            ->excludes(display);
    app.add_option("--screenshot", options.screenshot,
                   "Write a picture of the first screen, made off-screen, to a PNG file and end")
        ->excludes(display)
        ->excludes(tour);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kSuccess : kUsage;
    }
    return std::nullopt;
}

bool MakeFolder(const std::string& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    return std::filesystem::is_directory(folder, error);
}

/// Runs the radio until it is closed or the tour has ended.
int RunRadio(const Options& options, Tour* tour) {
    InitMessage();
    if (!IsFileExist(korvane::ResourcePath(korvane::ResourceKind::Image, L"RadioBkg.lqi"))) {
        Complain(korvane::DeviceRoot() +
                 ": holds none of the head unit's images; name another with --device-root");
        return kFailure;
    }
    if (tour)
        tour->Start();

    CLQScreen* screen = CLQScreen::GetInstance();
    const std::string display = tour ? "memory" : options.display;
    if (!screen->Open(display.c_str(), options.width, options.height, kTitle)) {
        Complain("cannot open the display \"" + display + "\": " + korvane::DisplayFailure());
        return kNoDisplay;
    }
    {
        RadioScreen radio;
        radio.Create((options.width - RadioScreen::kWidth) / 2, (options.height - RadioScreen::kHeight) / 2,
                     RadioScreen::kWidth, RadioScreen::kHeight);
        radio.OnInit();
        WndDoModel();
    }
    screen->Close();
    return kSuccess;
}

int RunTour(const Options& options, Tour& tour) {
    const int status = RunRadio(options, &tour);
    if (status != kSuccess)
        return status;
    if (!tour.Failure().empty()) {
        Complain(tour.Failure());
        return kFailure;
    }
    for (const std::string& picture : tour.Pictures())
        std::printf("%s\n", picture.c_str());
    return kSuccess;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    if (const std::optional<int> status = ReadOptions(argc, argv, options))
        return *status;
    if (!options.deviceRoot.empty())
        korvane::SetDeviceRoot(options.deviceRoot);

    if (!options.tourFolder.empty()) {
        if (!MakeFolder(options.tourFolder)) {
            Complain(options.tourFolder + ": cannot make this folder");
            return kFailure;
        }
        Tour tour = Tour::IntoFolder(korvane::demo::RadioTour(), options.tourFolder);
        return RunTour(options, tour);
    }
    if (!options.screenshot.empty()) {
        Tour tour = Tour::IntoFile(options.screenshot);
        return RunTour(options, tour);
    }
    return RunRadio(options, nullptr);
}
