#include "tests/support/ReferenceImage.h"
#include "tests/tools/LayoutFolder.h"
#include "tools/png/Png.h"
#include "tools/png/SurfacePicture.h"

namespace korvane::test {
namespace {

constexpr char kSmall[] =
    "[Layout]\nkind = group\nname = Screen\nchildren = a\n[a]\nkind = static\nname = a\n";

/// A screen with a control of each kind.
constexpr char kScreen[] = R"(
; a screen
[Layout]
kind = group
x = 10
y = 20
width = 220
height = 120
fillbackground = 1
backgroundcolor = 20,40,80
children = Title, Picture, Level, Panel

[Title]
kind = static
name = Title
width = 220
height = 24
style = 18
langid = 7
fontheight = 16
fontwidth = 16

[Picture]
kind = image
name = Picture
x = 8
y = 30
width = 20
height = 20
image = red.lqi

[Level]
kind = slider
name = Level
x = 40
y = 30
width = 170
height = 20
background = track.lqi
thumb = red.lqi
value = 50

[Panel]
kind = group
name = Panel
y = 60
width = 220
height = 60
children = Ok, Cancel, Secret

[Ok]
kind = button
name = Ok
x = 10
width = 90
height = 50
element0.normal = blue.lqi
element0.pressed = green.lqi
element1.type = text
element1.langid = 8
element1.colordisabled = 255,0,0

[Cancel]
kind = button
name = Cancel
x = 120
width = 90
height = 50
element0.normal = blue.lqi
element0.pressed = green.lqi
element1.type = text
element1.text = 100%25 off

[Secret]
kind = image
name = Secret
x = 102
width = 16
height = 16
shown = 0
image = red.lqi
)";

class Lqlayout : public LayoutFolder {
  protected:
    void SetUp() override {
        LayoutFolder::SetUp();
        LayoutFolder::WriteImage("red.lqi", 20, 20, 0xE04040);
        LayoutFolder::WriteImage("blue.lqi", 90, 50, 0x4060C0);
        LayoutFolder::WriteImage("green.lqi", 90, 50, 0x40A060);
        LayoutFolder::WriteImage("track.lqi", 170, 4, 0x8090A0);
        WriteLanguage("German.lng", "7 = Lautst\xC3\xA4rke\n8 = Weiter\n");
        WriteText("screen.ini", kScreen);
    }

    int Render(const std::string& options) {
        return Run("render " + Quoted("screen.ini") + " " + Quoted("a.png") + " --size 240x160 " + Device() +
                   " " + options);
    }
    png::Picture Picture(const std::string& name) const {
        png::Picture picture;
        std::string error;
        EXPECT_TRUE(png::ReadPng(At(name), picture, error)) << error;
        return picture;
    }
};

TEST_F(Lqlayout, BringsTheCompiledLayoutBackByteForByte) {
    ASSERT_EQ(Run("compile " + Quoted("screen.ini") + " " + Quoted("a.bin")), 0) << errors_;
    ASSERT_EQ(Run("dump " + Quoted("a.bin") + " " + Quoted("b.ini")), 0) << errors_;
    EXPECT_EQ(errors_, "");
    ASSERT_EQ(Run("compile " + Quoted("b.ini") + " " + Quoted("b.bin")), 0) << errors_;
    EXPECT_EQ(errors_, "");
    EXPECT_EQ(Read("b.bin"), Read("a.bin"));
    ASSERT_EQ(Run("dump " + Quoted("a.bin")), 0);
    EXPECT_EQ(output_, Text("b.ini"));
    EXPECT_EQ(output_.substr(0, 30), "[Layout]\nkind = group\nname = \n");
    EXPECT_NE(output_.find("\nelement1.text = 100% off\n"), std::string::npos) << output_;
}

TEST_F(Lqlayout, CompilesWholeTrees) {
    std::filesystem::create_directories(At("in/day"));
    WriteText("in/one.ini", kSmall);
    WriteText("in/day/Two.INI", kSmall);
    WriteText("in/bad.ini", "[Layout]\nkind = group\ncolour = 1\n");
    WriteText("in/notes.txt", "x");
    EXPECT_EQ(Run("compile " + Quoted("in") + " " + Quoted("out")), 1);
    EXPECT_EQ(errors_,
              "lqlayout: " + (At("in") / "bad.ini").string() + ":3: colour is no property of this group\n");
    std::filesystem::remove_all(At("device"));
    EXPECT_EQ(Files(), (std::vector<std::string>{"in/bad.ini", "in/day/Two.INI", "in/notes.txt", "in/one.ini",
                                                 "out/day/Two.bin", "out/one.bin", "screen.ini"}));
    EXPECT_EQ(Read("out/one.bin"), Read("out/day/Two.bin"));
}

TEST_F(Lqlayout, ReadsEveryEncodingOfATextAlike) {
    WriteText("utf8.ini", kSmall);
    std::string wide = "\xFF\xFE";
    for (const char* c = kSmall; *c; ++c)
        wide += {*c, '\0'};
    WriteText("utf16.ini", wide);
    ASSERT_EQ(Run("compile " + Quoted("utf8.ini") + " " + Quoted("8.bin")), 0) << errors_;
    ASSERT_EQ(Run("compile " + Quoted("utf16.ini") + " " + Quoted("16.bin")), 0) << errors_;
    EXPECT_EQ(Read("16.bin"), Read("8.bin"));
}

TEST_F(Lqlayout, LeavesTheOldFileWhenItFails) {
    WriteText("bad.ini", "[Layout]\nkind = group\nwidth = wide\n");
    for (const std::string name : {"old.bin", "old.ini", "old.png"})
        WriteText(name, "old");
    EXPECT_EQ(Run("compile " + Quoted("bad.ini") + " " + Quoted("old.bin")), 1);
    EXPECT_EQ(Run("dump " + Quoted("bad.ini") + " " + Quoted("old.ini")), 1);
    EXPECT_EQ(errors_, "lqlayout: " + At("bad.ini").string() + ": is not a compiled layout\n");
    EXPECT_EQ(Run("render " + Quoted("missing.ini") + " " + Quoted("old.png")), 1);
    EXPECT_EQ(errors_.find("lqlayout: " + At("missing.ini").string() + ": "), 0U) << errors_;
    for (const std::string name : {"old.bin", "old.ini", "old.png"})
        EXPECT_EQ(Text(name), "old");
    EXPECT_EQ(Run("compile " + Quoted("screen.ini") + " " + Quoted("no such folder/a.bin")), 1);
    EXPECT_EQ(Run("compile " + Quoted("screen.ini") + " " + Quoted("device")), 1);
    EXPECT_EQ(Run("compile " + Quoted("device") + " " + Quoted("other")), 1);
    EXPECT_EQ(errors_, "lqlayout: " + At("device").string() + ": holds no .ini files\n");
}

TEST_F(Lqlayout, RefusesToWriteOntoTheFileThatItReads) {
    ASSERT_EQ(Run("compile " + Quoted("screen.ini") + " " + Quoted("a.bin")), 0) << errors_;
    // Not everybody may make one everywhere.
    std::error_code noSymlink;
    std::filesystem::create_symlink(At("screen.ini"), At("soft.bin"), noSymlink);
    if (noSymlink)
        std::filesystem::create_hard_link(At("screen.ini"), At("soft.bin"));
    for (const std::string command : {"compile", "render"}) {
        for (const std::string name : {"screen.ini", "./screen.ini", "soft.bin"}) {
            EXPECT_EQ(Run(command + " " + Quoted("screen.ini") + " " + Quoted(name)), 1) << name;
            EXPECT_EQ(errors_, "lqlayout: " + At(name).string() +
                                   ": is the file that is read; name another to write\n");
        }
    }
    EXPECT_EQ(Run("dump " + Quoted("a.bin") + " " + Quoted("a.bin")), 1);
    EXPECT_EQ(Text("screen.ini"), kScreen);
}

TEST_F(Lqlayout, RefusesALayoutThatIsCompiledAlready) {
    ASSERT_EQ(Run("compile " + Quoted("screen.ini") + " " + Quoted("a.bin")), 0) << errors_;
    EXPECT_EQ(Run("compile " + Quoted("a.bin") + " " + Quoted("b.bin")), 1);
    EXPECT_EQ(errors_, "lqlayout: " + At("a.bin").string() + ": is compiled already\n");
}

TEST_F(Lqlayout, RefusesEveryDamagedCompiledLayout) {
    WriteText("a.ini", kSmall);
    ASSERT_EQ(Run("compile " + Quoted("a.ini") + " " + Quoted("a.bin")), 0) << errors_;
    const std::vector<std::uint8_t> whole = Read("a.bin");
    for (std::size_t at = 0; at < whole.size(); at += 13) {
        Write("cut.bin", {whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(at)});
        std::vector<std::uint8_t> changed = whole;
        changed[at] ^= 0x41;
        Write("changed.bin", changed);
        EXPECT_EQ(Run("check " + Quoted("cut.bin") + " " + Quoted("changed.bin") + " " + Device()), 1) << at;
        EXPECT_EQ(errors_,
                  "lqlayout: " + At("cut.bin").string() + ": is not a compiled layout, or damaged\n" +
                      "lqlayout: " + At("changed.bin").string() + ": is not a compiled layout, or damaged\n");
    }
    EXPECT_EQ(Run("dump " + Quoted("cut.bin")), 1);
    EXPECT_EQ(Run("render " + Quoted("cut.bin") + " " + Quoted("a.png")), 1);
    EXPECT_EQ(output_, "");
}

TEST_F(Lqlayout, PaintsTheScreenAsTheHeadUnitDoes) {
    ASSERT_EQ(Render("--language German.lng"), 0) << errors_;
    EXPECT_TRUE(MatchesReference(png::ToSurface(Picture("a.png")), "layout-screen"));
    ASSERT_EQ(Run("compile " + Quoted("screen.ini") + " " + Quoted("a.bin")), 0) << errors_;
    ASSERT_EQ(Run("render " + Quoted("a.bin") + " " + Quoted("b.png") + " --size 240x160 " + Device() +
                  " --language German.lng"),
              0)
        << errors_;
    EXPECT_EQ(Picture("b.png").pixels, Picture("a.png").pixels);
}

TEST_F(Lqlayout, PaintsControlsInOtherStates) {
    ASSERT_EQ(Render("--language German.lng --show Secret --hide Picture Title --press Cancel --disable Ok"),
              0)
        << errors_;
    EXPECT_TRUE(MatchesReference(png::ToSurface(Picture("a.png")), "layout-screen-states"));
}

TEST_F(Lqlayout, SaysWhatItCannotPaint) {
    EXPECT_EQ(Render("--show Nobody"), 1);
    EXPECT_EQ(errors_, "lqlayout: " + At("screen.ini").string() + ": no control has the name \"Nobody\"\n");
    EXPECT_EQ(Render("--language Klingon.lng"), 1);
    EXPECT_EQ(errors_, "lqlayout: " + At("screen.ini").string() +
                           ": the language table Klingon.lng is missing or damaged\n");
    EXPECT_FALSE(std::filesystem::exists(At("a.png")));
    EXPECT_EQ(Run("render " + Quoted("screen.ini") + " " + Quoted("no such folder/a.png")), 1);
    EXPECT_EQ(errors_.find("lqlayout: " + At("screen.ini").string() + ": " +
                           At("no such folder/a.png").string() + ": "),
              0U)
        << errors_;
}

TEST_F(Lqlayout, AnswersWrongUsageWithStatusTwo) {
    EXPECT_EQ(Run(""), 2);
    EXPECT_EQ(Run("compile a.ini"), 2);
    EXPECT_EQ(Run("check"), 2);
    EXPECT_EQ(errors_.find("lqlayout: "), 0U) << errors_;
    EXPECT_EQ(Run("render a.ini b.png --size 0x5"), 2);
    EXPECT_NE(errors_.find("'0x5' is not a size such as 800x480"), std::string::npos) << errors_;
    EXPECT_EQ(Run("render a.ini b.png --size 9000x9000"), 2);
    EXPECT_EQ(Run("check a.ini --device-root " + Quoted("nowhere")), 2);
    EXPECT_EQ(Run("paint a b"), 2);
    EXPECT_EQ(errors_, "lqlayout: 'paint' is unknown; the commands are compile, dump, check and render\n");
    EXPECT_EQ(Run("--help"), 0);
    EXPECT_NE(output_.find("render"), std::string::npos);
}

}  // namespace
}  // namespace korvane::test
