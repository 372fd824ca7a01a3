#include <fstream>

#include "engine/widgets/layout/CtrlFactory.h"

#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

/// Controls by themselves on their way into text and records and back.
class Layout : public WidgetsTest {
  protected:
    void WriteIni(const std::string& text) {
        std::ofstream(scene.DeviceFolder() / "layout.txt", std::ios::binary) << text;
        ini.SetFileName(L"\\layout.txt");
    }

    /// What a control keeps, as bytes.
    static std::vector<unsigned char> Kept(CLQBaseCtrl& ctrl) {
        CLQMemBlob blob;
        EXPECT_TRUE(ctrl.SaveCtrlToBin(blob, 0));
        return blob.ToBytes();
    }

    /// Text to records to text and again, into new controls each.
    void ExpectRoundTrip(CLQBaseCtrl& ctrl) {
        const std::vector<unsigned char> kept = Kept(ctrl);
        ASSERT_FALSE(kept.empty());
        ini.SetFileName(L"\\roundtrip.txt");
        ASSERT_TRUE(ctrl.SaveCtrlToIni(ini, L"first"));
        ini.Update();
        CLQIniReadWrite written;
        written.SetFileName(L"\\roundtrip.txt");
        const std::unique_ptr<CLQBaseCtrl> fromIni = MakeCtrl(ctrl.GetKind());
        ASSERT_TRUE(fromIni->LoadCtrlFromIni(written, L"first"));
        EXPECT_EQ(Kept(*fromIni), kept);

        CLQMemBlob blob;
        ASSERT_TRUE(blob.FromBytes(kept.data(), kept.size()));
        const std::unique_ptr<CLQBaseCtrl> fromBin = MakeCtrl(ctrl.GetKind());
        ASSERT_TRUE(fromBin->LoadCtrlFromBin(blob, 0));
        EXPECT_EQ(Kept(*fromBin), kept);
        ASSERT_TRUE(fromBin->SaveCtrlToIni(ini, L"second"));
        const std::unique_ptr<CLQBaseCtrl> again = MakeCtrl(ctrl.GetKind());
        ASSERT_TRUE(again->LoadCtrlFromIni(ini, L"second"));
        EXPECT_EQ(Kept(*again), kept);
    }

    static void SetCommon(CLQBaseCtrl& ctrl) {
        ctrl.Create(-12, 34, 56, 78);
        ctrl.SetCtrlName(L"St Info, first = [1]");
        ctrl.SetShow(false);
        ctrl.EnableWindow(false);
        ctrl.EnableFocus(true);
        ctrl.EnableRecvMsg(false);
    }

    CLQIniReadWrite ini;
};

TEST_F(Layout, KeepsALabel) {
    CLQStatic label;
    ExpectRoundTrip(label);
    SetCommon(label);
    label.SetText(L"  100%41 \"quoted\" ;#\r\n\t\\ \u4E0A\U0001F697 ");
    _LQColor color = {33, 140, 217, 254};
    label.SetTextColor(color);
    label.SetBkgSurf(L"\\NandFlash\\bkg 1.lqi");
    label.SetFontName(L"msyh");
    label.SetFontSize(16, 22);
    label.SetTextStyle(18);
    label.EnableTextScroll(true);
    label.EnableScrollTextTooLong(true);
    label.SetScrollType(eScroll_Right);
    label.SetScrollParam(7, 90);
    label.SetTextScrollNum(-1);
    ExpectRoundTrip(label);
}

TEST_F(Layout, KeepsAnImage) {
    CLQImageView view;
    SetCommon(view);
    view.SetImagePath(L"a.lqi");
    ExpectRoundTrip(view);
}

TEST_F(Layout, KeepsASlider) {
    CLQSliderCtrl slider;
    SetCommon(slider);
    slider.SetBkgSurf(L"a.lqi");
    slider.SetFillSurf(L"b.lqi");
    slider.SetThumbSurf(L"c.lqi");
    slider.SetThumbPressedSurf(L"d.lqi");
    slider.SetRange(-2147483647 - 1, 2147483647);
    slider.SetValue(-77);
    slider.SetInset(-3, 4);
    slider.SetTrackOffset(5);
    slider.SetThumbOffset(-6);
    slider.SetVertical(true);
    ExpectRoundTrip(slider);
}

TEST_F(Layout, KeepsAButtonWithItsElements) {
    CLQButton button;
    ExpectRoundTrip(button);
    SetCommon(button);
    for (const _eImageType state : {eImage_Normal, eImage_Pressed, eImage_Focus, eImage_Disabled})
        button.SetImagePath(0, state, (L"state" + std::to_wstring(state) + L".lqi").c_str());
    auto* caption = new CLQTextElement;
    caption->SetText(L"Band");
    caption->SetRect(1, -2, 30, 40);
    _LQColor color = {1, 2, 3, 4};
    caption->SetTextColor(eImage_Focus, color);
    button.AddGUIElement(caption);
    auto* icon = new CLQImageElement;
    icon->SetImage(0, L"icon.lqi");
    button.AddGUIElement(icon);
    auto* fixed = new CLQTextElement;
    fixed->SetLangID(4711);
    button.AddGUIElement(fixed);
    ExpectRoundTrip(button);

    while (button.GetGUIElementCount() < kMaxButtonElements)
        button.AddGUIElement(new CLQTextElement);
    ExpectRoundTrip(button);
}

TEST_F(Layout, KeepsAControlOfNoKindOfItsOwn) {
    CLQBaseCtrl ctrl;
    SetCommon(ctrl);
    CLQMemBlob blob;
    ASSERT_TRUE(ctrl.SaveCtrlToBin(blob, 0));
    CLQBaseCtrl loaded;
    EXPECT_TRUE(loaded.LoadCtrlFromBin(blob, 0));
    EXPECT_EQ(Kept(loaded), Kept(ctrl));
    ini.SetFileName(L"\\plain.txt");
    ASSERT_TRUE(ctrl.SaveCtrlToIni(ini, L"plain"));
    CLQBaseCtrl read;
    EXPECT_TRUE(read.LoadCtrlFromIni(ini, L"plain"));
    EXPECT_EQ(Kept(read), Kept(ctrl));
}

TEST_F(Layout, GivesAButtonTheElementsOfTheLayoutInPlaceOfItsOwn) {
    CLQButton plain;
    plain.SetImagePath(0, eImage_Normal, L"a.lqi");
    CLQMemBlob blob;
    ASSERT_TRUE(plain.SaveCtrlToBin(blob, 0));
    CLQButton rich;
    rich.SetText(L"Band");
    rich.AddGUIElement(new CLQImageElement);
    EXPECT_TRUE(rich.LoadCtrlFromBin(blob, 0));
    EXPECT_EQ(rich.GetGUIElementCount(), 1);
    EXPECT_EQ(Kept(rich), Kept(plain));
}

TEST_F(Layout, LoadsATextWrittenByHand) {
    WriteIni(
        "; the title\n"
        "[StInfo]\nkind = static\nname = StInfo\nx = 10\ny = 0x14\nwidth = 200\nheight = 32\n"
        "text = 100%\ncolor = 33, 140, 217\nstyle = 18\n"
        "[BtnBack]\nkind = button\nelement0.normal = back_n.lqi\nelement1.type = text\nelement1.langid = 12\n"
        "element1.text = unused\n"
        "[Picture]\nkind = 5\nimage = a.lqi\n");
    CLQStatic label;
    ASSERT_TRUE(label.LoadCtrlFromIni(ini, L"StInfo"));
    EXPECT_EQ(label.GetCtrlName(), L"StInfo");
    EXPECT_EQ(label.GetText(), L"100%");
    int x = 0;
    int y = 0;
    label.GetPos(x, y);
    EXPECT_EQ(x, 10);
    EXPECT_EQ(y, 20);
    EXPECT_TRUE(label.IsShow()) << "what the layout does not tell stays";

    CLQButton button;
    ASSERT_TRUE(button.LoadCtrlFromIni(ini, L"BtnBack"));
    ASSERT_EQ(button.GetGUIElementCount(), 2);
    EXPECT_EQ(button.GetGUIElement(1)->GetGUIElementType(), eGUIElement_Text);
    auto* caption = static_cast<CLQTextElement*>(button.GetGUIElement(1));
    EXPECT_EQ(caption->GetLangID(), 12);
    EXPECT_EQ(caption->GetFatherCtrl(), &button);

    CLQImageView view;
    EXPECT_TRUE(view.LoadCtrlFromIni(ini, L"Picture")) << "a kind may be a number";
}

TEST_F(Layout, PassesOverPropertiesThatMakeNoSense) {
    WriteIni(
        "[a]\nkind=static\nx=abc\nwidth=-5\nheight=99999999\nfontwidth=0\nscrolltype=9\ncolor=1,2,300\n"
        "scrollstep=-1\nstyle=\n"
        "[b]\nkind=slider\nminimum=9\nmaximum=1\nleftinset=2000000000\n"
        "[c]\nkind=button\nelements=2000000000\nelement0.type=nonsense\nelement3.type=text\n");
    CLQStatic label;
    label.Create(7, 8, 9, 10);
    ASSERT_TRUE(label.LoadCtrlFromIni(ini, L"a"));
    int x = 0;
    int y = 0;
    label.GetPos(x, y);
    EXPECT_EQ(x, 7);
    label.GetSize(x, y);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, kMaxExtent);
    CLQSliderCtrl slider;
    ASSERT_TRUE(slider.LoadCtrlFromIni(ini, L"b"));
    EXPECT_EQ(slider.GetValue(), 9);
    CLQButton button;
    ASSERT_TRUE(button.LoadCtrlFromIni(ini, L"c"));
    EXPECT_EQ(button.GetGUIElementCount(), 1) << "element 3 has none before it";
}

TEST_F(Layout, RefusesAMissingSectionAndAnotherKind) {
    WriteIni("[a]\nkind = static\ntext = new\n[b]\ntext = new\n[c]\nkind = nonsense\ntext = new\n");
    CLQButton button;
    button.SetText(L"old");
    for (const wchar_t* section : {L"a", L"b", L"c", L"d", L"", static_cast<const wchar_t*>(nullptr)})
        EXPECT_FALSE(button.LoadCtrlFromIni(ini, section));
    CLQMemBlob blob;
    EXPECT_FALSE(button.LoadCtrlFromBin(blob, 0));
    CLQStatic label;
    ASSERT_TRUE(label.SaveCtrlToBin(blob, 0));
    for (const int index : {0, 1, -1, 1000000})
        EXPECT_FALSE(button.LoadCtrlFromBin(blob, index));
    EXPECT_EQ(static_cast<CLQTextElement*>(button.GetGUIElement(1))->GetText(), L"old");
}

TEST_F(Layout, RefusesToSaveWhereItCannot) {
    CLQStatic label;
    EXPECT_FALSE(label.SaveCtrlToIni(ini, nullptr));
    EXPECT_FALSE(label.SaveCtrlToIni(ini, L""));
    EXPECT_FALSE(label.SaveCtrlToIni(ini, L"a]b"));
    CLQMemBlob blob;
    EXPECT_FALSE(label.SaveCtrlToBin(blob, 1));
    EXPECT_FALSE(label.SaveCtrlToBin(blob, -1));
    EXPECT_TRUE(label.SaveCtrlToBin(blob, 0));
    EXPECT_FALSE(label.SaveCtrlToBin(blob, 0)) << "that record is taken";
    label.SetText(std::wstring(100000, L'a').c_str());
    CLQMemBlob other;
    EXPECT_FALSE(label.SaveCtrlToBin(other, 0)) << "the text is too long";
}

TEST_F(Layout, TakesTheTextOfALanguageIdentifierFromTheTable) {
    const auto folder = scene.DeviceFolder() / "NandFlash/Application/Resource/Language";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "en.lng") << "[language]\nname=English\n[text]\n12 = Back\n";
    ASSERT_TRUE(CLQLangManager::GetInstance()->LoadLanguage(L"en.lng"));
    WriteIni("[a]\nkind=static\ntext=literal\nlangid=12\n[b]\nkind=button\nlangid=12\n");
    CLQStatic label;
    ASSERT_TRUE(label.LoadCtrlFromIni(ini, L"a"));
    EXPECT_EQ(label.GetText(), L"Back");
    CLQButton button;
    ASSERT_TRUE(button.LoadCtrlFromIni(ini, L"b"));
    ASSERT_EQ(button.GetGUIElementCount(), 2) << "a button with an identifier has a caption";
    EXPECT_EQ(static_cast<CLQTextElement*>(button.GetGUIElement(1))->GetText(), L"Back");
}

TEST_F(Layout, KnowsTheKindsThatWereRegistered) {
    struct Lamp : CLQBaseCtrl {
        Lamp() { m_nKind = 990; }
    };
    const auto make = []() -> CLQBaseCtrl* { return new Lamp; };
    EXPECT_EQ(MakeCtrl(990), nullptr);
    EXPECT_EQ(CtrlKindFromName(L"lamp"), -1);
    EXPECT_TRUE(RegisterCtrlKind(990, L"lamp", make));
    EXPECT_EQ(CtrlKindFromName(L"lamp"), 990);
    EXPECT_EQ(CtrlKindName(990), L"lamp");
    EXPECT_EQ(MakeCtrl(990)->GetKind(), 990);
    EXPECT_FALSE(RegisterCtrlKind(990, L"other", make)) << "the kind is taken";
    EXPECT_FALSE(RegisterCtrlKind(991, L"lamp", make)) << "the name is taken";
    EXPECT_FALSE(RegisterCtrlKind(0, L"zero", make));
    EXPECT_FALSE(RegisterCtrlKind(991, L"9lives", make));
    EXPECT_FALSE(RegisterCtrlKind(991, L"", make));
    EXPECT_FALSE(RegisterCtrlKind(991, nullptr, make));
    EXPECT_FALSE(RegisterCtrlKind(991, L"none", nullptr));
    EXPECT_EQ(CtrlKindName(12345), L"12345");
    EXPECT_EQ(CtrlKindFromName(L"12345"), 12345);
    EXPECT_EQ(CtrlKindFromName(L"99999999999999999999"), -1);
    EXPECT_EQ(CtrlKindFromName(L"-1"), -1);
    EXPECT_EQ(CtrlKindFromName(L""), -1);
}

}  // namespace
}  // namespace korvane::test
