#include "tests/tools/LayoutFolder.h"

#include "tests/support/Scene.h"
#include "tests/support/Share.h"
#include "tools/png/SurfacePicture.h"

namespace korvane::test {
namespace {

constexpr char kResource[] = "device/NandFlash/Application/Resource/";

}  // namespace

LayoutFolder::LayoutFolder() : ProgramFolder(LQLAYOUT_PROGRAM) {}

void LayoutFolder::SetUp() {
    ProgramFolder::SetUp();
    for (const std::string folder : {"Image", "Language"})
        std::filesystem::create_directories(At(kResource + folder));
    ShareFolder(KORVANE_TEST_FONT_DIR, At(kResource + std::string("Font")));
}

void LayoutFolder::WriteImage(const std::string& name, int width, int height, unsigned color) const {
    png::Picture picture;
    picture.width = width;
    picture.height = height;
    picture.pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                          0xFF000000U | color);
    CLQSurfHandle surface = png::ToSurface(picture);
    test::WriteImage(At(kResource + ("Image/" + name)), surface);
}

void LayoutFolder::WriteLanguage(const std::string& name, const std::string& texts) const {
    WriteText(kResource + ("Language/" + name), "[language]\nname = Test\n[text]\n" + texts);
}

std::string LayoutFolder::Check(const std::string& text, const std::string& options) {
    WriteText("a.ini", text);
    status_ = Run("check " + Quoted("a.ini") + " " + Device() + " " + options);
    const std::string before = "lqlayout: " + At("a.ini").string() + ":";
    std::string found;
    for (std::size_t at = 0; at < errors_.size();) {
        const std::size_t end = errors_.find('\n', at) + 1;
        if (end == 0)
            return errors_ + "(the last line is cut)";
        const std::string line = errors_.substr(at, end - at);
        found += line.compare(0, before.size(), before) == 0 ? line.substr(before.size()) : line;
        at = end;
    }
    return found;
}

}  // namespace korvane::test
