#include <climits>
#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "module/Slides.h"
#include "platform/coredll.h"

#include "tests/module/slides/SlideBench.h"

namespace korvane::test {
namespace {

using Slides = SlideBench;

/// One of the three functions with one of the backgrounds that it can have.
struct Way {
    const char* name;
    bool in;
    bool rounds;
    std::function<void(CLQWindow&, Panel&, int frames)> slide;
    /// What lies behind the panel.
    std::function<CLQSurfHandle()> background;
    /// Makes the screen ready.
    std::function<void(CLQWindow&)> prepare;
};

void PrintTo(const Way& way, std::ostream* out) {
    *out << way.name;
}

/// Stands behind the panel, larger than it.
Panel& Behind() {
    static Panel behind(7, 90, 120, 60, 90);
    return behind;
}

CLQSurfHandle& Background() {
    static CLQSurfHandle background = Chart(110, 20, 30);
    return background;
}

void PaintStripes(CLQWindow&) {
    CLQSurfHandle& screen = CLQScreen::GetInstance()->GetScreenSurfHandle();
    screen.BitBlt(Background(), kPanelX, kPanelY, kPanelWidth, kPanelHeight, 0, 0);
}

std::vector<Way> AllWays() {
    const auto none = [](CLQWindow&) {};
    const auto chart = [] { return Background(); };
    const auto windowColor = [] { return Filled(kPanelWidth, kPanelHeight, {16, 32, 72, 255}); };
    std::vector<Way> ways;
    ways.push_back({"Screen", true, true,
                    [](CLQWindow& w, Panel& p, int n) { MoveInOutCtrl(&w, &p, nullptr, true, n); }, chart,
                    PaintStripes});
    ways.push_back({"Window", false, true,
                    [](CLQWindow& w, Panel& p, int n) { MoveInOutCtrl(&w, &p, nullptr, false, n); },
                    windowColor, none});
    for (const bool in : {true, false}) {
        ways.push_back({in ? "ControlIn" : "ControlOut", in, true,
                        [in](CLQWindow& w, Panel& p, int n) { MoveInOutCtrl(&w, &p, &Behind(), in, n); },
                        [] { return Chart(120, 60, 90); }, none});
        ways.push_back({in ? "PictureIn" : "PictureOut", in, false,
                        [in](CLQWindow& w, Panel& p, int n) { MoveInOutCtrl2(&w, &p, &Background(), in, n); },
                        chart, none});
        ways.push_back({in ? "WithoutIn" : "WithoutOut", in, false,
                        [in](CLQWindow& w, Panel& p, int n) { MoveInOutCtrl3(&w, &p, in, n); }, windowColor,
                        PaintStripes});
    }
    return ways;
}

class SlideWays : public SlideBench, public testing::WithParamInterface<Way> {};

TEST_P(SlideWays, ShowEachFrameOfOneToTwentyExactly) {
    const Way& way = GetParam();
    for (int frames = 1; frames <= 20; ++frames) {
        way.prepare(window);
        shown.clear();
        const DWORD start = GetTickCount();
        way.slide(window, panel, frames);
        ASSERT_EQ(shown.size(), static_cast<std::size_t>(frames));
        const std::vector<int>& widths = way.rounds ? RoundedWidths(frames) : CutWidths(frames);
        for (int i = 0; i < frames; ++i) {
            const Shown& flip = shown[static_cast<std::size_t>(i)];
            ASSERT_EQ(flip.tick, start + 80u * static_cast<unsigned>(i + 1)) << "shown after the wait";
            ASSERT_EQ(flip.rect.left, kPanelX);
            ASSERT_EQ(flip.rect.right, kPanelX + kPanelWidth);
            ASSERT_EQ(flip.rect.top, kPanelY);
            ASSERT_EQ(flip.rect.bottom, kPanelY + kPanelHeight);
            const int visible = widths[static_cast<std::size_t>(i)];
            ASSERT_EQ(flip.pixels, Composed(way.background(), way.in, visible))
                << "frame " << i + 1 << " of " << frames << ", width " << visible;
        }
        EXPECT_EQ(GetTickCount(), start + 80u * static_cast<unsigned>(frames));
    }
}

TEST_P(SlideWays, TimeEachFrameFromWhenTheLastOneWasShown) {
    const Way& way = GetParam();
    for (const unsigned ms : {30u, 100u}) {
        SetPresentTime(ms);
        shown.clear();
        const DWORD start = GetTickCount();
        way.slide(window, panel, 3);
        ASSERT_EQ(shown.size(), 3u);
        for (unsigned i = 0; i < 3; ++i)
            EXPECT_EQ(shown[i].tick, start + 80 + i * (ms + 80)) << ms;
    }
}

TEST_P(SlideWays, TakeFewerThanOneFrameAsOne) {
    const Way& way = GetParam();
    for (const int frames : {0, -1, INT_MIN}) {
        way.prepare(window);
        shown.clear();
        const DWORD start = GetTickCount();
        way.slide(window, panel, frames);
        ASSERT_EQ(shown.size(), 1u);
        EXPECT_EQ(shown[0].tick, start + 80);
        EXPECT_EQ(shown[0].pixels, Composed(way.background(), way.in, kPanelWidth));
    }
}

TEST_P(SlideWays, CollectRepaintsOnlyAfterwards) {
    const Way& way = GetParam();
    way.slide(window, panel, 2);
    Pump();
    window.ClearUpdateRectVec();
    panel.Invalidate();
    EXPECT_FALSE(window.GetUpdateRects().IsEmpty());
}

TEST_P(SlideWays, ChangeNothingOutsideTheControl) {
    const Way& way = GetParam();
    const auto above = ScreenPixels(0, 0, kBenchWidth, kPanelY);
    const auto left = ScreenPixels(0, 0, kPanelX, kBenchHeight);
    const auto right =
        ScreenPixels(kPanelX + kPanelWidth, 0, kBenchWidth - kPanelX - kPanelWidth, kBenchHeight);
    const auto below = ScreenPixels(0, kPanelY + kPanelHeight, kBenchWidth, 40);
    way.slide(window, panel, 5);
    EXPECT_EQ(ScreenPixels(0, 0, kBenchWidth, kPanelY), above);
    EXPECT_EQ(ScreenPixels(0, 0, kPanelX, kBenchHeight), left);
    EXPECT_EQ(ScreenPixels(kPanelX + kPanelWidth, 0, kBenchWidth - kPanelX - kPanelWidth, kBenchHeight),
              right);
    EXPECT_EQ(ScreenPixels(0, kPanelY + kPanelHeight, kBenchWidth, 40), below);
}

INSTANTIATE_TEST_SUITE_P(Backgrounds, SlideWays, testing::ValuesIn(AllWays()),
                         [](const auto& way) { return std::string(way.param.name); });

TEST_F(Slides, RoundInOneFunctionAndCutInTheOthers) {
    EXPECT_EQ(RoundedWidths(4), (std::vector<int>{38, 71, 92, 100}));
    EXPECT_EQ(CutWidths(4), (std::vector<int>{38, 70, 92, 100}));
}

TEST_F(Slides, DoNothingWithoutAWindowOrAControl) {
    window.EnableUpdateRect(false);
    const DWORD start = GetTickCount();
    MoveInOutCtrl(&window, nullptr, &panel, true, 3);
    MoveInOutCtrl2(&window, nullptr, &Background(), true, 3);
    MoveInOutCtrl3(&window, nullptr, true, 3);
    MoveInOutCtrl(nullptr, &panel, &panel, true, 3);
    MoveInOutCtrl2(nullptr, &panel, &Background(), true, 3);
    MoveInOutCtrl3(nullptr, &panel, true, 3);
    EXPECT_EQ(GetTickCount(), start);
    EXPECT_TRUE(shown.empty());
    panel.Invalidate();
    EXPECT_TRUE(window.GetUpdateRects().IsEmpty()) << "still switched off";
}

TEST_F(Slides, TakeANullPictureForNone) {
    MoveInOutCtrl2(&window, &panel, nullptr, false, 2);
    ASSERT_EQ(shown.size(), 2u);
    CLQSurfHandle empty;
    MoveInOutCtrl2(&window, &panel, &empty, true, 2);
    ASSERT_EQ(shown.size(), 4u);
    EXPECT_EQ(shown.back().pixels, Composed(WindowColor(), true, kPanelWidth));
}

TEST_F(Slides, PaintTheWindowsBackgroundToTheRightOfAControlThatIsLowOnTheScreen) {
    panel.MoveTo(10, 120);
    Pump();
    CLQSurfHandle& screen = CLQScreen::GetInstance()->GetScreenSurfHandle();
    _LQColor red = {255, 0, 0, 255};
    screen.FillRect(0, 0, kBenchWidth, kBenchHeight, red, false);
    shown.clear();
    MoveInOutCtrl(&window, &panel, &Behind(), false, 1);
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].rect.right, 110) << "not shown";
    const auto row = ScreenPixels(0, 125, kBenchWidth, 1);
    constexpr std::uint32_t kRed = 0xFFFF0000;
    constexpr std::uint32_t kNavy = 0xFF102048;
    EXPECT_EQ(row[9], kRed);
    EXPECT_EQ(row[110], kNavy);
    EXPECT_EQ(row[219], kNavy) << "up to y plus the width";
    EXPECT_EQ(row[220], kRed);
    EXPECT_EQ(ScreenPixels(110, 119, 1, 1)[0], kRed);
    EXPECT_EQ(ScreenPixels(110, 132, 1, 1)[0], kRed);
}

TEST_F(Slides, ShowTheWindowWithoutTheControlButWithTheOthers) {
    Panel under(kPanelX, kPanelY, kPanelWidth, kPanelHeight, 10);
    window.DelChild(&panel, false);
    window.AddChild(&under);
    window.AddChild(&panel);
    Pump();
    shown.clear();
    MoveInOutCtrl3(&window, &panel, false, 3);
    ASSERT_EQ(shown.size(), 3u);
    EXPECT_EQ(shown[1].pixels, Composed(Chart(kPanelWidth, kPanelHeight, 10), false, CutWidths(3)[1]));
    EXPECT_EQ(shown[2].pixels, PixelsOf(Chart(kPanelWidth, kPanelHeight, 10)));
}

TEST_F(Slides, LeaveTheControlShownOnlyInTheThirdFunction) {
    for (const bool before : {true, false}) {
        panel.SetShow(before);
        MoveInOutCtrl(&window, &panel, nullptr, false, 1);
        MoveInOutCtrl2(&window, &panel, &Background(), false, 1);
        EXPECT_EQ(panel.IsShow(), before);
        MoveInOutCtrl3(&window, &panel, false, 1);
        EXPECT_TRUE(panel.IsShow());
    }
}

TEST_F(Slides, ShowAHiddenControlAndRepaintItAfterwards) {
    panel.SetShow(false);
    Pump();
    shown.clear();
    MoveInOutCtrl3(&window, &panel, false, 1);
    EXPECT_EQ(shown.back().pixels, PixelsOf(WindowColor()));
    Pump();
    ASSERT_EQ(shown.size(), 2u);
    EXPECT_EQ(shown.back().pixels, PixelsOf(Chart(kPanelWidth, kPanelHeight, 200)));
}

TEST_F(Slides, CollectNoRepaintsWhileTheyRun) {
    class Restless : public Panel {
      public:
        using Panel::Panel;
        void Draw(CLQSurfHandle& target) override {
            Panel::Draw(target);
            Invalidate();
            waiting = GetFatherWnd() && !GetFatherWnd()->GetUpdateRects().IsEmpty();
        }
        bool waiting = true;
    };
    Restless restless(kPanelX, kPanelY + 40, kPanelWidth, kPanelHeight, 1);
    window.AddChild(&restless);
    window.ClearUpdateRectVec();
    MoveInOutCtrl2(&window, &restless, &Background(), true, 1);
    EXPECT_FALSE(restless.waiting);
    window.DelChild(&restless, false);
}

TEST_F(Slides, LeaveMessagesForLater) {
    const HWND hwnd = CLQScreen::GetInstance()->GetHWND();
    PostMessageW(hwnd, WM_USER, 1, 2);
    MoveInOutCtrl(&window, &panel, nullptr, false, 3);
    MSG msg = {};
    EXPECT_TRUE(PeekMessageW(&msg, hwnd, WM_USER, WM_USER, PM_REMOVE));
}

TEST_F(Slides, AnyPlaceAndSizeIsSafe) {
    for (const int x : {-1000000, -60, 0, 300, 1000000}) {
        for (const int y : {-1000000, -6, 0, 195, 1000000}) {
            for (const int size : {0, 1, 300, 9000, 32767}) {
                CLQBaseCtrl odd;
                ASSERT_TRUE(odd.Create(x, y, size, size / 2));
                window.AddChild(&odd);
                for (const bool in : {true, false}) {
                    MoveInOutCtrl(&window, &odd, nullptr, in, 2);
                    MoveInOutCtrl(&window, &odd, &panel, in, 2);
                    MoveInOutCtrl2(&window, &odd, &Background(), in, 2);
                    MoveInOutCtrl3(&window, &odd, in, 2);
                }
            }
        }
    }
}

TEST_F(Slides, PassTheirTimeWithoutAScreen) {
    CLQScreen::GetInstance()->Close();
    const DWORD start = GetTickCount();
    MoveInOutCtrl(&window, &panel, nullptr, true, 2);
    MoveInOutCtrl3(&window, &panel, false, 2);
    EXPECT_EQ(GetTickCount(), start + 320);
}

class Doomed : public Panel {
  public:
    using Panel::Panel;
    void DrawBaseCtrl(CLQSurfHandle& target, int x, int y) override {
        Panel::DrawBaseCtrl(target, x, y);
        delete this;
    }
};

TEST_F(Slides, SurviveAControlThatEndsWhenItIsDrawn) {
    const auto make = [this] {
        auto* doomed = new Doomed(kPanelX, kPanelY, kPanelWidth, kPanelHeight, 200);
        window.AddChild(doomed);
        return doomed;
    };
    MoveInOutCtrl(&window, make(), nullptr, false, 2);
    EXPECT_EQ(shown.back().pixels, PixelsOf(WindowColor()));
    MoveInOutCtrl(&window, &panel, make(), true, 2);
    MoveInOutCtrl2(&window, make(), &Background(), true, 2);
    MoveInOutCtrl3(&window, make(), true, 2);
    auto* both = make();
    MoveInOutCtrl(&window, both, both, true, 2);
    EXPECT_EQ(shown.back().pixels, Composed(WindowColor(), true, kPanelWidth));
}

class DoomedWindow : public CLQWindow {
  public:
    void Draw(CLQSurfHandle&) override { delete this; }
};

TEST_F(Slides, EndWithAWindowThatEndsWhenItIsDrawn) {
    auto* doomed = new DoomedWindow;
    Panel orphan(kPanelX, kPanelY, kPanelWidth, kPanelHeight, 1);
    doomed->AddChild(&orphan);
    MoveInOutCtrl3(doomed, &orphan, true, 3);
    EXPECT_TRUE(shown.empty());
    EXPECT_TRUE(orphan.IsShow());
}

}  // namespace
}  // namespace korvane::test
