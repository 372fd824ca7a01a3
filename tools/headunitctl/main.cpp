#include <cstdio>
#include <exception>

#include "platform/Simulation.h"

#include "tools/commandline/WrongUsage.h"
#include "tools/headunitctl/RecordCommands.h"
#include "tools/headunitctl/ScreenCommands.h"
#include "tools/headunitctl/ThumbnailCommands.h"

namespace {

using korvane::tools::Outcome;
using korvane::tools::ScreenPoint;
using korvane::tools::TouchPhase;

constexpr int kLongestSwipeMs = 60000;

struct Arguments {
    std::string deviceRoot;
    std::vector<std::string> fields;
    std::string field;
    std::string value;
    std::string file;
    ScreenPoint from;
    ScreenPoint to;
    int ms = 200;
};

int Report(const Outcome& outcome) {
    if (outcome.status != Outcome::kSuccess)
        std::fprintf(stderr, "headunitctl: %s\n", outcome.error.c_str());
    return outcome.status;
}

void AddPoint(CLI::App& command, const char* x, const char* y, ScreenPoint& point) {
    command.add_option(x, point.x, "Pixels from the screen's left edge")->required();
    command.add_option(y, point.y, "Pixels from its upper edge")->required();
}

int Run(int argc, char** argv) {
    Arguments arguments;
    Outcome outcome;
    CLI::App app("Reads and changes the state of a head unit, touches its screen and takes pictures of it",
                 "headunitctl");
    app.require_subcommand(1);
    app.failure_message(korvane::tools::DescribeWrongUsage);
    app.add_option("--device-root", arguments.deviceRoot,
                   "Folder that holds the device's files; unless given, that of the environment variable "
                   "KORVANE_DEVICE_ROOT, else the one that the build filled")
        ->check(CLI::ExistingDirectory);

    CLI::App* const get = app.add_subcommand("get", "Prints fields of the system record, all unless told");
    get->add_option("field", arguments.fields, "Names of fields");

    CLI::App* const set = app.add_subcommand("set", "Sets a field of the system record");
    set->add_option("field", arguments.field, "Name of the field")->required();
    set->add_option("value", arguments.value, "Its value, 0 to 255")->required();

    CLI::App* const thumbnail =
        app.add_subcommand("thumbnail", "The small picture that the device's processes share");
    thumbnail->require_subcommand(1);
    CLI::App* const put = thumbnail->add_subcommand("put", "Stores a PNG file, scaled to 240 by 144");
    put->add_option("png", arguments.file, "PNG file to read")->required();
    CLI::App* const fetch = thumbnail->add_subcommand("get", "Writes the picture to a PNG file");
    fetch->add_option("png", arguments.file, "PNG file to write")->required();

    CLI::App* const press = app.add_subcommand("press", "Puts the finger on the screen");
    CLI::App* const move = app.add_subcommand("move", "Moves the finger");
    CLI::App* const release = app.add_subcommand("release", "Takes the finger off the screen");
    for (CLI::App* const command : {press, move, release})
        AddPoint(*command, "x", "y", arguments.from);

    CLI::App* const swipe = app.add_subcommand("swipe", "Swipes over the screen from one point to another");
    AddPoint(*swipe, "x1", "y1", arguments.from);
    AddPoint(*swipe, "x2", "y2", arguments.to);
    swipe->add_option("--ms", arguments.ms, "How long it takes, in milliseconds")
        ->check(CLI::Range(0, kLongestSwipeMs))
        ->capture_default_str();

    CLI::App* const screenshot =
        app.add_subcommand("screenshot", "Writes what the screen shows to a PNG file");
    screenshot->add_option("png", arguments.file, "PNG file to write")->required();

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? Outcome::kSuccess : Outcome::kWrongUsage;
    }
    if (!arguments.deviceRoot.empty())
        korvane::SetDeviceRoot(arguments.deviceRoot);
    if (get->parsed())
        return Report(korvane::tools::PrintFields(arguments.fields));
    if (set->parsed())
        return Report(korvane::tools::SetField(arguments.field, arguments.value));
    if (put->parsed())
        return Report(korvane::tools::PutThumbnail(arguments.file));
    if (fetch->parsed())
        return Report(korvane::tools::GetThumbnail(arguments.file));
    if (press->parsed())
        return Report(korvane::tools::Touch(TouchPhase::Press, arguments.from));
    if (move->parsed())
        return Report(korvane::tools::Touch(TouchPhase::Move, arguments.from));
    if (release->parsed())
        return Report(korvane::tools::Touch(TouchPhase::Release, arguments.from));
    if (swipe->parsed())
        return Report(korvane::tools::Swipe(arguments.from, arguments.to, arguments.ms));
    return Report(korvane::tools::TakeScreenshot(arguments.file));
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& failure) {
        return Report(Outcome::Failure(failure.what()));
    }
}
