#include <fstream>

#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

class Static : public WidgetsTest {
  protected:
    Static() {
        label.Create(20, 20, 100, 50);
        window.AddChild(&label);
        scene.Pump();
    }

    void LoadLanguage(const std::string& text) {
        const auto folder = scene.DeviceFolder() / "NandFlash/Application/Resource/Language";
        std::filesystem::create_directories(folder);
        std::ofstream(folder / "test.lng", std::ios::binary) << "[language]\nname = Test\n[text]\n" << text;
        ASSERT_TRUE(CLQLangManager::GetInstance()->LoadLanguage(L"test.lng"));
    }
    int FirstRow() const {
        for (int y = 0; y < 100; ++y) {
            if (Marks(0, y, 200, y + 1) > 0)
                return y;
        }
        return -1;
    }
    int LastRow() const {
        for (int y = 99; y >= 0; --y) {
            if (Marks(0, y, 200, y + 1) > 0)
                return y;
        }
        return -1;
    }

    CLQStatic label;
};

TEST_F(Static, HasItsKindAndShowsNothingAtFirst) {
    EXPECT_EQ(label.GetKind(), kKindStatic);
    EXPECT_EQ(label.GetText(), L"");
    EXPECT_EQ(Marks(0, 0, 200, 100), 0);
}

TEST_F(Static, WritesItsTextTopLeft) {
    label.SetText(L"\u2588");
    scene.Pump();
    EXPECT_GT(Marks(20, 20, 45, 50), 0);
    EXPECT_EQ(Marks(45, 20, 200, 100), 0);
    EXPECT_EQ(Marks(0, 50, 200, 100), 0);
    EXPECT_EQ(Marks(0, 0, 20, 100), 0);
    EXPECT_EQ(Marks(0, 0, 200, 20), 0);
}

TEST_F(Static, CentresItsTextBothWaysWithStyle18) {
    label.SetText(L"o");
    label.SetTextStyle(18);
    scene.Pump();
    EXPECT_NEAR(FirstColumn(0, 0, 200, 100) + LastColumn(0, 0, 200, 100) + 1, 20 + 120, 3);
    EXPECT_NEAR(FirstRow() + LastRow() + 1, 20 + 70, 12);
}

TEST_F(Static, PlacesItsTextByEachFlag) {
    label.SetText(L"\u2588");
    label.SetTextStyle(eText_Right | eText_Bottom);
    scene.Pump();
    EXPECT_GT(LastColumn(0, 0, 200, 100), 112);
    EXPECT_LT(LastColumn(0, 0, 200, 100), 120);
    EXPECT_GT(FirstRow(), 35);
    EXPECT_LT(LastRow(), 70);
    label.SetTextStyle(eText_HCenter);
    scene.Pump();
    EXPECT_NEAR(FirstColumn(0, 0, 200, 100) + LastColumn(0, 0, 200, 100) + 1, 20 + 120, 4);
    EXPECT_LT(FirstRow(), 30);
}

TEST_F(Static, StartsATextThatIsTooWideAtTheLeftEdgeWhateverItsStyle) {
    label.SetText(L"\u2588 a text that is much too long for this label");
    int first = -1;
    for (const int style : {0, 1, 2, 3, 18}) {
        label.SetTextStyle(style);
        scene.Pump();
        const int column = FirstColumn(0, 0, 200, 100);
        if (first == -1)
            first = column;
        EXPECT_EQ(column, first) << style;
    }
    EXPECT_LT(first, 26);
}

TEST_F(Static, KeepsItsTextInsideItsRectangle) {
    label.SetFontSize(60, 90);
    label.SetText(L"MMMMMMMM");
    label.SetTextStyle(18);
    scene.Pump();
    EXPECT_GT(Marks(20, 20, 120, 70), 0);
    EXPECT_EQ(Marks(0, 0, 200, 100), Marks(20, 20, 120, 70));

    // Also without a window, whose repaint would cut it.
    CLQStatic loose(label);
    CLQSurfHandle target = Plain(200, 100, kBlack);
    loose.Draw(target);
    const std::vector<std::uint32_t> pixels = PixelsOf(target);
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 200; ++x) {
            if (x < 20 || x >= 120 || y < 20 || y >= 70) {
                ASSERT_EQ(pixels[y * 200 + x], kBlack) << x << ", " << y;
            }
        }
    }
}

TEST_F(Static, WritesInItsColour) {
    label.SetText(L"\u2588");
    _LQColor color = ColorOf(kGreen);
    label.SetTextColor(color);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(FirstColumn(0, 0, 200, 100) + 3, FirstRow() + 5), kGreen);
}

TEST_F(Static, WritesInItsFontSize) {
    label.SetText(L"M");
    label.SetFontSize(10, 10);
    scene.Pump();
    const int low = LastRow() - FirstRow();
    label.SetFontSize(30, 30);
    scene.Pump();
    EXPECT_GT(LastRow() - FirstRow(), 2 * low);
}

TEST_F(Static, KeepsItsFontSizeWhenAnotherControlUsesTheFont) {
    label.SetText(L"MMM");
    label.SetFontSize(10, 10);
    scene.Pump();
    const std::vector<std::uint32_t> before = scene.Pixels();
    CLQFontManager::GetInstance()->GetDefaultFont()->SetFontSize(40, 40);
    label.Invalidate();
    scene.Pump();
    EXPECT_EQ(scene.Pixels(), before);
}

TEST_F(Static, WritesInTheFaceThatIsNamedOrHandedOver) {
    label.SetText(L"\u4E0A\u5348 MMM");
    scene.Pump();
    const std::vector<std::uint32_t> inDefault = scene.Pixels();
    label.SetFont(CLQFontManager::GetInstance()->GetFont(L"msyh"));
    scene.Pump();
    const std::vector<std::uint32_t> inOther = scene.Pixels();
    EXPECT_NE(inOther, inDefault);
    label.SetFont(nullptr);
    scene.Pump();
    EXPECT_EQ(scene.Pixels(), inDefault);
    label.SetFontName(L"msyh");
    scene.Pump();
    EXPECT_EQ(scene.Pixels(), inOther);
    label.SetFontName(nullptr);
    scene.Pump();
    EXPECT_EQ(scene.Pixels(), inDefault);
}

TEST_F(Static, ShowsItsTextOverItsBackground) {
    MakeImage("bkg.lqi", 10, 10, kBlue);
    label.SetBkgSurf(L"bkg.lqi");
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(20, 20), kBlue);
    EXPECT_EQ(scene.PixelAt(29, 29), kBlue);
    EXPECT_EQ(scene.PixelAt(30, 29), kBlack);
    label.SetText(L"\u2588");
    scene.Pump();
    EXPECT_GT(Marks(30, 20, 60, 60), 0);
}

TEST_F(Static, LosesItsBackgroundToAnEmptyNameANullNameAndAnEmptyHandle) {
    MakeImage("bkg.lqi", 10, 10, kBlue);
    CLQSurfHandle none;
    label.SetBkgSurf(L"bkg.lqi");
    label.SetBkgSurf(L"");
    scene.Pump();
    EXPECT_EQ(Marks(0, 0, 200, 100), 0);
    label.SetBkgSurf(L"bkg.lqi");
    label.SetBkgSurf(static_cast<const wchar_t*>(nullptr));
    scene.Pump();
    EXPECT_EQ(Marks(0, 0, 200, 100), 0);
    label.SetBkgSurf(L"bkg.lqi");
    label.SetBkgSurf(none);
    scene.Pump();
    EXPECT_EQ(Marks(0, 0, 200, 100), 0);
}

TEST_F(Static, ShowsASurfaceThatIsHandedOverAsItsBackground) {
    CLQSurfHandle image = Plain(10, 10, kYellow);
    label.SetBkgSurf(image);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(20, 20), kYellow);
    // Handed over again after it was painted anew.
    _LQColor red = ColorOf(kRed);
    image.FillRect(0, 0, 10, 10, red, false);
    label.SetBkgSurf(image);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(20, 20), kRed);
    label.SetBkgSurf(L"");
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(20, 20), kBlack);
}

TEST_F(Static, RepaintsNothingWhenNothingChanges) {
    MakeImage("bkg.lqi", 10, 10, kBlue);
    label.SetText(L"Radio");
    label.SetBkgSurf(L"bkg.lqi");
    label.SetFontSize(16, 16);
    scene.Pump();
    CLQScreen::GetInstance()->ResetCounters();
    label.SetText(L"Radio");
    label.SetText(label.GetText().c_str());
    label.SetBkgSurf(L"bkg.lqi");
    label.SetFontSize(16, 16);
    label.SetFont(CLQFontManager::GetInstance()->GetDefaultFont());
    label.SetTextStyle(0);
    scene.Pump();
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0U);
}

TEST_F(Static, TakesATextThatLiesInsideItsOwn) {
    label.SetText(L"Radio");
    label.SetText(label.GetText().c_str() + 2);
    EXPECT_EQ(label.GetText(), L"dio");
    label.SetText(nullptr);
    EXPECT_EQ(label.GetText(), L"");
}

TEST_F(Static, PaintsItsOwnRectangleOnlyWhenItsTextChanges) {
    CLQScreen::GetInstance()->ResetCounters();
    label.SetText(L"a text that is much too long for this label");
    scene.Pump();
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paintedPixels, 100U * 50U);
}

TEST_F(Static, TakesItsTextFromTheLanguageTableAtOnceAndOnChange) {
    LoadLanguage("7 = Volume\n8 = Bass\n");
    label.SetLangID(7);
    EXPECT_EQ(label.GetText(), L"Volume");
    LoadLanguage("7 = Lautst\xC3\xA4rke\n");
    EXPECT_EQ(label.GetText(), L"Lautst\u00E4rke");
    label.SetLangID(9);
    EXPECT_EQ(label.GetText(), L"") << "the table has no such text";
}

TEST_F(Static, KeepsALiteralTextWhenTheLanguageChanges) {
    LoadLanguage("7 = Volume\n");
    label.SetLangID(7);
    label.SetLangID(0);
    EXPECT_EQ(label.GetText(), L"Volume");
    label.SetText(L"87.50");
    LoadLanguage("7 = Lautst\xC3\xA4rke\n");
    EXPECT_EQ(label.GetText(), L"87.50");
}

TEST_F(Static, CopiesItsTextAndLooks) {
    LoadLanguage("7 = Volume\n");
    label.SetLangID(7);
    CLQStatic copy(label);
    EXPECT_EQ(copy.GetText(), L"Volume");
    label.SetText(L"changed");
    EXPECT_EQ(copy.GetText(), L"Volume");
    CLQStatic assigned;
    assigned = copy;
    assigned = *&assigned;
    EXPECT_EQ(assigned.GetText(), L"Volume");
    const std::unique_ptr<CLQBaseCtrl> clone(copy.Clone());
    EXPECT_EQ(static_cast<CLQStatic*>(clone.get())->GetText(), L"Volume");
}

TEST_F(Static, LeavesTouchesToWhatLiesBelow) {
    _LQMessage press = Pointer(kMsgPress, 30, 30);
    EXPECT_FALSE(label.DoMessage(&press));
    EXPECT_FALSE(label.DoMessage(nullptr));
}

}  // namespace
}  // namespace korvane::test
