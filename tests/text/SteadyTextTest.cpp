#include <gtest/gtest.h>

#include "tests/support/AllocationCount.h"
#include "tests/text/TextCanvas.h"

namespace korvane::test {
namespace {

void DrawScreen(TextCanvas& canvas, CLQFont* font) {
    const wchar_t* const kTexts[] = {L"Traffic programme", L"\u8C03\u9891 FM",
                                     L"\u0645\u0631\u062D\u0628\u0627"};
    for (const wchar_t* text : kTexts) {
        font->SetFontSize(22, 22);
        canvas.Draw(text, font, 100 - Width(font, text) / 2, 5);
        font->SetFontSize(75, 75);
        canvas.Draw(text, font, 100, 5, 1);
    }
}

TEST(SteadyText, ARepeatedDrawingAllocatesNothing) {
    TextCanvas canvas;
    CLQFont* font = DefaultFont(20);
    DrawScreen(canvas, font);
    const int before = AllocationCount();
    for (int i = 0; i < 10; ++i)
        DrawScreen(canvas, font);
    EXPECT_EQ(AllocationCount(), before);
}

TEST(SteadyText, NumbersThatChangeAllocateNothingOnceEachDigitWasShown) {
    TextCanvas canvas;
    CLQFont* font = DefaultFont(24);
    canvas.Draw(L"0123456789.:", font, 0, 0);
    const int before = AllocationCount();
    wchar_t text[] = L"12:34.0000";
    for (int i = 0; i < 10000; ++i) {
        for (int digit = 9, rest = i; digit > 5; --digit, rest /= 10)
            text[digit] = static_cast<wchar_t>(L'0' + rest % 10);
        canvas.Draw(text, font, 300, 0, 1);
        Width(font, text);
    }
    EXPECT_EQ(AllocationCount(), before);
}

}  // namespace
}  // namespace korvane::test
