#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "controls/parts/SwitchListLayout.h"
#include "engine/text/LangManager.h"
#include "engine/window/Screen.h"
#include "engine/window/Window.h"
#include "platform/Files.h"

#include "tests/controls/Touches.h"
#include "tests/controls/items/TestSwitchList.h"

namespace korvane::test {
namespace {

constexpr _LQColor kBlack = {0, 0, 0, 255};

CLQFont* SizedFont(int width, int height) {
    CLQFont* const font = CLQFontManager::GetInstance()->GetDefaultFont();
    font->SetFontSize(width, height);
    return font;
}

int TextWidth(const std::wstring& text, int width, int height) {
    return SizedFont(width, height)->GetStringWidth(text.c_str(), false);
}

/// Paints by hand what a list is expected to look like. Offsets count from the list's top-left corner.
class Drawing {
  public:
    Drawing() : canvas_(ListCanvas()) {}

    Drawing& Icon(CLQSurfHandle icon, int y) {
        return Block(icon, y, icon.GetWidth(), icon.GetHeight(), 0, 0);
    }

    Drawing& Block(CLQSurfHandle picture, int y, int width, int height, int sourceX, int sourceY) {
        canvas_.BitBlt(picture, kListX, kListY + y, width, height, sourceX, sourceY);
        return *this;
    }

    /// A caption of that font size at the bottom of an icon, from `x` on.
    Drawing& Caption(const std::wstring& text, int size, int x, int iconY, int iconWidth, int iconHeight,
                     _LQColor color = kBlack) {
        CLQFont* const font = SizedFont(size, size);
        int width = 0;
        int height = 0;
        font->GetStringSize(text.c_str(), width, height, false);
        _LQRect clip;
        clip.left = kListX;
        clip.right = kListX + iconWidth;
        clip.top = kListY + iconY;
        clip.bottom = kListY + iconY + iconHeight;
        canvas_.DrawTextW(text.c_str(), font, kListX + x, kListY + iconY + iconHeight - height, 0, color,
                          &clip, iconWidth);
        return *this;
    }

    std::vector<std::uint32_t> Pixels() const { return PixelsOf(canvas_); }

  private:
    CLQSurfHandle canvas_;
};

/// What is painted without a window.
class SwitchListPaint : public testing::Test {
  protected:
    SwitchListPaint() { list.Prepare(icons); }

    /// The icons of a page, `first` on top, as they look without captions.
    Drawing Page(int first) {
        Drawing drawing;
        for (int cell = 0; cell < kCells; ++cell)
            drawing.Icon(Normal(first + cell), cell * kCellHeight);
        return drawing;
    }

    CLQSurfHandle Normal(int item) { return icons.normal.surfaces[static_cast<std::size_t>(item)]; }
    CLQSurfHandle Focus(int item) { return icons.focus.surfaces[static_cast<std::size_t>(item)]; }
    CLQSurfHandle Active(int item) { return icons.active.surfaces[static_cast<std::size_t>(item)]; }
    CLQSurfHandle Disabled(int item) { return icons.disabled.surfaces[static_cast<std::size_t>(item)]; }

    void SetTexts(std::vector<std::wstring> texts) { list.SetText(texts); }
    void SetNormal(std::vector<CLQSurfHandle*> normal) { list.SetIconNormalSurf(normal); }

    Scene scene;
    ListIcons icons;
    TestSwitchList list;
};

TEST_F(SwitchListPaint, StacksTheNormalIconsOfThePage) {
    EXPECT_EQ(LooksOf(list), Page(0).Pixels());
    list.SetPageDown(true);
    EXPECT_EQ(LooksOf(list), Page(5).Pixels());
}

TEST_F(SwitchListPaint, StaysOnTheFirstPageWhenAllIconsFit) {
    std::vector<CLQSurfHandle*> normal = icons.normal.Borrow();
    normal.resize(6);
    list.SetIconNumPrePage(3);
    list.SetPageDown(true);
    Drawing second;
    for (int cell = 0; cell < 3; ++cell)
        second.Icon(Normal(3 + cell), cell * kCellHeight);
    SetNormal(normal);
    EXPECT_EQ(LooksOf(list), second.Pixels()) << "six icons need two pages of three";

    list.SetIconNumPrePage(6);
    Drawing first;
    for (int cell = 0; cell < 6; ++cell)
        first.Icon(Normal(cell), cell * kCellHeight);
    EXPECT_EQ(LooksOf(list), first.Pixels()) << "exactly one page";
}

TEST_F(SwitchListPaint, ShowsTheSelectedItemByItsFocusIcon) {
    list.SetFouceIndex(2);
    EXPECT_EQ(LooksOf(list), Drawing()
                                 .Icon(Normal(0), 0)
                                 .Icon(Normal(1), 40)
                                 .Icon(Focus(2), 80)
                                 .Icon(Normal(3), 120)
                                 .Icon(Normal(4), 160)
                                 .Pixels());
    list.SetPageDown(true);
    EXPECT_EQ(LooksOf(list), Page(5).Pixels()) << "the item is on the other page";
    list.SetFouceIndex(5);
    EXPECT_EQ(LooksOf(list), Drawing()
                                 .Icon(Focus(5), 0)
                                 .Icon(Normal(6), 40)
                                 .Icon(Normal(7), 80)
                                 .Icon(Normal(8), 120)
                                 .Icon(Normal(9), 160)
                                 .Pixels());
}

TEST_F(SwitchListPaint, ShowsTheTouchedItemByItsActiveIconEvenIfItIsSelected) {
    list.SetFouceIndex(1);
    Press(list, kListX + 5, CellY(1));
    Drawing pressed;
    pressed.Icon(Normal(0), 0).Icon(Active(1), 40);
    pressed.Icon(Normal(2), 80).Icon(Normal(3), 120).Icon(Normal(4), 160);
    EXPECT_EQ(LooksOf(list), pressed.Pixels());
    list.DropPress();
    list.SetFouceIndex(-1);
    EXPECT_EQ(LooksOf(list), Page(0).Pixels());
}

TEST_F(SwitchListPaint, ShowsDisabledIconsInTheSizeOfTheFocusIcons) {
    list.SetFouceIndex(1);
    list.SetDisable(true);
    Drawing disabled;
    for (int cell = 0; cell < kCells; ++cell)
        disabled.Block(Disabled(cell), cell * kCellHeight, 56, 38, 0, 0);
    EXPECT_EQ(LooksOf(list), disabled.Pixels());
}

TEST_F(SwitchListPaint, ShowsDisabledItemsThatHaveAFocusIconOnly) {
    std::vector<CLQSurfHandle*> focus = icons.focus.Borrow();
    CLQSurfHandle empty;
    focus[1] = nullptr;
    focus[3] = &empty;
    list.SetIconFocusSurf(focus);
    std::vector<CLQSurfHandle*> disabled = icons.disabled.Borrow();
    disabled[0] = nullptr;
    disabled[4] = &empty;
    list.SetIconDisableSurf(disabled);
    list.SetDisable(true);
    SetTexts({L"A", L"B", L"C", L"D", L"E"});
    const auto middle = [](const wchar_t* text) { return (kListWidth - TextWidth(text, 15, 15)) / 2; };
    EXPECT_EQ(LooksOf(list), Drawing()
                                 .Caption(L"A", 15, middle(L"A"), 0, 56, 38)
                                 .Block(Disabled(2), 80, 56, 38, 0, 0)
                                 .Caption(L"C", 15, middle(L"C"), 80, 56, 38)
                                 .Caption(L"E", 15, middle(L"E"), 160, 56, 38)
                                 .Pixels());
}

TEST_F(SwitchListPaint, LeavesACellWithoutAnIconFree) {
    std::vector<CLQSurfHandle*> focus = icons.focus.Borrow();
    CLQSurfHandle empty;
    focus[1] = nullptr;
    list.SetIconFocusSurf(focus);
    list.SetFouceIndex(1);
    SetTexts({L"", L"Radio"});
    Drawing gap;
    gap.Icon(Normal(0), 0).Icon(Normal(2), 80).Icon(Normal(3), 120).Icon(Normal(4), 160);
    EXPECT_EQ(LooksOf(list), gap.Pixels()) << "its height is the normal icon's, and it has no caption";
    focus[1] = &empty;
    list.SetIconFocusSurf(focus);
    EXPECT_EQ(LooksOf(list), gap.Pixels());
}

TEST_F(SwitchListPaint, GivesNoHeightToACellWithoutANormalIcon) {
    std::vector<CLQSurfHandle*> normal = icons.normal.Borrow();
    CLQSurfHandle empty;
    normal[0] = nullptr;
    normal[2] = &empty;
    SetNormal(normal);
    EXPECT_EQ(LooksOf(list), Drawing().Icon(Normal(1), 0).Icon(Normal(3), 40).Icon(Normal(4), 80).Pixels());
    list.SetFouceIndex(0);
    EXPECT_EQ(
        LooksOf(list),
        Drawing().Icon(Focus(0), 0).Icon(Normal(1), 0).Icon(Normal(3), 40).Icon(Normal(4), 80).Pixels());
}

TEST_F(SwitchListPaint, StacksByTheNormalIconsWhateverElseShows) {
    IconSet low(kItems, 30, 24, 50);
    SetNormal(low.Borrow());
    list.SetFouceIndex(1);
    Drawing drawing;
    drawing.Icon(low.surfaces[0], 0).Icon(Focus(1), 24);
    drawing.Icon(low.surfaces[2], 48).Icon(low.surfaces[3], 72).Icon(low.surfaces[4], 96);
    EXPECT_EQ(LooksOf(list), drawing.Pixels());
}

TEST_F(SwitchListPaint, PutsCaptionsOnTheLowerEdgeOfTheIconsInTheMiddleOfTheList) {
    SetTexts({L"FM", L"", L"USB"});
    const int fm = (kListWidth - TextWidth(L"FM", 15, 15)) / 2;
    const int usb = (kListWidth - TextWidth(L"USB", 15, 15)) / 2;
    EXPECT_EQ(LooksOf(list),
              Page(0).Caption(L"FM", 15, fm, 0, 60, 40).Caption(L"USB", 15, usb, 80, 60, 40).Pixels());
    list.SetFontSize(20, 20);
    const int larger = (kListWidth - TextWidth(L"FM", 20, 20)) / 2;
    EXPECT_EQ(LooksOf(list),
              Page(0)
                  .Caption(L"FM", 20, larger, 0, 60, 40)
                  .Caption(L"USB", 20, (kListWidth - TextWidth(L"USB", 20, 20)) / 2, 80, 60, 40)
                  .Pixels());
}

TEST_F(SwitchListPaint, CountsCaptionsThroughBothPages) {
    SetTexts({L"0", L"1", L"2", L"3", L"4", L"5", L"6"});
    list.SetPageDown(true);
    const auto middle = [](const wchar_t* text) { return (kListWidth - TextWidth(text, 15, 15)) / 2; };
    EXPECT_EQ(LooksOf(list), Page(5)
                                 .Caption(L"5", 15, middle(L"5"), 0, 60, 40)
                                 .Caption(L"6", 15, middle(L"6"), 40, 60, 40)
                                 .Pixels());
}

TEST_F(SwitchListPaint, WritesCaptionsInTheColourOfTheLook) {
    _LQColor red = {255, 0, 0, 255};
    _LQColor green = {0, 255, 0, 255};
    _LQColor blue = {0, 0, 255, 255};
    _LQColor white = {255, 255, 255, 255};
    list.SetTextColor(eTextColor_Normal, red);
    list.SetTextColor(eTextColor_Active, green);
    list.SetTextColor(eTextColor_Focus, blue);
    list.SetTextColor(eTextColor_Disable, white);
    SetTexts({L"A", L"B", L"C"});
    list.SetFouceIndex(1);
    Press(list, kListX + 5, CellY(2));
    const auto middle = [](const wchar_t* text) { return (kListWidth - TextWidth(text, 15, 15)) / 2; };
    Drawing looks;
    looks.Icon(Normal(0), 0).Icon(Focus(1), 40).Icon(Active(2), 80).Icon(Normal(3), 120).Icon(Normal(4), 160);
    looks.Caption(L"A", 15, middle(L"A"), 0, 60, 40, red).Caption(L"B", 15, middle(L"B"), 40, 56, 38, blue);
    EXPECT_EQ(LooksOf(list), looks.Caption(L"C", 15, middle(L"C"), 80, 64, 36, green).Pixels());

    list.SetDisable(true);
    Drawing disabled;
    for (int cell = 0; cell < kCells; ++cell)
        disabled.Block(Disabled(cell), cell * kCellHeight, 56, 38, 0, 0);
    disabled.Caption(L"A", 15, middle(L"A"), 0, 56, 38, white)
        .Caption(L"B", 15, middle(L"B"), 40, 56, 38, white);
    EXPECT_EQ(LooksOf(list), disabled.Caption(L"C", 15, middle(L"C"), 80, 56, 38, white).Pixels());
}

TEST_F(SwitchListPaint, SetsOneColourAllOrNone) {
    for (std::size_t slot = 0; slot < 4; ++slot) {
        const _LQColor& color = list.Color(slot);
        EXPECT_EQ((std::vector<int>{color.r, color.g, color.b, color.a}), (std::vector<int>{0, 0, 0, 255}));
    }
    _LQColor rose = {255, 120, 160, 200};
    list.SetTextColor(eTextColor_Focus, rose);
    const auto reds = [this] {
        return std::vector<int>{list.Color(0).r, list.Color(1).r, list.Color(2).r, list.Color(3).r};
    };
    EXPECT_EQ(reds(), (std::vector<int>{0, 0, 255, 0}));
    for (const int none : {5, 7, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        list.SetTextColor(static_cast<_eTextColorType>(none), rose);
        EXPECT_EQ(reds(), (std::vector<int>{0, 0, 255, 0})) << none;
    }
    list.SetTextColor(eTextColor_All, rose);
    EXPECT_EQ(reds(), (std::vector<int>{255, 255, 255, 255}));
    EXPECT_EQ(list.Color(3).a, 200);
}

class SwitchListCaption : public SwitchListPaint {
  protected:
    /// The list as wide as given and its first caption, which starts at `x` in that size.
    void ExpectSize(int listWidth, int size, int x) {
        list.SetSize(listWidth, kListHeight);
        EXPECT_EQ(LooksOf(list), Page(0).Caption(text, size, x, 0, 60, 40).Pixels())
            << "list of " << listWidth << ", size " << size;
    }

    SwitchListCaption() { SetTexts({text}); }

    const std::wstring text = L"Navigation";
};

TEST_F(SwitchListCaption, ShrinksStepByStepUntilItIsNarrowerThanTheList) {
    for (int size = 15; size > 10; --size) {
        const int width = TextWidth(text, size, size);
        ASSERT_GT(width, TextWidth(text, size - 1, size - 1) + 1) << "each size has a width of its own";
        ExpectSize(width + 1, size, 0);
        ExpectSize(width, size - 1, (width - TextWidth(text, size - 1, size - 1)) / 2);
    }
}

TEST_F(SwitchListCaption, StartsAtTheLeftEdgeWhenItIsTooWideInSizeTen) {
    const int width = TextWidth(text, 10, 10);
    ExpectSize(width + 1, 10, 0);
    ExpectSize(width, 10, 0);
    ExpectSize(width / 2, 10, 0);
    ExpectSize(0, 10, 0);
}

TEST_F(SwitchListCaption, KeepsASizeThatIsTenOrLess) {
    for (const int size : {10, 9, 4, 1}) {
        list.SetFontSize(size, size);
        ExpectSize(3, size, 0);
    }
}

TEST_F(SwitchListCaption, ShrinksEachCaptionFromItsOwnSize) {
    const std::wstring small = L"FM";
    SetTexts({text, small});
    const int width = TextWidth(text, 12, 12) + 1;
    list.SetSize(width, kListHeight);
    EXPECT_EQ(LooksOf(list), Page(0)
                                 .Caption(text, 12, 0, 0, 60, 40)
                                 .Caption(small, 15, (width - TextWidth(small, 15, 15)) / 2, 40, 60, 40)
                                 .Pixels());
}

TEST_F(SwitchListCaption, ShrinksWidthAndHeightAlikeUntilTheSmallerOneIsTen) {
    list.SetFontSize(16, 12);
    list.SetSize(20, kListHeight);
    LooksOf(list);
    int width = 0;
    int height = 0;
    CLQFontManager::GetInstance()->GetDefaultFont()->GetFontSize(width, height);
    EXPECT_EQ(width, 14);
    EXPECT_EQ(height, 10);
}

TEST_F(SwitchListCaption, IsCutToItsIcon) {
    SetTexts({L"Wireless speakers"});
    list.SetFontSize(30, 60);
    list.SetSize(30, kListHeight);
    const auto pixels = LooksOf(list);
    const auto plain = Page(0).Pixels();
    constexpr int kCanvasWidth = 160;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const int x = static_cast<int>(i) % kCanvasWidth - kListX;
        const int y = static_cast<int>(i) / kCanvasWidth - kListY;
        if (x < 0 || x >= 60 || y < 0 || y >= 40) {
            ASSERT_EQ(pixels[i], plain[i]) << x << ", " << y;
        }
    }
    EXPECT_NE(pixels, plain);
}

TEST_F(SwitchListCaption, TakesAnySizeInNoTime) {
    constexpr int kHuge = std::numeric_limits<int>::max();
    list.SetSize(1, kListHeight);
    for (const int size : {kHuge, 600, -kHuge, 0}) {
        list.SetFontSize(size, size);
        LooksOf(list);
        list.SetFontSize(size, 20);
        LooksOf(list);
    }
    list.SetFontSize(kHuge, kHuge);
    ExpectSize(1, 10, 0);
}

TEST_F(SwitchListCaption, IsNotWrittenWithoutAFont) {
    list.SetListFont(nullptr);
    EXPECT_EQ(LooksOf(list), Page(0).Pixels());
}

class SwitchListBackground : public SwitchListPaint {
  protected:
    /// Vertical and horizontal stripes, so that each pixel shows where it comes from.
    CLQSurfHandle WriteBackground(int width, int height) {
        CLQSurfHandle picture = NewPicture(width, height, {20, 60, 80, 255});
        for (int i = 0; i < width || i < height; i += 4) {
            _LQColor color = {static_cast<unsigned char>(i), 200, 0, 255};
            picture.FillRect(i, 0, i + 1, height, color, false);
            picture.FillRect(0, i, width, i + 1, color, false);
        }
        WriteImage(scene.ImageFolder() / "Background.lqi", picture);
        list.SetBkgSurf(nullptr);
        list.SetBkgSurf(L"Background.lqi");
        list.SetIconNumPrePage(0);
        return picture;
    }
};

TEST_F(SwitchListBackground, OfTheListsSizeCoversIt) {
    const CLQSurfHandle picture = WriteBackground(80, 200);
    EXPECT_EQ(LooksOf(list), Drawing().Block(picture, 0, 80, 200, 0, 0).Pixels());
}

TEST_F(SwitchListBackground, MovesUpByTheMarginsOfAWidePicture) {
    // 80 by 151 fits as it is and leaves 49 rows: 24 above.
    const CLQSurfHandle picture = WriteBackground(80, 151);
    EXPECT_EQ(LooksOf(list), Drawing().Block(picture, 0, 80, 127, 0, 24).Pixels());
    // 100 by 200 is scaled to 160 rows.
    const CLQSurfHandle wide = WriteBackground(100, 200);
    EXPECT_EQ(LooksOf(list), Drawing().Block(wide, 0, 80, 180, 0, 20).Pixels());
}

TEST_F(SwitchListBackground, MovesLeftByTheMarginsOfATallPicture) {
    // 61 by 200 leaves 19 columns: 9 on the left.
    const CLQSurfHandle picture = WriteBackground(61, 200);
    EXPECT_EQ(LooksOf(list), Drawing().Block(picture, 0, 52, 200, 9, 0).Pixels());
    // 60 by 300 is scaled to 40 columns.
    const CLQSurfHandle tall = WriteBackground(60, 300);
    EXPECT_EQ(LooksOf(list), Drawing().Block(tall, 0, 40, 200, 20, 0).Pixels());
}

TEST_F(SwitchListBackground, LiesBelowTheIcons) {
    const CLQSurfHandle picture = WriteBackground(80, 200);
    list.SetIconNumPrePage(kCells);
    Drawing drawing;
    drawing.Block(picture, 0, 80, 200, 0, 0);
    for (int cell = 0; cell < kCells; ++cell)
        drawing.Icon(Normal(cell), cell * kCellHeight);
    EXPECT_EQ(LooksOf(list), drawing.Pixels());
}

TEST_F(SwitchListBackground, IsReadAnewWhenItIsNamedAgain) {
    WriteBackground(80, 200);
    WriteImage(scene.ImageFolder() / "Background.lqi", icons.focus.surfaces[3]);
    list.SetSize(56, 38);
    list.SetBkgSurf(L"Background.lqi");
    EXPECT_EQ(LooksOf(list), Drawing().Icon(Focus(3), 0).Pixels());
}

TEST_F(SwitchListBackground, OfAMissingFileIsNone) {
    WriteBackground(80, 200);
    list.SetBkgSurf(L"Missing.lqi");
    EXPECT_EQ(LooksOf(list), Drawing().Pixels());
}

TEST_F(SwitchListPaint, ShowsNoIconsWithoutCells) {
    for (const int count : {0, -1, std::numeric_limits<int>::min()}) {
        list.SetIconNumPrePage(count);
        list.SetPageDown(true);
        EXPECT_EQ(LooksOf(list), Drawing().Pixels()) << count;
    }
}

TEST_F(SwitchListPaint, ShowsNothingAsANewList) {
    TestSwitchList fresh;
    EXPECT_EQ(fresh.GetKind(), 54);
    EXPECT_EQ(fresh.Focus(), -1);
    EXPECT_EQ(fresh.Touched(), -1);
    EXPECT_FALSE(fresh.IsPageDown());
    EXPECT_EQ(LooksOf(fresh), Drawing().Pixels());
}

using SwitchListDeathTest = SwitchListPaint;

TEST_F(SwitchListDeathTest, EndsTheProgramWhenAPageHasTooFewIcons) {
    std::vector<CLQSurfHandle*> few = icons.normal.Borrow();
    few.resize(4);
    SetNormal(few);
    EXPECT_DEATH(LooksOf(list), "^CLQSwitchList::Draw: invalid parameter: index 4 of 4 elements\n$");
    few = icons.normal.Borrow();
    few.resize(9);
    SetNormal(few);
    LooksOf(list);
    list.SetPageDown(true);
    EXPECT_DEATH(LooksOf(list), "index 9 of 9 elements");
    SetNormal({});
    EXPECT_DEATH(LooksOf(list), "index 0 of 0 elements");
}

TEST_F(SwitchListDeathTest, EndsTheProgramWhenALookThatIsPaintedHasTooFewIcons) {
    std::vector<CLQSurfHandle*> few = icons.active.Borrow();
    few.resize(2);
    list.SetIconActiveSurf(few);
    LooksOf(list);
    Press(list, kListX + 5, CellY(2));
    EXPECT_DEATH(LooksOf(list), "index 2 of 2 elements");
    list.DropPress();
    list.SetFouceIndex(3);
    list.SetIconFocusSurf(few);
    EXPECT_DEATH(LooksOf(list), "index 3 of 2 elements");
    list.SetFouceIndex(-1);
    LooksOf(list);
    list.SetDisable(true);
    EXPECT_DEATH(LooksOf(list), "index 2 of 2 elements") << "focus icons";
    few = icons.focus.Borrow();
    list.SetIconFocusSurf(few);
    few.clear();
    list.SetIconDisableSurf(few);
    EXPECT_DEATH(LooksOf(list), "index 0 of 0 elements") << "disabled icons";
}

TEST(SwitchListLayout, CentresAPictureAsItWouldLieAfterScaling) {
    struct Case {
        int width, height, areaWidth, areaHeight, x, y;
    };
    constexpr int kMax = std::numeric_limits<int>::max();
    for (const Case& c : {
             Case{10, 10, 100, 100, 0, 0},
             Case{10, 5, 100, 100, 0, 25},
             Case{5, 10, 100, 100, 25, 0},
             Case{30, 10, 100, 100, 0, 33},  // 33 rows of 100
             Case{10, 30, 100, 100, 33, 0},
             Case{200, 100, 50, 51, 0, 13},
             Case{100, 200, 51, 50, 13, 0},
             Case{7, 3, 70, 30, 0, 0},
             Case{10, 10, 0, 0, 0, 0},
             Case{0, 0, 10, 10, 0, 0},
             Case{0, 10, 9, 9, 4, 0},
             Case{10, 0, 9, 9, 0, 4},
             Case{kMax, 1, kMax, kMax, 0, kMax / 2},
         }) {
        const switch_list::Offset offset =
            switch_list::CenterFitted(c.width, c.height, c.areaWidth, c.areaHeight);
        EXPECT_EQ(offset.x, c.x) << c.width << " by " << c.height;
        EXPECT_EQ(offset.y, c.y) << c.width << " by " << c.height;
    }
}

TEST(SwitchListLayout, CountsItemsAlsoAboveTheFirstCellOfAPage) {
    EXPECT_EQ(switch_list::ItemAt(-39, 200, 5, false), 0);
    EXPECT_EQ(switch_list::ItemAt(-40, 200, 5, false), -1);
    EXPECT_EQ(switch_list::ItemAt(-39, 200, 5, true), 5);
    EXPECT_EQ(switch_list::ItemAt(-40, 200, 5, true), 4);
}

TEST(SwitchListLayout, SwitchesPagesAtEachLastCell) {
    EXPECT_TRUE(switch_list::IsPageSwitch(4, 5));
    EXPECT_TRUE(switch_list::IsPageSwitch(9, 5));
    EXPECT_FALSE(switch_list::IsPageSwitch(5, 5));
    EXPECT_FALSE(switch_list::IsPageSwitch(0, 5));
    EXPECT_TRUE(switch_list::IsPageSwitch(0, 1));
    EXPECT_TRUE(switch_list::IsPageSwitch(-1, 5));
    EXPECT_TRUE(switch_list::IsPageSwitch(-1, 0));
    EXPECT_FALSE(switch_list::IsPageSwitch(3, 0));
    EXPECT_TRUE(switch_list::IsPageSwitch(std::numeric_limits<int>::max(), 2));
    EXPECT_TRUE(switch_list::IsPageSwitch(std::numeric_limits<int>::min(), -1));
}

/// A list in a window.
class SwitchListInAWindow : public SwitchListPaint {
  protected:
    SwitchListInAWindow() {
        _LQColor navy = {16, 32, 72, 255};
        window.Create(0, 0, 800, 480);
        window.EnableBkgColor(true, &navy);
        window.AddChild(&list);
        scene.Pump();
    }

    CLQWindow window;
};

TEST_F(SwitchListInAWindow, PaintsOnlyWhenItIsMarked) {
    CLQSurfHandle canvas = ListCanvas();
    const auto before = PixelsOf(canvas);
    EXPECT_FALSE(list.IsNeedRedraw());
    list.Draw(canvas);
    EXPECT_EQ(PixelsOf(canvas), before);
    list.Invalidate();
    list.Draw(canvas);
    EXPECT_NE(PixelsOf(canvas), before);
    EXPECT_FALSE(list.IsNeedRedraw());
    list.SetIconNumPrePage(0);
    list.Invalidate();
    list.Draw(canvas);
    EXPECT_FALSE(list.IsNeedRedraw());
}

TEST_F(SwitchListInAWindow, RepaintsWhatChangedAsThoughItWereAll) {
    SetTexts(
        {L"Radio", L"Media", L"Navigation", L"Phone", L"More", L"TV", L"AUX 1", L"AUX 2", L"iPod", L"Back"});
    const auto check = [this](const char* what) {
        scene.Pump();
        const auto partial = scene.Pixels();
        scene.FillWithGarbage();
        CLQScreen::GetInstance()->InvalidateAll();
        scene.Pump();
        EXPECT_TRUE(partial == scene.Pixels()) << what;
    };
    check("as it is");
    list.SetFouceIndex(3);
    check("selected");
    scene.Press(kListX + 20, CellY(2));
    check("touched");
    scene.Release(kListX + 20, CellY(2));
    check("released");
    list.SetPageDown(true);
    check("second page");
    list.SetFontSize(30, 30);
    check("large captions");
    list.SetDisable(true);
    check("disabled");
    list.MoveTo(200, 60);
    check("moved");
}

TEST_F(SwitchListInAWindow, FollowsTheLanguage) {
    const auto write = [](const wchar_t* name, const std::string& texts) {
        const std::string table = "[language]\nname = Test\n[text]\n" + texts;
        ASSERT_TRUE(ReplaceFileAtomically(name, table.data(), table.size()));
    };
    write(L"\\one.lng", "7 = Radio\n9 = Phone\n");
    write(L"\\two.lng", "7 = Rundfunk\n8 = Medien\n");
    ASSERT_TRUE(CLQLangManager::GetInstance()->LoadLanguage(L"\\one.lng"));
    using Texts = std::vector<std::wstring>;
    SetTexts({L"Own"});
    EXPECT_EQ(list.Texts(), Texts{L"Own"});
    ASSERT_TRUE(CLQLangManager::GetInstance()->LoadLanguage(L"\\two.lng"));
    EXPECT_EQ(list.Texts(), Texts{L"Own"}) << "there are no identifiers";

    std::vector<int> ids = {7, 8, -1, 7};
    list.SetText(ids);
    EXPECT_EQ(list.Texts(), (Texts{L"Rundfunk", L"Medien", L"", L"Rundfunk"}));
    scene.Pump();
    ASSERT_TRUE(CLQLangManager::GetInstance()->LoadLanguage(L"\\one.lng"));
    EXPECT_EQ(list.Texts(), (Texts{L"Radio", L"", L"", L"Radio"}));
    EXPECT_TRUE(list.IsNeedRedraw());

    SetTexts({L"Own", L"texts"});
    EXPECT_EQ(list.Texts(), (Texts{L"Own", L"texts"}));
    ASSERT_TRUE(CLQLangManager::GetInstance()->LoadLanguage(L"\\two.lng"));
    EXPECT_EQ(list.Texts(), (Texts{L"Rundfunk", L"Medien", L"", L"Rundfunk"})) << "identifiers stay";
    ids.clear();
    list.SetText(ids);
    EXPECT_EQ(list.Texts(), Texts());
}

}  // namespace
}  // namespace korvane::test
