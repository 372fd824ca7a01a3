#include <cstdio>
#include <string>

#include "KorvaneEx.h"
#include "platform/Simulation.h"

#include "demo/mainapp/MainApplication.h"
#include "tools/commandline/WrongUsage.h"

namespace {

enum ExitStatus { kSuccess = 0, kFailure = 1, kUsage = 2 };

}  // namespace

int main(int argc, char** argv) {
    CLI::App app("The head unit's main application in a process of its own. Start it before the head unit.",
                 "mainapp");
    app.failure_message(korvane::tools::DescribeWrongUsage);
    std::string deviceRoot;
    app.add_option("--device-root", deviceRoot,
                   "Folder that holds the device's files; unless given, that of the environment variable "
                   "KORVANE_DEVICE_ROOT, else the one that the build filled")
        ->check(CLI::ExistingDirectory);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kSuccess : kUsage;
    }
    if (!deviceRoot.empty())
        korvane::SetDeviceRoot(deviceRoot);

    InitMessage();
    korvane::demo::MainApplication mainApplication(korvane::demo::MainApplication::KeyBeep::Sounding);
    if (!mainApplication.Start()) {
        std::fputs("mainapp: a main application is running on this device already\n", stderr);
        return kFailure;
    }
    // Whoever started the program can wait for this line.
    std::puts("mainapp: ready");
    std::fflush(stdout);
    WndDoModel();
    return kSuccess;
}
