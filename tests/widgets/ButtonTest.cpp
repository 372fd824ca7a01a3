#include "platform/coredll.h"

#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

class Listener : public CLQWindow {
  public:
    void OnClick(CLQButton* from) {
        ++clicks;
        sender = from;
    }
    void OnClickDelete(CLQButton* from) {
        ++clicks;
        delete from;
    }
    void OnOther(CLQButton*) { ++others; }

    int clicks = 0;
    int others = 0;
    CLQButton* sender = nullptr;
};

class Button : public WidgetsTest {
  protected:
    Button() {
        MakeImage("n.lqi", 40, 20, kGreen);
        MakeImage("p.lqi", 40, 20, kRed);
        MakeImage("f.lqi", 40, 20, kBlue);
        MakeImage("d.lqi", 40, 20, kYellow);
        button->Create(10, 10, 40, 20);
        button->SetImagePath(0, eImage_Normal, L"n.lqi");
        button->SetImagePath(0, eImage_Pressed, L"p.lqi");
        button->SetImagePath(0, eImage_Focus, L"f.lqi");
        button->SetImagePath(0, eImage_Disabled, L"d.lqi");
        button->AddCallBack(kEventReleased, &listener, &Listener::OnClick);
        button->AddCallBack(kEventPressed, &listener, &Listener::OnOther);
        window.AddChild(button);
        scene.Pump();
    }

    std::uint32_t Shown() {
        scene.Pump();
        return scene.PixelAt(12, 12);
    }

    Listener listener;
    CLQButton* button = new CLQButton;
};

TEST_F(Button, HasTheKindOfAButtonAndTakesTheFocus) {
    EXPECT_EQ(button->GetKind(), kKindButton);
    EXPECT_TRUE(button->IsFocusEnabled());
}

TEST_F(Button, ShowsItsPressedLookWhileItIsHeld) {
    EXPECT_EQ(Shown(), kGreen);
    scene.Press(20, 20);
    EXPECT_EQ(Shown(), kRed);
    scene.Move(150, 90);
    EXPECT_EQ(Shown(), kRed);
    scene.Release(150, 90);
    EXPECT_EQ(Shown(), kGreen);
}

TEST_F(Button, ShowsItsFocusLookInCursorModeOnly) {
    window.SetFocusCtrl(button);
    EXPECT_EQ(Shown(), kGreen);
    scene.Key(VK_TAB);
    EXPECT_EQ(Shown(), kBlue);
    scene.Press(150, 90);
    EXPECT_EQ(Shown(), kGreen);
    scene.Release(150, 90);
}

TEST_F(Button, ShowsThePressedLookOverTheFocusLook) {
    window.SetFocusCtrl(button);
    SetCursorState(true);
    _LQMessage press = Pointer(kMsgPress, 20, 20);
    EXPECT_TRUE(button->DoMessage(&press));
    EXPECT_EQ(Shown(), kRed);
    _LQMessage release = Pointer(kMsgRelease, 20, 20);
    button->DoMessage(&release);
    EXPECT_EQ(Shown(), kBlue);
    SetCursorState(false);
}

TEST_F(Button, ShowsTheDisabledLookOverAllOthersAndTakesNoPress) {
    window.SetFocusCtrl(button);
    SetCursorState(true);
    button->EnableWindow(false);
    EXPECT_EQ(Shown(), kYellow);
    _LQMessage press = Pointer(kMsgPress, 20, 20);
    EXPECT_FALSE(button->DoMessage(&press));
    _LQMessage release = Pointer(kMsgRelease, 20, 20);
    EXPECT_FALSE(button->DoMessage(&release));
    EXPECT_EQ(listener.clicks, 0);
    SetCursorState(false);
}

TEST_F(Button, FiresNothingWhenItIsDisabledWhileItIsHeld) {
    scene.Press(20, 20);
    button->EnableWindow(false);
    scene.Release(20, 20);
    EXPECT_EQ(listener.clicks, 0);
    button->EnableWindow(true);
    EXPECT_EQ(Shown(), kGreen);
}

TEST_F(Button, FiresOnceAtTheReleaseInside) {
    scene.Press(20, 20);
    EXPECT_EQ(listener.clicks, 0);
    scene.Release(20, 20);
    EXPECT_EQ(listener.clicks, 1);
    EXPECT_EQ(listener.sender, button);
    EXPECT_EQ(listener.others, 0);
}

TEST_F(Button, FiresAtTheReleaseFarOutside) {
    scene.Press(20, 20);
    scene.Move(199, 99);
    scene.Release(199, 99);
    EXPECT_EQ(listener.clicks, 1);
}

TEST_F(Button, ConsumesOnlyThePressThatItTookAndWhatFollows) {
    _LQMessage outside = Pointer(kMsgPress, 9, 10);
    EXPECT_FALSE(button->DoMessage(&outside));
    _LQMessage move = Pointer(kMsgMove, 20, 20);
    EXPECT_FALSE(button->DoMessage(&move));
    _LQMessage release = Pointer(kMsgRelease, 20, 20);
    EXPECT_FALSE(button->DoMessage(&release));
    _LQMessage press = Pointer(kMsgPress, 10, 10);
    EXPECT_TRUE(button->DoMessage(&press));
    EXPECT_TRUE(button->DoMessage(&move));
    EXPECT_TRUE(button->DoMessage(&release));
    EXPECT_EQ(listener.clicks, 1);
    _LQMessage other = Pointer(kMsgSysInfoChanged, 0, 0);
    EXPECT_FALSE(button->DoMessage(&other));
    EXPECT_FALSE(button->DoMessage(nullptr));
}

TEST_F(Button, IsPressedByTheEnterKeyInCursorMode) {
    window.SetFocusCtrl(button);
    scene.Key(VK_TAB);
    scene.Key(VK_RETURN);
    EXPECT_EQ(listener.clicks, 1);
    SetCursorState(false);
}

TEST_F(Button, MayBeDeletedByItsOwnHandler) {
    button->AddCallBack(kEventReleased, &listener, &Listener::OnClickDelete);
    scene.Press(20, 20);
    scene.Release(20, 20);
    EXPECT_EQ(listener.clicks, 1);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(12, 12), kBlack);
}

TEST_F(Button, ShowsTheNormalLookForStatesWithoutAnImage) {
    button->SetImagePath(0, eImage_Pressed, L"");
    button->SetImagePath(0, eImage_Disabled, L"missing.lqi");
    scene.Press(20, 20);
    EXPECT_EQ(Shown(), kGreen);
    scene.Release(20, 20);
    button->EnableWindow(false);
    EXPECT_EQ(Shown(), kGreen);
}

TEST_F(Button, RefusesImagesOfUnknownElementsAndStates) {
    EXPECT_FALSE(button->SetImagePath(-1, eImage_Normal, L"n.lqi"));
    EXPECT_FALSE(button->SetImagePath(1, eImage_Normal, L"n.lqi"));
    EXPECT_FALSE(button->SetImagePath(0, static_cast<_eImageType>(4), L"n.lqi"));
    EXPECT_FALSE(button->SetImagePath(0, eImage_Normal, nullptr));
    EXPECT_EQ(Shown(), kGreen);
    button->AddGUIElement(new CLQTextElement);
    EXPECT_FALSE(button->SetImagePath(1, eImage_Normal, L"n.lqi"));
}

TEST_F(Button, DrawsAnElementThatWasAddedOverItsPicture) {
    CLQButton fresh;
    fresh.Create(100, 10, 40, 20);
    auto* element = new CLQImageElement;
    element->SetImage(0, L"d.lqi");
    EXPECT_TRUE(fresh.AddGUIElement(element));
    EXPECT_EQ(element->GetFatherCtrl(), &fresh);
    EXPECT_EQ(fresh.GetGUIElementCount(), 2);
    EXPECT_EQ(fresh.GetGUIElement(1), element);
    window.AddChild(&fresh);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(105, 15), kYellow);
}

TEST_F(Button, RefusesNullForeignAndRepeatedElements) {
    EXPECT_FALSE(button->AddGUIElement(nullptr));
    EXPECT_EQ(button->GetGUIElementCount(), 1);
    CLQGUIElement* own = button->GetGUIElement(0);
    EXPECT_FALSE(button->AddGUIElement(own));
    CLQButton other;
    EXPECT_FALSE(other.AddGUIElement(own));
    EXPECT_EQ(button->GetGUIElement(1), nullptr);
    EXPECT_EQ(button->GetGUIElement(-1), nullptr);
}

TEST_F(Button, KeepsNoMoreElementsThanItsBound) {
    while (button->GetGUIElementCount() < kMaxButtonElements)
        ASSERT_TRUE(button->AddGUIElement(new CLQImageElement));
    auto last = std::make_unique<CLQImageElement>();
    EXPECT_FALSE(button->AddGUIElement(last.get()));
    button->SetText(L"no room");
    EXPECT_EQ(button->GetGUIElementCount(), kMaxButtonElements);
}

TEST_F(Button, GivesItsCopyElementsOfItsOwn) {
    button->SetText(L"Band");
    CLQButton copy(*button);
    ASSERT_EQ(copy.GetGUIElementCount(), 2);
    EXPECT_NE(copy.GetGUIElement(0), button->GetGUIElement(0));
    EXPECT_EQ(copy.GetGUIElement(0)->GetFatherCtrl(), &copy);
    EXPECT_EQ(static_cast<CLQTextElement*>(copy.GetGUIElement(1))->GetText(), L"Band");
    copy.SetText(L"Copy");
    EXPECT_EQ(static_cast<CLQTextElement*>(button->GetGUIElement(1))->GetText(), L"Band");

    CLQButton assigned;
    assigned = *button;
    assigned = *&assigned;
    EXPECT_EQ(assigned.GetGUIElementCount(), 2);
    std::unique_ptr<CLQBaseCtrl> clone(button->Clone());
    EXPECT_NE(dynamic_cast<CLQButton*>(clone.get()), nullptr);
}

TEST_F(Button, RepaintsNothingWhenAnImageIsSetAgain) {
    scene.Pump();
    CLQScreen::GetInstance()->ResetCounters();
    button->SetImagePath(0, eImage_Normal, L"n.lqi");
    button->EnableWindow(true);
    scene.Pump();
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0U);
}

TEST_F(Button, PaintsItsOwnRectangleOnlyWhenPressed) {
    CLQScreen::GetInstance()->ResetCounters();
    scene.Press(20, 20);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paintedPixels, 40U * 20U);
    scene.Release(20, 20);
}

TEST_F(Button, DrawsAlsoWithoutAWindow) {
    CLQButton loose;
    loose.Create(3, 4, 10, 10);
    loose.SetImagePath(0, eImage_Normal, L"n.lqi");
    CLQSurfHandle target = Plain(20, 20, kBlack);
    loose.Draw(target);
    EXPECT_EQ(PixelsOf(target)[4 * 20 + 3], kGreen);
    EXPECT_EQ(PixelsOf(target)[13 * 20 + 12], kGreen);
    EXPECT_EQ(PixelsOf(target)[13 * 20 + 13], kBlack);
    EXPECT_EQ(PixelsOf(target)[14 * 20 + 12], kBlack);
}

}  // namespace
}  // namespace korvane::test
