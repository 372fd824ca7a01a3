#include <CLI/CLI.hpp>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "KorvaneEx.h"
#include "platform/Display.h"
#include "platform/Simulation.h"

#include "demo/headunit/HeadUnit.h"
#include "demo/headunit/RemoteControl.h"
#include "demo/headunit/tour/HeadUnitTour.h"
#include "demo/headunit/tour/ScratchDevice.h"
#include "demo/headunit/tour/Tour.h"
#include "demo/mainapp/MainApplication.h"
#include "tools/commandline/ScreenSize.h"
#include "tools/commandline/WrongUsage.h"

namespace {

using korvane::demo::HeadUnit;
using korvane::demo::MainApplication;
using korvane::demo::RemoteControl;
using korvane::demo::ScratchDevice;
using korvane::demo::Tour;

/// What the program ends with.
enum ExitStatus { kSuccess = 0, kFailure = 1, kUsage = 2, kNoDisplay = 3 };

constexpr wchar_t kTitle[] = L"KorvaneEx head unit";

struct Options {
    std::string display = korvane::DefaultDisplay();
    korvane::tools::ScreenSize size;
    std::string deviceRoot;
    std::string usbFolder;
    std::string tourFolder;
    std::string screenshot;
};

void Complain(const std::string& text) {
    std::fprintf(stderr, "headunit: %s\n", text.c_str());
}

/// Fills in the options; the exit status when there is nothing more to do.
std::optional<int> ReadOptions(int argc, char** argv, Options& options) {
    CLI::App app("A head unit, on a window of the desktop, on a device's display or off-screen.", "headunit");
    app.failure_message(korvane::tools::DescribeWrongUsage);
    auto* display = app.add_option("--display", options.display,
                                   std::string("Where it is shown: ") + korvane::DefaultDisplay() +
                                       " (a window) or memory (nowhere)")
                        ->capture_default_str();
    app.add_option_function<std::string>(
           "--size",
           [&options](const std::string& text) {
               const std::string wrong = korvane::tools::ParseScreenSize(text, options.size);
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
    app.add_option("--usb", options.usbFolder,
                   "Folder that is plugged in as the USB stick; unless given, the one in the device")
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

bool HasImages() {
    if (IsFileExist(korvane::ResourcePath(korvane::ResourceKind::Image, L"RadioBkg.lqi")))
        return true;
    Complain(korvane::DeviceRoot() +
             ": holds none of the head unit's images; name another with --device-root");
    return false;
}

/// Puts the head unit in the middle of the open screen.
void Create(HeadUnit& headUnit, const Options& options) {
    headUnit.Create((options.size.width - HeadUnit::kWidth) / 2,
                    (options.size.height - HeadUnit::kHeight) / 2);
}

int ComplainOfAnother() {
    Complain("a head unit is running on this device already");
    return kFailure;
}

int RunOnDisplay(const Options& options) {
    if (RemoteControl::IsTaken())
        return ComplainOfAnother();
    CLQScreen* screen = CLQScreen::GetInstance();
    if (!screen->Open(options.display.c_str(), options.size.width, options.size.height, kTitle)) {
        Complain("cannot open the display \"" + options.display + "\": " + korvane::DisplayFailure());
        return kNoDisplay;
    }
    {
        // First, so that another head unit that starts at this moment takes nothing in hand.
        RemoteControl remote;
        if (!remote.Open()) {
            screen->Close();
            return ComplainOfAnother();
        }
        // Unless it runs in a process of its own.
        MainApplication mainApplication(MainApplication::KeyBeep::Sounding);
        mainApplication.Start();
        HeadUnit headUnit;
        Create(headUnit, options);
        // Whoever started the program can wait for this line.
        std::puts("headunit: ready");
        std::fflush(stdout);
        WndDoModel();
    }
    screen->Close();
    return kSuccess;
}

/// Runs off-screen, on a device of its own, so that nothing else shows in the pictures.
int RunTour(const Options& options, Tour& tour) {
    ScratchDevice device;
    if (!device.Enter()) {
        Complain("cannot make a folder for temporary files");
        return kFailure;
    }
    tour.Start();
    CLQScreen* screen = CLQScreen::GetInstance();
    if (!screen->Open("memory", options.size.width, options.size.height, kTitle)) {
        Complain(std::string("cannot open the screen: ") + korvane::DisplayFailure());
        return kNoDisplay;
    }
    {
        MainApplication mainApplication(MainApplication::KeyBeep::Silent);
        mainApplication.Start();
        HeadUnit headUnit;
        Create(headUnit, options);
        WndDoModel();
    }
    screen->Close();
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
    if (!options.usbFolder.empty())
        korvane::PlugMedium(L"USB", options.usbFolder);
    InitMessage();
    if (!HasImages())
        return kFailure;

    if (!options.tourFolder.empty()) {
        if (!MakeFolder(options.tourFolder)) {
            Complain(options.tourFolder + ": cannot make this folder");
            return kFailure;
        }
        Tour tour = Tour::IntoFolder(korvane::demo::HeadUnitTour(), options.tourFolder);
        return RunTour(options, tour);
    }
    if (!options.screenshot.empty()) {
        Tour tour = Tour::IntoFile(options.screenshot);
        return RunTour(options, tour);
    }
    return RunOnDisplay(options);
}
