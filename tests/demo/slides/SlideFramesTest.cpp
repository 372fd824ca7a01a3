#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>
#include <vector>

#include "demo/headunit/HeadUnit.h"
#include "demo/headunit/ScreenSlide.h"
#include "demo/mainapp/MainApplication.h"
#include "tests/demo/DemoScene.h"
#include "tests/module/slides/RecorderSink.h"
#include "tools/systemservice/SystemService.h"

namespace korvane::demo {

namespace {

constexpr int kScreenWidth = 1000;
constexpr int kScreenHeight = 600;
constexpr int kStripHeight = 60;

using Pixels = std::vector<std::uint32_t>;

/// What the glass shows after something became visible, and where it did so.
struct Moment {
    _LQRect rect;
    unsigned tick = 0;
    Pixels glass;
};

std::vector<Moment> g_moments;
Pixels g_glass;

void Show(const std::uint32_t* pixels, int stride, int left, int top, int right, int bottom) {
    for (int y = top; y < bottom; ++y) {
        const std::uint32_t* const row = pixels + static_cast<std::ptrdiff_t>(y) * stride;
        std::copy(row + left, row + right,
                  g_glass.begin() + static_cast<std::ptrdiff_t>(y) * kScreenWidth + left);
    }
    Moment moment;
    moment.rect.left = left;
    moment.rect.top = top;
    moment.rect.right = right;
    moment.rect.bottom = bottom;
    moment.tick = GetTickCount();
    moment.glass = g_glass;
    g_moments.push_back(moment);
}

/// Where the head unit lies on a screen that is larger than it.
struct Corner {
    int x;
    int y;
};

class SlideFrames : public testing::TestWithParam<Corner> {
  protected:
    SlideFrames() {
        CLQScreen* const screen = CLQScreen::GetInstance();
        screen->Close();
        g_glass.assign(std::size_t{kScreenWidth} * kScreenHeight, 0);
        test::SetRecorderSink(&Show);
        if (!screen->Open("recorder", kScreenWidth, kScreenHeight, L"Slides"))
            throw std::runtime_error("the recording display does not open");
        mainApplication_.emplace(MainApplication::KeyBeep::Silent);
        mainApplication_->Start();
        headUnit_.emplace();
        headUnit_->Create(GetParam().x, GetParam().y);
        scene_.Pump();
        g_moments.clear();
    }
    ~SlideFrames() override {
        headUnit_.reset();
        CLQScreen::GetInstance()->Close();
        test::SetRecorderSink(nullptr);
        g_moments.clear();
    }

    void Touch(int x, int y) { scene_.Touch(GetParam().x + x, GetParam().y + y); }
    /// A screen on which nothing moves, and one on which pictures do from when it is shown.
    void OpenPresets() { Touch(696, 453); }
    void OpenMenu() { Touch(88, 453); }
    void GoBack() { Touch(100, 30); }

    /// The moments at which the screens' whole rectangle became visible and nothing else.
    static std::vector<Moment> Frames() {
        std::vector<Moment> frames;
        for (const Moment& moment : g_moments) {
            const _LQRect& rect = moment.rect;
            if (rect.left == GetParam().x && rect.right == GetParam().x + HeadUnit::kWidth &&
                rect.top == GetParam().y + kStripHeight && rect.bottom == GetParam().y + HeadUnit::kHeight)
                frames.push_back(moment);
        }
        return frames;
    }
    /// The screens' part of the glass.
    static Pixels Content(const Pixels& glass) {
        return Part(glass, GetParam().x, GetParam().y + kStripHeight, HeadUnit::kWidth,
                    HeadUnit::kHeight - kStripHeight);
    }
    static Pixels Strip(const Pixels& glass) {
        return Part(glass, GetParam().x, GetParam().y, HeadUnit::kWidth, kStripHeight);
    }
    static Pixels Part(const Pixels& glass, int left, int top, int width, int height) {
        Pixels part;
        for (int y = top; y < top + height; ++y) {
            const auto row = glass.begin() + static_cast<std::ptrdiff_t>(y) * kScreenWidth + left;
            part.insert(part.end(), row, row + width);
        }
        return part;
    }
    /// `moving` stands with its column `from` at the left edge, `width` columns of it, over `resting`.
    static Pixels Composed(const Pixels& moving, const Pixels& resting, int from, int width) {
        Pixels composed = resting;
        for (std::size_t row = 0; row < composed.size(); row += HeadUnit::kWidth) {
            const auto source = moving.begin() + static_cast<std::ptrdiff_t>(row) + from;
            std::copy(source, source + width, composed.begin() + static_cast<std::ptrdiff_t>(row));
        }
        return composed;
    }
    /// What a repaint of everything shows.
    Pixels Repainted() {
        scene_.FillWithGarbage();
        CLQScreen::GetInstance()->InvalidateAll();
        scene_.Pump();
        return g_glass;
    }

    test::DemoScene scene_;
    std::optional<MainApplication> mainApplication_;
    std::optional<HeadUnit> headUnit_;
};

/// How far the four frames of a slide over 800 columns have come.
constexpr int kWays[] = {306, 565, 739, 800};

}  // namespace

TEST_P(SlideFrames, BringTheNextScreenInOverTheOneBefore) {
    const Pixels before = Content(g_glass);
    OpenPresets();
    const Pixels after = Content(g_glass);
    ASSERT_FALSE(before == after);
    const std::vector<Moment> frames = Frames();
    ASSERT_EQ(frames.size(), std::size(kWays));
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const int way = kWays[i];
        EXPECT_TRUE(Content(frames[i].glass) == Composed(after, before, HeadUnit::kWidth - way, way)) << i;
    }
}

TEST_P(SlideFrames, TakeTheScreenAwayThatIsLeft) {
    const Pixels radio = Content(g_glass);
    OpenMenu();
    Touch(659, 168);
    const Pixels list = Content(g_glass);
    Touch(180, 110);
    const std::vector<Moment> frames = Frames();
    ASSERT_EQ(frames.size(), 3 * std::size(kWays));
    for (std::size_t i = 0; i < std::size(kWays); ++i) {
        const int way = kWays[i];
        const Moment& frame = frames[2 * std::size(kWays) + i];
        EXPECT_TRUE(Content(frame.glass) == Composed(list, radio, way, HeadUnit::kWidth - way)) << i;
    }
}

TEST_P(SlideFrames, TakeEightyMillisecondsEach) {
    const unsigned start = GetTickCount();
    OpenMenu();
    const std::vector<Moment> frames = Frames();
    for (std::size_t i = 0; i < frames.size(); ++i)
        EXPECT_EQ(frames[i].tick, start + 80 * (i + 1));
}

TEST_P(SlideFrames, EndWithWhatAPlainRepaintShows) {
    OpenPresets();
    const std::vector<Moment> presets = Frames();
    ASSERT_FALSE(presets.empty());
    EXPECT_TRUE(presets.back().glass == Repainted());
    g_moments.clear();
    GoBack();
    const std::vector<Moment> radio = Frames();
    ASSERT_FALSE(radio.empty());
    EXPECT_TRUE(radio.back().glass == Repainted());
}

TEST_P(SlideFrames, ShowNothingOfTheNextScreenBeforeTheFirst) {
    const Pixels before = Content(g_glass);
    scene_.Press(GetParam().x + 88, GetParam().y + 453);
    const Pixels pressed = Content(g_glass);
    g_moments.clear();
    scene_.Release(GetParam().x + 88, GetParam().y + 453);
    for (const Moment& moment : g_moments) {
        if (Content(moment.glass) != before && Content(moment.glass) != pressed) {
            EXPECT_EQ(moment.tick, Frames().front().tick);
            break;
        }
    }
    EXPECT_FALSE(Frames().empty());
}

TEST_P(SlideFrames, LeaveTheStripInItsPlaceWithTheTitleOfTheNextScreen) {
    const Pixels before = Strip(g_glass);
    OpenMenu();
    const Pixels after = Strip(g_glass);
    ASSERT_FALSE(before == after);
    for (const Moment& frame : Frames())
        EXPECT_TRUE(Strip(frame.glass) == after);
}

TEST_P(SlideFrames, LeaveWhatLiesAroundTheHeadUnitAlone) {
    OpenMenu();
    GoBack();
    for (int y = 0; y < kScreenHeight; ++y) {
        for (int x = 0; x < kScreenWidth; ++x) {
            const bool isInside = x >= GetParam().x && x < GetParam().x + HeadUnit::kWidth &&
                                  y >= GetParam().y && y < GetParam().y + HeadUnit::kHeight;
            if (!isInside) {
                ASSERT_EQ(g_glass[static_cast<std::size_t>(y) * kScreenWidth + x] & 0xFFFFFFu, 0u);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(HeadUnitAt, SlideFrames, testing::Values(Corner{0, 0}, Corner{100, 60}),
                         [](const auto& corner) { return corner.param.x == 0 ? "TheCorner" : "TheMiddle"; });

}  // namespace korvane::demo
