#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>

#include "tools/lqlayout/Commands.h"

namespace {

using korvane::tools::FilePair;

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

struct Arguments {
    std::string from;
    std::string to;
};

int Fail(const std::string& error) {
    std::fprintf(stderr, "lqlayout: %s\n", error.c_str());
    return kFailed;
}

int Compile(const Arguments& arguments) {
    std::vector<FilePair> pairs;
    std::string error;
    if (!korvane::tools::ListFilePairs(arguments.from, arguments.to, ".ini", ".bin", pairs, error))
        return Fail(error);
    int result = 0;
    for (const FilePair& pair : pairs) {
        if (!korvane::tools::CompileFile(pair, error))
            result = Fail(error);
    }
    return result;
}

int Run(int argc, char** argv) {
    Arguments arguments;
    CLI::App app("Compiles layouts of controls for the head unit", "lqlayout");
    app.require_subcommand(1);

    CLI::App* const compile =
        app.add_subcommand("compile", "Text to .bin: a file, or all .ini files of a folder");
    compile->add_option("ini", arguments.from, "Text layout or folder")->required();
    compile->add_option("bin", arguments.to, "File or folder to make")->required();

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : kWrongUsage;
    }
    return Compile(arguments);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& failure) {
        return Fail(failure.what());
    }
}
