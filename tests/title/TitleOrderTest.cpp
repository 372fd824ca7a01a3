#include <gtest/gtest.h>
#include <type_traits>

#include "title/TitleDialog.h"

#include "tests/support/VirtualOrder.h"

namespace {

using korvane::test::VirtualOrder;

TEST(TitleOrder, OfTheVirtualOperationsIsThatOfTheWindow) {
    if (!korvane::test::kKnowsVirtualOrder)
        GTEST_SKIP() << "another C++ ABI";
    EXPECT_EQ(VirtualOrder(&CLQTitleDialog::DoMessage), 12);
    EXPECT_EQ(VirtualOrder(&CLQTitleDialog::Draw), 13);
    EXPECT_EQ(VirtualOrder(&CLQTitleDialog::GetDialogName), 16);
    EXPECT_EQ(VirtualOrder(&CLQTitleDialog::OnInit), 17);
    EXPECT_EQ(VirtualOrder(&CLQTitleDialog::OnBtnBackPressUp), 19);
}

#define EXPECT_INHERITED(operation)                                                                 \
    static_assert(                                                                                  \
        std::is_same<decltype(&CLQTitleDialog::operation), decltype(&CLQWindow::operation)>::value, \
        #operation " is the window's")

TEST(TitleOrder, LeavesTheOtherOperationsToTheWindow) {
    EXPECT_INHERITED(Create);
    EXPECT_INHERITED(SetSize);
    EXPECT_INHERITED(Move);
    EXPECT_INHERITED(MoveTo);
    EXPECT_INHERITED(SetShow);
    EXPECT_INHERITED(IsShow);
    EXPECT_INHERITED(EnableFocus);
    EXPECT_INHERITED(LoadResource);
    EXPECT_INHERITED(SetFocus);
    EXPECT_INHERITED(EnableRecvMsg);
    EXPECT_INHERITED(EnableWindow);
    EXPECT_INHERITED(DoCommand);
    EXPECT_INHERITED(ChangeLanguage);
    EXPECT_INHERITED(OnTransEffect);
}

}  // namespace
