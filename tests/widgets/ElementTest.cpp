#include <algorithm>
#include <fstream>

#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

class Element : public WidgetsTest {
  protected:
    Element() { father.Create(20, 10, 60, 40); }

    void LoadLanguage(const std::string& name, const std::string& text) {
        const auto folder = scene.DeviceFolder() / "NandFlash/Application/Resource/Language";
        std::filesystem::create_directories(folder);
        std::ofstream(folder / name, std::ios::binary) << "[language]\nname = Test\n[text]\n" << text;
        ASSERT_TRUE(
            CLQLangManager::GetInstance()->LoadLanguage(std::wstring(name.begin(), name.end()).c_str()));
    }

    CLQBaseCtrl father;
    CLQSurfHandle target = Plain(200, 100, kBlack);
};

std::uint32_t At(CLQSurfHandle surface, int x, int y) {
    return PixelsOf(surface)[static_cast<std::size_t>(y) * surface.GetWidth() + x];
}

/// Smallest rectangle around everything that is not black; right and bottom lie outside.
_LQRect Ink(CLQSurfHandle surface) {
    const std::vector<std::uint32_t> pixels = PixelsOf(surface);
    const int width = surface.GetWidth();
    _LQRect ink = {width, 0, surface.GetHeight(), 0};
    for (int i = 0; i < static_cast<int>(pixels.size()); ++i) {
        if (pixels[i] == kBlack)
            continue;
        ink.left = std::min(ink.left, i % width);
        ink.right = std::max(ink.right, i % width + 1);
        ink.top = std::min(ink.top, i / width);
        ink.bottom = std::max(ink.bottom, i / width + 1);
    }
    return ink;
}

TEST_F(Element, TellsItsType) {
    EXPECT_EQ(CLQImageElement().GetGUIElementType(), 0);
    EXPECT_EQ(CLQTextElement().GetGUIElementType(), 1);
}

TEST_F(Element, DrawsAnImageAtTheTopLeftCornerOfItsFather) {
    MakeImage("wide.lqi", 100, 10, kRed);
    CLQImageElement element;
    element.SetFatherCtrl(&father);
    EXPECT_TRUE(element.SetImage(0, L"wide.lqi"));
    element.Draw(target, eImage_Normal);
    const _LQRect ink = Ink(target);
    EXPECT_EQ(ink.left, 20);
    EXPECT_EQ(ink.right, 80) << "cut at the father's edge";
    EXPECT_EQ(ink.top, 10);
    EXPECT_EQ(ink.bottom, 20);
}

TEST_F(Element, DrawsInItsOwnRectangleRelativeToItsFather) {
    MakeImage("wide.lqi", 100, 10, kRed);
    CLQImageElement element;
    element.SetFatherCtrl(&father);
    element.SetImage(0, L"wide.lqi");
    element.SetRect(5, 6, 7, 8);
    element.Draw(target, eImage_Normal);
    const _LQRect ink = Ink(target);
    EXPECT_EQ(ink.left, 25);
    EXPECT_EQ(ink.right, 32);
    EXPECT_EQ(ink.top, 16);
    EXPECT_EQ(ink.bottom, 24);
}

TEST_F(Element, SetsTheImageOfEachStateByItsIndex) {
    MakeImage("n.lqi", 10, 10, kGreen);
    MakeImage("d.lqi", 10, 10, kYellow);
    CLQImageElement element;
    element.SetFatherCtrl(&father);
    EXPECT_TRUE(element.SetImage(0, L"n.lqi"));
    EXPECT_TRUE(element.SetImage(3, L"d.lqi"));
    EXPECT_FALSE(element.SetImage(4, L"d.lqi"));
    EXPECT_FALSE(element.SetImage(-1, L"d.lqi"));
    EXPECT_FALSE(element.SetImage(0, nullptr));
    element.Draw(target, 3);
    EXPECT_EQ(At(target, 25, 15), kYellow);
    for (const int state : {0, 1, 2, 4, -1, 1000}) {
        element.Draw(target, state);
        EXPECT_EQ(At(target, 25, 15), kGreen) << state;
        element.Draw(target, 3);
    }
}

TEST_F(Element, CentresItsTextInItsFather) {
    CLQTextElement element;
    element.SetFatherCtrl(&father);
    element.SetText(L"o");
    element.Draw(target, eImage_Normal);
    const _LQRect ink = Ink(target);
    ASSERT_LT(ink.left, ink.right);
    EXPECT_NEAR(ink.left + ink.right, 20 + 80, 3);
    EXPECT_NEAR(ink.top + ink.bottom, 10 + 50, 10);
}

TEST_F(Element, KeepsItsTextInsideItsRectangle) {
    CLQTextElement element;
    element.SetFatherCtrl(&father);
    element.SetText(L"MMMMMMMMMMMMMMMMMMMM");
    element.SetFontSize(40, 40);
    element.SetRect(10, 10, 30, 12);
    element.Draw(target, eImage_Normal);
    const _LQRect ink = Ink(target);
    ASSERT_LT(ink.left, ink.right);
    EXPECT_GE(ink.left, 30);
    EXPECT_LE(ink.right, 60);
    EXPECT_GE(ink.top, 20);
    EXPECT_LE(ink.bottom, 32);
}

TEST_F(Element, DrawsItsTextInTheColourOfTheState) {
    CLQTextElement element;
    element.SetFatherCtrl(&father);
    element.SetText(L"\u2588");  // a full block has solid pixels
    _LQColor all = ColorOf(kGreen);
    _LQColor pressed = ColorOf(kRed);
    element.SetTextColor(all);
    element.SetTextColor(eImage_Pressed, pressed);
    element.SetTextColor(static_cast<_eImageType>(9), pressed);
    element.Draw(target, eImage_Normal);
    EXPECT_EQ(At(target, 50, 30), kGreen);
    element.Draw(target, eImage_Pressed);
    EXPECT_EQ(At(target, 50, 30), kRed);
    element.Draw(target, 77);
    EXPECT_EQ(At(target, 50, 30), kGreen);
}

TEST_F(Element, DrawsNothingWithoutAFatherOrARectangle) {
    MakeImage("n.lqi", 10, 10, kGreen);
    CLQImageElement element;
    element.SetImage(0, L"n.lqi");
    element.Draw(target, 0);
    EXPECT_EQ(PixelsOf(target), PixelsOf(Plain(200, 100, kBlack)));
}

TEST_F(Element, ForgetsAFatherThatEnded) {
    CLQTextElement element;
    {
        CLQBaseCtrl shortLived;
        element.SetFatherCtrl(&shortLived);
        EXPECT_EQ(element.GetFatherCtrl(), &shortLived);
    }
    EXPECT_EQ(element.GetFatherCtrl(), nullptr);
    element.SetText(L"still alive");
    element.Draw(target, 0);
}

TEST_F(Element, ClonesItsLooksButNotItsFather) {
    CLQTextElement element;
    element.SetFatherCtrl(&father);
    element.SetText(L"Band");
    element.SetLangID(0);
    const std::unique_ptr<CLQGUIElement> clone(element.Clone());
    EXPECT_EQ(clone->GetFatherCtrl(), nullptr);
    EXPECT_EQ(static_cast<CLQTextElement*>(clone.get())->GetText(), L"Band");
}

TEST_F(Element, TakesItsTextFromTheLanguageTableAtOnceAndOnChange) {
    LoadLanguage("en.lng", "12 = Back\n");
    CLQTextElement element;
    element.SetLangID(12);
    EXPECT_EQ(element.GetLangID(), 12);
    EXPECT_EQ(element.GetText(), L"Back");
    LoadLanguage("de.lng",
                 "12 = Zur\xC3\xBC"
                 "ck\n");
    element.ChangeLanguage();
    EXPECT_EQ(element.GetText(),
              L"Zur\u00FC"
              L"ck");
}

TEST_F(Element, KeepsALiteralTextWhenTheLanguageChanges) {
    LoadLanguage("en.lng", "12 = Back\n");
    CLQTextElement element;
    element.SetLangID(12);
    element.SetLangID(0);
    EXPECT_EQ(element.GetText(), L"Back");
    element.SetText(L"Literal");
    element.ChangeLanguage();
    EXPECT_EQ(element.GetText(), L"Literal");
}

TEST_F(Element, OnAButtonFollowsTheLanguageOfTheWindow) {
    LoadLanguage("en.lng", "12 = Back\n");
    auto* button = new CLQButton;
    button->Create(0, 0, 50, 30);
    button->SetLangID(12);
    window.AddChild(button);
    auto* caption = static_cast<CLQTextElement*>(button->GetGUIElement(1));
    ASSERT_NE(caption, nullptr);
    EXPECT_EQ(caption->GetText(), L"Back");
    LoadLanguage("fr.lng", "12 = Retour\n");
    EXPECT_EQ(caption->GetText(), L"Retour");
    caption->SetLangID(13);
    button->ChangeLanguage();
    EXPECT_EQ(caption->GetText(), L"");
}

}  // namespace
}  // namespace korvane::test
