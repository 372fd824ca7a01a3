#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "engine/window/Window.h"

#include "tests/controls/Touches.h"
#include "tests/controls/media/TestProgress.h"

namespace korvane::test {
namespace {

class Listener : public CLQWindow {
  public:
    void OnSeek(CLQSliderExCtrl*, int* value) {
        seeks.push_back(*value);
        if (doomed) {
            delete doomed;
            doomed = nullptr;
        }
    }
    std::vector<int> seeks;
    TestProgress* doomed = nullptr;
};

TEST(SliderExTouch, MovesTheValueAndLeavesThePoints) {
    Listener listener;
    TestProgress slider;
    slider.Create(0, 0, 300, 40);
    slider.SetRange(0, 300);
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(120);
    slider.AddCallBack(kEventValueChanged, &listener, &Listener::OnSeek);
    EXPECT_FALSE(Drag(slider, 80, 20)) << "not pressed";
    EXPECT_TRUE(Press(slider, 80, 20));
    EXPECT_TRUE(Drag(slider, 200, 400));
    EXPECT_TRUE(Release(slider, 200, 400));
    EXPECT_FALSE(Release(slider, 200, 20));
    EXPECT_EQ(listener.seeks, (std::vector<int>{80, 200}));
    EXPECT_EQ(slider.GetValue(), 200);
    EXPECT_EQ(slider.A(), 60);
    EXPECT_EQ(slider.B(), 120);
}

TEST(SliderExTouch, EndsInItsOwnHandler) {
    Listener listener;
    auto slider = std::make_unique<TestProgress>();
    slider->Create(0, 0, 300, 40);
    slider->AddCallBack(kEventValueChanged, &listener, &Listener::OnSeek);
    listener.doomed = slider.get();
    CLQBaseCtrl& gone = *slider.release();
    EXPECT_TRUE(Press(gone, 80, 20));
    EXPECT_EQ(listener.doomed, nullptr);
}

/// The parameter: true for copy construction, false for assignment to a slider with looks of its own.
class SliderExCopy : public testing::TestWithParam<bool> {
  protected:
    SliderExCopy() : original(std::make_unique<TestProgress>()) {
        WriteProgressImages(scene.ImageFolder());
        original->Prepare();
        original->SetReapetBkgActiveSurf(L"OtherBand.lqi");
        original->EnableReapetAIcon(60);
        original->EnableReapetBIcon(120);
        original->SetValue(100);
    }

    void Copy() {
        if (GetParam()) {
            copy = std::make_unique<TestProgress>(*original);
            return;
        }
        copy = std::make_unique<TestProgress>();
        copy->SetReapetASurf(L"B.lqi");
        copy->SetReapetIconOffset(3);
        *copy = *original;
    }

    Scene scene{100, 100};
    std::unique_ptr<TestProgress> original;
    std::unique_ptr<TestProgress> copy;
};

TEST_P(SliderExCopy, LooksLikeItsOriginal) {
    Copy();
    EXPECT_EQ(copy->GetKind(), 51);
    EXPECT_EQ(LooksOf(*copy), LooksOf(*original));
    EXPECT_EQ(copy->A(), 60);
    EXPECT_EQ(copy->B(), 120);
    EXPECT_EQ(copy->APos(), 60);
    EXPECT_EQ(copy->BPos(), 120);
    EXPECT_TRUE(copy->IsReapetABShow());
    EXPECT_EQ(copy->IconOffset(), kIconTop);
    EXPECT_EQ(copy->BandFile(), L"Band.lqi");
    EXPECT_EQ(copy->ActiveBandFile(), L"OtherBand.lqi");
    EXPECT_EQ(copy->AFile(), L"A.lqi");
    EXPECT_EQ(copy->BFile(), L"B.lqi");
}

TEST_P(SliderExCopy, SharesTheImagesAndNothingElse) {
    Copy();
    EXPECT_EQ(copy->Band().GetSurface(), original->Band().GetSurface());
    EXPECT_EQ(copy->AIcon().GetSurface(), original->AIcon().GetSurface());
    EXPECT_EQ(copy->BIcon().GetSurface(), original->BIcon().GetSurface());
    const auto looks = LooksOf(*original);
    copy->CancelReapetPlay();
    copy->EnableReapetAIcon(5);
    copy->SetReapetASurf(L"B.lqi");
    copy->SetReapetIconOffset(0);
    EXPECT_EQ(LooksOf(*original), looks);
    EXPECT_NE(LooksOf(*copy), looks);
}

TEST_P(SliderExCopy, EndsBeforeItsOriginal) {
    const auto looks = LooksOf(*original);
    Copy();
    copy.reset();
    EXPECT_EQ(LooksOf(*original), looks);
}

TEST_P(SliderExCopy, OutlivesItsOriginal) {
    const auto looks = LooksOf(*original);
    Copy();
    original.reset();
    EXPECT_EQ(LooksOf(*copy), looks);
}

INSTANTIATE_TEST_SUITE_P(Bars, SliderExCopy, testing::Bool(), [](const auto& way) {
    return way.param ? std::string("Constructed") : std::string("Assigned");
});

TEST(SliderExCopyOfItself, ChangesNothing) {
    Scene scene(100, 100);
    WriteProgressImages(scene.ImageFolder());
    TestProgress slider;
    slider.Prepare();
    slider.EnableReapetAIcon(60);
    const auto looks = LooksOf(slider);
    TestProgress& same = slider;
    slider = same;
    EXPECT_EQ(LooksOf(slider), looks);
}

TEST(SliderExClone, IsAPlainSliderOfTheSameKind) {
    TestProgress slider;
    slider.Create(0, 0, 300, 40);
    slider.EnableReapetAIcon(60);
    const std::unique_ptr<CLQBaseCtrl> clone(slider.Clone());
    EXPECT_NE(dynamic_cast<CLQSliderCtrl*>(clone.get()), nullptr);
    EXPECT_EQ(dynamic_cast<CLQSliderExCtrl*>(clone.get()), nullptr);
    EXPECT_EQ(clone->GetKind(), 51);
}

}  // namespace
}  // namespace korvane::test
