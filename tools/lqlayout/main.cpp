#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <functional>

#include "platform/Simulation.h"

#include "tools/commandline/WrongUsage.h"
#include "tools/lqlayout/Commands.h"

namespace {

using korvane::tools::CheckOptions;
using korvane::tools::FilePair;
using korvane::tools::RenderOptions;
using korvane::tools::ScreenSize;
using Messages = std::vector<std::string>;

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

struct Arguments {
    std::string from;
    std::string to;
    std::vector<std::string> files;
    std::string deviceRoot;
    ScreenSize screen;
    CheckOptions check;
    RenderOptions render;
};

int Fail(const std::string& error) {
    std::fprintf(stderr, "lqlayout: %s\n", error.c_str());
    return kFailed;
}

void Print(const Messages& messages) {
    for (const std::string& message : messages)
        std::fprintf(stderr, "lqlayout: %s\n", message.c_str());
}

int Compile(const Arguments& arguments) {
    std::vector<FilePair> pairs;
    std::string error;
    if (!korvane::tools::ListFilePairs(arguments.from, arguments.to, ".ini", ".bin", pairs, error))
        return Fail(error);
    int result = 0;
    for (const FilePair& pair : pairs) {
        Messages messages;
        if (!korvane::tools::CompileFile(pair, messages))
            result = kFailed;
        Print(messages);
    }
    return result;
}

int Dump(const Arguments& arguments) {
    std::string text;
    Messages messages;
    const bool isDumped = arguments.to.empty()
                              ? korvane::tools::DumpFile(arguments.from, text, messages)
                              : korvane::tools::DumpFile({arguments.from, arguments.to}, messages);
    Print(messages);
    const bool isPrinted = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (std::fflush(stdout) != 0 || !isPrinted)
        return Fail("the text cannot be written");
    return isDumped ? 0 : kFailed;
}

int Check(const Arguments& arguments) {
    CheckOptions options = arguments.check;
    options.screen = arguments.screen;
    int result = 0;
    for (const std::string& file : arguments.files) {
        Messages messages;
        if (!korvane::tools::CheckFile(file, options, messages))
            result = kFailed;
        Print(messages);
    }
    return result;
}

int Render(const Arguments& arguments) {
    RenderOptions options = arguments.render;
    options.screen = arguments.screen;
    Messages messages;
    const bool isRendered = korvane::tools::RenderFile({arguments.from, arguments.to}, options, messages);
    Print(messages);
    return isRendered ? 0 : kFailed;
}

void AddDeviceOptions(CLI::App* command, Arguments& arguments) {
    command
        ->add_option_function<std::string>(
            "--size",
            [&arguments](const std::string& text) {
                const std::string wrong = korvane::tools::ParseScreenSize(text, arguments.screen);
                if (!wrong.empty())
                    throw CLI::ValidationError("--size", "'" + text + "' " + wrong);
            },
            "The screen's size in pixels")
        ->default_str("800x480")
        ->type_name("WxH");
    command
        ->add_option("--device-root", arguments.deviceRoot,
                     "Folder that holds the device's files; unless given, that of the environment variable "
                     "KORVANE_DEVICE_ROOT, else the one that the build filled")
        ->check(CLI::ExistingDirectory);
}

CLI::App* AddCompile(CLI::App& app, Arguments& arguments) {
    CLI::App* const compile =
        app.add_subcommand("compile", "Text to .bin: a file, or all .ini files of a folder");
    compile->add_option("ini", arguments.from, "Text layout or folder")->required();
    compile->add_option("bin", arguments.to, "File or folder to make")->required();
    return compile;
}

CLI::App* AddDump(CLI::App& app, Arguments& arguments) {
    CLI::App* const dump = app.add_subcommand("dump", ".bin to text, which compiles to the same file");
    dump->add_option("bin", arguments.from, "Compiled layout")->required();
    dump->add_option("ini", arguments.to, "File to make; unless given, the text is printed");
    return dump;
}

CLI::App* AddCheck(CLI::App& app, Arguments& arguments) {
    CLI::App* const check = app.add_subcommand("check", "Says what is wrong with layouts of either form");
    check->add_option("file", arguments.files, "Layouts")->required();
    AddDeviceOptions(check, arguments);
    check->add_option("--language", arguments.check.languages,
                      "Table in the device's language folder whose texts must fit; may be given again");
    check->add_flag("--strict", arguments.check.isStrict, "Fail on warnings, too");
    check->add_flag_callback(
        "--no-images", [&arguments] { arguments.check.checksImages = false; }, "Do not look for images");
    return check;
}

CLI::App* AddRender(CLI::App& app, Arguments& arguments) {
    CLI::App* const render = app.add_subcommand("render", "Paints a layout of either form into a PNG file");
    render->add_option("file", arguments.from, "Layout")->required();
    render->add_option("png", arguments.to, "Picture to make")->required();
    AddDeviceOptions(render, arguments);
    render->add_option("--language", arguments.render.language, "Table in the device's language folder");
    render->add_option("--show", arguments.render.shown, "Names of controls to show");
    render->add_option("--hide", arguments.render.hidden, "Names of controls to hide");
    render->add_option("--press", arguments.render.pressed, "Names of controls to hold a touch on");
    render->add_option("--disable", arguments.render.disabled, "Names of controls to disable");
    return render;
}

int Run(int argc, char** argv) {
    Arguments arguments;
    CLI::App app("Compiles, checks and paints layouts of the head unit's controls", "lqlayout");
    app.require_subcommand(1);
    app.failure_message(korvane::tools::DescribeWrongUsage);
    const std::vector<std::pair<CLI::App*, int (*)(const Arguments&)>> commands = {
        {AddCompile(app, arguments), Compile},
        {AddDump(app, arguments), Dump},
        {AddCheck(app, arguments), Check},
        {AddRender(app, arguments), Render},
    };
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : kWrongUsage;
    }
    if (!arguments.deviceRoot.empty())
        korvane::SetDeviceRoot(arguments.deviceRoot);
    for (const auto& [command, run] : commands) {
        if (command->parsed())
            return run(arguments);
    }
    return kWrongUsage;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& failure) {
        return Fail(failure.what());
    }
}
