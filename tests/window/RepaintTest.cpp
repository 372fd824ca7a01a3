#include <gtest/gtest.h>
#include <random>

#include "tests/support/Scene.h"
#include "tests/window/Probe.h"

namespace {

using korvane::test::Probe;
using korvane::test::Scene;

class Repaint : public ::testing::Test {
  protected:
    void SetUp() override {
        window.Create(0, 0, 800, 480);
        _LQColor navy{10, 20, 60, 255};
        window.EnableBkgColor(true, &navy);
        lower.Create(100, 100, 200, 100);
        upper.Create(250, 150, 200, 100);
        upper.alpha = 128;
        window.AddChild(&lower);
        window.AddChild(&upper);
        scene.Pump();
        screen->ResetCounters();
        lower.draws = 0;
        upper.draws = 0;
    }

    Scene scene;
    CLQScreen* screen = CLQScreen::GetInstance();
    CLQWindow window;
    Probe lower{200};
    Probe upper{90};
};

TEST_F(Repaint, HappensOnceForAnyNumberOfInvalidations) {
    for (int i = 0; i < 10; ++i)
        lower.Invalidate();
    EXPECT_TRUE(lower.IsNeedRedraw());
    EXPECT_EQ(lower.draws, 0) << "nothing is painted before the queue has run dry";
    scene.Pump();
    EXPECT_EQ(lower.draws, 1);
    EXPECT_FALSE(lower.IsNeedRedraw());
    EXPECT_EQ(screen->GetCounters().paints, 1U);
    EXPECT_EQ(screen->GetCounters().flips, 1U);
}

TEST_F(Repaint, TouchesTheMarkedRectangleAndNoOtherPixel) {
    scene.FillWithGarbage();
    const auto before = scene.Pixels();
    lower.Invalidate();
    scene.Pump();
    const auto after = scene.Pixels();
    for (int y = 0; y < 480; ++y) {
        for (int x = 0; x < 800; ++x) {
            const bool inside = x >= 100 && x < 300 && y >= 100 && y < 200;
            const auto at = static_cast<std::size_t>(y * 800 + x);
            if (!inside) {
                ASSERT_EQ(before[at], after[at]) << x << ", " << y;
            }
        }
    }
    EXPECT_EQ(screen->GetCounters().paintedPixels, 200U * 100U);
    EXPECT_EQ(screen->GetCounters().flippedPixels, 200U * 100U);
}

TEST_F(Repaint, OfAPartGivesThePixelsOfTheWhole) {
    const auto whole = scene.Pixels();
    std::mt19937 random(7);
    for (int i = 0; i < 200; ++i) {
        scene.FillWithGarbage();
        _LQRect rect;
        rect.left = static_cast<int>(random() % 700);
        rect.top = static_cast<int>(random() % 400);
        rect.right = rect.left + 1 + static_cast<int>(random() % 300);
        rect.bottom = rect.top + 1 + static_cast<int>(random() % 200);
        window.InvalidateRect(rect);
        scene.Pump();
        for (int y = rect.top; y < std::min(rect.bottom, 480); ++y) {
            for (int x = rect.left; x < std::min(rect.right, 800); ++x)
                ASSERT_EQ(scene.PixelAt(x, y), whole[static_cast<std::size_t>(y * 800 + x)])
                    << x << ", " << y;
        }
    }
}

TEST_F(Repaint, KeepsEachControlInsideItsOwnRectangle) {
    EXPECT_EQ(scene.PixelAt(99, 150), 0xFF0A143CU);
    EXPECT_EQ(scene.PixelAt(100, 150), 0xFFC86428U);
}

TEST_F(Repaint, DrawsWhatOverlapsInOrder) {
    lower.Invalidate();
    scene.Pump();
    EXPECT_EQ(lower.draws, 1);
    EXPECT_EQ(upper.draws, 1) << "it lies over a part of the lower one";
    upper.MoveTo(500, 300);
    scene.Pump();
    lower.draws = upper.draws = 0;
    lower.Invalidate();
    scene.Pump();
    EXPECT_EQ(upper.draws, 0);
}

TEST_F(Repaint, CoversTheOldPlaceAndTheNewOne) {
    lower.MoveTo(600, 400);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(150, 150), 0xFF0A143CU);
    EXPECT_EQ(scene.PixelAt(650, 450), 0xFFC86428U);
    lower.SetShow(false);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(650, 450), 0xFF0A143CU);
    lower.SetShow(true);
    lower.SetSize(10, 10);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(605, 405), 0xFFC86428U);
    EXPECT_EQ(scene.PixelAt(650, 450), 0xFF0A143CU);
    window.DelChild(&lower, true);
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(605, 405), 0xFF0A143CU);
}

TEST_F(Repaint, ShowsWhatAClosedWindowHasUncovered) {
    {
        CLQWindow popup;
        popup.Create(50, 50, 300, 300);
        _LQColor white{255, 255, 255, 255};
        popup.EnableBkgColor(true, &white);
        scene.Pump();
        EXPECT_EQ(scene.PixelAt(60, 60), 0xFFFFFFFFU);
        popup.MoveTo(400, 100);
        scene.Pump();
        EXPECT_EQ(scene.PixelAt(60, 60), 0xFF0A143CU);
        EXPECT_EQ(scene.PixelAt(410, 110), 0xFFFFFFFFU);
    }
    scene.Pump();
    EXPECT_EQ(scene.PixelAt(660, 110), 0xFF0A143CU);
}

TEST_F(Repaint, LeavesOutWhatAnOpaqueWindowHides) {
    CLQWindow cover;
    cover.Create(0, 0, 800, 480);
    _LQColor white{255, 255, 255, 255};
    cover.EnableBkgColor(true, &white);
    scene.Pump();
    lower.draws = 0;
    lower.Invalidate();
    scene.Pump();
    EXPECT_EQ(lower.draws, 0);
    EXPECT_EQ(scene.PixelAt(150, 150), 0xFFFFFFFFU);
}

TEST_F(Repaint, DoesNothingOnAnIdleScreen) {
    scene.Advance(60000);
    EXPECT_EQ(screen->GetCounters().paints, 0U);
    EXPECT_EQ(screen->GetCounters().flips, 0U);
}

TEST_F(Repaint, WaitsWhileUpdateRectanglesAreOff) {
    window.EnableUpdateRect(false);
    lower.Invalidate();
    scene.Pump();
    EXPECT_EQ(lower.draws, 0);
    EXPECT_TRUE(lower.IsNeedRedraw());
    window.EnableUpdateRect(true);
    lower.Invalidate();
    window.ClearUpdateRectVec();
    scene.Pump();
    EXPECT_EQ(lower.draws, 0);
    lower.Invalidate();
    scene.Pump();
    EXPECT_EQ(lower.draws, 1);
}

TEST_F(Repaint, IsNotLostWhenDrawingAsksForMore) {
    struct Animated : Probe {
        void Draw(CLQSurfHandle& target) override {
            Probe::Draw(target);
            if (draws < 5)
                Invalidate();
        }
    } animated;
    animated.Create(500, 300, 20, 20);
    window.AddChild(&animated);
    scene.Pump();
    EXPECT_EQ(animated.draws, 5);
}

TEST_F(Repaint, FollowsTheOwnerUpdateSwitch) {
    lower.EnableOwnerUpdate(false);
    lower.Invalidate();
    scene.Pump();
    EXPECT_EQ(lower.draws, 0);
    EXPECT_TRUE(lower.IsNeedRedraw());
}

TEST_F(Repaint, OfAnUnchangedWindowIsAskedForByNobody) {
    scene.Pump();
    MSG msg;
    EXPECT_FALSE(PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE));
}

TEST_F(Repaint, DrawsAControlAnywhereOnAnotherSurface) {
    CLQSurfHandle buffer = CLQSurfManager::GetInstance()->CreateSurface(220, 120, eSurface_ARGB8888, true);
    lower.DrawBaseCtrl(buffer, 10, 10);
    const auto pixels = korvane::test::PixelsOf(buffer);
    EXPECT_EQ(pixels[20 * 220 + 20], 0xFFC86428U);
    EXPECT_EQ(pixels[0], 0U) << "five pixels beside the control it paints nothing any more";
}

TEST_F(Repaint, OfAWindowIntoASurfaceStartsAtTheScreensOrigin) {
    CLQSurfHandle buffer = CLQSurfManager::GetInstance()->CreateSurface(320, 220, eSurface_ARGB8888, true);
    window.Draw(buffer);
    const auto pixels = korvane::test::PixelsOf(buffer);
    EXPECT_EQ(pixels[150 * 320 + 150], 0xFFC86428U);
    EXPECT_EQ(pixels[0], 0xFF0A143CU);
}

TEST_F(Repaint, FillsTheBackgroundBetweenGivenEdges) {
    CLQSurfHandle buffer = CLQSurfManager::GetInstance()->CreateSurface(50, 50, eSurface_ARGB8888, true);
    window.FillBkgRect(buffer, 10, 10, 20, 20);
    const auto pixels = korvane::test::PixelsOf(buffer);
    EXPECT_EQ(pixels[10 * 50 + 10], 0xFF0A143CU);
    EXPECT_EQ(pixels[19 * 50 + 19], 0xFF0A143CU);
    EXPECT_EQ(pixels[20 * 50 + 20], 0U);
    EXPECT_EQ(pixels[9 * 50 + 9], 0U);
    window.FillBkgRect(buffer, 20, 20, 10, 10);
}

}  // namespace
