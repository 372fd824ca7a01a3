#include <gtest/gtest.h>
#include <type_traits>

#include "KorvaneEx.h"

#include "tests/support/VirtualOrder.h"

namespace {

using korvane::test::VirtualOrder;

/// An operation that a class does not declare is a member of the base that does.
template <class Inherited, class Base>
constexpr bool IsInherited(Inherited, Base) {
    return std::is_same<Inherited, Base>::value;
}

#define EXPECT_INHERITED(Class, operation) \
    static_assert(IsInherited(&Class::operation, &CLQBaseCtrl::operation), #operation " is not overridden")
#define EXPECT_OVERRIDDEN(Class, operation) \
    static_assert(!IsInherited(&Class::operation, &CLQBaseCtrl::operation), #operation " is overridden")

#define EXPECT_COMMON_OPERATIONS_INHERITED(Class) \
    EXPECT_INHERITED(Class, Move);                \
    EXPECT_INHERITED(Class, MoveTo);              \
    EXPECT_INHERITED(Class, SetShow);             \
    EXPECT_INHERITED(Class, IsShow);              \
    EXPECT_INHERITED(Class, EnableFocus);         \
    EXPECT_INHERITED(Class, LoadResource);        \
    EXPECT_INHERITED(Class, SetFocus);            \
    EXPECT_INHERITED(Class, EnableRecvMsg);       \
    EXPECT_INHERITED(Class, EnableWindow);        \
    EXPECT_INHERITED(Class, DoCommand);           \
    EXPECT_INHERITED(Class, SetFatherWnd);        \
    EXPECT_INHERITED(Class, Redraw);              \
    EXPECT_INHERITED(Class, CheckPoint);          \
    EXPECT_INHERITED(Class, Invalidate);          \
    EXPECT_INHERITED(Class, DrawBaseCtrl);        \
    EXPECT_INHERITED(Class, OnFocus);             \
    EXPECT_INHERITED(Class, IsCanBeep);           \
    EXPECT_INHERITED(Class, EnableOwnerUpdate);   \
    EXPECT_INHERITED(Class, SetLangID);           \
    EXPECT_INHERITED(Class, IsChildExist);        \
    EXPECT_INHERITED(Class, Clone);               \
    EXPECT_INHERITED(Class, LoadCtrlFromIni);     \
    EXPECT_INHERITED(Class, LoadCtrlFromBin);     \
    EXPECT_INHERITED(Class, SaveCtrlToIni);       \
    EXPECT_INHERITED(Class, SaveCtrlToBin)

TEST(NumSlider, OverridesOnlyCreateInputAndPainting) {
    EXPECT_OVERRIDDEN(CLQNumSlider, Create);
    EXPECT_OVERRIDDEN(CLQNumSlider, DoMessage);
    EXPECT_OVERRIDDEN(CLQNumSlider, Draw);
    EXPECT_INHERITED(CLQNumSlider, SetSize);
    EXPECT_INHERITED(CLQNumSlider, ChangeLanguage);
    EXPECT_INHERITED(CLQNumSlider, OnLostFocus);
    EXPECT_COMMON_OPERATIONS_INHERITED(CLQNumSlider);
}

TEST(ButtonTree, OverridesOnlyInputAndPainting) {
    EXPECT_OVERRIDDEN(CLQButtonTree, DoMessage);
    EXPECT_OVERRIDDEN(CLQButtonTree, Draw);
    EXPECT_INHERITED(CLQButtonTree, Create);
    EXPECT_INHERITED(CLQButtonTree, SetSize);
    EXPECT_INHERITED(CLQButtonTree, ChangeLanguage);
    EXPECT_INHERITED(CLQButtonTree, OnLostFocus);
    EXPECT_COMMON_OPERATIONS_INHERITED(CLQButtonTree);
}

TEST(DialScaleInterface, OverridesOnlyCreateSizeInputAndPainting) {
    EXPECT_OVERRIDDEN(CLQDialScaleEx, Create);
    EXPECT_OVERRIDDEN(CLQDialScaleEx, SetSize);
    EXPECT_OVERRIDDEN(CLQDialScaleEx, DoMessage);
    EXPECT_OVERRIDDEN(CLQDialScaleEx, Draw);
    EXPECT_INHERITED(CLQDialScaleEx, ChangeLanguage);
    EXPECT_INHERITED(CLQDialScaleEx, OnLostFocus);
    EXPECT_COMMON_OPERATIONS_INHERITED(CLQDialScaleEx);
}

TEST(DialSliderInterface, OverridesOnlyCreateInputAndPainting) {
    EXPECT_OVERRIDDEN(CLQDialSlider, Create);
    EXPECT_OVERRIDDEN(CLQDialSlider, DoMessage);
    EXPECT_OVERRIDDEN(CLQDialSlider, Draw);
    EXPECT_INHERITED(CLQDialSlider, SetSize);
    EXPECT_INHERITED(CLQDialSlider, ChangeLanguage);
    EXPECT_INHERITED(CLQDialSlider, OnLostFocus);
    EXPECT_COMMON_OPERATIONS_INHERITED(CLQDialSlider);
}

TEST(SwitchListInterface, OverridesOnlyInputPaintingAndLanguage) {
    EXPECT_OVERRIDDEN(CLQSwitchList, DoMessage);
    EXPECT_OVERRIDDEN(CLQSwitchList, Draw);
    EXPECT_OVERRIDDEN(CLQSwitchList, ChangeLanguage);
    EXPECT_INHERITED(CLQSwitchList, Create);
    EXPECT_INHERITED(CLQSwitchList, SetSize);
    EXPECT_INHERITED(CLQSwitchList, OnLostFocus);
    EXPECT_COMMON_OPERATIONS_INHERITED(CLQSwitchList);
}

TEST(MenuItemInterface, OverridesOnlyInputPaintingLanguageAndTheLossOfFocus) {
    EXPECT_OVERRIDDEN(CLQMenuItemCtrl, DoMessage);
    EXPECT_OVERRIDDEN(CLQMenuItemCtrl, Draw);
    EXPECT_OVERRIDDEN(CLQMenuItemCtrl, ChangeLanguage);
    EXPECT_OVERRIDDEN(CLQMenuItemCtrl, OnLostFocus);
    EXPECT_INHERITED(CLQMenuItemCtrl, Create);
    EXPECT_INHERITED(CLQMenuItemCtrl, SetSize);
    EXPECT_COMMON_OPERATIONS_INHERITED(CLQMenuItemCtrl);
}

TEST(VirtualOrder, OfTheControlsIsTheOneOfTheirBase) {
    if (!korvane::test::kKnowsVirtualOrder)
        GTEST_SKIP() << "another C++ ABI";
    EXPECT_EQ(VirtualOrder(&CLQNumSlider::Create), 1);
    EXPECT_EQ(VirtualOrder(&CLQNumSlider::DoMessage), 12);
    EXPECT_EQ(VirtualOrder(&CLQNumSlider::Draw), 13);
    EXPECT_EQ(VirtualOrder(&CLQButtonTree::DoMessage), 12);
    EXPECT_EQ(VirtualOrder(&CLQButtonTree::Draw), 13);
    EXPECT_EQ(VirtualOrder(&CLQDialScaleEx::Create), 1);
    EXPECT_EQ(VirtualOrder(&CLQDialScaleEx::SetSize), 2);
    EXPECT_EQ(VirtualOrder(&CLQDialScaleEx::DoMessage), 12);
    EXPECT_EQ(VirtualOrder(&CLQDialScaleEx::Draw), 13);
    EXPECT_EQ(VirtualOrder(&CLQDialSlider::Create), 1);
    EXPECT_EQ(VirtualOrder(&CLQDialSlider::DoMessage), 12);
    EXPECT_EQ(VirtualOrder(&CLQDialSlider::Draw), 13);
    EXPECT_EQ(VirtualOrder(&CLQMenuItemCtrl::DoMessage), 12);
    EXPECT_EQ(VirtualOrder(&CLQMenuItemCtrl::Draw), 13);
    EXPECT_EQ(VirtualOrder(&CLQMenuItemCtrl::ChangeLanguage), 15);
    EXPECT_EQ(VirtualOrder(&CLQMenuItemCtrl::OnLostFocus), 22);
    EXPECT_EQ(VirtualOrder(&CLQSwitchList::DoMessage), 12);
    EXPECT_EQ(VirtualOrder(&CLQSwitchList::Draw), 13);
    EXPECT_EQ(VirtualOrder(&CLQSwitchList::ChangeLanguage), 15);
}

TEST(VirtualOrder, OfWindowsAndControlsIsFixed) {
    if (!korvane::test::kKnowsVirtualOrder)
        GTEST_SKIP() << "another C++ ABI";
    EXPECT_EQ(VirtualOrder(&CLQWnd::Create), 1);
    EXPECT_EQ(VirtualOrder(&CLQWnd::SetSize), 2);
    EXPECT_EQ(VirtualOrder(&CLQWnd::Move), 3);
    EXPECT_EQ(VirtualOrder(&CLQWnd::MoveTo), 4);
    EXPECT_EQ(VirtualOrder(&CLQWnd::SetShow), 5);
    EXPECT_EQ(VirtualOrder(&CLQWnd::IsShow), 6);
    EXPECT_EQ(VirtualOrder(&CLQWnd::EnableFocus), 7);
    EXPECT_EQ(VirtualOrder(&CLQWnd::LoadResource), 8);
    EXPECT_EQ(VirtualOrder(&CLQWnd::SetFocus), 9);
    EXPECT_EQ(VirtualOrder(&CLQWnd::EnableRecvMsg), 10);
    EXPECT_EQ(VirtualOrder(&CLQWnd::EnableWindow), 11);
    EXPECT_EQ(VirtualOrder(&CLQWnd::DoMessage), 12);
    EXPECT_EQ(VirtualOrder(&CLQWnd::Draw), 13);
    EXPECT_EQ(VirtualOrder(&CLQWnd::DoCommand), 14);
    EXPECT_EQ(VirtualOrder(&CLQWnd::ChangeLanguage), 15);

    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::SetFatherWnd), 16);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::Redraw), 17);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::CheckPoint), 18);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::Invalidate), 19);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::DrawBaseCtrl), 20);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::OnFocus), 21);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::OnLostFocus), 22);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::IsCanBeep), 23);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::EnableOwnerUpdate), 24);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::SetLangID), 25);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::IsChildExist), 26);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::Clone), 27);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::LoadCtrlFromIni), 28);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::LoadCtrlFromBin), 29);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::SaveCtrlToIni), 30);
    EXPECT_EQ(VirtualOrder(&CLQBaseCtrl::SaveCtrlToBin), 31);

    EXPECT_EQ(VirtualOrder(&CLQWindow::GetDialogName), 16);
    EXPECT_EQ(VirtualOrder(&CLQWindow::OnInit), 17);
    EXPECT_EQ(VirtualOrder(&CLQWindow::OnTransEffect), 18);
    EXPECT_EQ(VirtualOrder(&CLQWindow::OnBtnBackPressUp), 19);
}

}  // namespace
