#include <climits>
#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

#include "engine/window/Window.h"

#include "tests/controls/Touches.h"
#include "tests/controls/files/TestFileView.h"
#include "tests/support/VirtualOrder.h"

namespace korvane::test {
namespace {

class FileViewTouch : public testing::Test {
  protected:
    FileViewTouch() {
        view.Create(kViewX, kViewY, kViewWidth, kViewHeight);
        view.LQ_FV_Register(NotingCallBack());
        TakeRequests();
    }

    void ShowArrows(bool up, bool down) { view.ChangImage(up ? L"u" : L"", down ? L"d" : L"", L"c", false); }

    TestFileView view;
};

/// Edges between which, both excluded, a touch counts.
struct Band {
    int left;
    int right;
    int top;
    int bottom;

    bool Has(int x, int y) const { return left < x && x < right && top < y && y < bottom; }
};

struct Placed {
    const char* name;
    int x, y, width, height;
    Band open, upper, lower, up, down;
};

class FileViewBands : public testing::TestWithParam<Placed> {};

TEST_P(FileViewBands, CountStrictlyBetweenTheirEdges) {
    const Placed& placed = GetParam();
    TestFileView view;
    ASSERT_TRUE(view.Create(placed.x, placed.y, placed.width, placed.height));
    view.LQ_FV_Register(NotingCallBack());
    std::vector<int> xs = {placed.x, placed.x + placed.width - 1};
    std::vector<int> ys = {placed.y, placed.y + placed.height - 1};
    for (const Band& band : {placed.open, placed.upper, placed.lower, placed.up, placed.down}) {
        for (const int step : {-1, 0, 1}) {
            xs.insert(xs.end(), {band.left + step, band.right + step});
            ys.insert(ys.end(), {band.top + step, band.bottom + step});
        }
    }
    int armed = 0;
    for (const int x : xs) {
        for (const int y : ys) {
            // Anew, since the test for the arrows takes their being shown.
            view.ChangImage(L"u", L"d", L"c", true);
            view.Disarm();
            TakeRequests();
            TestFileView::BandTouched() = 0;
            const bool inside =
                x >= placed.x && x < placed.x + placed.width && y >= placed.y && y < placed.y + placed.height;
            const bool open = inside && placed.open.Has(x, y);
            const bool upper = inside && placed.upper.Has(x, y);
            const bool up = inside && placed.up.Has(x, y);
            const bool down = inside && placed.down.Has(x, y);
            const bool lower = inside && placed.lower.Has(x, y);
            ASSERT_EQ(Press(view, x, y), inside) << x << ", " << y;
            ASSERT_EQ(view.IsOpenArmed(), open) << x << ", " << y;
            ASSERT_EQ(view.IsSwipeUpArmed(), upper) << x << ", " << y;
            ASSERT_EQ(view.IsSwipeDownArmed(), lower && !down) << x << ", " << y;
            ASSERT_EQ(view.IsNoScroll(), !up) << x << ", " << y;
            ASSERT_EQ(TestFileView::BandTouched(), upper || lower ? 1 : 0) << x << ", " << y;
            std::vector<int> requests;
            if (up)
                requests.push_back(2);
            if (down)
                requests.push_back(1);
            ASSERT_EQ(TakeRequests(), requests) << x << ", " << y;
            armed += open + upper + lower + up + down;
        }
    }
    EXPECT_GT(armed, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Views, FileViewBands,
    testing::Values(Placed{"Beside", 100, 60, 300, 400, Band{100, 196, 165, 294}, Band{202, 298, 60, 294},
                           Band{202, 298, 165, 229}, Band{238, 262, 83, 129}, Band{238, 262, 409, 482}},
                    // The lower limit, 129, lies above the icon: there is no lower band.
                    Placed{"AtTheCorner", 0, 0, 300, 460, Band{0, 96, 135, 264}, Band{102, 198, 0, 264},
                           Band{102, 198, 135, 129}, Band{138, 162, 23, 69}, Band{138, 162, 409, 422}},
                    // All three bands overlap.
                    Placed{"Narrow", 200, 200, 106, 129, Band{200, 296, 170, 299}, Band{205, 301, 200, 299},
                           Band{205, 301, 170, 329}, Band{241, 265, 223, 269}, Band{241, 265, 409, 622}},
                    // Smaller than its icon.
                    Placed{"Small", 300, 100, 60, 80, Band{300, 396, 46, 175}, Band{282, 378, 100, 175},
                           Band{282, 378, 46, 429}, Band{318, 342, 123, 169}, Band{318, 342, 409, 522}},
                    // High enough for the lower band to reach the lower arrow.
                    Placed{"Low", 500, 300, 300, 460, Band{500, 596, 435, 564}, Band{602, 698, 300, 564},
                           Band{602, 698, 435, 629}, Band{638, 662, 323, 369}, Band{638, 662, 409, 722}}),
    [](const auto& placed) { return std::string(placed.param.name); });

TEST_F(FileViewTouch, OpensAfterASwipeToTheRight) {
    struct Swipe {
        int right;
        int down;
        bool opens;
    };
    for (const Swipe swipe :
         {Swipe{41, 39, true}, Swipe{41, -39, true}, Swipe{400, 0, true}, Swipe{40, 39, false},
          Swipe{41, 40, false}, Swipe{41, -40, false}, Swipe{-41, 0, false}, Swipe{0, 0, false}}) {
        view.Disarm();
        ShowArrows(false, false);
        ASSERT_TRUE(Press(view, 150, 200));
        EXPECT_EQ(view.PressX(), 150);
        EXPECT_EQ(view.PressY(), 200);
        EXPECT_EQ(Release(view, 150 + swipe.right, 200 + swipe.down), swipe.opens) << swipe.right;
        EXPECT_EQ(view.IsOpenArmed(), !swipe.opens);
        EXPECT_EQ(view.IsNoScroll(), swipe.opens);
        EXPECT_EQ(TakeRequests(), swipe.opens ? std::vector<int>{0} : std::vector<int>{}) << swipe.right;
    }
}

TEST_F(FileViewTouch, AsksForTheEntryAboveAfterASwipeDown) {
    ShowArrows(true, true);
    ASSERT_TRUE(Press(view, 250, 200));
    EXPECT_FALSE(Release(view, 250, 240)) << "40 is no swipe";
    EXPECT_TRUE(view.IsSwipeDownArmed());
    EXPECT_TRUE(Release(view, -500, 241)) << "what a release leaves armed the next one may fire";
    EXPECT_EQ(TakeRequests(), std::vector<int>{2});
    EXPECT_FALSE(view.IsSwipeDownArmed());
    EXPECT_TRUE(view.IsSwipeUpArmed()) << "the press was in both bands";
    EXPECT_FALSE(Release(view, 250, 300));
}

TEST_F(FileViewTouch, AsksForTheEntryBelowAfterASwipeUp) {
    ShowArrows(true, true);
    ASSERT_TRUE(Press(view, 250, 280));
    EXPECT_FALSE(view.IsSwipeDownArmed());
    EXPECT_FALSE(Release(view, 250, 240));
    EXPECT_TRUE(Release(view, 250, 239));
    EXPECT_EQ(TakeRequests(), std::vector<int>{1});
    EXPECT_FALSE(view.IsSwipeUpArmed());
    EXPECT_FALSE(Release(view, 250, 100));
}

TEST_F(FileViewTouch, AsksForAnEntryOnlyWhileTheArrowAheadOfTheSwipeShows) {
    for (const bool up : {false, true}) {
        for (const bool down : {false, true}) {
            ShowArrows(up, down);
            Press(view, 250, 200);
            EXPECT_TRUE(Release(view, 250, 241)) << "consumed all the same";
            EXPECT_EQ(TakeRequests(), down ? std::vector<int>{2} : std::vector<int>{});
            Press(view, 250, 200);
            EXPECT_TRUE(Release(view, 250, 159));
            EXPECT_EQ(TakeRequests(), up ? std::vector<int>{1} : std::vector<int>{});
        }
    }
}

TEST_F(FileViewTouch, ClearsNoScrollWithASwipeUpOrDown) {
    for (const int y : {241, 159}) {
        view.ChangImage(L"u", L"d", L"c", true);
        Press(view, 250, 200);
        EXPECT_TRUE(view.IsNoScroll());
        Release(view, 250, y);
        EXPECT_FALSE(view.IsNoScroll());
    }
}

TEST_F(FileViewTouch, HasNoSwipeDownWhereTheLowerBandIsEmpty) {
    view.Create(0, 0, 300, 460);
    ShowArrows(true, true);
    for (int y = 1; y < 460; y += 3) {
        Press(view, 150, y);
        TakeRequests();
        EXPECT_FALSE(view.IsSwipeDownArmed()) << y;
        EXPECT_FALSE(Release(view, 150, y + 100)) << y;
        EXPECT_EQ(TakeRequests(), std::vector<int>{}) << y;
    }
}

TEST_F(FileViewTouch, AsksAtThePressOfAnArrowAndNotAtItsRelease) {
    ShowArrows(true, true);
    EXPECT_TRUE(Press(view, 250, 90));
    EXPECT_EQ(TakeRequests(), std::vector<int>{2});
    EXPECT_FALSE(Release(view, 250, 90));
    EXPECT_TRUE(Press(view, 250, 440));
    EXPECT_EQ(TakeRequests(), std::vector<int>{1});
    EXPECT_FALSE(Release(view, 250, 440));
    EXPECT_EQ(TakeRequests(), std::vector<int>{});
}

TEST_F(FileViewTouch, TakesThePressOfAHiddenArrowWithoutARequest) {
    ShowArrows(false, false);
    EXPECT_TRUE(Press(view, 250, 90));
    EXPECT_TRUE(Press(view, 250, 440));
    EXPECT_EQ(TakeRequests(), std::vector<int>{});
    ShowArrows(true, true);
    view.SetShow(false);
    EXPECT_TRUE(Press(view, 250, 90));
    EXPECT_EQ(TakeRequests(), std::vector<int>{}) << "nor is the arrow of a hidden view shown";
}

TEST_F(FileViewTouch, SendsNothingWithoutACallBack) {
    view.LQ_FV_Register(nullptr);
    ShowArrows(true, true);
    EXPECT_TRUE(Press(view, 250, 90));
    EXPECT_TRUE(Press(view, 250, 440));
    Press(view, 250, 200);
    EXPECT_TRUE(Release(view, 250, 300));
    Press(view, 250, 200);
    EXPECT_TRUE(Release(view, 250, 100));
    Press(view, 150, 200);
    EXPECT_TRUE(Release(view, 200, 200));
    EXPECT_EQ(TakeRequests(), std::vector<int>{});
}

TEST_F(FileViewTouch, FiresWithoutAPressWhatAnEarlierOneArmed) {
    EXPECT_FALSE(Release(view, 300, 200)) << "nothing is armed";
    ShowArrows(true, true);
    Press(view, 150, 200);
    Release(view, 150, 200);
    EXPECT_TRUE(Release(view, 300, 200));
    EXPECT_EQ(TakeRequests(), std::vector<int>{0});
    EXPECT_FALSE(Release(view, 300, 200));
}

TEST_F(FileViewTouch, MeasuresEachSwipeFromTheLastPressThatArmedOne) {
    ShowArrows(true, true);
    Press(view, 150, 280);
    Press(view, 250, 200);
    EXPECT_EQ(view.PressX(), 150) << "of the open band alone";
    EXPECT_EQ(view.PressY(), 200);
    Press(view, 120, 440);
    EXPECT_EQ(view.PressY(), 200) << "no band";
    EXPECT_TRUE(Release(view, 200, 230));
    EXPECT_EQ(TakeRequests(), std::vector<int>{0});
}

TEST_F(FileViewTouch, HandlesNothingInRootMode) {
    ShowArrows(true, true);
    Press(view, 250, 200);
    view.OnUpdateFileViewCtrl(true);
    EXPECT_FALSE(Release(view, 250, 300));
    EXPECT_FALSE(Press(view, 250, 200));
    EXPECT_FALSE(Press(view, 250, 90));
    EXPECT_EQ(TakeRequests(), std::vector<int>{});
    ShowArrows(true, true);
    EXPECT_TRUE(Release(view, 250, 300)) << "armed since before";
    EXPECT_EQ(TakeRequests(), std::vector<int>{2});
}

TEST_F(FileViewTouch, IgnoresMovesAndOtherMessages) {
    ShowArrows(true, true);
    Press(view, 250, 200);
    EXPECT_FALSE(Drag(view, 250, 300));
    EXPECT_FALSE(Hand(view, 0, 250, 90));
    EXPECT_FALSE(Hand(view, kMsgSysInfoChanged, 250, 90));
    EXPECT_FALSE(view.DoMessage(nullptr));
    EXPECT_EQ(TakeRequests(), std::vector<int>{});
    EXPECT_FALSE(view.IsPressed()) << "its press flag plays no part";
}

TEST_F(FileViewTouch, HandsItsChildrenNoMessage) {
    ShowArrows(true, true);
    Press(view, 250, 90);
    EXPECT_FALSE(view.Up()->IsPressed());
}

TEST_F(FileViewTouch, AnyPointIsSafe) {
    ShowArrows(true, true);
    for (const int x : {INT_MIN, -1, 0, 250, INT_MAX}) {
        for (const int y : {INT_MIN, -1, 0, 200, INT_MAX}) {
            Press(view, 150, 200);
            Press(view, 250, 200);
            Press(view, x, y);
            Release(view, x, y);
        }
    }
}

/// A window that notes who got the focus.
class FileViewInWindow : public testing::Test {
  protected:
    FileViewInWindow() : scene(500, 480) {
        window.Create(0, 0, 500, 480);
        view = new TestFileView;
        view->Create(kViewX, kViewY, kViewWidth, kViewHeight);
        view->LQ_FV_Register(NotingCallBack());
        window.AddChild(view);
        other.Create(0, 0, 40, 40);
        window.AddChild(&other);
        window.SetFocusCtrl(&other);
        view->ChangImage(L"u", L"d", L"c", false);
        scene.Pump();
        TakeRequests();
    }
    ~FileViewInWindow() override { s_view = nullptr; }

    static TestFileView* s_view;
    Scene scene;
    CLQWindow window;
    CLQButton other;
    TestFileView* view;
};

TestFileView* FileViewInWindow::s_view = nullptr;

TEST_F(FileViewInWindow, TakesFocusAndReleaseWithAnyPressInside) {
    scene.Press(110, 70);
    EXPECT_EQ(window.GetFocusCtrl(), view);
    scene.Release(110, 70);
    window.SetFocusCtrl(&other);
    scene.Press(150, 200);
    scene.Move(210, 210);
    scene.Release(480, 210);
    EXPECT_EQ(TakeRequests(), std::vector<int>{0}) << "the release was outside";
    EXPECT_EQ(window.GetFocusCtrl(), view);
}

TEST_F(FileViewInWindow, TakesNoFocusInRootModeOrOutside) {
    scene.Press(50, 70);
    scene.Release(50, 70);
    EXPECT_EQ(window.GetFocusCtrl(), &other);
    view->OnUpdateFileViewCtrl(true);
    scene.Press(250, 200);
    scene.Release(250, 300);
    EXPECT_EQ(window.GetFocusCtrl(), &other);
    EXPECT_EQ(TakeRequests(), std::vector<int>{});
}

TEST_F(FileViewInWindow, CountsTouchesFromItsPlaceOnTheScreen) {
    window.MoveTo(20, 10);
    scene.Press(270, 100);
    EXPECT_EQ(TakeRequests(), std::vector<int>{2});
    scene.Release(270, 100);
    // The lower band ends at the view's x on the screen, 120, and 129; the icon begins at row 175.
    scene.Press(270, 248);
    EXPECT_TRUE(view->IsSwipeDownArmed());
    view->Disarm();
    scene.Press(270, 249);
    EXPECT_FALSE(view->IsSwipeDownArmed());
}

TEST_F(FileViewInWindow, ShowsOtherEntriesInItsOwnCallBack) {
    s_view = view;
    view->LQ_FV_Register(reinterpret_cast<void*>(+[](int request) {
        NoteRequest(request);
        s_view->ChangImage(L"", L"d", L"first", false);
    }));
    scene.Press(250, 90);
    EXPECT_EQ(TakeRequests(), std::vector<int>{2});
    EXPECT_EQ(view->Centre()->GetText(), L"first");
    EXPECT_FALSE(view->Up()->IsShow());
    scene.Release(250, 90);
    scene.Press(250, 90);
    EXPECT_EQ(TakeRequests(), std::vector<int>{}) << "the arrow is gone";
}

TEST_F(FileViewInWindow, MayEndInItsOwnCallBack) {
    struct Touch {
        int x, y, toX, toY;
    };
    for (const Touch touch : {Touch{250, 90, 250, 90}, Touch{250, 440, 250, 440}, Touch{150, 200, 250, 200},
                              Touch{250, 200, 250, 280}, Touch{250, 200, 250, 120}}) {
        auto* doomed = new TestFileView;
        doomed->Create(kViewX, kViewY, kViewWidth, kViewHeight);
        doomed->ChangImage(L"u", L"d", L"c", false);
        doomed->LQ_FV_Register(reinterpret_cast<void*>(+[](int) {
            delete s_view;
            s_view = nullptr;
        }));
        window.AddChild(doomed);
        s_view = doomed;
        scene.Press(touch.x, touch.y);
        scene.Release(touch.toX, touch.toY);
        EXPECT_EQ(s_view, nullptr) << touch.x << ", " << touch.toY;
    }
}

TEST_F(FileViewInWindow, MayEndWithItsWindowInItsOwnCallBack) {
    static CLQWindow* doomedWindow = nullptr;
    struct Touch {
        int x, y, toX, toY;
    };
    for (const Touch touch : {Touch{250, 90, 250, 90}, Touch{250, 440, 250, 440}, Touch{150, 200, 250, 200},
                              Touch{250, 200, 250, 280}, Touch{250, 200, 250, 120}}) {
        doomedWindow = new CLQWindow;
        doomedWindow->Create(0, 0, 500, 480);
        auto* doomed = new TestFileView;
        doomed->Create(kViewX, kViewY, kViewWidth, kViewHeight);
        doomed->ChangImage(L"u", L"d", L"c", false);
        doomed->LQ_FV_Register(reinterpret_cast<void*>(+[](int) {
            delete doomedWindow;
            doomedWindow = nullptr;
        }));
        doomedWindow->AddChild(doomed);  // the window deletes it
        const LifeWatch life = doomed->WatchLife();
        scene.Press(touch.x, touch.y);
        scene.Release(touch.toX, touch.toY);
        EXPECT_EQ(doomedWindow, nullptr) << touch.x << ", " << touch.toY;
        EXPECT_FALSE(life.IsAlive());
    }
}

class Jealous : public CLQButton {
  public:
    void OnLostFocus() override {
        delete doomed;
        doomed = nullptr;
    }
    CLQBaseCtrl* doomed = nullptr;
};

TEST_F(FileViewInWindow, MayEndWhenItTakesTheFocus) {
    Jealous jealous;
    jealous.Create(0, 100, 40, 40);
    window.AddChild(&jealous);
    window.SetFocusCtrl(&jealous);
    jealous.doomed = view;
    scene.Press(110, 70);
    EXPECT_EQ(jealous.doomed, nullptr);
    scene.Release(110, 70);
}

/// Lets the test call a private operation: an explicit instantiation may name it.
using ButtonOperation = void (CLQFileView::*)(void*);
ButtonOperation g_onBtnUp = nullptr;
template <ButtonOperation operation>
struct Reach {
    Reach() { g_onBtnUp = operation; }
    static Reach s_reach;
};
template <ButtonOperation operation>
Reach<operation> Reach<operation>::s_reach;
template struct Reach<&CLQFileView::OnBtnUp>;

TEST_F(FileViewTouch, KnowsWhatItsArrowsAskFor) {
    ASSERT_NE(g_onBtnUp, nullptr);
    (view.*g_onBtnUp)(view.Up());
    (view.*g_onBtnUp)(view.Down());
    (view.*g_onBtnUp)(view.Icon());
    (view.*g_onBtnUp)(nullptr);
    EXPECT_EQ(TakeRequests(), (std::vector<int>{2, 1}));
    view.LQ_FV_Register(nullptr);
    (view.*g_onBtnUp)(view.Up());
    EXPECT_EQ(TakeRequests(), std::vector<int>{});
}

template <class Inherited, class Base>
constexpr bool IsInherited(Inherited, Base) {
    return std::is_same<Inherited, Base>::value;
}

TEST(FileViewInterface, OverridesOnlyCreateInputAndPainting) {
    using View = CLQFileView;
    using Group = CLQGroupCtrl;
    static_assert(!IsInherited(&View::Create, &Group::Create), "Create is overridden");
    static_assert(!IsInherited(&View::DoMessage, &Group::DoMessage), "DoMessage is overridden");
    static_assert(!IsInherited(&View::Draw, &Group::Draw), "Draw is overridden");
    static_assert(IsInherited(&View::SetSize, &Group::SetSize), "SetSize is not overridden");
    static_assert(IsInherited(&View::Move, &Group::Move), "Move is not overridden");
    static_assert(IsInherited(&View::SetShow, &Group::SetShow), "SetShow is not overridden");
    static_assert(IsInherited(&View::Invalidate, &Group::Invalidate), "Invalidate is not overridden");
    static_assert(IsInherited(&View::Clone, &Group::Clone), "Clone is not overridden");
    static_assert(IsInherited(&View::LoadCtrlFromIni, &Group::LoadCtrlFromIni), "nor is the storage");
    EXPECT_EQ(CLQFileView().GetKind(), kKindGroup);
    if (!kKnowsVirtualOrder)
        GTEST_SKIP() << "another C++ ABI";
    EXPECT_EQ(VirtualOrder(&View::Create), 1);
    EXPECT_EQ(VirtualOrder(&View::DoMessage), 12);
    EXPECT_EQ(VirtualOrder(&View::Draw), 13);
}

}  // namespace
}  // namespace korvane::test
