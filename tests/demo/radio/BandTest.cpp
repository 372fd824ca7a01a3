#include <gtest/gtest.h>

#include "demo/headunit/radio/Band.h"

namespace korvane::demo {

TEST(Band, CountsTheStepsFromEndToEnd) {
    EXPECT_EQ(MakeFm().StepCount(), 410);
    EXPECT_EQ(MakeAm().StepCount(), 119);
}

TEST(Band, FindsEveryStepAgainByItsFrequency) {
    for (const Band& band : {MakeFm(), MakeAm()}) {
        for (int step = 0; step <= band.StepCount(); ++step)
            EXPECT_EQ(band.StepOf(band.FrequencyOf(step)), step) << "step " << step;
    }
}

TEST(Band, StartsOnOneOfItsStepsAndHasItsPresetsThere) {
    for (const Band& band : {MakeFm(), MakeAm()}) {
        EXPECT_FLOAT_EQ(band.FrequencyOf(band.StepOf(band.start)), band.start);
        for (const float preset : band.presets)
            EXPECT_FLOAT_EQ(band.FrequencyOf(band.StepOf(preset)), preset);
    }
}

TEST(Band, WritesFmWithADecimalAndAmWithout) {
    EXPECT_EQ(MakeFm().Text(108.0f), L"108.0");
    EXPECT_EQ(MakeAm().Text(531.0f), L"531");
}

TEST(Band, WritesAllDigitsOfAFrequencyThatTheyTell) {
    EXPECT_EQ(MakeFm().FullText(108.0f), L"108.00");
    EXPECT_EQ(MakeFm().FullText(98.05f), L"98.05");
    EXPECT_EQ(MakeFm().FullText(87.5f), L"87.50");
    EXPECT_EQ(MakeAm().FullText(1602.0f), L"1602");
}

TEST(Band, FindsEveryStepAgainByItsKilohertz) {
    for (const Band& band : {MakeFm(), MakeAm()}) {
        for (int step = 0; step <= band.StepCount(); ++step)
            EXPECT_EQ(band.StepAt(band.KilohertzOf(step)), step) << "step " << step;
    }
    EXPECT_EQ(MakeFm().KilohertzOf(1), 87550);
    EXPECT_EQ(MakeAm().KilohertzOf(1), 540);
}

TEST(Band, HasNoStationBesideItsStepsAndBounds) {
    for (const int kilohertz : {0, -1, 87450, 87525, 87549, 108001, 108050, 2147483647, -2147483647 - 1})
        EXPECT_EQ(MakeFm().StepAt(kilohertz), -1) << kilohertz;
    for (const int kilohertz : {0, 522, 530, 532, 1603, 1611, 98500})
        EXPECT_EQ(MakeAm().StepAt(kilohertz), -1) << kilohertz;
}

}  // namespace korvane::demo
