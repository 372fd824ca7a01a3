#include <climits>
#include <gtest/gtest.h>
#include <type_traits>

#include "engine/core/Message.h"
#include "engine/system/System.h"

#include "tests/controls/Touches.h"
#include "tests/controls/media/TestProgress.h"
#include "tests/support/VirtualOrder.h"

namespace korvane::test {
namespace {

/// The points, without images.
class SliderExReapet : public testing::Test {
  protected:
    SliderExReapet() {
        slider.Create(0, 0, 300, 40);
        slider.SetRange(0, 300);
    }

    TestProgress slider;
};

TEST_F(SliderExReapet, StartsWithoutPoints) {
    EXPECT_EQ(slider.GetKind(), 51);
    EXPECT_FALSE(slider.IsAShown());
    EXPECT_FALSE(slider.IsBShown());
    EXPECT_FALSE(slider.IsReapetABShow());
    EXPECT_EQ(slider.A(), 0);
    EXPECT_EQ(slider.B(), 0);
    EXPECT_EQ(slider.APos(), 0);
    EXPECT_EQ(slider.BPos(), 0);
    EXPECT_EQ(slider.IconOffset(), 0);
}

TEST_F(SliderExReapet, ClampsBothPointsIntoTheRange) {
    slider.EnableReapetAIcon(-5);
    EXPECT_EQ(slider.A(), 0);
    slider.EnableReapetAIcon(120);
    slider.EnableReapetBIcon(500);
    EXPECT_EQ(slider.A(), 120);
    EXPECT_EQ(slider.B(), 300);
    slider.EnableReapetAIcon(INT_MAX);
    EXPECT_EQ(slider.A(), 300);
    slider.EnableReapetBIcon(INT_MIN);
    EXPECT_EQ(slider.A(), 0);
    EXPECT_EQ(slider.B(), 300);
    EXPECT_EQ(slider.APos(), 0);
    EXPECT_EQ(slider.BPos(), 300);
}

TEST_F(SliderExReapet, SwapsTheSecondPointWhenItIsTheLowerOne) {
    slider.EnableReapetAIcon(120);
    EXPECT_FALSE(slider.IsReapetABShow());
    slider.EnableReapetBIcon(60);
    EXPECT_EQ(slider.A(), 60);
    EXPECT_EQ(slider.B(), 120);
    EXPECT_EQ(slider.APos(), 60);
    EXPECT_EQ(slider.BPos(), 120);
    EXPECT_TRUE(slider.IsReapetABShow());
}

TEST_F(SliderExReapet, TakesBothPointsAtTheSameValue) {
    slider.EnableReapetAIcon(120);
    slider.EnableReapetBIcon(120);
    EXPECT_EQ(slider.A(), 120);
    EXPECT_EQ(slider.B(), 120);
    EXPECT_TRUE(slider.IsReapetABShow());
}

TEST_F(SliderExReapet, ComparesASecondBWithTheAOfTheSwap) {
    slider.EnableReapetAIcon(120);
    slider.EnableReapetBIcon(60);
    slider.EnableReapetBIcon(90);
    EXPECT_EQ(slider.A(), 60);
    EXPECT_EQ(slider.B(), 90);
    slider.EnableReapetBIcon(30);
    EXPECT_EQ(slider.A(), 30);
    EXPECT_EQ(slider.B(), 60) << "the old A, not the old B";
}

TEST_F(SliderExReapet, IgnoresBWithoutA) {
    slider.Redraw(false);
    slider.EnableReapetBIcon(60);
    EXPECT_FALSE(slider.IsAShown());
    EXPECT_FALSE(slider.IsBShown());
    EXPECT_EQ(slider.B(), 0);
    EXPECT_FALSE(slider.IsNeedRedraw());
}

TEST_F(SliderExReapet, CancelTakesBothPointsAwayAndKeepsTheirValues) {
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(120);
    slider.CancelReapetPlay();
    EXPECT_FALSE(slider.IsAShown());
    EXPECT_FALSE(slider.IsBShown());
    EXPECT_EQ(slider.A(), 60);
    EXPECT_EQ(slider.B(), 120);
    EXPECT_EQ(slider.APos(), 60);
    EXPECT_EQ(slider.BPos(), 120);
    slider.EnableReapetBIcon(200);
    EXPECT_FALSE(slider.IsBShown()) << "A is not set";
    EXPECT_EQ(slider.B(), 120);
    slider.EnableReapetAIcon(30);
    EXPECT_FALSE(slider.IsReapetABShow());
    slider.EnableReapetBIcon(200);
    EXPECT_TRUE(slider.IsReapetABShow());
}

TEST_F(SliderExReapet, MovesABeyondBWithoutComparing) {
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(120);
    slider.EnableReapetAIcon(200);
    EXPECT_EQ(slider.A(), 200);
    EXPECT_EQ(slider.B(), 120);
    EXPECT_TRUE(slider.IsReapetABShow());
    slider.EnableReapetBIcon(150);
    EXPECT_EQ(slider.A(), 150) << "the next B is compared";
    EXPECT_EQ(slider.B(), 200);
}

TEST_F(SliderExReapet, KeepsThePlacesOfTheRangeAndSizeAtTheTime) {
    slider.EnableReapetAIcon(60);
    slider.EnableReapetBIcon(120);
    slider.SetRange(0, 600);
    slider.SetSize(200, 40);
    EXPECT_EQ(slider.APos(), 60);
    EXPECT_EQ(slider.BPos(), 120);
    slider.EnableReapetBIcon(300);
    EXPECT_EQ(slider.APos(), 60) << "only the point that is set";
    EXPECT_EQ(slider.BPos(), 100);
    slider.EnableReapetAIcon(60);
    EXPECT_EQ(slider.APos(), 20);
}

TEST_F(SliderExReapet, ToleratesAnEmptyRange) {
    slider.SetRange(40, 40);
    slider.EnableReapetAIcon(10);
    slider.EnableReapetBIcon(90);
    EXPECT_EQ(slider.A(), 40);
    EXPECT_EQ(slider.B(), 40);
    EXPECT_EQ(slider.BPos(), 0);
    slider.SetRange(INT_MIN, INT_MAX);
    slider.EnableReapetAIcon(INT_MAX);
    slider.EnableReapetBIcon(INT_MIN);
    EXPECT_EQ(slider.APos(), 0);
    EXPECT_EQ(slider.BPos(), 300);
}

TEST_F(SliderExReapet, AsksForARepaintWithEachChange) {
    const auto asks = [this](auto change) {
        slider.Redraw(false);
        change();
        return slider.IsNeedRedraw();
    };
    EXPECT_TRUE(asks([this] { slider.SetReapetIconOffset(7); }));
    EXPECT_TRUE(asks([this] { slider.SetReapetIconOffset(7); })) << "also when nothing changes";
    EXPECT_TRUE(asks([this] { slider.EnableReapetAIcon(10); }));
    EXPECT_TRUE(asks([this] { slider.EnableReapetBIcon(20); }));
    EXPECT_TRUE(asks([this] { slider.EnableReapetBIcon(20); }));
    EXPECT_TRUE(asks([this] { slider.CancelReapetPlay(); }));
    EXPECT_TRUE(asks([this] { slider.CancelReapetPlay(); }));
}

TEST(SliderExImages, AreReadAtOnceAndAskForNoRepaint) {
    Scene scene(100, 100);
    WriteProgressImages(scene.ImageFolder());
    TestProgress slider;
    slider.Redraw(false);
    slider.SetReapetBkgSurf(L"Band.lqi");
    slider.SetReapetASurf(L"A.lqi");
    slider.SetReapetBSurf(L"B.lqi");
    EXPECT_FALSE(slider.IsNeedRedraw());
    EXPECT_EQ(slider.BandFile(), L"Band.lqi");
    EXPECT_EQ(slider.AFile(), L"A.lqi");
    EXPECT_EQ(slider.BFile(), L"B.lqi");
    EXPECT_EQ(slider.Band().GetWidth(), 400);
    EXPECT_EQ(slider.AIcon().GetWidth(), 14);
    EXPECT_EQ(slider.BIcon().GetWidth(), 15);
}

TEST(SliderExImages, OfThePlayedPassageReplaceThoseOfThePassage) {
    Scene scene(100, 100);
    WriteProgressImages(scene.ImageFolder());
    TestProgress slider;
    slider.SetReapetBkgSurf(L"Band.lqi");
    slider.Redraw(false);
    slider.SetReapetBkgActiveSurf(L"OtherBand.lqi");
    EXPECT_FALSE(slider.IsNeedRedraw());
    EXPECT_EQ(PixelsOf(slider.Band()), PixelsOf(BandImage(20)));
    EXPECT_EQ(slider.ActiveBand().GetSurface(), nullptr);
    EXPECT_EQ(slider.BandFile(), L"Band.lqi");
    EXPECT_EQ(slider.ActiveBandFile(), L"OtherBand.lqi");
    slider.SetReapetBkgSurf(L"Band.lqi");
    EXPECT_EQ(PixelsOf(slider.Band()), PixelsOf(BandImage(200))) << "the last of the two decides";
    slider.SetReapetBkgActiveSurf(L"Missing.lqi");
    EXPECT_EQ(slider.Band().GetSurface(), nullptr);
}

TEST(SliderExImages, StayWhenTheNameIsNull) {
    Scene scene(100, 100);
    WriteProgressImages(scene.ImageFolder());
    TestProgress slider;
    slider.Prepare();
    slider.SetReapetBkgSurf(nullptr);
    slider.SetReapetBkgActiveSurf(nullptr);
    slider.SetReapetASurf(nullptr);
    slider.SetReapetBSurf(nullptr);
    EXPECT_NE(slider.Band().GetSurface(), nullptr);
    EXPECT_NE(slider.AIcon().GetSurface(), nullptr);
    EXPECT_NE(slider.BIcon().GetSurface(), nullptr);
    EXPECT_EQ(slider.BandFile(), L"Band.lqi");
    slider.SetReapetASurf(L"");
    slider.SetReapetBSurf(L"Missing.lqi");
    EXPECT_EQ(slider.AIcon().GetSurface(), nullptr);
    EXPECT_EQ(slider.BIcon().GetSurface(), nullptr);
}

TEST(SliderExLayout, KeepsItsKindAndWhatASliderKeeps) {
    TestProgress slider;
    slider.Create(5, 6, 300, 40);
    slider.SetRange(0, 300);
    slider.SetValue(77);
    CLQIniReadWrite ini;
    ASSERT_TRUE(slider.SaveCtrlToIni(ini, L"Bar"));
    TestProgress loaded;
    ASSERT_TRUE(loaded.LoadCtrlFromIni(ini, L"Bar"));
    EXPECT_EQ(loaded.GetKind(), 51);
    EXPECT_EQ(loaded.GetValue(), 77);
    CLQSliderCtrl plain;
    EXPECT_FALSE(plain.LoadCtrlFromIni(ini, L"Bar")) << "a layout of another kind";
}

template <class Inherited, class Base>
constexpr bool IsInherited(Inherited, Base) {
    return std::is_same<Inherited, Base>::value;
}

TEST(SliderExInterface, OverridesOnlyPainting) {
    using Ex = CLQSliderExCtrl;
    using Base = CLQSliderCtrl;
    static_assert(!IsInherited(&Ex::Draw, &Base::Draw), "Draw is overridden");
    static_assert(IsInherited(&Ex::DoMessage, &Base::DoMessage), "DoMessage is not overridden");
    static_assert(IsInherited(&Ex::Clone, &Base::Clone), "Clone is not overridden");
    static_assert(IsInherited(&Ex::LoadCtrlFromIni, &Base::LoadCtrlFromIni), "nor are the four of storage");
    static_assert(IsInherited(&Ex::LoadCtrlFromBin, &Base::LoadCtrlFromBin), "nor are the four of storage");
    static_assert(IsInherited(&Ex::SaveCtrlToIni, &Base::SaveCtrlToIni), "nor are the four of storage");
    static_assert(IsInherited(&Ex::SaveCtrlToBin, &Base::SaveCtrlToBin), "nor are the four of storage");
    static_assert(IsInherited(&Ex::Create, &Base::Create), "Create is not overridden");
    static_assert(IsInherited(&Ex::SetSize, &Base::SetSize), "SetSize is not overridden");
    static_assert(IsInherited(&Ex::ChangeLanguage, &Base::ChangeLanguage),
                  "ChangeLanguage is not overridden");
    if (!kKnowsVirtualOrder)
        GTEST_SKIP() << "another C++ ABI";
    EXPECT_EQ(VirtualOrder(&Ex::Draw), 13);
    EXPECT_EQ(VirtualOrder(&Ex::DoMessage), 12);
    EXPECT_EQ(VirtualOrder(&Ex::Clone), 27);
}

}  // namespace
}  // namespace korvane::test
