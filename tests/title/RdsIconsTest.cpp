#include "tests/title/bench/TestStrip.h"

namespace korvane::test {
namespace {

class RdsIcons : public TestStrip {
  protected:
    RdsIcons() { Start(); }

    void Search() {
        Set(L"rdsIconMask", kRdsIconAf);
        Set(L"afState", 2);
    }
};

constexpr char kNormal[] = "title_icon_af_n.lqi";
constexpr char kFocus[] = "title_icon_af_f.lqi";

struct OnOffIcon {
    const wchar_t* ctrl;
    const wchar_t* field;
    RdsIcon bit;
    const char* normal;
    const char* focus;
};

constexpr OnOffIcon kOnOffIcons[] = {
    {L"IconREG", L"regOn", kRdsIconReg, "title_icon_reg_n.lqi", "title_icon_reg_f.lqi"},
    {L"IconPTY", L"ptyOn", kRdsIconPty, "title_icon_pty_n.lqi", "title_icon_pty_f.lqi"},
    {L"IconTA", L"taOn", kRdsIconTa, "title_icon_ta_n.lqi", "title_icon_ta_f.lqi"},
    {L"IconTP", L"tpOn", kRdsIconTp, "title_icon_tp_n.lqi", "title_icon_tp_f.lqi"},
};

TEST_F(RdsIcons, AreBlankWhileTheirBitIsClear) {
    for (const OnOffIcon& icon : kOnOffIcons) {
        Set(L"rdsIconMask", 255 & ~icon.bit);
        Set(icon.field, 1);
        EXPECT_EQ(ImageSeenAt(icon.ctrl), "");
        Set(icon.field, 0);
        EXPECT_EQ(ImageSeenAt(icon.ctrl), "");
    }
}

TEST_F(RdsIcons, ShowWhetherTheyAreOnWhileTheirBitIsSet) {
    for (const OnOffIcon& icon : kOnOffIcons) {
        Set(L"rdsIconMask", icon.bit);
        EXPECT_EQ(ImageSeenAt(icon.ctrl), icon.normal);
        for (const int on : {1, 2, 255}) {
            Set(icon.field, on);
            EXPECT_EQ(ImageSeenAt(icon.ctrl), icon.focus) << on;
        }
        Set(icon.field, 0);
        EXPECT_EQ(ImageSeenAt(icon.ctrl), icon.normal);
        Set(L"rdsIconMask", 0);
        EXPECT_EQ(ImageSeenAt(icon.ctrl), "");
    }
}

TEST_F(RdsIcons, DoNotDependOnEachOther) {
    Set(L"rdsIconMask", kRdsIconReg | kRdsIconTp);
    Set(L"tpOn", 1);
    EXPECT_EQ(ImageSeenAt(L"IconREG"), "title_icon_reg_n.lqi");
    EXPECT_EQ(ImageSeenAt(L"IconPTY"), "");
    EXPECT_EQ(ImageSeenAt(L"IconAF"), "");
    EXPECT_EQ(ImageSeenAt(L"IconTA"), "");
    EXPECT_EQ(ImageSeenAt(L"IconTP"), "title_icon_tp_f.lqi");
}

TEST_F(RdsIcons, ShowAlternativeFrequenciesOffAndOn) {
    Set(L"afState", 1);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), "");
    Set(L"rdsIconMask", kRdsIconAf);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), kFocus);
    Set(L"afState", 0);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), kNormal);
    scene.Advance(5000);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), kNormal) << "nothing flashes";
}

TEST_F(RdsIcons, FlashWhileFrequenciesAreSearched) {
    Set(L"rdsIconMask", kRdsIconAf);
    for (const int state : {2, 3, 255}) {
        Set(L"afState", 0);
        Set(L"afState", state);
        EXPECT_EQ(ImageSeenAt(L"IconAF"), kFocus) << state << ": the first step is at once";
        for (int step = 0; step < 3; ++step) {
            scene.Advance(499);
            EXPECT_EQ(ImageSeenAt(L"IconAF"), kFocus) << state;
            scene.Advance(1);
            EXPECT_EQ(ImageSeenAt(L"IconAF"), kNormal) << state;
            scene.Advance(500);
            EXPECT_EQ(ImageSeenAt(L"IconAF"), kFocus) << state;
        }
    }
}

TEST_F(RdsIcons, BeginToFlashWithTheOtherImage) {
    Set(L"rdsIconMask", kRdsIconAf);
    Set(L"afState", 1);
    Set(L"afState", 2);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), kNormal);
    Set(L"afState", 0);
    Set(L"afState", 2);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), kFocus);
}

TEST_F(RdsIcons, KeepTheirFlashingAtARepeatedSearch) {
    Search();
    const std::string first = ImageSeenAt(L"IconAF");
    scene.Advance(300);
    Notify(kItemAf);
    Notify(kItemRdsIcons);
    Set(L"afState", 3);
    dialog->UpdateAllIcon();
    EXPECT_EQ(ImageSeenAt(L"IconAF"), first);
    scene.Advance(199);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), first);
    scene.Advance(1);
    EXPECT_NE(ImageSeenAt(L"IconAF"), first) << "500 ms after the first step";
    EXPECT_NE(ImageSeenAt(L"IconAF"), "");
}

TEST_F(RdsIcons, StopFlashingWhenTheSearchIsOver) {
    Search();
    scene.Advance(700);
    Set(L"afState", 1);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), kFocus);
    scene.Advance(5000);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), kFocus);
    Set(L"afState", 2);
    Set(L"afState", 0);
    scene.Advance(5000);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), kNormal);
}

TEST_F(RdsIcons, StopFlashingWhenTheIconIsBlanked) {
    Search();
    Set(L"rdsIconMask", 0);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), "");
    scene.Advance(5000);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), "");
    Set(L"rdsIconMask", kRdsIconAf);
    EXPECT_NE(ImageSeenAt(L"IconAF"), "") << "the search goes on";
}

TEST_F(RdsIcons, FlashWithoutTheirImages) {
    std::filesystem::remove(scene.ImageFolder() / kNormal);
    Search();
    for (int flash = 0; flash < 2; ++flash) {
        EXPECT_EQ(ImageSeenAt(L"IconAF"), kFocus);
        scene.Advance(500);
        EXPECT_EQ(ImageSeenAt(L"IconAF"), "");
        scene.Advance(500);
    }
}

TEST_F(RdsIcons, LoadEachFlashingImageOnce) {
    Search();
    scene.Advance(1000);
    // On its own the icon would let go of the image that it does not show.
    for (const char* name : {kNormal, kFocus})
        std::filesystem::remove(scene.ImageFolder() / name);
    scene.Advance(1000);
    EXPECT_NE(ImageSeenAt(L"IconAF"), "");
    scene.Advance(500);
    EXPECT_NE(ImageSeenAt(L"IconAF"), "");
}

}  // namespace
}  // namespace korvane::test
