#include <gtest/gtest.h>
#include <limits>

#include "demo/headunit/media/PlayTimeText.h"
#include "demo/headunit/media/Player.h"

namespace korvane::demo {

namespace {

constexpr unsigned kSecondMs = 1000;

/// Three tracks of 100, 60 and 30 seconds.
Player NewPlayer() {
    return Player({{L"one", L"", 100}, {L"two", L"", 60}, {L"three", L"", 30}});
}

/// One that repeats the passage from 20 to 30 seconds, and stands at its start.
Player NewRepeatingPlayer() {
    Player player = NewPlayer();
    player.Seek(20);
    player.SetRepeatStart();
    player.Seek(30);
    player.SetRepeatEnd();
    return player;
}

}  // namespace

TEST(PlayTimeText, HasMinutesAndSecondsAndFromAnHourOnHours) {
    EXPECT_EQ(PlayTimeText(0), L"0:00");
    EXPECT_EQ(PlayTimeText(59), L"0:59");
    EXPECT_EQ(PlayTimeText(60), L"1:00");
    EXPECT_EQ(PlayTimeText(3599), L"59:59");
    EXPECT_EQ(PlayTimeText(3600), L"1:00:00");
    EXPECT_EQ(PlayTimeText(5640), L"1:34:00");
    EXPECT_EQ(PlayTimeText(-5), L"0:00");
    EXPECT_EQ(PlayTimeText(std::numeric_limits<int>::max()), L"596523:14:07");
}

TEST(Player, PlaysOneTrackAfterTheOther) {
    Player player = NewPlayer();
    EXPECT_TRUE(player.IsPlaying());
    player.Advance(100 * kSecondMs - 1);
    EXPECT_EQ(player.CurrentIndex(), 0u);
    EXPECT_EQ(player.Seconds(), 99);
    player.Advance(1);
    EXPECT_EQ(player.CurrentTrack().title, L"two");
    EXPECT_EQ(player.Seconds(), 0);
    player.Advance(60 * kSecondMs + 1500);
    EXPECT_EQ(player.CurrentTrack().title, L"three");
    EXPECT_EQ(player.Seconds(), 1);
    player.Advance(30 * kSecondMs);
    EXPECT_EQ(player.CurrentTrack().title, L"one") << "over and over";
    EXPECT_EQ(player.Seconds(), 1);
}

TEST(Player, KeepsTheFractionsOfSeconds) {
    Player player = NewPlayer();
    for (int i = 0; i < 10; ++i)
        player.Advance(99);
    EXPECT_EQ(player.Seconds(), 0);
    EXPECT_EQ(player.MsToNextSecond(), 10);
    player.Advance(10);
    EXPECT_EQ(player.Seconds(), 1);
    EXPECT_EQ(player.MsToNextSecond(), 1000);
}

TEST(Player, ComesThroughAnyTimeAtOnce) {
    Player player = NewPlayer();
    // 190 seconds are a round.
    player.Advance(190 * 1000 * kSecondMs + 130 * kSecondMs);
    EXPECT_EQ(player.CurrentIndex(), 1u);
    EXPECT_EQ(player.Seconds(), 30);
    player.Advance(std::numeric_limits<unsigned>::max());
    EXPECT_LT(player.Seconds(), player.CurrentTrack().seconds);
}

TEST(Player, RestsAndGoesOn) {
    Player player = NewPlayer();
    player.Advance(5 * kSecondMs);
    player.Play(false);
    player.Advance(1000 * kSecondMs);
    EXPECT_EQ(player.Seconds(), 5);
    player.Play(true);
    player.Advance(kSecondMs);
    EXPECT_EQ(player.Seconds(), 6);
}

TEST(Player, SeeksInsideTheTrack) {
    Player player = NewPlayer();
    player.Seek(70);
    EXPECT_EQ(player.Seconds(), 70);
    player.Seek(-1);
    EXPECT_EQ(player.Seconds(), 0);
    player.Seek(1000);
    EXPECT_EQ(player.Seconds(), 100);
    EXPECT_EQ(player.MsToNextSecond(), 1);
    player.Advance(1);
    EXPECT_EQ(player.CurrentIndex(), 1u) << "the end was reached";
    EXPECT_EQ(player.Seconds(), 0);
}

TEST(Player, GoesFromTrackToTrackInARing) {
    Player player = NewPlayer();
    player.Previous();
    EXPECT_EQ(player.CurrentIndex(), 2u);
    player.Next();
    player.Next();
    EXPECT_EQ(player.CurrentIndex(), 1u);
}

TEST(Player, GoesToTheStartOfATrackThatPlaysForThreeSeconds) {
    Player player = NewPlayer();
    player.Next();
    player.Advance(3 * kSecondMs);
    player.Previous();
    EXPECT_EQ(player.CurrentIndex(), 1u);
    EXPECT_EQ(player.Seconds(), 0);
    player.Advance(3 * kSecondMs - 1);
    player.Previous();
    EXPECT_EQ(player.CurrentIndex(), 0u);
}

TEST(Player, JumpsBackToAAtB) {
    Player player = NewRepeatingPlayer();
    EXPECT_EQ(player.Seconds(), 20) << "B takes effect at once";
    player.Advance(10 * kSecondMs - 1);
    EXPECT_EQ(player.Seconds(), 29);
    player.Advance(1);
    EXPECT_EQ(player.Seconds(), 20);
    player.Advance(1000 * 10 * kSecondMs + 4 * kSecondMs);
    EXPECT_EQ(player.Seconds(), 24);
    EXPECT_EQ(player.CurrentIndex(), 0u);
}

TEST(Player, IgnoresBWithoutA) {
    Player player = NewPlayer();
    player.Seek(50);
    player.SetRepeatEnd();
    EXPECT_FALSE(player.RepeatEnd());
    player.Advance(10 * kSecondMs);
    EXPECT_EQ(player.Seconds(), 60);
}

TEST(Player, PlaysOnWhileOnlyAIsSet) {
    Player player = NewPlayer();
    player.Seek(50);
    player.SetRepeatStart();
    EXPECT_EQ(player.RepeatStart(), 50);
    player.Advance(49 * kSecondMs);
    EXPECT_EQ(player.Seconds(), 99);
}

TEST(Player, TakesTheEarlierPointForA) {
    Player player = NewPlayer();
    player.Seek(80);
    player.SetRepeatStart();
    player.Seek(40);
    player.SetRepeatEnd();
    EXPECT_EQ(player.RepeatStart(), 40);
    EXPECT_EQ(player.RepeatEnd(), 80);
    player.Advance(40 * kSecondMs);
    EXPECT_EQ(player.Seconds(), 40);
}

TEST(Player, RepeatsASecondAtLeast) {
    Player player = NewPlayer();
    player.Seek(40);
    player.SetRepeatStart();
    player.SetRepeatEnd();
    EXPECT_EQ(player.RepeatEnd(), 41);
    player.Advance(5 * kSecondMs + 300);
    EXPECT_EQ(player.Seconds(), 40);
    // Also at the very end of the track.
    player.Play(false);
    player.CancelRepeat();
    player.Seek(100);
    player.SetRepeatStart();
    player.SetRepeatEnd();
    EXPECT_EQ(player.RepeatStart(), 99);
    EXPECT_EQ(player.RepeatEnd(), 100);
}

TEST(Player, MovesAWhileItRepeats) {
    Player player = NewRepeatingPlayer();
    player.Advance(5 * kSecondMs);
    player.SetRepeatStart();
    EXPECT_EQ(player.RepeatStart(), 25);
    EXPECT_EQ(player.RepeatEnd(), 30);
    player.Advance(5 * kSecondMs);
    EXPECT_EQ(player.Seconds(), 25);
}

TEST(Player, EndsAPassageWhoseAIsMovedToItsEndOrBeyond) {
    for (const int second : {30, 55}) {
        Player player = NewRepeatingPlayer();
        player.Seek(second);
        player.SetRepeatStart();
        EXPECT_EQ(player.RepeatStart(), second);
        EXPECT_FALSE(player.RepeatEnd()) << second;
    }
    Player player = NewRepeatingPlayer();
    player.Seek(29);
    player.SetRepeatStart();
    EXPECT_EQ(player.RepeatEnd(), 30);
}

TEST(Player, MovesBWhileItRepeats) {
    Player player = NewRepeatingPlayer();
    player.Seek(45);
    player.SetRepeatEnd();
    EXPECT_EQ(player.RepeatStart(), 20);
    EXPECT_EQ(player.RepeatEnd(), 45);
    EXPECT_EQ(player.Seconds(), 20);
}

TEST(Player, LeavesThePassageByASeekBeyondItAndEntersItFromBefore) {
    Player player = NewRepeatingPlayer();
    player.Seek(31);
    player.Advance(10 * kSecondMs);
    EXPECT_EQ(player.Seconds(), 41);
    player.Seek(5);
    player.Advance(26 * kSecondMs);
    EXPECT_EQ(player.Seconds(), 21);
}

TEST(Player, EndsThePassageWithItsTrack) {
    Player player = NewRepeatingPlayer();
    player.Seek(31);
    player.Advance(69 * kSecondMs);
    EXPECT_EQ(player.CurrentIndex(), 1u);
    EXPECT_FALSE(player.RepeatStart());
    EXPECT_FALSE(player.RepeatEnd());
    Player next = NewRepeatingPlayer();
    next.Next();
    EXPECT_FALSE(next.RepeatStart());
}

TEST(Player, PlaysOnWhenTheRepeatIsCancelled) {
    Player player = NewRepeatingPlayer();
    player.Advance(9 * kSecondMs);
    player.CancelRepeat();
    player.Advance(2 * kSecondMs);
    EXPECT_EQ(player.Seconds(), 31);
    EXPECT_FALSE(player.RepeatStart());
    player.SetRepeatEnd();
    EXPECT_FALSE(player.RepeatEnd()) << "A is gone, too";
}

TEST(Player, TakesAnyTracks) {
    Player none({});
    EXPECT_EQ(none.TrackCount(), 1u);
    none.Advance(100 * kSecondMs + 500);
    none.Previous();
    EXPECT_EQ(none.Seconds(), 0);
    constexpr int kMost = std::numeric_limits<int>::max();
    Player strange({{L"", L"", -3}, {L"", L"", kMost}});
    EXPECT_EQ(strange.CurrentTrack().seconds, 1);
    strange.Next();
    strange.Seek(kMost);
    EXPECT_EQ(strange.Seconds(), 100 * 3600);
    strange.ChooseTrack(2);
    EXPECT_EQ(strange.CurrentIndex(), 1u);
    strange.ChooseTrack(0);
    EXPECT_EQ(strange.CurrentIndex(), 0u);
}

TEST(Media, AreThereForEachSourceThatPlaysOne) {
    for (const int source : {4, 5, 6, 7, 8, 9, 11, -1}) {
        const Tracks tracks = TracksOf(source);
        ASSERT_GE(tracks.size(), 2u) << source;
        for (const Track& track : tracks) {
            EXPECT_FALSE(track.title.empty()) << source;
            EXPECT_GT(track.seconds, 60) << source;
        }
    }
}

}  // namespace korvane::demo
