#include "tests/tools/LayoutFolder.h"

namespace korvane::test {
namespace {

/// A screen of one control whose further entries start in line 9.
std::string With(const std::string& kind, const std::string& entries) {
    return "[Layout]\nkind = group\nchildren = a\n[a]\nkind = " + kind +
           "\nname = a\nwidth = 100\nheight = 40\n" + entries;
}

class LayoutCheck : public LayoutFolder {};

TEST_F(LayoutCheck, FindsNothingWrongWithAGoodLayout) {
    EXPECT_EQ(Check(With("button", "element1.type = text\nelement1.text = ok\n")), "");
    EXPECT_EQ(status_, 0);
    EXPECT_EQ(Check(With("slider", "value = 7\n"), "--strict"), "");
    EXPECT_EQ(status_, 0);
}

TEST_F(LayoutCheck, NamesTheLineThatMeansNothing) {
    EXPECT_EQ(Check("lonely = 1\n[Layout]\nkind = group\n\nwhat is this\n"),
              "1: stands above the first section\n"
              "5: is neither a section, an entry (key = value) nor a comment\n");
    EXPECT_EQ(status_, 1);
}

TEST_F(LayoutCheck, NamesWhatIsMissingInTheTreeOfControls) {
    EXPECT_EQ(Check(""), " there is no section [Layout]\n");
    EXPECT_EQ(status_, 1);
    EXPECT_EQ(Check("[Layout]\n"), "1: [Layout] does not say its kind\n");
    EXPECT_EQ(Check("[Layout]\nkind = button\n"), "2: the outermost control must be a group\n");
    EXPECT_EQ(Check("[Layout]\nkind = group\nchildren = a, b, c, d\n\n[b]\nx = 1\n[c]\nkind = btn\n"
                    "[d]\nkind = static\nchildren = a\n"),
              "3: there is no section [a]\n"
              "5: [b] does not say its kind\n"
              "8: \"btn\" is no kind of control\n"
              "11: only a group has children\n");
    EXPECT_EQ(status_, 1);
}

TEST_F(LayoutCheck, StopsAtTheBoundsOfTheFormat) {
    EXPECT_EQ(Check("[Layout]\nkind = group\nchildren = a\n[a]\nkind = group\nchildren = a\n"),
              "6: groups are nested more than 16 deep, or in a circle\n");
    std::string many = "[Layout]\nkind = group\n[a]\nkind = image\n[b]\nkind = group\nchildren = ";
    for (int i = 0; i < 5000; ++i)
        many += "a,";
    EXPECT_EQ(
        Check(many + "\n[Layout]\nchildren = b,b\n"),
        "7: there are more than 4096 controls\n8: warning: [Layout] goes on with the section of line 1\n");
    WriteText("large.ini", std::string((std::size_t{1} << 20) + 1, ';'));
    EXPECT_EQ(Run("check " + Quoted("large.ini")), 1);
    EXPECT_EQ(errors_, "lqlayout: " + At("large.ini").string() + ": is too large\n");
}

TEST_F(LayoutCheck, ShowsAHundredFindingsAndCountsTheRest) {
    std::string text = "[Layout]\nkind = group\n";
    for (int i = 0; i < 150; ++i)
        text += "junk\n";
    const std::string found = Check(text);
    EXPECT_NE(found.find("\n102: is neither"), std::string::npos);
    EXPECT_EQ(found.find("\n103: is neither"), std::string::npos);
    EXPECT_NE(found.find("\n and 50 more\n"), std::string::npos);
}

TEST_F(LayoutCheck, NamesKeysThatTheControlDoesNotHave) {
    EXPECT_EQ(Check(With("static", "colour = 1,2,3\nimage = a.lqi\n")),
              "9: colour is no property of this static\n10: image is no property of this static\n");
    EXPECT_EQ(Check(With("button", "element1.normal = a.lqi\nelement0.text = hi\n")),
              "9: element1.normal is no property of this button\n"
              "10: element0.text is no property of this button\n");
    EXPECT_EQ(status_, 1);
}

TEST_F(LayoutCheck, NamesValuesOfAnotherTypeAndOutOfRange) {
    EXPECT_EQ(Check(With("static",
                         "x = wide\nshown = 2\ncolor = red\nfontheight = 0x1000\nY = -0\nscrolltype = 7\n")),
              "9: x needs a number, not \"wide\"\n"
              "10: shown cannot be 2; it becomes 1\n"
              "11: color needs a colour such as 255,190,60, not \"red\"\n"
              "12: fontheight cannot be 4096; it becomes 512\n"
              "14: scrolltype cannot be 7; it becomes 2\n");
    EXPECT_EQ(Check(With("button", "element1.type = txt\nelements = 9\n")),
              "9: element1.type cannot be \"txt\"; it becomes \"image\"\n"
              "10: elements cannot be 9; it becomes 2\n");
    EXPECT_EQ(status_, 1);
}

TEST_F(LayoutCheck, WarnsOfWhatHasNoEffect) {
    EXPECT_EQ(Check(With("static", "langid = 3\ntext = lost\nTEXT = again\n[a]\n[b]\nkind = image\n")),
              "10: warning: text has no effect beside a langid\n"
              "11: warning: TEXT is given again; line 10 counts\n"
              "12: warning: [a] goes on with the section of line 4\n"
              "13: warning: [b] is in no group\n");
    EXPECT_EQ(status_, 0);
}

TEST_F(LayoutCheck, RefusesASectionThatIsAlsoTheNameOfAProperty) {
    EXPECT_EQ(Check("[Layout]\nkind = group\nchildren = Width\n[Width]\nkind = image\nname = w\nheight = 1\n"
                    "width = 1\n"),
              "4: [Width] is also the name of a property; name the section otherwise\n");
    EXPECT_EQ(status_, 1);
}

TEST_F(LayoutCheck, WantsEachNameOnceAndOneForWhatIsTouched) {
    EXPECT_EQ(Check("[Layout]\nkind=group\nname = a\nchildren = a,b,c,d,e\n"
                    "[a]\nkind=static\nwidth=1\nheight=1\nname = a\n"
                    "[b]\nkind=image\nwidth=1\nheight=1\nname = a\n"
                    "[c]\nkind=button\ny=5\nwidth=1\nheight=1\n"
                    "[d]\nkind=slider\ny=9\nwidth=1\nheight=1\n"
                    "[e]\nkind=static\nwidth=1\nheight=1\n"),
              "14: image \"a\" is not found: its name is also that of the static \"a\" in line 5\n"
              "15: warning: button without a name cannot be found by its application\n"
              "20: warning: slider without a name cannot be found by its application\n");
    EXPECT_EQ(status_, 1);
}

TEST_F(LayoutCheck, FindsImagesThatAreMissingDamagedOrTooLarge) {
    WriteImage("fits.lqi", 100, 40, 0);
    WriteImage("high.lqi", 100, 41, 0);
    WriteText("device/NandFlash/Application/Resource/Image/bad.lqi", "no image");
    EXPECT_EQ(Check(With("image", "image = fits.lqi\n")), "");
    EXPECT_EQ(Check(With("image", "image = gone.lqi\n")),
              "9: the image gone.lqi of the image \"a\" is missing\n");
    EXPECT_EQ(status_, 1);
    EXPECT_EQ(Check(With("image", "image = gone.lqi\n"), "--no-images"), "");
    EXPECT_EQ(Check(With("static", "background = bad.lqi\n")),
              "9: the image bad.lqi of the static \"a\" is damaged\n");
    EXPECT_EQ(Check(With("group", "background = high.lqi\n")),
              "9: warning: the image high.lqi of the group \"a\" is 100x41, its place only 100x40\n");
    EXPECT_EQ(status_, 0);
    EXPECT_EQ(Check(With("slider", "thumb = high.lqi\nfill = gone.lqi\n")),
              "10: the image gone.lqi of the slider \"a\" is missing\n");
    EXPECT_EQ(Check(With("button",
                         "element0.width = 50\nelement0.height = 40\nelement0.normal = fits.lqi\n"
                         "element0.focus = gone.lqi\n")),
              "11: warning: the image fits.lqi of the button \"a\" is 100x40, its place only 50x40\n"
              "12: the image gone.lqi of the button \"a\" is missing\n");
}

TEST_F(LayoutCheck, FindsControlsOutsideTheScreen) {
    EXPECT_EQ(Check(With("static", "x = 700\ny = 440\n")), "");
    EXPECT_EQ(Check(With("static", "x = 701\n")), "4: warning: static \"a\" reaches beyond the screen\n");
    EXPECT_EQ(Check(With("static", "y = -1\n")), "4: warning: static \"a\" reaches beyond the screen\n");
    EXPECT_EQ(Check(With("static", "y = 480\n")), "4: warning: static \"a\" lies outside the screen\n");
    EXPECT_EQ(status_, 0);
    EXPECT_EQ(Check(With("static", "y = 480\n"), "--size 800x520"), "");
    EXPECT_EQ(Check(With("static", "y = 480\nshown = 0\n")), "");
    EXPECT_EQ(Check(With("static", "x = 1\n"), "--size 100x40 --strict"),
              "4: warning: static \"a\" reaches beyond the screen\n");
    EXPECT_EQ(status_, 1);
}

TEST_F(LayoutCheck, FindsControlsWithoutASize) {
    EXPECT_EQ(Check("[Layout]\nkind=group\nchildren=a\n[a]\nkind=static\nname=a\nwidth=5\n"),
              "4: warning: static \"a\" has no size, so it is not seen\n");
}

TEST_F(LayoutCheck, MeasuresPositionsFromTheGroupThatAControlIsIn) {
    const std::string text =
        "[Layout]\nkind=group\nx=300\ny=200\nchildren=g\n[g]\nkind=group\nx=300\ny=200\nchildren=a\n"
        "[a]\nkind=static\nname=a\nwidth=100\nheight=40\n";
    EXPECT_EQ(Check(text + "x=100\ny=40\n"), "");
    EXPECT_EQ(Check(text + "x=101\n"), "11: warning: static \"a\" reaches beyond the screen\n");
}

TEST_F(LayoutCheck, FindsOverlapsOfWhatTakesTouches) {
    const auto text = [](const std::string& slider, const std::string& button) {
        return "[Layout]\nkind=group\nchildren=g,b,s\n[g]\nkind=group\nx=10\nchildren=a\n"
               "[a]\nkind=slider\nname=a\nwidth=100\nheight=40\n" +
               slider + "[b]\nkind=button\nname=b\nx=109\nwidth=100\nheight=40\n" + button +
               "[s]\nkind=static\nname=s\nwidth=800\nheight=40\n";
    };
    const std::string found = "13: warning: button \"b\" overlaps the slider \"a\" and takes its touches\n";
    EXPECT_EQ(Check(text("", "")), found);
    EXPECT_EQ(status_, 0);
    EXPECT_EQ(Check(text("", "y=39\n")), found);
    EXPECT_EQ(Check(text("", "y=40\n")), "");
    EXPECT_EQ(Check(text("x=-1\n", "")), "");
    EXPECT_EQ(Check(text("", "shown=0\n")), "");
    EXPECT_EQ(Check(text("", "receives=0\n")), "");
}

TEST_F(LayoutCheck, FindsTextsThatAreTooWide) {
    EXPECT_EQ(Check(With("static", "text = short\n")), "");
    EXPECT_NE(
        Check(With("static", "text = a rather long text\n")).find("9: warning: \"a rather long text\" is "),
        std::string::npos)
        << errors_;
    EXPECT_EQ(status_, 0);
    EXPECT_EQ(Check(With("static", "text = a rather long text\nfontwidth = 8\nfontheight = 8\n")), "");
    EXPECT_EQ(Check(With("static", "text = a rather long text\nscroll = 1\n")), "");
    EXPECT_NE(Check(With("static", "text = a rather long text\nscroll = 1\nscrolltype = 0\n")), "");
    EXPECT_NE(Check(With("button", "element1.type = text\nelement1.text = a rather long text\n")), "");
    EXPECT_EQ(Check(With("button",
                         "element1.type = text\nelement1.text = a rather long text\n"
                         "element1.width = 400\nelement1.height = 40\n")),
              "");
}

TEST_F(LayoutCheck, LooksTextsUpInEachLanguage) {
    WriteLanguage("Short.lng", "3 = Go\n");
    WriteLanguage("Long.lng", "3 = Einstellungen wiederherstellen\n");
    WriteLanguage("None.lng", "4 = Go\n");
    EXPECT_EQ(Check(With("static", "langid = 3\n"), "--language Short.lng"), "");
    const std::string found =
        Check(With("button", "element1.type = text\nelement1.langid = 3\n"),
              "--language Short.lng --language Long.lng --language None.lng --language Gone.lng");
    EXPECT_EQ(found.find(" the language table Gone.lng is missing or damaged\n"
                         "10: warning: \"Einstellungen wiederherstellen\" of Long.lng is "),
              0U)
        << found;
    EXPECT_NE(found.find(" pixels wide, the button \"a\" has 100\n10: None.lng has no text 3\n"),
              std::string::npos)
        << found;
    EXPECT_EQ(status_, 1);
}

TEST_F(LayoutCheck, ChecksCompiledLayoutsToo) {
    WriteText("a.ini", With("image", "x = 790\nimage = gone.lqi\n"));
    ASSERT_EQ(Run("compile " + Quoted("a.ini") + " " + Quoted("a.bin")), 0) << errors_;
    EXPECT_EQ(Run("check " + Quoted("a.bin") + " " + Device()), 1);
    const std::string before = "lqlayout: " + At("a.bin").string() + ": ";
    EXPECT_EQ(errors_, before + "the image gone.lqi of the image \"a\" (record 1) is missing\n" + before +
                           "warning: image \"a\" (record 1) reaches beyond the screen\n");
}

}  // namespace
}  // namespace korvane::test
