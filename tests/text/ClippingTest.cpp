#include <climits>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "tests/text/TextCanvas.h"

namespace korvane::test {
namespace {

constexpr int kWidth = 600;
constexpr int kHeight = 60;

/// What `whole` would be if everything outside the rectangle had been left alone.
std::vector<std::uint32_t> PartOf(const std::vector<std::uint32_t>& whole, const _LQRect& part) {
    std::vector<std::uint32_t> pixels(whole.size());
    for (int y = std::max(0, part.top); y < std::min(kHeight, part.bottom); ++y) {
        for (int x = std::max(0, part.left); x < std::min(kWidth, part.right); ++x) {
            const auto at = static_cast<std::size_t>(y * kWidth + x);
            pixels[at] = whole[at];
        }
    }
    return pixels;
}

/// A number, a line of several scripts, and one that is too long to be kept in one piece.
std::vector<std::wstring> Texts() {
    std::wstring longText;
    for (int i = 0; i < 200; ++i)
        longText += L"Wave \u0142";
    return {L"87.50 : 108.00", L"Za\u017C\u00F3\u0142\u0107 \u8C03\u9891 \u0645\u0631\u062D\u0628\u0627",
            longText};
}

TEST(TextClipping, AClippedTextIsAPartOfTheWholeText) {
    std::mt19937 random(7);
    const auto upTo = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    CLQFont* font = DefaultFont(28);
    for (const std::wstring& text : Texts()) {
        for (int i = 0; i < 100; ++i) {
            const int x = upTo(kWidth) - 100;
            const int y = upTo(kHeight) - 20;
            const int style = static_cast<int>(random() % 2);
            _LQRect clip;
            clip.left = upTo(kWidth) - 20;
            clip.right = clip.left + upTo(200);
            clip.top = upTo(kHeight) - 20;
            clip.bottom = clip.top + upTo(60);
            TextCanvas whole(kWidth, kHeight);
            whole.SetColor({200, 100, 50, 130});
            whole.Draw(text.c_str(), font, x, y, style);
            TextCanvas byArgument(kWidth, kHeight);
            byArgument.SetColor({200, 100, 50, 130});
            byArgument.Draw(text.c_str(), font, x, y, style, &clip);
            TextCanvas bySurface(kWidth, kHeight);
            bySurface.SetColor({200, 100, 50, 130});
            bySurface.Surface().GetSurface()->SetClip(&clip);
            bySurface.Draw(text.c_str(), font, x, y, style);
            const std::vector<std::uint32_t> expected = PartOf(whole.Pixels(), clip);
            ASSERT_EQ(byArgument.Pixels(), expected);
            ASSERT_EQ(bySurface.Pixels(), expected);
        }
    }
}

TEST(TextClipping, AWidthCutsTheTextThatManyPixelsAfterItsStart) {
    CLQFont* font = DefaultFont(24);
    for (const int style : {0, 1}) {
        TextCanvas whole;
        whole.Draw(L"Bluetooth", font, 200, 5, style);
        TextCanvas cut;
        cut.Draw(L"Bluetooth", font, 200, 5, style, nullptr, 50);
        const int start = style == 0 ? 200 : 200 - Width(font, L"Bluetooth");
        EXPECT_EQ(cut.Pixels(), PartOf(whole.Pixels(), {0, start + 50, 0, kHeight}));
        EXPECT_NE(cut.Pixels(), whole.Pixels());
    }
}

TEST(TextClipping, AWidthOf0OrBelowDoesNotCut) {
    CLQFont* font = DefaultFont(24);
    TextCanvas whole;
    whole.Draw(L"Bluetooth", font, 20, 5);
    for (const int width : {-1, INT_MIN, INT_MAX}) {
        TextCanvas uncut;
        uncut.Draw(L"Bluetooth", font, 20, 5, 0, nullptr, width);
        EXPECT_EQ(uncut.Pixels(), whole.Pixels());
    }
}

TEST(TextClipping, AnEmptyOrTurnedOverClipLetsNothingThrough) {
    _LQRect empty;
    _LQRect turnedOver{300, 20, 50, 10};
    for (_LQRect* clip : {&empty, &turnedOver}) {
        TextCanvas canvas;
        EXPECT_TRUE(canvas.Draw(L"Bluetooth", DefaultFont(24), 20, 5, 0, clip));
        EXPECT_TRUE(canvas.FindInk().IsEmpty());
    }
}

TEST(TextClipping, PositionsAtTheEndsOfIntDrawNothingAndAreSafe) {
    const int extremes[] = {INT_MIN, INT_MIN + 1, -100000, 100000, INT_MAX - 1, INT_MAX};
    _LQRect everything{INT_MIN, INT_MAX, INT_MIN, INT_MAX};
    for (const wchar_t* text : {L"Bluetooth", L"12:34"}) {
        for (const int x : extremes) {
            for (const int y : extremes) {
                for (const int style : {0, 1, -5, INT_MAX}) {
                    TextCanvas canvas(60, 30);
                    EXPECT_TRUE(canvas.Draw(text, DefaultFont(24), x, y, style, &everything, INT_MAX));
                    EXPECT_TRUE(canvas.FindInk().IsEmpty());
                }
            }
        }
    }
}

TEST(TextClipping, TheSurfacesOriginMovesTheText) {
    CLQFont* font = DefaultFont(24);
    TextCanvas plain;
    plain.Draw(L"Radio", font, 20, 5);
    TextCanvas moved;
    moved.Surface().GetSurface()->SetOrigin(1000, -300);
    moved.Draw(L"Radio", font, 1020, -295);
    EXPECT_EQ(moved.Pixels(), plain.Pixels());
    TextCanvas farAway;
    farAway.Surface().GetSurface()->SetOrigin(INT_MIN, INT_MIN);
    farAway.Draw(L"Radio", font, INT_MIN + 20, INT_MIN + 5);
    EXPECT_EQ(farAway.Pixels(), plain.Pixels());
    TextCanvas cut;
    cut.Surface().GetSurface()->SetOrigin(INT_MIN, INT_MIN);
    cut.Draw(L"Radio", font, INT_MIN, INT_MIN + 5);
    EXPECT_FALSE(cut.FindInk().IsEmpty());
}

}  // namespace
}  // namespace korvane::test
