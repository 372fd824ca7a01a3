#include "tests/widgets/Bench.h"

namespace korvane::test {
namespace {

class ImageView : public WidgetsTest {
  protected:
    ImageView() {
        MakeImage("a.lqi", 30, 30, kRed);
        MakeImage("b.lqi", 30, 30, kGreen);
        view.Create(10, 10, 40, 20);
        view.SetImagePath(L"a.lqi");
        window.AddChild(&view);
        scene.Pump();
    }

    CLQImageView view;
};

TEST_F(ImageView, HasItsKind) {
    EXPECT_EQ(view.GetKind(), kKindImageView);
}

TEST_F(ImageView, ShowsItsImageAtItsTopLeftCornerCutAtItsEdges) {
    EXPECT_EQ(scene.PixelAt(10, 10), kRed);
    EXPECT_EQ(scene.PixelAt(39, 29), kRed);
    EXPECT_EQ(scene.PixelAt(40, 29), kBlack);
    EXPECT_EQ(scene.PixelAt(39, 30), kBlack);
    EXPECT_EQ(scene.PixelAt(9, 10), kBlack);
}

TEST_F(ImageView, ShowsAnotherImageAtOnce) {
    view.SetImagePath(L"b.lqi");
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(10, 10), kGreen);
}

TEST_F(ImageView, ShowsNothingForAnEmptyOrMissingName) {
    for (const wchar_t* name : {L"", static_cast<const wchar_t*>(nullptr), L"missing.lqi"}) {
        view.SetImagePath(name);
        scene.Pump();
        EXPECT_EQ(scene.PixelAt(10, 10), kBlack);
        view.SetImagePath(L"a.lqi");
        scene.Pump();
        EXPECT_EQ(scene.PixelAt(10, 10), kRed);
    }
}

TEST_F(ImageView, ShowsASurfaceThatIsHandedOver) {
    CLQSurfHandle blue = Plain(5, 5, kBlue);
    view.SetImageSurf(blue);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(14, 14), kBlue);
    EXPECT_EQ(scene.PixelAt(15, 14), kBlack);
    CLQSurfHandle none;
    view.SetImageSurf(none);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(14, 14), kBlack);
}

TEST_F(ImageView, RepaintsNothingWhenTheNameStaysTheSame) {
    CLQScreen::GetInstance()->ResetCounters();
    view.SetImagePath(L"a.lqi");
    scene.Pump();
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0U);
}

TEST_F(ImageView, LeavesTouchesToWhatLiesBelow) {
    _LQMessage press = Pointer(kMsgPress, 15, 15);
    EXPECT_FALSE(view.DoMessage(&press));
}

TEST_F(ImageView, SharesItsImageWithItsCopy) {
    CLQImageView copy(view);
    copy.MoveTo(100, 10);
    window.AddChild(&copy);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(100, 10), kRed);
    copy.SetImagePath(L"b.lqi");
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(100, 10), kGreen);
    EXPECT_EQ(scene.PixelAt(10, 10), kRed);
    const std::unique_ptr<CLQBaseCtrl> clone(view.Clone());
    EXPECT_EQ(clone->GetKind(), kKindImageView);
}

}  // namespace
}  // namespace korvane::test
