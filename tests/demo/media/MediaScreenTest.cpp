#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "KorvaneEx.h"

#include "tests/demo/HeadUnitBench.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::demo {

namespace {

constexpr unsigned kSecondMs = 1000;
constexpr int kDisc = 4;
constexpr int kStick = 6;

constexpr Place kPrevious = {250, 310};
constexpr Place kPlay = {400, 310};
constexpr Place kNext = {550, 310};
constexpr Place kRepeatStart = {250, 406};
constexpr Place kRepeatEnd = {400, 406};
constexpr Place kRepeatCancel = {550, 406};
constexpr Place kSources = {712, 396};
constexpr int kTrackRow = 202;
/// Where the thumb's middle is at a second of the disc's first track, which is 203 seconds long.
constexpr int ThumbX(int second) {
    return 72 + (second * 656 + 101) / 203;
}

class MediaScreenTest : public HeadUnitBench {
  protected:
    /// The disc's first track, at its start.
    void PlayDisc() { Set(L"source", kDisc); }
    void Seek(int second) { Touch({ThumbX(second), kTrackRow}); }
    /// Both in the middle of the screen and in the strip.
    bool ShowsTime(const wchar_t* time) { return CountLabels(time) == 2; }
    long CountLabels(const std::wstring& text) {
        const std::vector<std::wstring> texts = scene_.Labels();
        return std::count(texts.begin(), texts.end(), text);
    }
    testing::AssertionResult LooksLike(const char* name) {
        return test::MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name);
    }
};

}  // namespace

TEST_F(MediaScreenTest, ShowsTheTrackAndItsTime) {
    PlayDisc();
    EXPECT_TRUE(scene_.Shows(L"Harbour Lights at Dawn"));
    EXPECT_TRUE(scene_.Shows(L"Track 1/5  \u00b7  The Tidewater Five"));
    EXPECT_TRUE(scene_.Shows(L"Now playing"));
    EXPECT_TRUE(scene_.Shows(L"3:23"));
    EXPECT_TRUE(ShowsTime(L"0:00"));
    scene_.Advance(61 * kSecondMs);
    EXPECT_TRUE(ShowsTime(L"1:01"));
    scene_.Advance((203 - 61) * kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"Elf Kilometer südwärts"));
    EXPECT_TRUE(scene_.Shows(L"Track 2/5  \u00b7  Grete Lindqvist"));
    EXPECT_TRUE(scene_.Shows(L"3:08"));
    EXPECT_TRUE(ShowsTime(L"0:00"));
}

TEST_F(MediaScreenTest, SeeksWithADrag) {
    PlayDisc();
    scene_.Press(ThumbX(50), kTrackRow);
    EXPECT_TRUE(ShowsTime(L"0:50"));
    scene_.Move(ThumbX(120), kTrackRow + 100);
    EXPECT_TRUE(ShowsTime(L"2:00"));
    scene_.Advance(10 * kSecondMs);
    EXPECT_TRUE(ShowsTime(L"2:00")) << "rests while the thumb is held";
    scene_.Release(ThumbX(120), kTrackRow + 100);
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(ShowsTime(L"2:01"));
}

TEST_F(MediaScreenTest, PlaysOnWhenAnotherSourceTakesTheThumbOutOfTheHand) {
    PlayDisc();
    scene_.Press(ThumbX(50), kTrackRow);
    Set(L"source", 0);
    Set(L"source", kDisc);
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(ShowsTime(L"0:51"));
    scene_.Release(ThumbX(50), kTrackRow);
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(ShowsTime(L"0:52"));
}

TEST_F(MediaScreenTest, LosesWhatIsPressedWhenAnotherSourceComes) {
    for (const Place& place : {kPrevious, kPlay, kNext, kRepeatStart, Place{ThumbX(50), kTrackRow}}) {
        PlayDisc();
        scene_.Press(place.x, place.y);
        Set(L"source", 0);
        scene_.Move(place.x + 50, place.y);
        scene_.Release(place.x + 50, place.y);
        scene_.Advance(kSecondMs);
        EXPECT_TRUE(scene_.Shows(L"Radio"));
    }
    PlayDisc();
    EXPECT_TRUE(scene_.Shows(L"Harbour Lights at Dawn"));
    EXPECT_TRUE(ShowsTime(L"0:50"));
}

TEST_F(MediaScreenTest, SeeksOnlyWhereTheProgressBarShows) {
    PlayDisc();
    Touch({600, 152});
    EXPECT_FALSE(ShowsTime(L"0:00")) << "the height of the marks belongs to it";
    Seek(0);
    for (const int y : {90, 149, 230, 258, 330})
        Touch({160, y});
    EXPECT_TRUE(ShowsTime(L"0:00"));
}

TEST_F(MediaScreenTest, JumpsBackToAWhenItReachesB) {
    PlayDisc();
    Seek(60);
    Touch(kRepeatStart);
    scene_.Advance(30 * kSecondMs);
    EXPECT_TRUE(ShowsTime(L"1:30"));
    Touch(kRepeatEnd);
    EXPECT_TRUE(ShowsTime(L"1:00"));
    EXPECT_TRUE(scene_.Shows(L"A-B repeat"));
    for (int round = 0; round < 3; ++round) {
        scene_.Advance(29 * kSecondMs);
        EXPECT_TRUE(ShowsTime(L"1:29")) << round;
        scene_.Advance(kSecondMs);
        EXPECT_TRUE(ShowsTime(L"1:00")) << round;
    }
    scene_.Advance(20 * kSecondMs);
    EXPECT_TRUE(LooksLike("demo-media-repeats"));
    Touch(kRepeatCancel);
    EXPECT_TRUE(scene_.Shows(L"Now playing"));
    scene_.Advance(20 * kSecondMs);
    EXPECT_TRUE(ShowsTime(L"1:40"));
}

TEST_F(MediaScreenTest, TakesBBeforeA) {
    PlayDisc();
    Seek(120);
    Touch(kRepeatStart);
    Seek(60);
    Touch(kRepeatEnd);
    scene_.Advance(59 * kSecondMs);
    EXPECT_TRUE(ShowsTime(L"1:59"));
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(ShowsTime(L"1:00"));
}

TEST_F(MediaScreenTest, MovesAWhileItRepeats) {
    PlayDisc();
    Seek(60);
    Touch(kRepeatStart);
    Seek(90);
    Touch(kRepeatEnd);
    scene_.Advance(20 * kSecondMs);
    Touch(kRepeatStart);
    scene_.Advance(10 * kSecondMs);
    EXPECT_TRUE(ShowsTime(L"1:20"));
    EXPECT_TRUE(scene_.Shows(L"A-B repeat"));
    // Beyond B it begins a new passage.
    Seek(150);
    Touch(kRepeatStart);
    EXPECT_TRUE(scene_.Shows(L"Now playing"));
    scene_.Advance(10 * kSecondMs);
    Touch(kRepeatEnd);
    EXPECT_TRUE(ShowsTime(L"2:30"));
}

TEST_F(MediaScreenTest, TakesNoBAndNoCancelWithoutA) {
    PlayDisc();
    const std::vector<std::uint32_t> plain = scene_.Pixels();
    Touch(kRepeatEnd);
    Touch(kRepeatCancel);
    EXPECT_TRUE(scene_.Pixels() == plain);
    EXPECT_TRUE(LooksLike("demo-media-plays"));
    Touch(kRepeatStart);
    EXPECT_FALSE(scene_.Pixels() == plain);
    Touch(kRepeatCancel);
    EXPECT_TRUE(scene_.Pixels() == plain);
}

TEST_F(MediaScreenTest, DropsThePassageWithItsTrack) {
    PlayDisc();
    Touch(kNext);
    const std::vector<std::uint32_t> plain = scene_.Pixels();
    Touch(kPrevious);
    Touch(kRepeatStart);
    Touch(kNext);
    EXPECT_TRUE(scene_.Pixels() == plain);
}

TEST_F(MediaScreenTest, RestsAndGoesOn) {
    PlayDisc();
    scene_.Advance(5 * kSecondMs);
    const std::vector<std::uint32_t> playing = scene_.Pixels();
    Touch(kPlay);
    EXPECT_TRUE(scene_.Shows(L"Pause"));
    scene_.Advance(20 * kSecondMs);
    EXPECT_TRUE(ShowsTime(L"0:05"));
    Touch(kPlay);
    EXPECT_TRUE(scene_.Pixels() == playing);
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(ShowsTime(L"0:06"));
}

TEST_F(MediaScreenTest, SeeksWhileItRests) {
    PlayDisc();
    Touch(kPlay);
    Seek(203);
    EXPECT_EQ(CountLabels(L"3:23"), 3) << "the length, too";
    scene_.Advance(10 * kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"Harbour Lights at Dawn"));
    Touch(kPlay);
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"Elf Kilometer südwärts"));
}

TEST_F(MediaScreenTest, GoesToTheNextTrackAndBack) {
    PlayDisc();
    Touch(kNext);
    Touch(kNext);
    EXPECT_TRUE(scene_.Shows(L"Το φως του Αιγαίου"));
    Touch(kPrevious);
    EXPECT_TRUE(scene_.Shows(L"Elf Kilometer südwärts"));
    Touch(kPrevious);
    Touch(kPrevious);
    EXPECT_TRUE(scene_.Shows(L"Track 5/5  \u00b7  Motor Choir"));
}

TEST_F(MediaScreenTest, KeepsThePlaceInEachMedium) {
    PlayDisc();
    Seek(60);
    Touch(kRepeatStart);
    Set(L"source", kStick);
    EXPECT_TRUE(scene_.Shows(L"Night Drive"));
    EXPECT_TRUE(ShowsTime(L"0:00"));
    scene_.Advance(10 * kSecondMs);
    Set(L"source", 0);
    EXPECT_FALSE(scene_.Shows(L"0:10"));
    scene_.Advance(100 * kSecondMs);
    Set(L"source", kDisc);
    EXPECT_TRUE(ShowsTime(L"1:00")) << "rests while another source plays";
    scene_.Advance(5 * kSecondMs);
    Touch(kRepeatEnd);
    EXPECT_TRUE(scene_.Shows(L"A-B repeat"));
    Set(L"source", kStick);
    EXPECT_TRUE(ShowsTime(L"0:10"));
}

TEST_F(MediaScreenTest, KeepsItsPlaceToTheFractionOfASecond) {
    PlayDisc();
    Seek(60);
    scene_.Advance(500);
    Set(L"source", 0);
    scene_.Advance(10 * kSecondMs);
    PlayDisc();
    EXPECT_TRUE(ShowsTime(L"1:00"));
    scene_.Advance(500);
    EXPECT_TRUE(ShowsTime(L"1:01"));
}

TEST_F(MediaScreenTest, GoesWithItsDeviceAndComesBackWithIt) {
    Set(L"source", kStick);
    scene_.Advance(10 * kSecondMs);
    Set(L"usbPresent", 0);
    EXPECT_TRUE(scene_.Shows(L"Not connected"));
    EXPECT_TRUE(scene_.ShowsControl(L"BtnBack"));
    EXPECT_EQ(CountLabels(L"0:10"), 0);
    scene_.Advance(10 * kSecondMs);
    EXPECT_FALSE(scene_.Shows(L"Night Drive"));
    Set(L"usbPresent", 1);
    EXPECT_TRUE(scene_.Shows(L"Night Drive"));
    EXPECT_TRUE(ShowsTime(L"0:10"));
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(ShowsTime(L"0:11"));
}

TEST_F(MediaScreenTest, GoesWithItsDeviceUnderAFingerAndBehindTheMenu) {
    Set(L"source", kStick);
    scene_.Press(ThumbX(0), kTrackRow);
    Set(L"usbPresent", 0);
    scene_.Release(ThumbX(0), kTrackRow);
    Set(L"usbPresent", 1);
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(ShowsTime(L"0:01"));
    Touch(kMenuButton);
    Set(L"usbPresent", 0);
    EXPECT_TRUE(scene_.Shows(L"Menu"));
    EXPECT_EQ(CountLabels(L"0:01"), 0);
    Touch(kBackButton);
    EXPECT_TRUE(scene_.Shows(L"Not connected"));
}

TEST_F(MediaScreenTest, PlaysOnBehindAnotherScreen) {
    PlayDisc();
    Touch(kMenuButton);
    EXPECT_TRUE(scene_.Shows(L"Menu"));
    const long before = CountLabels(L"0:30");
    scene_.Advance(30 * kSecondMs);
    EXPECT_EQ(CountLabels(L"0:30"), before + 1) << "in the strip";
    Touch(kBackButton);
    EXPECT_TRUE(ShowsTime(L"0:30"));
}

TEST_F(MediaScreenTest, OpensTheShortcutsAndTheMenu) {
    PlayDisc();
    Touch(kSources);
    EXPECT_TRUE(scene_.ShowsControl(L"ShortCutBtn1"));
}

TEST_F(MediaScreenTest, SpeaksTheLanguageOfTheRecord) {
    PlayDisc();
    Set(L"language", 5);
    EXPECT_TRUE(scene_.Shows(L"Titel 1/5  \u00b7  The Tidewater Five"));
    EXPECT_TRUE(scene_.Shows(L"Aktuelle Wiedergabe"));
    EXPECT_TRUE(scene_.Shows(L"Harbour Lights at Dawn"));
}

TEST_F(MediaScreenTest, FollowsTheKeysInCursorMode) {
    PlayDisc();
    SetCursorState(true);
    for (const int key : {VK_RIGHT, VK_RIGHT, VK_RETURN})
        scene_.Key(key);
    SetCursorState(false);
    EXPECT_TRUE(scene_.Shows(L"Pause"));
}

TEST_F(MediaScreenTest, PaintsOnceASecondAndNotWhileItRests) {
    PlayDisc();
    scene_.Advance(kSecondMs);
    CLQScreen::GetInstance()->ResetCounters();
    scene_.Advance(4 * kSecondMs);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 4u);
    Touch(kPlay);
    CLQScreen::GetInstance()->ResetCounters();
    scene_.Advance(4 * kSecondMs);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0u);
}

TEST(MediaScreenOnALargeScreen, LooksAsItDoesOnItsOwn) {
    const auto repeat = [](test::DemoScene& scene, Place corner) {
        HeadUnit headUnit;
        headUnit.Create(corner.x, corner.y);
        for (const Place& place : {Place{ThumbX(60), kTrackRow}, kRepeatStart, Place{ThumbX(202), kTrackRow},
                                   kRepeatEnd, Place{ThumbX(140), kTrackRow}})
            scene.Touch(corner.x + place.x, corner.y + place.y);
        EXPECT_TRUE(scene.Shows(L"A-B repeat"));
        return PixelsIn(scene, corner);
    };
    test::DemoScene scene;
    tools::SystemService service;
    ASSERT_TRUE(service.SetValue(L"discAudioPresent", 1) && service.SetValue(L"source", kDisc));
    const std::vector<std::uint32_t> alone = repeat(scene, {0, 0});
    CLQScreen* const screen = CLQScreen::GetInstance();
    screen->Close();
    ASSERT_TRUE(screen->Open("memory", 1000, 700, L"large"));
    EXPECT_TRUE(repeat(scene, {130, 110}) == alone);
}

}  // namespace korvane::demo
