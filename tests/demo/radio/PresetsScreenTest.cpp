#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "KorvaneEx.h"

#include "demo/headunit/radio/PresetButton.h"
#include "tests/demo/HeadUnitBench.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::demo {

namespace {

constexpr unsigned kStepMs = 200;
constexpr Place kPresetsButton = {696, 453};
constexpr Place kBandButton = {692, 130};
constexpr Place kRadioBandButton = {112, 224};
constexpr int kScaleX = 120;
constexpr int kScaleY = 270;
/// The buttons in two rows of three, from 1.
constexpr Place PresetButtonAt(int number) {
    return {304 + 186 * ((number - 1) % 3), 256 + 122 * ((number - 1) / 3)};
}
/// The marker of a preset so many steps above the tuned frequency.
constexpr Place MarkerAt(int steps) {
    return {54, 78 + 192 + 12 * steps + 10};
}

class PresetsTest : public HeadUnitBench {
  protected:
    void Open() { Touch(kPresetsButton); }
    /// Turns the scale so many pixels upwards.
    void Drag(int pixels) {
        scene_.Press(kScaleX, kScaleY);
        scene_.Move(kScaleX, kScaleY - pixels);
        scene_.Release(kScaleX, kScaleY - pixels);
    }
    void Hold(Place place, unsigned ms = PresetButton::kHoldMs) {
        scene_.Press(place.x, place.y);
        scene_.Advance(ms);
        scene_.Release(place.x, place.y);
    }
    std::vector<std::uint32_t> Content() {
        std::vector<std::uint32_t> pixels = scene_.Pixels();
        pixels.erase(pixels.begin(), pixels.begin() + 60 * HeadUnit::kWidth);
        return pixels;
    }
    testing::AssertionResult LooksLike(const char* name) {
        return test::MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name);
    }
};

}  // namespace

TEST_F(PresetsTest, ComeWithTheRadiosButtonAndGoWithTheBackButton) {
    Open();
    EXPECT_TRUE(scene_.Shows(L"Presets"));
    EXPECT_TRUE(scene_.Shows(L"98.50"));
    EXPECT_TRUE(scene_.Shows(L"MHz"));
    EXPECT_TRUE(scene_.Shows(L"Hold a preset to store"));
    EXPECT_FALSE(scene_.Shows(L"Swipe the wheel to seek"));
    EXPECT_TRUE(scene_.ShowsControl(L"BtnBack"));
    Touch(kBackButton);
    EXPECT_FALSE(scene_.Shows(L"Hold a preset to store"));
    EXPECT_TRUE(scene_.Shows(L"Radio"));
    EXPECT_FALSE(scene_.ShowsControl(L"BtnBack"));
}

TEST_F(PresetsTest, TuneUnderADrag) {
    Open();
    Drag(12);
    EXPECT_TRUE(scene_.Shows(L"98.55"));
    Drag(-24);
    EXPECT_TRUE(scene_.Shows(L"98.45"));
    Drag(4);
    EXPECT_TRUE(scene_.Shows(L"98.45")) << "too short";
}

TEST_F(PresetsTest, TuneToTheStationOfAButton) {
    Open();
    Touch(PresetButtonAt(1));
    EXPECT_TRUE(scene_.Shows(L"89.10"));
    Touch(PresetButtonAt(6));
    EXPECT_TRUE(scene_.Shows(L"105.20"));
}

TEST_F(PresetsTest, TuneToTheStationOfAMarkerOnTheScale) {
    Open();
    Touch(MarkerAt(12));
    EXPECT_TRUE(scene_.Shows(L"99.10"));
    Touch(MarkerAt(-12));
    EXPECT_TRUE(scene_.Shows(L"98.50"));
    Touch(MarkerAt(-12));
    EXPECT_TRUE(scene_.Shows(L"97.90"));
}

TEST_F(PresetsTest, LeaveTheStationAloneWhereAMarkerHasBeenBefore) {
    Open();
    // The marker of the preset at 97.9 leaves the scale.
    Drag(12 * 10);
    Drag(12 * 12);
    ASSERT_TRUE(scene_.Shows(L"99.60"));
    Touch(MarkerAt(-12));
    EXPECT_TRUE(scene_.Shows(L"99.60"));
}

TEST_F(PresetsTest, LeaveTheStationAloneWhereADragEndsOnAMarker) {
    Open();
    scene_.Press(54, MarkerAt(12).y - 24);
    scene_.Move(54, MarkerAt(12).y - 26);
    scene_.Move(54, MarkerAt(12).y);
    ASSERT_TRUE(scene_.Shows(L"98.40"));
    scene_.Release(54, MarkerAt(14).y);
    EXPECT_TRUE(scene_.Shows(L"98.40"));
    Touch(MarkerAt(14));
    EXPECT_TRUE(scene_.Shows(L"99.10"));
}

TEST_F(PresetsTest, KeepWheelAndScaleOnTheSameFrequency) {
    const std::vector<std::uint32_t> start = Content();
    Open();
    const std::vector<std::uint32_t> startOfScale = Content();
    Drag(12);
    Touch(kBackButton);
    EXPECT_FALSE(Content() == start);
    // One step down with the wheel.
    scene_.Press(340, 160);
    scene_.Release(340, 280);
    scene_.Advance(kStepMs);
    Touch({340, 224});
    EXPECT_TRUE(Content() == start);
    Open();
    EXPECT_TRUE(Content() == startOfScale);
}

TEST_F(PresetsTest, EndASeekOnTheFrequencyThatItHasReached) {
    scene_.Press(340, 280);
    scene_.Release(340, 160);
    scene_.Advance(3 * kStepMs);
    Open();
    EXPECT_TRUE(scene_.Shows(L"98.65"));
    scene_.Advance(5 * kStepMs);
    EXPECT_TRUE(scene_.Shows(L"98.65"));
}

TEST_F(PresetsTest, StoreTheTunedFrequencyInAButtonThatIsHeld) {
    Open();
    Drag(36);
    Hold(PresetButtonAt(2));
    Touch(PresetButtonAt(1));
    EXPECT_TRUE(scene_.Shows(L"89.10"));
    Touch(PresetButtonAt(2));
    EXPECT_TRUE(scene_.Shows(L"98.65"));
    // Its marker came along.
    Drag(-12);
    Touch(MarkerAt(1));
    EXPECT_TRUE(scene_.Shows(L"98.65"));
}

TEST_F(PresetsTest, ShowAStoredStationWhileTheButtonIsStillHeld) {
    Open();
    Drag(36);
    scene_.Press(PresetButtonAt(2).x, PresetButtonAt(2).y);
    scene_.Advance(PresetButton::kHoldMs - 1);
    const std::vector<std::uint32_t> held = Content();
    scene_.Advance(1);
    const std::vector<std::uint32_t> stored = Content();
    EXPECT_FALSE(stored == held);
    scene_.Release(PresetButtonAt(2).x, PresetButtonAt(2).y);
    EXPECT_TRUE(Content() == stored);
}

TEST_F(PresetsTest, TuneWhenAButtonWasNotHeldLongEnough) {
    Open();
    Drag(36);
    Hold(PresetButtonAt(2), PresetButton::kHoldMs - 1);
    EXPECT_TRUE(scene_.Shows(L"94.65"));
    scene_.Advance(2 * PresetButton::kHoldMs);
    Touch(PresetButtonAt(1));
    Touch(PresetButtonAt(2));
    EXPECT_TRUE(scene_.Shows(L"94.65"));
}

TEST_F(PresetsTest, StoreNothingOnceTheFingerHasLeftTheButton) {
    Open();
    scene_.Press(PresetButtonAt(2).x, PresetButtonAt(2).y);
    scene_.Move(PresetButtonAt(2).x, 190);
    scene_.Advance(2 * PresetButton::kHoldMs);
    scene_.Release(PresetButtonAt(2).x, 190);
    EXPECT_TRUE(scene_.Shows(L"94.65"));
}

TEST_F(PresetsTest, StoreNothingOnceAnotherSourceHasTakenTheScreen) {
    Open();
    scene_.Press(PresetButtonAt(2).x, PresetButtonAt(2).y);
    Set(L"source", 12);
    scene_.Advance(2 * PresetButton::kHoldMs);
    scene_.Release(PresetButtonAt(2).x, PresetButtonAt(2).y);
    Set(L"source", 0);
    Open();
    Touch(PresetButtonAt(2));
    EXPECT_TRUE(scene_.Shows(L"94.65"));
}

TEST_F(PresetsTest, HaveSixStationsForEachBand) {
    Open();
    Touch(kBandButton);
    EXPECT_TRUE(scene_.Shows(L"990"));
    EXPECT_TRUE(scene_.Shows(L"kHz"));
    Drag(12);
    EXPECT_TRUE(scene_.Shows(L"999"));
    Hold(PresetButtonAt(1));
    Touch(PresetButtonAt(6));
    EXPECT_TRUE(scene_.Shows(L"1341"));
    Touch(kBandButton);
    EXPECT_TRUE(scene_.Shows(L"98.50"));
    Touch(PresetButtonAt(1));
    EXPECT_TRUE(scene_.Shows(L"89.10"));
    Touch(kBandButton);
    Touch(PresetButtonAt(1));
    EXPECT_TRUE(scene_.Shows(L"999"));
    Touch(kBackButton);
    EXPECT_TRUE(scene_.Shows(L"1602"));
    Touch(kRadioBandButton);
    Open();
    EXPECT_TRUE(scene_.Shows(L"89.10"));
}

TEST_F(PresetsTest, LastBeyondTheEndOfTheHeadUnit) {
    Open();
    Drag(36);
    Hold(PresetButtonAt(5));
    headUnit_.reset();
    headUnit_.emplace();
    headUnit_->Create(0, 0);
    scene_.Pump();
    Open();
    EXPECT_TRUE(scene_.Shows(L"98.50"));
    Touch(PresetButtonAt(5));
    EXPECT_TRUE(scene_.Shows(L"98.65"));
}

TEST_F(PresetsTest, MarkTheButtonOfTheTunedStation) {
    Open();
    EXPECT_TRUE(LooksLike("demo-presets"));
    Drag(24);
    EXPECT_TRUE(LooksLike("demo-presets-between"));
    Touch(kBandButton);
    scene_.Press(PresetButtonAt(2).x, PresetButtonAt(2).y);
    EXPECT_TRUE(LooksLike("demo-presets-am"));
}

TEST_F(PresetsTest, SpeakTheLanguageOfTheRecord) {
    Open();
    Set(L"language", 5);
    EXPECT_TRUE(scene_.Shows(L"Stationen"));
    EXPECT_TRUE(scene_.Shows(L"Zum Speichern Stationstaste halten"));
}

TEST_F(PresetsTest, PaintOnlyWhatADragChanges) {
    Open();
    Drag(24);
    CLQScreen::GetInstance()->ResetCounters();
    Drag(12);
    constexpr unsigned kScale = 150 * 384;
    constexpr unsigned kReadout = 230 * 92;
    EXPECT_LE(CLQScreen::GetInstance()->GetCounters().paintedPixels, 2u * kScale + 2u * kReadout);
}

TEST_F(PresetsTest, PaintNothingWhileNothingHappens) {
    Open();
    CLQScreen::GetInstance()->ResetCounters();
    scene_.Advance(30000);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0u);
}

}  // namespace korvane::demo
