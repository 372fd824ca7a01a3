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

TEST(Band, StartsOnOneOfItsSteps) {
    for (const Band& band : {MakeFm(), MakeAm()})
        EXPECT_FLOAT_EQ(band.FrequencyOf(band.StepOf(band.start)), band.start);
}

TEST(Band, WritesFmWithADecimalAndAmWithout) {
    EXPECT_EQ(MakeFm().Text(108.0f), L"108.0");
    EXPECT_EQ(MakeAm().Text(531.0f), L"531");
}

}  // namespace korvane::demo
