#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "tests/controls/Touches.h"
#include "tests/controls/items/TestSwitchList.h"

namespace korvane::test {
namespace {

/// The parameter: true for copy construction, false for assignment to a list with looks of its own.
class SwitchListCopy : public testing::TestWithParam<bool> {
  protected:
    SwitchListCopy() : original(std::make_unique<TestSwitchList>()) {
        WriteImage(scene.ImageFolder() / "Ground.lqi", ground);
        WriteImage(scene.ImageFolder() / "Other.lqi", icons.focus.surfaces[3]);
        original->Prepare(icons);
        original->SetBkgSurf(L"Ground.lqi");
        std::vector<std::wstring> texts = {L"Radio", L"Media", L"Phone",     L"TV",
                                           L"More",  L"AUX",   L"Navigation"};
        original->SetText(texts);
        _LQColor white = {255, 255, 255, 255};
        original->SetTextColor(eTextColor_Focus, white);
        original->SetFontSize(17, 17);
        original->SetFouceIndex(6);
        original->SetPageDown(true);
    }

    void Copy() {
        if (GetParam()) {
            copy = std::make_unique<TestSwitchList>(*original);
            return;
        }
        copy = std::make_unique<TestSwitchList>();
        copy->Create(0, 0, 20, 20);
        copy->SetBkgSurf(L"Other.lqi");
        copy->SetDisable(true);
        *copy = *original;
    }

    Scene scene;
    ListIcons icons;
    CLQSurfHandle ground = NewPicture(kListWidth, kListHeight, {20, 90, 90, 255});
    std::unique_ptr<TestSwitchList> original;
    std::unique_ptr<TestSwitchList> copy;
};

TEST_P(SwitchListCopy, LooksLikeItsOriginal) {
    Copy();
    EXPECT_EQ(copy->GetKind(), 54);
    EXPECT_EQ(copy->Focus(), 6);
    EXPECT_TRUE(copy->IsPageDown());
    EXPECT_EQ(LooksOf(*copy), LooksOf(*original));
}

TEST_P(SwitchListCopy, HasTextsLooksAndSelectionOfItsOwn) {
    Copy();
    const auto looks = LooksOf(*original);
    std::vector<std::wstring> none;
    std::vector<CLQSurfHandle*> empty(kItems);
    copy->SetText(none);
    copy->SetFouceIndex(-1);
    copy->SetIconNormalSurf(empty);
    copy->SetBkgSurf(L"Other.lqi");
    EXPECT_EQ(LooksOf(*original), looks);
    EXPECT_NE(LooksOf(*copy), looks);
}

TEST_P(SwitchListCopy, HoldsNoPressAndTellsTheSameCallBack) {
    Press(*original, kListX + 5, CellY(0));
    Copy();
    EXPECT_FALSE(copy->IsPressed());
    EXPECT_FALSE(Release(*copy, kListX + 5, CellY(0)));
    EXPECT_TRUE(Press(*copy, kListX + 5, CellY(2)));
    EXPECT_TRUE(Release(*copy, kListX + 5, CellY(2)));
    EXPECT_EQ(Clicks(), (std::vector<Click>{{7, true}}));
    EXPECT_TRUE(Release(*original, kListX + 5, CellY(0)));
    EXPECT_EQ(Clicks().size(), 2u);
}

TEST_P(SwitchListCopy, EndsBeforeItsOriginal) {
    const auto looks = LooksOf(*original);
    Copy();
    copy.reset();
    EXPECT_EQ(LooksOf(*original), looks);
}

TEST_P(SwitchListCopy, OutlivesItsOriginal) {
    const auto looks = LooksOf(*original);
    Copy();
    original.reset();
    EXPECT_EQ(LooksOf(*copy), looks);
}

INSTANTIATE_TEST_SUITE_P(Lists, SwitchListCopy, testing::Bool(), [](const auto& way) {
    return way.param ? std::string("Constructed") : std::string("Assigned");
});

TEST(SwitchListCopyOfItself, ChangesNothing) {
    Scene scene;
    ListIcons icons;
    TestSwitchList list;
    list.Prepare(icons);
    std::vector<std::wstring> texts = {L"Radio"};
    list.SetText(texts);
    const auto looks = LooksOf(list);
    TestSwitchList& same = list;
    list = same;
    EXPECT_EQ(LooksOf(list), looks);
}

}  // namespace
}  // namespace korvane::test
