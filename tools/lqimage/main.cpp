#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <functional>

#include "tools/commandline/WrongUsage.h"
#include "tools/hostfile/FilePairs.h"
#include "tools/lqimage/Commands.h"
#include "tools/lqimage/PixelType.h"

namespace {

using korvane::tools::EncodeOptions;
using korvane::tools::FilePair;

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

struct Arguments {
    std::string from;
    std::string to;
    std::string type = "auto";
    bool isRaw = false;
    bool isVerbose = false;
    std::vector<std::string> files;
};

int Fail(const std::string& error) {
    std::fprintf(stderr, "lqimage: %s\n", error.c_str());
    return kFailed;
}

int ConvertAll(const Arguments& arguments, const char* fromExtension, const char* toExtension,
               const std::function<bool(const FilePair&, std::string&)>& convert) {
    std::vector<FilePair> pairs;
    std::string error;
    if (!korvane::tools::ListFilePairs(arguments.from, arguments.to, fromExtension, toExtension, pairs,
                                       error))
        return Fail(error);
    int result = 0;
    for (const FilePair& pair : pairs) {
        if (!convert(pair, error))
            result = Fail(error);
    }
    return result;
}

/// Prints what the image file is.
bool Describe(const std::filesystem::path& file, std::string& error) {
    std::string description;
    if (!korvane::tools::DescribeFile(file, description, error))
        return false;
    std::printf("%s\n", description.c_str());
    return true;
}

int Encode(const Arguments& arguments) {
    EncodeOptions options;
    options.type = korvane::tools::PixelTypeByName(arguments.type);
    options.encoding = arguments.isRaw ? korvane::LqiEncoding::Raw : korvane::LqiEncoding::Lz4;
    return ConvertAll(arguments, ".png", ".lqi", [&](const FilePair& pair, std::string& error) {
        return korvane::tools::EncodeFile(pair.from, pair.to, options, error) &&
               (!arguments.isVerbose || Describe(pair.to, error));
    });
}

int Decode(const Arguments& arguments) {
    return ConvertAll(arguments, ".lqi", ".png", [](const FilePair& pair, std::string& error) {
        return korvane::tools::DecodeFile(pair.from, pair.to, error);
    });
}

int Info(const Arguments& arguments) {
    int result = 0;
    for (const std::string& name : arguments.files) {
        std::vector<std::filesystem::path> files;
        std::string error;
        if (!korvane::tools::ListFiles(name, ".lqi", files, error))
            result = Fail(error);
        for (const std::filesystem::path& file : files) {
            if (!Describe(file, error))
                result = Fail(error);
        }
    }
    return result;
}

int Run(int argc, char** argv) {
    Arguments arguments;
    CLI::App app("Converts pictures between PNG and the head unit's .lqi format", "lqimage");
    app.require_subcommand(1);
    app.failure_message(korvane::tools::DescribeWrongUsage);

    CLI::App* const encode =
        app.add_subcommand("encode", "PNG to .lqi: a file, or all .png files of a folder");
    encode->add_option("png", arguments.from, "PNG file or folder")->required();
    encode->add_option("lqi", arguments.to, "File or folder to make")->required();
    std::vector<std::string> types = korvane::tools::PixelTypeNames();
    types.emplace_back("auto");
    encode
        ->add_option("--type", arguments.type,
                     "Pixel type; auto: xrgb8888 if every pixel is opaque, else argb8888")
        ->check(CLI::IsMember(types))
        ->capture_default_str();
    encode->add_flag("--raw", arguments.isRaw, "Do not compress");
    encode->add_flag("--verbose", arguments.isVerbose, "Say type and size of each image");

    CLI::App* const decode =
        app.add_subcommand("decode", ".lqi to PNG: a file, or all .lqi files of a folder");
    decode->add_option("lqi", arguments.from, ".lqi file or folder")->required();
    decode->add_option("png", arguments.to, "File or folder to make")->required();

    CLI::App* const info =
        app.add_subcommand("info", "Checks .lqi files, says what they hold and how large they are");
    info->add_option("file", arguments.files, ".lqi files or folders of them")->required();

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : kWrongUsage;
    }
    if (encode->parsed())
        return Encode(arguments);
    return decode->parsed() ? Decode(arguments) : Info(arguments);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& failure) {
        return Fail(failure.what());
    }
}
