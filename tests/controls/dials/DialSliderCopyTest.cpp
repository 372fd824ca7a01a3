#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "engine/window/Window.h"

#include "tests/controls/Touches.h"
#include "tests/controls/dials/TestTuner.h"

namespace korvane::test {
namespace {

class Listener : public CLQWindow {
  public:
    void OnChosen(TestTuner* sender, int index) {
        senders.push_back(sender);
        chosen.push_back(index);
    }
    std::vector<TestTuner*> senders;
    std::vector<int> chosen;
};

/// The parameter: true for copy construction, false for assignment to a scale with looks of its own.
class DialSliderCopy : public testing::TestWithParam<bool> {
  protected:
    DialSliderCopy() : original(std::make_unique<TestTuner>()) {
        CLQSurfHandle icon = Icon();
        CLQSurfHandle band = Filled(40, 40, {20, 120, 120, 255});
        WriteImage(scene.ImageFolder() / "Icon.lqi", icon);
        WriteImage(scene.ImageFolder() / "Band.lqi", band);
        original->Prepare(FmScale(), 98.0f);
        original->SetBKgnd(L"Band.lqi");
        original->SetPointgnd(L"Band.lqi");
        original->SetIcongnd(L"Icon.lqi");
        original->SetShadowGnd(L"Band.lqi");
        original->AddShortcut(98.0f);
        original->AddShortcut(97.5f);
        original->AddCallBack(kEventItemChosen, &listener, &Listener::OnChosen);
    }

    void Copy() {
        if (GetParam()) {
            copy = std::make_unique<TestTuner>(*original);
            return;
        }
        copy = std::make_unique<TestTuner>();
        copy->Prepare(AmScale(), 999.0f, 120);
        copy->SetBKgnd(L"Icon.lqi");
        copy->AddShortcut(531.0f);
        *copy = *original;
    }

    Scene scene;
    Listener listener;
    std::unique_ptr<TestTuner> original;
    std::unique_ptr<TestTuner> copy;
};

TEST_P(DialSliderCopy, LooksLikeItsOriginal) {
    Copy();
    EXPECT_EQ(copy->GetKind(), 52);
    EXPECT_EQ(copy->TickCount(), 20);
    EXPECT_EQ(copy->HalfSpan(), 10);
    EXPECT_EQ(copy->Value(), 98.0f);
    EXPECT_EQ(copy->Shortcuts(), original->Shortcuts());
    EXPECT_EQ(copy->IsBound(87.4f), 1);
    EXPECT_EQ(LooksOf(*copy), LooksOf(*original));
}

TEST_P(DialSliderCopy, KnowsWhereThePresetsWereShown) {
    LooksOf(*original);
    Copy();
    EXPECT_EQ(copy->IsInRect(5, 125), 0);
    EXPECT_EQ(copy->IsInRect(5, 65), 1);
    EXPECT_TRUE(Press(*copy, kTunerX + 5, kTunerY + 65));
    EXPECT_TRUE(Release(*copy, kTunerX + 5, kTunerY + 65));
    EXPECT_EQ(listener.senders, std::vector<TestTuner*>{copy.get()});
    EXPECT_EQ(listener.chosen, std::vector<int>{1});
    EXPECT_EQ(copy->Value(), 97.5f);
    EXPECT_EQ(original->Value(), 98.0f);
}

TEST_P(DialSliderCopy, HasPresetsOfItsOwn) {
    Copy();
    const auto looks = LooksOf(*original);
    copy->SetShortCut(0, 98.3f);
    copy->DeleteShortcut(97.5f);
    copy->SetVaule(98.2f);
    EXPECT_EQ(original->Shortcuts(), (std::vector<float>{98.0f, 97.5f}));
    EXPECT_NE(LooksOf(*copy), looks);
    EXPECT_EQ(LooksOf(*original), looks);
    EXPECT_EQ(original->IsInRect(5, 125), 0);
}

TEST_P(DialSliderCopy, KeepsTheFirstImagesOfItsOriginal) {
    Copy();
    const auto looks = LooksOf(*original);
    copy->SetBKgnd(L"Icon.lqi");
    copy->SetShadowGnd(L"Icon.lqi");
    EXPECT_EQ(LooksOf(*copy), looks);
}

TEST_P(DialSliderCopy, HoldsNoPress) {
    Press(*original, kTunerX + 100, kTunerY + 120);
    Copy();
    EXPECT_FALSE(copy->IsPressed());
    EXPECT_FALSE(Drag(*copy, kTunerX + 100, kTunerY + 60));
    EXPECT_TRUE(Drag(*original, kTunerX + 100, kTunerY + 108));
    EXPECT_EQ(copy->Value(), 98.0f);
    EXPECT_EQ(original->Value(), 1.0f * 0.1f + 98.0f);
}

TEST_P(DialSliderCopy, EndsBeforeItsOriginal) {
    const auto looks = LooksOf(*original);
    Copy();
    copy.reset();
    EXPECT_EQ(LooksOf(*original), looks);
}

TEST_P(DialSliderCopy, OutlivesItsOriginal) {
    const auto looks = LooksOf(*original);
    Copy();
    original.reset();
    EXPECT_EQ(LooksOf(*copy), looks);
}

INSTANTIATE_TEST_SUITE_P(Tuners, DialSliderCopy, testing::Bool(), [](const auto& way) {
    return way.param ? std::string("Constructed") : std::string("Assigned");
});

TEST(DialSliderCopyOfItself, ChangesNothing) {
    TestTuner tuner;
    tuner.Prepare(FmScale(), 98.0f);
    tuner.AddShortcut(98.0f);
    const auto looks = LooksOf(tuner);
    TestTuner& same = tuner;
    tuner = same;
    EXPECT_EQ(LooksOf(tuner), looks);
}

}  // namespace
}  // namespace korvane::test
