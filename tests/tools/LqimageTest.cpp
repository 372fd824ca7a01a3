#include <random>

#include "tests/tools/ProgramFolder.h"
#include "tools/png/Png.h"

namespace korvane::test {
namespace {

constexpr std::size_t kTypeAt = 5;
constexpr std::size_t kEncodingAt = 6;

class Lqimage : public ProgramFolder {
  protected:
    Lqimage() : ProgramFolder(LQIMAGE_PROGRAM) {}

    void WritePicture(const std::string& name, std::uint32_t leastAlpha, int width = 24,
                      int height = 9) const {
        std::mt19937 random(1);
        png::Picture picture;
        picture.width = width;
        picture.height = height;
        for (int i = 0; i < width * height; ++i) {
            const std::uint32_t alpha = leastAlpha + random() % (256U - leastAlpha);
            picture.pixels.push_back(alpha << 24 | random() % (alpha + 1U) << 16 | random() % (alpha + 1U));
        }
        std::string error;
        ASSERT_TRUE(png::WritePng(At(name), picture, error)) << error;
    }

    std::vector<std::uint32_t> ReadPixels(const std::string& name) const {
        png::Picture picture;
        std::string error;
        EXPECT_TRUE(png::ReadPng(At(name), picture, error)) << error;
        return picture.pixels;
    }
};

TEST_F(Lqimage, BringsBackThePicture) {
    WritePicture("soft.png", 0);
    WritePicture("opaque.png", 255);
    for (const std::string name : {"soft", "opaque"}) {
        for (const std::string option : {"", " --raw"}) {
            ASSERT_EQ(Run("encode " + Quoted(name + ".png") + " " + Quoted("a.lqi") + option), 0) << errors_;
            ASSERT_EQ(Run("decode " + Quoted("a.lqi") + " " + Quoted("a.png")), 0) << errors_;
            EXPECT_EQ(ReadPixels("a.png"), ReadPixels(name + ".png"));
        }
    }
}

TEST_F(Lqimage, BringsBackTheImageFileOfEveryType) {
    WritePicture("soft.png", 0);
    for (const std::string type : {"argb8888", "xrgb8888", "rgb565", "argb4444"}) {
        ASSERT_EQ(Run("encode " + Quoted("soft.png") + " " + Quoted("a.lqi") + " --type " + type), 0)
            << errors_;
        ASSERT_EQ(Run("decode " + Quoted("a.lqi") + " " + Quoted("a.png")), 0) << errors_;
        ASSERT_EQ(Run("encode " + Quoted("a.png") + " " + Quoted("b.lqi") + " --type " + type), 0) << errors_;
        EXPECT_EQ(Read("b.lqi"), Read("a.lqi")) << type;
    }
}

TEST_F(Lqimage, KeepsAlphaOnlyWhereThereIsSome) {
    WritePicture("soft.png", 0);
    WritePicture("opaque.png", 255);
    ASSERT_EQ(Run("encode " + Quoted("soft.png") + " " + Quoted("soft.lqi")), 0);
    ASSERT_EQ(Run("encode " + Quoted("opaque.png") + " " + Quoted("opaque.lqi") + " --type auto"), 0);
    EXPECT_EQ(Read("soft.lqi").at(kTypeAt), 3);
    EXPECT_EQ(Read("opaque.lqi").at(kTypeAt), 2);
}

TEST_F(Lqimage, CompressesUnlessTheFileIsToBeRawOrWouldGrow) {
    png::Picture plain;
    plain.width = 100;
    plain.height = 50;
    plain.pixels.assign(5000, 0xFF102030U);
    std::string error;
    ASSERT_TRUE(png::WritePng(At("plain.png"), plain, error));
    ASSERT_EQ(Run("encode " + Quoted("plain.png") + " " + Quoted("packed.lqi")), 0);
    ASSERT_EQ(Run("encode " + Quoted("plain.png") + " " + Quoted("raw.lqi") + " --raw"), 0);
    EXPECT_EQ(Read("packed.lqi").at(kEncodingAt), 1);
    EXPECT_LT(Read("packed.lqi").size(), 1000U);
    EXPECT_EQ(Read("raw.lqi").at(kEncodingAt), 0);
    EXPECT_EQ(Read("raw.lqi").size(), 32U + 5000U * 4U);
    WritePicture("dot.png", 255, 1, 1);
    ASSERT_EQ(Run("encode " + Quoted("dot.png") + " " + Quoted("dot.lqi")), 0);
    EXPECT_EQ(Read("dot.lqi").at(kEncodingAt), 0);
    EXPECT_EQ(Read("dot.lqi").size(), 36U);
}

TEST_F(Lqimage, ConvertsWholeTrees) {
    std::filesystem::create_directories(At("in/day/icons"));
    WritePicture("in/Face.png", 0);
    WritePicture("in/day/icons/Phone.PNG", 255);
    Write("in/day/notes.txt", {'x'});
    ASSERT_EQ(Run("encode " + Quoted("in") + " " + Quoted("out")), 0) << errors_;
    ASSERT_EQ(Run("decode " + Quoted("out") + " " + Quoted("back")), 0) << errors_;
    EXPECT_EQ(ReadPixels("back/Face.png"), ReadPixels("in/Face.png"));
    EXPECT_EQ(ReadPixels("back/day/icons/Phone.png"), ReadPixels("in/day/icons/Phone.PNG"));
    EXPECT_EQ(Files(), (std::vector<std::string>{"back/Face.png", "back/day/icons/Phone.png", "in/Face.png",
                                                 "in/day/icons/Phone.PNG", "in/day/notes.txt", "out/Face.lqi",
                                                 "out/day/icons/Phone.lqi"}));
}

TEST_F(Lqimage, ConvertsTheRestOfATreeWithADamagedFile) {
    std::filesystem::create_directories(At("in"));
    Write("in/bad.png", {'x'});
    WritePicture("in/good.png", 0);
    EXPECT_EQ(Run("encode " + Quoted("in") + " " + Quoted("out")), 1);
    EXPECT_EQ(errors_, "lqimage: " + (At("in") / "bad.png").string() + ": is not a PNG file\n");
    EXPECT_EQ(Files(), (std::vector<std::string>{"in/bad.png", "in/good.png", "out/good.lqi"}));
}

TEST_F(Lqimage, SaysWhatAnImageIs) {
    WritePicture("soft.png", 0, 7, 3);
    ASSERT_EQ(Run("encode " + Quoted("soft.png") + " " + Quoted("soft.lqi") + " --raw"), 0);
    ASSERT_EQ(Run("info " + Quoted("soft.lqi")), 0);
    EXPECT_EQ(output_, At("soft.lqi").string() + ": 7x3 argb8888 raw, 116 bytes\n");
    std::vector<std::uint8_t> damaged = Read("soft.lqi");
    damaged.back() ^= 1;
    Write("damaged.lqi", damaged);
    EXPECT_EQ(Run("info " + Quoted("damaged.lqi") + " " + Quoted("soft.lqi")), 1);
    EXPECT_EQ(errors_, "lqimage: " + At("damaged.lqi").string() + ": is damaged\n");
    EXPECT_NE(output_.find("7x3"), std::string::npos);
}

TEST_F(Lqimage, SaysTypesAndSizesOfAWholeTree) {
    std::filesystem::create_directories(At("in/night"));
    WritePicture("in/soft.png", 0, 7, 3);
    WritePicture("in/night/opaque.png", 255, 2, 2);
    const std::string soft = (At("out") / "soft.lqi").string() + ": 7x3 argb8888 raw, 116 bytes\n";
    const std::string opaque =
        (At("out") / "night" / "opaque.lqi").string() + ": 2x2 xrgb8888 raw, 48 bytes, opaque\n";
    ASSERT_EQ(Run("encode --raw --verbose " + Quoted("in") + " " + Quoted("out")), 0) << errors_;
    EXPECT_EQ(output_, opaque + soft);
    ASSERT_EQ(Run("info " + Quoted("out")), 0) << errors_;
    EXPECT_EQ(output_, opaque + soft);
    EXPECT_EQ(Run("info " + Quoted("in") + " " + Quoted("out")), 1);
    EXPECT_EQ(errors_, "lqimage: " + At("in").string() + ": holds no .lqi files\n");
    EXPECT_EQ(output_, opaque + soft);
}

TEST_F(Lqimage, LeavesTheOldFileWhenItFails) {
    Write("bad.png", {'x'});
    Write("old.lqi", {'o', 'l', 'd'});
    EXPECT_EQ(Run("encode " + Quoted("bad.png") + " " + Quoted("old.lqi")), 1);
    EXPECT_EQ(Run("encode " + Quoted("missing.png") + " " + Quoted("old.lqi")), 1);
    EXPECT_EQ(errors_.find("lqimage: " + At("missing.png").string() + ": "), 0U) << errors_;
    EXPECT_EQ(Text("old.lqi"), "old");
    WritePicture("good.png", 0);
    EXPECT_EQ(Run("encode " + Quoted("good.png") + " " + Quoted("no such folder/a.lqi")), 1);
    std::filesystem::create_directories(At("folder"));
    EXPECT_EQ(Run("encode " + Quoted("good.png") + " " + Quoted("folder")), 1);
    EXPECT_EQ(Run("encode " + Quoted("folder") + " " + Quoted("other")), 1);
    EXPECT_EQ(errors_, "lqimage: " + At("folder").string() + ": holds no .png files\n");
    EXPECT_EQ(Files(), (std::vector<std::string>{"bad.png", "good.png", "old.lqi"}));
}

TEST_F(Lqimage, RefusesToWriteOntoTheFileThatItReads) {
    WritePicture("a.png", 0);
    ASSERT_EQ(Run("encode " + Quoted("a.png") + " " + Quoted("a.lqi")), 0) << errors_;
    // Not everybody may make one everywhere.
    std::error_code noSymlink;
    std::filesystem::create_symlink(At("a.png"), At("soft.lqi"), noSymlink);
    if (noSymlink)
        std::filesystem::create_hard_link(At("a.png"), At("soft.lqi"));
    std::filesystem::create_hard_link(At("a.png"), At("hard.lqi"));
    const std::vector<std::uint8_t> png = Read("a.png");
    const std::vector<std::uint8_t> lqi = Read("a.lqi");
    for (const std::string name : {"a.png", "./a.png", "soft.lqi", "hard.lqi"}) {
        EXPECT_EQ(Run("encode " + Quoted("a.png") + " " + Quoted(name)), 1) << name;
        EXPECT_EQ(errors_,
                  "lqimage: " + At(name).string() + ": is the file that is read; name another to write\n");
    }
    EXPECT_EQ(Run("decode " + Quoted("a.lqi") + " " + Quoted("a.lqi")), 1);
    EXPECT_EQ(Run("encode " + Quoted("soft.lqi") + " " + Quoted("a.png")), 1);
    EXPECT_EQ(Read("a.png"), png);
    EXPECT_EQ(Read("a.lqi"), lqi);
    EXPECT_EQ(std::filesystem::is_symlink(At("soft.lqi")), !noSymlink);
}

TEST_F(Lqimage, AnswersWrongUsageWithStatusTwo) {
    EXPECT_EQ(Run(""), 2);
    EXPECT_EQ(Run("encode"), 2);
    EXPECT_EQ(Run("encode a.png b.lqi --type pink"), 2);
    EXPECT_EQ(Run("info"), 2);
    EXPECT_EQ(errors_.find("lqimage: "), 0U) << errors_;
    EXPECT_EQ(Run("paint a b"), 2);
    EXPECT_EQ(errors_, "lqimage: 'paint' is unknown; the commands are encode, decode and info\n");
    EXPECT_EQ(Run("--help"), 0);
    EXPECT_NE(output_.find("encode"), std::string::npos);
}

}  // namespace
}  // namespace korvane::test
