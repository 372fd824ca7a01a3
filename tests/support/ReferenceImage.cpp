#include "tests/support/ReferenceImage.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "tests/support/Scene.h"
#include "tools/png/Png.h"

namespace korvane::test {

namespace fs = std::filesystem;

namespace {

png::Picture PictureOf(CLQSurfHandle surface) {
    png::Picture picture;
    picture.width = surface.GetWidth();
    picture.height = surface.GetHeight();
    picture.pixels = PixelsOf(surface);
    return picture;
}

struct Difference {
    std::size_t count = 0;
    int firstX = 0;
    int firstY = 0;
    png::Picture picture;
};

Difference Compare(const png::Picture& actual, const png::Picture& expected) {
    Difference difference;
    difference.picture = actual;
    for (std::size_t i = 0; i < actual.pixels.size(); ++i) {
        const bool same = actual.pixels[i] == expected.pixels[i];
        difference.picture.pixels[i] = same ? 0xFF000000U : 0xFFFF0000U;
        if (same)
            continue;
        if (difference.count++ == 0) {
            difference.firstX = static_cast<int>(i) % actual.width;
            difference.firstY = static_cast<int>(i) / actual.width;
        }
    }
    return difference;
}

}  // namespace

::testing::AssertionResult MatchesReference(CLQSurfHandle surface, const std::string& name) {
    const fs::path reference = fs::path(KORVANE_TEST_REFERENCE_DIR) / (name + ".png");
    const png::Picture actual = PictureOf(surface);
    png::Picture expected;
    std::string failure;
    const bool read = png::ReadPng(reference.string(), expected, failure);

    if (std::getenv("KORVANE_ACCEPT_REFERENCES")) {
        if (read && expected.width == actual.width && expected.height == actual.height &&
            expected.pixels == actual.pixels)
            return ::testing::AssertionSuccess();
        if (!png::WritePng(reference.string(), actual, failure))
            return ::testing::AssertionFailure() << failure;
        return ::testing::AssertionSuccess();
    }

    const fs::path folder = KORVANE_TEST_FAILURE_DIR;
    const auto keep = [&folder, &name](const char* kind, const png::Picture& picture) {
        std::error_code ignored;
        fs::create_directories(folder, ignored);
        std::string unwritten;
        png::WritePng((folder / (name + "." + kind + ".png")).string(), picture, unwritten);
    };
    if (!read) {
        keep("actual", actual);
        return ::testing::AssertionFailure() << "no reference picture: " << failure;
    }
    if (expected.width != actual.width || expected.height != actual.height) {
        keep("actual", actual);
        keep("expected", expected);
        return ::testing::AssertionFailure()
               << "the picture is " << actual.width << " by " << actual.height << ", the reference "
               << expected.width << " by " << expected.height;
    }
    const Difference difference = Compare(actual, expected);
    if (difference.count == 0)
        return ::testing::AssertionSuccess();
    keep("actual", actual);
    keep("expected", expected);
    keep("difference", difference.picture);
    return ::testing::AssertionFailure()
           << difference.count << " pixels differ, the first at (" << difference.firstX << ", "
           << difference.firstY << "); see " << folder.string() << "/" << name << ".*.png";
}

}  // namespace korvane::test
