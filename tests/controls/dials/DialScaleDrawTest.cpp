#include <cmath>
#include <gtest/gtest.h>
#include <string>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/dials/TestGauge.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::test {
namespace {

constexpr int kScreenWidth = 200;
constexpr int kScreenHeight = 180;

/// Every pixel tells its own place.
CLQSurfHandle Checked(int width, int height) {
    CLQSurfHandle image = NewSurface(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            _LQColor color = {static_cast<unsigned char>(x), static_cast<unsigned char>(y),
                              static_cast<unsigned char>(200 * ((x + y) % 2)), 255};
            image.FillRect(x, y, x + 1, y + 1, color, false);
        }
    }
    return image;
}

void Disc(CLQSurfHandle& image, int radius, _LQColor color) {
    const int middle = image.GetWidth() / 2;
    for (int dy = -radius; dy < radius; ++dy) {
        const int half = static_cast<int>(std::sqrt(static_cast<double>(radius * radius - dy * dy)));
        image.FillRect(middle - half, middle + dy, middle + half, middle + dy + 1, color, false);
    }
}

void Marks(CLQSurfHandle& image, int radius, int start, int step, int count, _LQColor color) {
    CLQSurfHandle mark = NewSurface(10, 3);
    mark.FillRect(0, 0, 10, 3, color, false);
    const int middle = image.GetWidth() / 2;
    for (int i = 0; i < count; ++i)
        image.RotateBlt(mark, middle, middle, 1.0f, 1.0f, 10 - radius, 1, start + i * step, 2);
}

/// A dark disc with a rim and the marks of three arcs.
CLQSurfHandle Face(int size) {
    CLQSurfHandle face = NewSurface(size, size);
    Disc(face, size / 2, {150, 165, 185, 255});
    Disc(face, size / 2 - 3, {22, 28, 40, 255});
    Marks(face, size / 2 - 6, 135, 30, 10, {235, 235, 235, 255});
    Marks(face, size / 2 - 24, 210, 30, 5, {90, 220, 120, 255});
    Marks(face, size / 2 - 42, 45, 15, 7, {110, 140, 250, 255});
    return face;
}

/// A gauge in a window with a plain background.
class DialScaleDraw : public testing::Test {
  protected:
    DialScaleDraw() : scene(kScreenWidth, kScreenHeight) {
        _LQColor navy = {16, 32, 72, 255};
        window.Create(0, 0, kScreenWidth, kScreenHeight);
        window.EnableBkgColor(true, &navy);
    }

    /// Needle 0 on an arc that wraps, needle 1 above, needle 2 below.
    void Show(int mark0, int mark1, int mark2) {
        gauge.Prepare();
        gauge.SetArc(0, 135, 45, 10);
        gauge.SetArc(1, 210, 330, 5);
        gauge.SetArc(2, 45, 135, 7);
        gauge.SetCurrentDialScale(0, mark0);
        gauge.SetCurrentDialScale(1, mark1);
        gauge.SetCurrentDialScale(2, mark2);
        window.AddChild(&gauge);
        scene.Pump();
    }

    void ShowFace(CLQSurfHandle face) {
        gauge.SetBkgSurf(face);
        scene.Pump();
    }

    void WriteImageFile(const std::string& name, CLQSurfHandle image) {
        WriteImage(scene.ImageFolder() / name, image);
    }

    static CLQSurfHandle& Screen() { return CLQScreen::GetInstance()->GetScreenSurfHandle(); }

    void ExpectFullRepaintIsTheSame() {
        const auto partial = scene.Pixels();
        scene.FillWithGarbage();
        CLQScreen::GetInstance()->InvalidateAll();
        scene.Pump();
        EXPECT_EQ(scene.Pixels(), partial) << "painting a part gives the pixels of the whole";
    }

    Scene scene;
    CLQWindow window;
    TestGauge gauge;
};

TEST_F(DialScaleDraw, ShowsAFaceAndThreeNeedles) {
    Show(2, 3, 1);
    ShowFace(Face(kGaugeSize));
    EXPECT_TRUE(MatchesReference(Screen(), "dial-scale"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(DialScaleDraw, ShowsItsNeedlesAtTheEndsOfTheirArcs) {
    Show(0, 0, 0);
    ShowFace(Face(kGaugeSize));
    EXPECT_TRUE(MatchesReference(Screen(), "dial-scale-at-start"));
    gauge.SetCurrentDialScale(0, 9);
    gauge.SetCurrentDialScale(1, 4);
    gauge.SetCurrentDialScale(2, 6);
    scene.Pump();
    EXPECT_TRUE(MatchesReference(Screen(), "dial-scale-at-end"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(DialScaleDraw, CropsALargeFaceAroundItsMiddle) {
    Show(2, 3, 1);
    gauge.SetSize(120, 90);
    ShowFace(Face(kGaugeSize));
    EXPECT_TRUE(MatchesReference(Screen(), "dial-scale-cropped"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(DialScaleDraw, CentresASmallFace) {
    Show(2, 3, 1);
    ShowFace(Face(100));
    EXPECT_TRUE(MatchesReference(Screen(), "dial-scale-small-face"));
    ExpectFullRepaintIsTheSame();
}

TEST_F(DialScaleDraw, ShowsItsNeedlesWithoutAFace) {
    Show(2, 3, 1);
    EXPECT_TRUE(MatchesReference(Screen(), "dial-scale-without-face"));
    ExpectFullRepaintIsTheSame();
}

/// A length of the control, one of the face, and what of the face shows: from which pixel, and where.
struct Cut {
    int control;
    int face;
    int from;
    int at;
    int length;
};

TEST_F(DialScaleDraw, PlacesAFaceToThePixel) {
    const Cut cuts[] = {
        {160, 160, 0, 0, 160},  {160, 100, 0, 30, 100}, {160, 101, 0, 29, 101},  // 59 / 2 and 261 / 2
        {161, 100, 0, 30, 100},                                                  // 61 / 2 and 261 / 2
        {160, 161, 0, 0, 160},                                                   // -1 / 2, cut toward zero
        {160, 163, 1, 0, 160},                                                   // -3 / 2
        {161, 200, 19, 0, 161},                                                  // -39 / 2
        {161, 201, 20, 0, 161}, {1, 200, 99, 0, 1},     {0, 200, 0, 0, 0},      {160, 1, 0, 79, 1},
    };
    for (const Cut& across : cuts) {
        for (const Cut& down : cuts) {
            gauge.Create(kGaugeX, kGaugeY, across.control, down.control);
            CLQSurfHandle face = Checked(across.face, down.face);
            gauge.SetBkgSurf(face);
            CLQSurfHandle expected = NewSurface(kCanvasSize, kCanvasSize);
            expected.BitBlt(face, kGaugeX + across.at, kGaugeY + down.at, across.length, down.length,
                            across.from, down.from);
            ASSERT_EQ(LooksOf(gauge), PixelsOf(expected))
                << across.face << " in " << across.control << ", " << down.face << " in " << down.control;
        }
    }
}

TEST_F(DialScaleDraw, PaintsTheNeedlesInTheirOrderOverTheFace) {
    gauge.Prepare();
    CLQSurfHandle face = Checked(kGaugeSize, kGaugeSize);
    gauge.SetBkgSurf(face);
    for (int i = 0; i < 3; ++i)
        gauge.SetStartAngle(i, 0);
    const auto pixels = LooksOf(gauge);
    const auto at = [&pixels](int fromMiddle) {
        return pixels[static_cast<std::size_t>((kGaugeY + 80) * kCanvasSize + kGaugeX + 80 + fromMiddle)];
    };
    EXPECT_EQ(at(10), 0xFF3C5AE6u) << "needle 2";
    EXPECT_EQ(at(40), 0xFF28C83Cu) << "needle 1";
    EXPECT_EQ(at(60), 0xFFDC2828u) << "needle 0";
    EXPECT_EQ(at(75), 0xFF9B5000u | (155u + 80u) % 2u * 200u) << "the face";
}

TEST_F(DialScaleDraw, LoadsNamedImagesWhenItPaints) {
    gauge.Prepare();
    gauge.SetBkgSurf(L"Face.lqi");
    gauge.SetPointerSurf(L"Needle0.lqi", L"Needle1.lqi", L"Needle2.lqi");
    EXPECT_EQ(LooksOf(gauge), PixelsOf(NewSurface(kCanvasSize, kCanvasSize))) << "no file is there";

    std::array<CLQSurfHandle, 3> needles = Needles();
    WriteImageFile("Face.lqi", Checked(100, 100));
    WriteImageFile("Needle0.lqi", needles[0]);
    WriteImageFile("Needle1.lqi", needles[1]);
    WriteImageFile("Needle2.lqi", needles[2]);
    const auto looks = LooksOf(gauge);
    for (int i = 0; i < 3; ++i) {
        POINT edge = {0, needles[static_cast<std::size_t>(i)].GetHeight() / 2};
        gauge.SetPointerCenter(i, &edge);
    }

    TestGauge other;
    other.Prepare();
    CLQSurfHandle face = Checked(100, 100);
    other.SetBkgSurf(face);
    EXPECT_EQ(LooksOf(gauge), LooksOf(other));
    POINT corner = {0, 0};
    for (int i = 0; i < 3; ++i)
        other.SetPointerCenter(i, &corner);
    EXPECT_EQ(looks, LooksOf(other)) << "a needle of a file turns about its corner";
}

TEST_F(DialScaleDraw, ReadsAnImageAnewWhenItIsNamedAgain) {
    gauge.Prepare();
    WriteImageFile("Face.lqi", Checked(100, 100));
    gauge.SetBkgSurf(L"Face.lqi");
    const auto looks = LooksOf(gauge);
    WriteImageFile("Face.lqi", Checked(50, 50));
    EXPECT_EQ(LooksOf(gauge), looks);
    gauge.SetBkgSurf(L"Face.lqi");
    const auto smaller = LooksOf(gauge);
    CLQSurfHandle face = Checked(50, 50);
    gauge.SetBkgSurf(face);
    EXPECT_EQ(smaller, LooksOf(gauge));
}

TEST_F(DialScaleDraw, ReadsNeedlesAnewWhenTheyAreNamedAgain) {
    gauge.Prepare();
    const std::array<CLQSurfHandle, 3> needles = Needles();
    for (std::size_t i = 0; i < needles.size(); ++i)
        WriteImageFile("Needle" + std::to_string(i) + ".lqi", needles[i]);
    gauge.SetPointerSurf(L"Needle0.lqi", L"Needle1.lqi", L"Needle2.lqi");
    const auto looks = LooksOf(gauge);
    for (std::size_t i = 0; i < needles.size(); ++i)
        WriteImageFile("Needle" + std::to_string(i) + ".lqi", needles[needles.size() - 1 - i]);
    EXPECT_EQ(LooksOf(gauge), looks);
    gauge.SetPointerSurf(L"Needle0.lqi", L"Needle1.lqi", L"Needle2.lqi");
    EXPECT_EQ(LooksOf(gauge),
              LooksOf({{needles[2], 0, 0, 90}, {needles[1], 0, 0, 90}, {needles[0], 0, 0, 90}}, kGaugeX + 80,
                      kGaugeY + 80));
}

TEST_F(DialScaleDraw, KeepsItsFaceForANullName) {
    gauge.Prepare();
    CLQSurfHandle face = Checked(100, 100);
    gauge.SetBkgSurf(face);
    const auto looks = LooksOf(gauge);
    gauge.Redraw(false);
    gauge.SetBkgSurf(nullptr);
    EXPECT_FALSE(gauge.IsNeedRedraw());
    EXPECT_EQ(LooksOf(gauge), looks);
    gauge.SetBkgSurf(L"");
    EXPECT_EQ(LooksOf(gauge), LooksAt(90, 90, 90)) << "an empty name takes it away";
}

TEST_F(DialScaleDraw, ForgetsNamesForSurfaces) {
    gauge.Prepare();
    WriteImageFile("Image.lqi", Checked(40, 40));
    gauge.SetBkgSurf(L"Image.lqi");
    gauge.SetPointerSurf(L"Image.lqi", L"Image.lqi", L"Image.lqi");
    CLQSurfHandle none;
    gauge.SetBkgSurf(none);
    gauge.SetPointerSurf(none, none, none);
    EXPECT_EQ(LooksOf(gauge), PixelsOf(NewSurface(kCanvasSize, kCanvasSize)));
}

TEST_F(DialScaleDraw, TakesNullAndEmptyNamesForNoNeedle) {
    gauge.Prepare();
    WriteImageFile("Needle.lqi", Needles()[1]);
    const wchar_t* const none = nullptr;
    gauge.SetPointerSurf(none, L"Needle.lqi", L"");
    EXPECT_EQ(LooksOf(gauge), LooksOf({{Needles()[1], 0, 0, 90}}, kGaugeX + 80, kGaugeY + 80));
}

TEST_F(DialScaleDraw, PutsThePivotOfASurfaceInTheMiddleOfItsLeftEdge) {
    gauge.Prepare();
    POINT point = {7, 7};
    for (int i = 0; i < 3; ++i)
        gauge.SetPointerCenter(i, &point);
    CLQSurfHandle high = NeedleImage(60, 9, {220, 40, 40, 255});
    CLQSurfHandle even = NeedleImage(60, 4, {40, 200, 60, 255});
    CLQSurfHandle flat = NeedleImage(60, 1, {60, 90, 230, 255});
    gauge.SetPointerSurf(high, even, flat);
    gauge.SetStartAngle(0, 0);
    gauge.SetStartAngle(1, 120);
    gauge.SetStartAngle(2, 240);
    EXPECT_EQ(LooksOf(gauge),
              LooksOf({{high, 0, 4, 0}, {even, 0, 2, 120}, {flat, 0, 0, 240}}, kGaugeX + 80, kGaugeY + 80));
}

TEST_F(DialScaleDraw, ShowsNothingOutsideItselfInAWindow) {
    Show(0, 0, 0);
    gauge.SetSize(60, 60);
    ShowFace(Face(kGaugeSize));
    scene.FillWithGarbage();
    const auto before = scene.Pixels();
    CLQScreen::GetInstance()->ResetCounters();
    gauge.SetCurrentDialScale(0, 5);
    scene.Pump();
    const auto after = scene.Pixels();
    for (int y = 0; y < kScreenHeight; ++y) {
        for (int x = 0; x < kScreenWidth; ++x) {
            const bool inside = x >= kGaugeX && x < kGaugeX + 60 && y >= kGaugeY && y < kGaugeY + 60;
            const auto at = static_cast<std::size_t>(y * kScreenWidth + x);
            if (!inside) {
                ASSERT_EQ(after[at], before[at]) << x << ", " << y;
            }
        }
    }
    const ScreenCounters counters = CLQScreen::GetInstance()->GetCounters();
    EXPECT_EQ(counters.paints, 1u);
    EXPECT_EQ(counters.paintedPixels, 60u * 60u);
    EXPECT_EQ(counters.flippedPixels, 60u * 60u);
}

TEST_F(DialScaleDraw, DrawsNothingInAWindowUnlessItIsMarked) {
    Show(2, 3, 1);
    ASSERT_FALSE(gauge.IsNeedRedraw());
    const auto blank = PixelsOf(NewSurface(kCanvasSize, kCanvasSize));
    EXPECT_EQ(LooksOf(gauge), blank);
    gauge.Redraw(true);
    EXPECT_NE(LooksOf(gauge), blank);
    EXPECT_FALSE(gauge.IsNeedRedraw());
}

TEST_F(DialScaleDraw, DrawsAlwaysAndKeepsItsMarkWithoutAWindow) {
    gauge.Prepare();
    const auto looks = LooksOf(gauge);
    EXPECT_EQ(looks, LooksAt(90, 90, 90));
    EXPECT_TRUE(gauge.IsNeedRedraw());
    gauge.Redraw(false);
    EXPECT_EQ(LooksOf(gauge), looks);
}

TEST_F(DialScaleDraw, DrawsOnAnEmptyHandle) {
    gauge.Prepare();
    CLQSurfHandle nothing;
    gauge.Draw(nothing);
    SUCCEED();
}

TEST_F(DialScaleDraw, KeepsATouchUntilItsReleaseInAWindow) {
    Show(2, 3, 1);
    const auto looks = scene.Pixels();
    scene.Press(kGaugeX + 5, kGaugeY + 5);
    EXPECT_TRUE(gauge.IsPressed());
    scene.Move(0, 0);
    EXPECT_TRUE(gauge.IsPressed());
    scene.Release(kScreenWidth - 1, kScreenHeight - 1);
    EXPECT_FALSE(gauge.IsPressed());
    EXPECT_EQ(scene.Pixels(), looks);
}

}  // namespace
}  // namespace korvane::test
