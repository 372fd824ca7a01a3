#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

#include "demo/headunit/radio/Tuner.h"
#include "tests/demo/DemoScene.h"

namespace korvane::demo {

namespace {

namespace fs = std::filesystem;

class TunerTest : public testing::Test {
  protected:
    fs::path File() const {
        return scene_.DeviceFolder() / "NandFlash/Application/Profile/LQ_RadioPresets.ini";
    }
    void Write(const std::string& contents) const {
        fs::create_directories(File().parent_path());
        std::ofstream(File(), std::ios::binary) << contents;
    }
    std::string Read() const {
        std::ifstream stream(File(), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }
    static void ExpectFactoryPresets(const Tuner& tuner) {
        for (int i = 0; i < kPresets; ++i)
            EXPECT_FLOAT_EQ(tuner.Preset(i), tuner.CurrentBand().presets[static_cast<std::size_t>(i)]) << i;
    }

    test::DemoScene scene_;
};

}  // namespace

TEST_F(TunerTest, StartsOnFmWithTheFactorysPresetsAndWritesNothing) {
    Tuner tuner;
    EXPECT_FLOAT_EQ(tuner.Frequency(), 98.5f);
    ExpectFactoryPresets(tuner);
    tuner.SwitchBand();
    EXPECT_FLOAT_EQ(tuner.Frequency(), 990.0f);
    ExpectFactoryPresets(tuner);
    EXPECT_FALSE(fs::exists(File()));
}

TEST_F(TunerTest, EndsAtTheBandsBounds) {
    Tuner tuner;
    tuner.Tune(500.0f);
    EXPECT_FLOAT_EQ(tuner.Frequency(), 108.0f);
    tuner.Tune(-1.0f);
    EXPECT_FLOAT_EQ(tuner.Frequency(), 87.5f);
}

TEST_F(TunerTest, TunesToTheNearestStep) {
    Tuner tuner;
    tuner.Tune(98.56f);
    EXPECT_FLOAT_EQ(tuner.Frequency(), 98.55f);
    EXPECT_EQ(tuner.Step(), 221);
}

TEST_F(TunerTest, TunesToItsPresets) {
    Tuner tuner;
    for (int i = 0; i < kPresets; ++i) {
        tuner.TuneToPreset(i);
        EXPECT_EQ(tuner.Frequency(), tuner.Preset(i));
        for (int other = 0; other < kPresets; ++other)
            EXPECT_EQ(tuner.IsTunedTo(other), other == i);
    }
}

TEST_F(TunerTest, StoresThePresetsOfEachBandForGood) {
    {
        Tuner tuner;
        tuner.Tune(101.35f);
        tuner.StorePreset(0);
        tuner.SwitchBand();
        tuner.Tune(1602.0f);
        tuner.StorePreset(5);
    }
    Tuner tuner;
    EXPECT_FLOAT_EQ(tuner.Frequency(), 98.5f) << "the frequency itself is not kept";
    EXPECT_FLOAT_EQ(tuner.Preset(0), 101.35f);
    EXPECT_FLOAT_EQ(tuner.Preset(5), 105.2f);
    tuner.SwitchBand();
    EXPECT_FLOAT_EQ(tuner.Preset(0), 558.0f);
    EXPECT_FLOAT_EQ(tuner.Preset(5), 1602.0f);
}

TEST_F(TunerTest, KeepsWhatElseIsInTheFile) {
    Write("; mine\n[FM]\n1 = 90100\n3 = 12\n");
    Tuner tuner;
    EXPECT_FLOAT_EQ(tuner.Preset(0), 90.1f);
    tuner.Tune(91.0f);
    tuner.StorePreset(1);
    const std::string contents = Read();
    EXPECT_EQ(contents.find("; mine\n[FM]\n1 = 90100\n3 = 12\n"), 0u) << contents;
    EXPECT_NE(contents.find("91000"), std::string::npos) << contents;
}

TEST_F(TunerTest, TakesTheFactorysPresetWhereTheStoredOneIsNoStation) {
    Write(
        "[FM]\n1 = 87524\n2 = 108050\n3 = -98500\n4 = 99999999999999\n5 = 98.5\n6 =\n"
        "[AM]\n1 = 98500\n2 = 532\n3 = nan\n4 = 0x7FFFFFFF\n5 = 1611\n");
    Tuner tuner;
    ExpectFactoryPresets(tuner);
    tuner.SwitchBand();
    ExpectFactoryPresets(tuner);
}

TEST_F(TunerTest, TakesTheFactorysPresetsForADamagedFile) {
    for (const std::string& contents :
         {std::string(), std::string(2 << 20, 'x'), std::string("\xFF\xFE[\0F", 5), std::string("[FM"),
          std::string(300, '\0')}) {
        Write(contents);
        Tuner tuner;
        ExpectFactoryPresets(tuner);
        tuner.Tune(90.0f);
        tuner.StorePreset(2);
        EXPECT_FLOAT_EQ(tuner.Preset(2), 90.0f) << "kept while the radio runs";
    }
}

TEST_F(TunerTest, KeepsItsPresetsWhileItRunsWhereTheyCannotBeWritten) {
    fs::create_directories(File());
    Tuner tuner;
    ExpectFactoryPresets(tuner);
    tuner.Tune(90.0f);
    tuner.StorePreset(2);
    EXPECT_TRUE(tuner.IsTunedTo(2));
}

}  // namespace korvane::demo
