#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "KorvaneEx.h"

#include "demo/headunit/gauges/Drive.h"
#include "tests/demo/HeadUnitBench.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::demo {

namespace {

constexpr unsigned kSecondMs = 1000;
constexpr unsigned kTickMs = 50;
constexpr unsigned kRoundMs = 70 * kSecondMs;
constexpr Place kGaugesTile = {141, 368};
constexpr Place kDriveButton = {630, 424};

class GaugesTest : public HeadUnitBench {
  protected:
    void OpenGauges() {
        Touch(kMenuButton);
        Touch(kGaugesTile);
    }
};

}  // namespace

TEST(Drive, BeginsAtRestWithTheEngineIdling) {
    const Instruments start = InstrumentsAt(0);
    EXPECT_EQ(start.speed, 0);
    EXPECT_EQ(start.engineSpeed, 800);
    EXPECT_EQ(start.fuel, 80);
}

TEST(Drive, SpeedsUpEvenlyAndChangesGearsOnTheWay) {
    // From 2 to 10 seconds from 0 to 50 km/h.
    EXPECT_EQ(InstrumentsAt(6 * kSecondMs).speed, 25);
    EXPECT_EQ(InstrumentsAt(6 * kSecondMs).engineSpeed, 25 * 70);
    EXPECT_EQ(InstrumentsAt(5200).speed, 20);
    EXPECT_EQ(InstrumentsAt(5200).engineSpeed, 20 * 130);
    EXPECT_EQ(InstrumentsAt(5360).speed, 21);
    EXPECT_EQ(InstrumentsAt(5360).engineSpeed, 21 * 70);
    EXPECT_EQ(InstrumentsAt(40 * kSecondMs).speed, 130);
    EXPECT_EQ(InstrumentsAt(40 * kSecondMs).engineSpeed, 3250);
}

TEST(Drive, EndsEachRoundAtRestAndBeginsAnew) {
    EXPECT_EQ(InstrumentsAt(kRoundMs - 1).speed, 1);
    EXPECT_EQ(InstrumentsAt(kRoundMs).speed, 0);
    EXPECT_EQ(InstrumentsAt(3 * kRoundMs + 6 * kSecondMs).speed, 25);
}

TEST(Drive, UsesTheTankUpAndFillsIt) {
    EXPECT_EQ(InstrumentsAt(12 * kSecondMs - 1).fuel, 80);
    EXPECT_EQ(InstrumentsAt(12 * kSecondMs).fuel, 79);
    EXPECT_EQ(InstrumentsAt(75 * 12 * kSecondMs).fuel, 5);
    EXPECT_EQ(InstrumentsAt(76 * 12 * kSecondMs).fuel, 80);
}

TEST(Drive, StaysOnTheScalesForever) {
    const unsigned last = std::numeric_limits<unsigned>::max();
    for (unsigned i = 0; i < 20 * kRoundMs; i += 10) {
        for (const unsigned ms : {i, last - i}) {
            const Instruments now = InstrumentsAt(ms);
            ASSERT_TRUE(now.speed >= 0 && now.speed <= 130) << ms;
            ASSERT_TRUE(now.engineSpeed >= 800 && now.engineSpeed <= 3250) << ms;
            ASSERT_TRUE(now.fuel >= 5 && now.fuel <= 80) << ms;
        }
    }
}

TEST_F(GaugesTest, ComeFromTheMenuAndGoBackToIt) {
    OpenGauges();
    EXPECT_TRUE(scene_.Shows(L"Gauges"));
    EXPECT_TRUE(scene_.Shows(L"Engine speed"));
    Touch(kBackButton);
    EXPECT_TRUE(scene_.Shows(L"Menu"));
    EXPECT_FALSE(scene_.Shows(L"Engine speed"));
}

TEST_F(GaugesTest, ShowTheDriveInNumbersAndNeedles) {
    OpenGauges();
    EXPECT_TRUE(scene_.Shows(L"800"));
    const std::vector<std::uint32_t> resting = scene_.Pixels();
    scene_.Advance(6 * kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"25"));
    EXPECT_TRUE(scene_.Shows(L"1750"));
    EXPECT_TRUE(scene_.Shows(L"80"));
    // At 150 + 25 degrees, 120 pixels from the middle.
    constexpr Place kSpeedNeedle = {250 - 119, 270 + 10};
    const auto at = static_cast<std::size_t>(kSpeedNeedle.y * 800 + kSpeedNeedle.x);
    EXPECT_NE(scene_.Pixels()[at], resting[at]);
    EXPECT_TRUE(test::MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), "demo-gauges"));
}

TEST_F(GaugesTest, DriveOnOnlyWhileTheyAreShown) {
    OpenGauges();
    scene_.Advance(6 * kSecondMs);
    Touch(kBackButton);
    scene_.Advance(10 * kSecondMs);
    Touch(kGaugesTile);
    EXPECT_TRUE(scene_.Shows(L"25"));
    scene_.Advance(4 * kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"50"));
}

TEST_F(GaugesTest, StopAndStartTheDriveByTheButton) {
    OpenGauges();
    scene_.Advance(6 * kSecondMs);
    Touch(kDriveButton);
    const std::vector<std::uint32_t> stopped = scene_.Pixels();
    scene_.Advance(10 * kSecondMs);
    EXPECT_TRUE(scene_.Pixels() == stopped);
    Touch(kBackButton);
    Touch(kGaugesTile);
    scene_.Advance(10 * kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"25")) << "coming back does not start it";
    Touch(kDriveButton);
    scene_.Advance(4 * kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"50"));
}

TEST_F(GaugesTest, PaintNothingWhereNothingChanges) {
    OpenGauges();
    scene_.Advance(kTickMs);
    CLQScreen::GetInstance()->ResetCounters();
    // The car stands for two seconds.
    scene_.Advance(kSecondMs);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0u);
}

TEST_F(GaugesTest, SpeakTheLanguageOfTheRecord) {
    OpenGauges();
    Set(L"language", 5);
    EXPECT_TRUE(scene_.Shows(L"Drehzahl"));
    EXPECT_TRUE(scene_.Shows(L"U/min"));
}

TEST_F(GaugesTest, MakeRoomForASource) {
    OpenGauges();
    Set(L"source", 4);
    EXPECT_FALSE(scene_.Shows(L"Engine speed"));
    EXPECT_TRUE(scene_.Shows(L"Disc"));
}

}  // namespace korvane::demo
