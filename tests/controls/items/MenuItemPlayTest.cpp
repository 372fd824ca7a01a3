#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>

#include "engine/window/Screen.h"

#include "tests/controls/items/TestTile.h"

namespace korvane::test {
namespace {

constexpr int kFrameWidth = 40;
constexpr int kFrameHeight = 30;

/// A tile that plays images of one colour each.
class MenuItemSequence : public testing::Test {
  protected:
    MenuItemSequence() {
        for (int i = 0; i < 3; ++i)
            WriteFrame("Frame" + std::to_string(i + 1) + ".lqi", ColorOf(i));
    }

    static _LQColor ColorOf(int frame) { return {200, static_cast<unsigned char>(60 * frame), 30, 255}; }

    void WriteFrame(const std::string& name, _LQColor color) {
        CLQSurfHandle frame = Block(kFrameWidth, kFrameHeight, color);
        WriteImage(scene.ImageFolder() / name, frame);
    }

    void PlayThree(int period = 100) { tile.SetImage(L"Frame%d.lqi", 3, kFrameWidth, kFrameHeight, period); }

    /// The frame that shows by its colour; -1 for none.
    int Shown() {
        CLQSurfHandle canvas = TileCanvas();
        tile.Draw(canvas);
        const std::uint32_t pixel = PixelsOf(canvas)[static_cast<std::size_t>(kTileY * 170 + kTileX)];
        for (int i = 0; i < 3; ++i) {
            const _LQColor color = ColorOf(i);
            if (pixel == (0xFF000000U | color.r << 16U | color.g << 8U | color.b))
                return i;
        }
        return -1;
    }

    Scene scene;
    TestTile tile;
};

TEST_F(MenuItemSequence, StartsEmptyWithItsTimerRunning) {
    EXPECT_EQ(tile.GetKind(), 50);
    EXPECT_TRUE(tile.IsPlaying());
    EXPECT_TRUE(tile.IsTicking());
    EXPECT_FALSE(tile.IsDesableState());
    EXPECT_FALSE(tile.HasResponseLongPress());
    int width = -1;
    int height = -1;
    tile.GetImageShowSize(width, height);
    EXPECT_EQ(width, 0);
    EXPECT_EQ(height, 0);
    EXPECT_EQ(Shown(), -1);
    tile.Redraw(false);
    scene.Advance(99);
    EXPECT_FALSE(tile.IsNeedRedraw());
    scene.Advance(1);
    EXPECT_TRUE(tile.IsNeedRedraw()) << "each tick asks for a repaint, also without images";
    EXPECT_EQ(tile.Frame(), 0);
}

TEST_F(MenuItemSequence, PlaysInALoop) {
    PlayThree();
    int width = 0;
    int height = 0;
    tile.GetImageShowSize(width, height);
    EXPECT_EQ(width, kFrameWidth);
    EXPECT_EQ(height, kFrameHeight);
    for (const int frame : {0, 1, 2, 0, 1, 2, 0}) {
        EXPECT_EQ(Shown(), frame);
        EXPECT_FALSE(tile.IsNeedRedraw());
        scene.Advance(99);
        EXPECT_EQ(tile.Frame(), frame);
        scene.Advance(1);
        EXPECT_TRUE(tile.IsNeedRedraw());
    }
}

TEST_F(MenuItemSequence, PlaysAtItsOwnPace) {
    PlayThree(250);
    scene.Advance(249);
    EXPECT_EQ(tile.Frame(), 0);
    scene.Advance(1);
    EXPECT_EQ(tile.Frame(), 1);
    for (const int period : {0, -5, std::numeric_limits<int>::min()}) {
        PlayThree(period);
        scene.Advance(10);
        EXPECT_EQ(tile.Frame(), 1) << "as fast as timers can";
    }
    PlayThree(std::numeric_limits<int>::max());
    scene.Advance(100000);
    EXPECT_EQ(tile.Frame(), 0);
}

TEST_F(MenuItemSequence, StartsAnewWithNewImages) {
    PlayThree();
    scene.Advance(200);
    EXPECT_EQ(Shown(), 2);
    tile.Redraw(false);
    tile.SetImage(L"Frame3.lqi", 1, kFrameWidth, kFrameHeight, 100);
    EXPECT_TRUE(tile.IsNeedRedraw());
    EXPECT_EQ(tile.Frame(), 0);
    EXPECT_EQ(Shown(), 2) << "a name without a number";
    scene.Advance(500);
    EXPECT_EQ(tile.Frame(), 0);
}

TEST_F(MenuItemSequence, IsEmptyWithoutImages) {
    for (const int none : {0, -1, std::numeric_limits<int>::min()}) {
        PlayThree();
        EXPECT_TRUE(tile.IsPlaying());
        tile.SetImage(L"Frame%d.lqi", none, kFrameWidth, kFrameHeight, 100);
        EXPECT_FALSE(tile.IsPlaying());
        EXPECT_EQ(Shown(), -1);
        scene.Advance(300);
        EXPECT_EQ(tile.Frame(), 0);
    }
}

TEST_F(MenuItemSequence, TakesAnyNumberOfImages) {
    tile.SetImage(L"Frame%d.lqi", std::numeric_limits<int>::max(), kFrameWidth, kFrameHeight, 100);
    for (const int frame : {0, 1, 2, -1, -1}) {
        EXPECT_EQ(Shown(), frame);
        scene.Advance(100);
    }
    EXPECT_EQ(tile.Frame(), 5);
}

TEST_F(MenuItemSequence, DrawsImagesInTheShowSizeFromTheirCorner) {
    CLQSurfHandle frame = Block(kFrameWidth, kFrameHeight, ColorOf(0));
    for (const auto& size : {std::pair{40, 30}, std::pair{25, 20}, std::pair{90, 60}}) {
        tile.SetImage(L"Frame%d.lqi", 1, size.first, size.second, 100);
        EXPECT_EQ(LooksOf(tile), TileDrawing().Image(frame, 0, 0, size.first, size.second).Pixels());
    }
    for (const auto& size : {std::pair{0, 30}, std::pair{40, 0}, std::pair{-40, 30},
                             std::pair{std::numeric_limits<int>::min(), std::numeric_limits<int>::min()}}) {
        tile.SetImage(L"Frame%d.lqi", 1, size.first, size.second, 100);
        EXPECT_EQ(LooksOf(tile), TileDrawing().Pixels());
    }
    constexpr int kMax = std::numeric_limits<int>::max();
    tile.SetImage(L"Frame%d.lqi", 1, kMax, kMax, 100);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(frame, 0, 0).Pixels());
}

TEST_F(MenuItemSequence, LoadsEachImageOnceUntilItIsReleased) {
    PlayThree();
    EXPECT_EQ(Shown(), 0);
    WriteFrame("Frame1.lqi", ColorOf(2));
    scene.Advance(300);
    EXPECT_EQ(Shown(), 0) << "as it was loaded";
    scene.Advance(100);
    EXPECT_EQ(tile.Frame(), 1);
    tile.Redraw(false);
    tile.ReleaseImageSurf();
    EXPECT_FALSE(tile.IsNeedRedraw());
    EXPECT_EQ(tile.Frame(), 0);
    EXPECT_TRUE(tile.IsPlaying());
    EXPECT_EQ(Shown(), 2);
    scene.Advance(100);
    EXPECT_EQ(Shown(), 1);
}

TEST_F(MenuItemSequence, DoesNotLookForAMissingImageAgainUntilItIsReleased) {
    tile.SetImage(L"Late%d.lqi", 2, kFrameWidth, kFrameHeight, 100);
    EXPECT_EQ(Shown(), -1);
    WriteFrame("Late1.lqi", ColorOf(1));
    EXPECT_EQ(Shown(), -1);
    scene.Advance(200);
    EXPECT_EQ(tile.Frame(), 0);
    EXPECT_EQ(Shown(), -1);
    tile.ReleaseImageSurf();
    EXPECT_EQ(Shown(), 1);
}

TEST_F(MenuItemSequence, HasImagesOfItsOwn) {
    PlayThree();
    EXPECT_EQ(Shown(), 0);
    TestTile other;
    other.SetImage(L"Frame%d.lqi", 3, kFrameWidth, kFrameHeight, 100);
    const auto looks = LooksOf(other);
    CLQSurfHandle loaded = CLQSurfManager::GetInstance()->CreateSurface(L"Frame1.lqi", true);
    _LQColor black = {0, 0, 0, 255};
    loaded.FillRect(0, 0, kFrameWidth, kFrameHeight, black, false);
    EXPECT_EQ(Shown(), 0);
    EXPECT_EQ(LooksOf(other), looks);
}

TEST_F(MenuItemSequence, MakesWayForAThumbnail) {
    PlayThree();
    scene.Advance(100);
    CLQSurfHandle still = Block(50, 20, {0, 255, 0, 255});
    tile.Redraw(false);
    tile.SetThumbNail(still);
    EXPECT_TRUE(tile.IsNeedRedraw());
    EXPECT_FALSE(tile.IsTicking());
    EXPECT_FALSE(tile.IsPlaying());
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(still, 0, 0).Pixels());
    scene.Advance(1000);
    EXPECT_EQ(tile.Frame(), 1);
    tile.EnableImagePlay(true);
    EXPECT_FALSE(tile.IsTicking());

    CLQSurfHandle none;
    tile.Redraw(false);
    tile.SetThumbNail(none);
    EXPECT_TRUE(tile.IsNeedRedraw());
    EXPECT_TRUE(tile.IsTicking());
    EXPECT_TRUE(tile.IsPlaying());
    EXPECT_EQ(Shown(), 1);
    scene.Advance(100);
    EXPECT_EQ(Shown(), 2);
}

TEST_F(MenuItemSequence, StaysPausedAfterAThumbnailWhenItMayNotPlay) {
    PlayThree();
    CLQSurfHandle still = Block(50, 20, {0, 255, 0, 255});
    CLQSurfHandle none;
    tile.SetThumbNail(still);
    tile.EnableImagePlay(false);
    tile.SetThumbNail(none);
    EXPECT_TRUE(tile.IsPlaying());
    EXPECT_FALSE(tile.IsTicking());
    EXPECT_EQ(Shown(), 0);
    tile.EnableImagePlay(true);
    EXPECT_TRUE(tile.IsTicking());
}

TEST_F(MenuItemSequence, GoesOnInItsRhythmWhenWhatRunsIsStarted) {
    PlayThree();
    scene.Advance(60);
    CLQSurfHandle none;
    tile.SetThumbNail(none);
    tile.EnableImagePlay(true);
    scene.Advance(40);
    EXPECT_EQ(tile.Frame(), 1);
}

TEST_F(MenuItemSequence, ShowsTheThumbnailWhateverItsTypeIs) {
    CLQSurfHandle still = CLQSurfManager::GetInstance()->CreateSurface(240, 144, eSurface_RGB565, true);
    _LQColor amber = {255, 180, 60, 255};
    still.FillRect(0, 0, 240, 144, amber, false);
    tile.SetThumbNail(still);
    tile.SetImagePos(12, 5);
    EXPECT_EQ(LooksOf(tile), TileDrawing().Image(still, 12, 5).Pixels()) << "whole, beyond the tile";
}

TEST_F(MenuItemSequence, NeitherStartsNorStopsWithNewImages) {
    tile.EnableImagePlay(false);
    PlayThree();
    EXPECT_TRUE(tile.IsPlaying());
    EXPECT_FALSE(tile.IsTicking());
    tile.EnableImagePlay(true);
    EXPECT_TRUE(tile.IsTicking());
    tile.SetImage(nullptr, 0, 0, 0, 100);
    EXPECT_FALSE(tile.IsPlaying());
    EXPECT_TRUE(tile.IsTicking());
    tile.EnableImagePlay(true);
    EXPECT_FALSE(tile.IsTicking()) << "there is nothing to play";
    CLQSurfHandle still = Block(5, 5, {0, 0, 0, 255});
    tile.SetThumbNail(still);
    PlayThree();
    EXPECT_FALSE(tile.IsPlaying());
    EXPECT_FALSE(tile.IsTicking());
}

/// A pattern, the frame that plays, and the file that it names; empty for none.
struct Naming {
    std::wstring pattern;
    int frame;
    std::string file;
};

class MenuItemNames : public MenuItemSequence {
  protected:
    bool ShowsFrame(const std::wstring& pattern, int frame) {
        tile.SetImage(pattern.c_str(), frame + 1, kFrameWidth, kFrameHeight, 1000);
        for (int i = 0; i < frame; ++i)
            tile.OnRefreshTimer(nullptr, 0);
        return Shown() == 1;
    }
};

TEST_F(MenuItemNames, NumberFramesAsTheirPatternSays) {
    for (const Naming& naming : {
             Naming{L"a%d.lqi", 0, "a1.lqi"},
             Naming{L"b%d.lqi", 11, "b12.lqi"},
             Naming{L"c%i_%u.lqi", 11, "c12_11.lqi"},
             Naming{L"d%2$d.lqi", 0, "d0.lqi"},
             Naming{L"e%2$d_%1$d.lqi", 11, "e11_12.lqi"},
             Naming{L"f%1$d_%1$d_%2$d_%1$02d.lqi", 4, "f5_5_4_05.lqi"},
             Naming{L"g%03d.lqi", 6, "g007.lqi"},
             Naming{L"h%5d.lqi", 6, "h    7.lqi"},
             Naming{L"i%-3dx.lqi", 6, "i7  x.lqi"},
             Naming{L"j%+d.lqi", 6, "j+7.lqi"},
             Naming{L"k%.4d.lqi", 6, "k0007.lqi"},
             Naming{L"l%x_%X.lqi", 26, "l1b_1A.lqi"},
             Naming{L"m%o.lqi", 8, "m11.lqi"},
             Naming{L"n%#x.lqi", 9, "n0xa.lqi"},
             Naming{L"o%ld_%hd.lqi", 6, "o7_6.lqi"},
             Naming{L"p%%%d%%.lqi", 6, "p%7%.lqi"},
             Naming{L"q.lqi", 3, "q.lqi"},
             Naming{L"r%.0d%.0d.lqi", 0, "r1.lqi"},
         }) {
        WriteFrame(naming.file, ColorOf(1));
        EXPECT_TRUE(ShowsFrame(naming.pattern, naming.frame)) << naming.file;
    }
}

TEST_F(MenuItemNames, NameNoFileByAnythingButTwoIntegers) {
    // The files that some of them would name with the number counted from 0 in place of what is missing.
    for (const char* name : {"100.lqi", "0.lqi", "1", "10"})
        WriteFrame(name, ColorOf(1));
    for (const wchar_t* pattern : {L"%s",
                                   L"%ls.lqi",
                                   L"%S",
                                   L"%n",
                                   L"%d%n",
                                   L"%c.lqi",
                                   L"%p",
                                   L"%f",
                                   L"%e",
                                   L"%g",
                                   L"%a",
                                   L"%d%d%d.lqi",
                                   L"%*d.lqi",
                                   L"%.*d",
                                   L"%3$d.lqi",
                                   L"%0$d",
                                   L"%1$s",
                                   L"%",
                                   L"%d%",
                                   L"%5",
                                   L"%-",
                                   L"%.",
                                   L"%l",
                                   L"%1$",
                                   L"%9999999999999999999999d",
                                   L"%.9999999999999999999999d",
                                   L"%260d",
                                   L"%0999d",
                                   L"%----------------d",
                                   L"%1000d",
                                   L"%j",
                                   L"%zd",
                                   L"%\x7F",
                                   L"",
                                   L"% ",
                                   L"%s%s%s%s%s%s%s%s%s%s%s%s"}) {
        EXPECT_FALSE(ShowsFrame(pattern, 0)) << testing::PrintToString(std::wstring(pattern));
    }
    tile.SetImage(nullptr, 3, kFrameWidth, kFrameHeight, 100);
    EXPECT_EQ(Shown(), -1);
}

TEST_F(MenuItemNames, HaveAtMost259Characters) {
    // \<200 times a>\<n times b>1.lqi
    const std::string folder(200, 'a');
    std::filesystem::create_directory(scene.DeviceFolder() / folder);
    const auto pattern = [&folder](std::size_t count) {
        return L"\\" + std::wstring(folder.begin(), folder.end()) + L"\\" + std::wstring(count, L'b') +
               L"%d.lqi";
    };
    CLQSurfHandle frame = Block(kFrameWidth, kFrameHeight, ColorOf(1));
    WriteImage(scene.DeviceFolder() / folder / (std::string(51, 'b') + "1.lqi"), frame);
    ASSERT_EQ(pattern(51).size() - 1, 258u);
    EXPECT_TRUE(ShowsFrame(pattern(51), 0));
    WriteImage(scene.DeviceFolder() / folder / (std::string(52, 'b') + "1.lqi"), frame);
    EXPECT_TRUE(ShowsFrame(pattern(52), 0));
    WriteImage(scene.DeviceFolder() / folder / (std::string(53, 'b') + "1.lqi"), frame);
    WriteImage(scene.DeviceFolder() / folder / (std::string(53, 'b') + "1.lq"), frame);
    EXPECT_FALSE(ShowsFrame(pattern(53), 0)) << "also not by its first 259 characters";
    EXPECT_FALSE(ShowsFrame(std::wstring(100000, L'c'), 0));
    EXPECT_FALSE(ShowsFrame(std::wstring(258, L'c') + L"%d", 9)) << "the number does not fit";
}

}  // namespace
}  // namespace korvane::test
