#include <climits>
#include <gtest/gtest.h>
#include <memory>

#include "engine/Korvane.h"
#include "engine/core/Borrowed.h"

#include "tests/window/Probe.h"

namespace {

using korvane::test::Probe;

struct Counted : Probe {
    explicit Counted(int& count) : alive(count) { ++alive; }
    ~Counted() override { --alive; }
    int& alive;
};

TEST(Ownership, ChildrenCreatedWithNewEndWithTheirGroup) {
    int alive = 0;
    {
        CLQGroupCtrl group;
        group.AddChild(new Counted(alive));
        group.AddChild(new Counted(alive));
        EXPECT_EQ(alive, 2);
    }
    EXPECT_EQ(alive, 0);
}

TEST(Ownership, ChildrenThatAreMembersStayTheirOwners) {
    int alive = 0;
    Counted member(alive);
    {
        CLQWindow window;
        window.AddChild(&member);
        EXPECT_EQ(member.GetFatherWnd(), &window);
    }
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(member.GetFatherWnd(), nullptr);
}

TEST(Ownership, AMemberMayEndBeforeItsWindow) {
    CLQWindow window;
    {
        Probe member;
        window.AddChild(&member);
    }
    EXPECT_EQ(window.GetChild(0), nullptr);
    window.ChangeLanguage();
}

TEST(Ownership, DeletingAChildByHandIsHarmless) {
    CLQGroupCtrl group;
    auto* child = new Probe;
    group.AddChild(child);
    delete child;
    EXPECT_EQ(group.GetChild(0), nullptr);
    EXPECT_FALSE(group.DelChild(child, true));
}

TEST(Ownership, ARemovedChildBelongsToTheCallerUnlessItIsDestroyed) {
    int alive = 0;
    CLQGroupCtrl group;
    auto* kept = new Counted(alive);
    group.AddChild(kept);
    EXPECT_TRUE(group.DelChild(kept, false));
    EXPECT_EQ(alive, 1);
    EXPECT_FALSE(group.DelChild(kept, false));
    delete kept;
    auto* destroyed = new Counted(alive);
    group.AddChild(destroyed);
    EXPECT_TRUE(group.DelChild(destroyed, true));
    EXPECT_EQ(alive, 0);
}

TEST(Ownership, CopiesOfAGroupShareTheirChildrenUntilTheLastEnds) {
    int alive = 0;
    auto source = std::make_unique<CLQGroupCtrl>();
    auto* child = new Counted(alive);
    source->AddChild(child);
    auto copy = std::make_unique<CLQGroupCtrl>(*source);
    EXPECT_EQ(copy->GetChild(0), child);
    source.reset();
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(copy->GetChild(0), child);
    copy.reset();
    EXPECT_EQ(alive, 0);
}

TEST(Ownership, CopiesEndInAnyOrder) {
    int alive = 0;
    auto source = std::make_unique<CLQGroupCtrl>();
    source->AddChild(new Counted(alive));
    auto copy = std::make_unique<CLQGroupCtrl>(*source);
    copy.reset();
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(source->GetChild(0)->GetFatherGroup(), source.get());
    source.reset();
    EXPECT_EQ(alive, 0);
}

TEST(Ownership, ACopyTakesTheChildrenOverWhenItsSourceEnds) {
    auto source = std::make_unique<CLQWindow>();
    source->Create(0, 0, 100, 100);
    auto* child = new Probe;
    child->Create(1, 2, 10, 10);
    source->AddChild(child);
    CLQWindow copy(*source);
    copy.Create(50, 50, 100, 100);
    source.reset();
    CLQSurfHandle canvas = CLQSurfManager::GetInstance()->CreateSurface(200, 200, eSurface_ARGB8888, true);
    copy.Draw(canvas);
    EXPECT_EQ(child->GetFatherWnd(), &copy);
    int x;
    int y;
    child->GetScreenXY(x, y);
    EXPECT_EQ(x, 51);
    EXPECT_EQ(y, 52);
}

TEST(Ownership, AGroupMayBeReplacedByACopyOfItsOwnChild) {
    CLQGroupCtrl group;
    auto* inner = new CLQGroupCtrl;
    auto* leaf = new Probe;
    inner->AddChild(leaf);
    group.AddChild(inner);
    group = *inner;
    ASSERT_EQ(group.GetChildCount(), 1);
    EXPECT_EQ(group.GetChild(0), leaf);
    EXPECT_EQ(leaf->GetFatherGroup(), &group);
}

TEST(Ownership, AWindowMayEndBeforeAControlThatOnlyNamesItAsOwner) {
    Probe control;
    {
        CLQWindow window;
        control.SetFatherWnd(&window);
    }
    EXPECT_EQ(control.GetFatherWnd(), nullptr);
    control.Invalidate();
}

TEST(Ownership, ObjectsMayBeCreatedWithoutExceptions) {
    CLQGroupCtrl group;
    int alive = 0;
    group.AddChild(new (std::nothrow) Counted(alive));
    EXPECT_EQ(alive, 1);
    EXPECT_TRUE(group.DelChild(group.GetChild(0), true));
    EXPECT_EQ(alive, 0);
}

TEST(Ownership, AClonedGroupHasChildrenOfItsOwn) {
    CLQGroupCtrl group;
    auto* child = new CLQBaseCtrl;
    child->SetCtrlName(L"inner");
    group.AddChild(child);
    std::unique_ptr<CLQBaseCtrl> clone(group.Clone());
    auto* cloned = dynamic_cast<CLQGroupCtrl*>(clone.get());
    ASSERT_NE(cloned, nullptr);
    ASSERT_EQ(cloned->GetChildCount(), 1);
    EXPECT_NE(cloned->GetChild(0), child);
    EXPECT_EQ(cloned->GetChild(0)->GetCtrlName(), L"inner");
}

TEST(Ownership, AChildLeavesItsFormerOwner) {
    CLQGroupCtrl first;
    CLQGroupCtrl second;
    CLQWindow window;
    Probe child;
    first.AddChild(&child);
    second.AddChild(&child);
    EXPECT_EQ(first.GetChildCount(), 0);
    EXPECT_EQ(child.GetFatherGroup(), &second);
    window.AddChild(&child);
    EXPECT_EQ(second.GetChildCount(), 0);
    EXPECT_EQ(child.GetFatherGroup(), nullptr);
    EXPECT_EQ(child.GetFatherWnd(), &window);
}

TEST(Ownership, AGroupNeverContainsItself) {
    CLQGroupCtrl outer;
    CLQGroupCtrl inner;
    outer.AddChild(&outer);
    outer.AddChild(nullptr);
    outer.AddChild(&inner);
    outer.AddChild(&inner);
    inner.AddChild(&outer);
    EXPECT_EQ(outer.GetChildCount(), 1);
    EXPECT_EQ(inner.GetChildCount(), 0);
    EXPECT_TRUE(outer.IsChildExist(&inner));
    EXPECT_FALSE(inner.IsChildExist(&outer));
    EXPECT_FALSE(outer.IsChildExist(nullptr));
}

TEST(Ownership, ACopyOfAControlIsNotPlaced) {
    CLQWindow window;
    Probe child;
    child.Create(1, 2, 3, 4);
    window.AddChild(&child);
    Probe copy(child);
    EXPECT_EQ(copy.GetFatherWnd(), nullptr);
    int x;
    int y;
    copy.GetPos(x, y);
    EXPECT_EQ(x, 1);
    EXPECT_EQ(y, 2);
}

TEST(Ownership, AWindowThatIsAMemberOfTheScreenListEndsCleanly) {
    auto window = std::make_unique<CLQWindow>();
    window->Create(0, 0, 10, 10);
    window->Create(5, 5, 20, 20);
    EXPECT_EQ(CLQScreen::GetInstance()->GetWindowCount(), 1);
    window.reset();
    EXPECT_EQ(CLQScreen::GetInstance()->GetWindowCount(), 0);
    EXPECT_EQ(CLQScreen::GetInstance()->GetWindow(0), nullptr);
}

TEST(Geometry, RefusesSizesAndPositionsOutOfRange) {
    Probe probe;
    EXPECT_TRUE(probe.Create(1, 2, 3, 4));
    EXPECT_FALSE(probe.Create(0, 0, -1, 10));
    EXPECT_FALSE(probe.Create(0, 0, INT_MAX, 10));
    EXPECT_FALSE(probe.Create(INT_MIN, 0, 10, 10));
    int width;
    int height;
    probe.GetSize(width, height);
    EXPECT_EQ(width, 3);
    EXPECT_EQ(height, 4);
    probe.SetSize(-5, INT_MAX);
    probe.GetSize(width, height);
    EXPECT_EQ(width, 0);
    EXPECT_EQ(height, korvane::kMaxExtent);
    probe.MoveTo(INT_MAX, INT_MIN);
    probe.Move(INT_MAX, INT_MIN);
    int x;
    int y;
    probe.GetPos(x, y);
    EXPECT_EQ(x, korvane::kMaxPosition);
    EXPECT_EQ(y, -korvane::kMaxPosition);
    EXPECT_FALSE(probe.CheckPoint(INT_MIN, INT_MAX));
}

TEST(Geometry, MovesTheChildrenWithTheirGroup) {
    CLQGroupCtrl group;
    group.Create(10, 10, 100, 100);
    Probe child;
    child.Create(300, 400, 5, 5);
    group.AddChild(&child);
    group.MoveTo(20, 5);
    int x;
    int y;
    child.GetPos(x, y);
    EXPECT_EQ(x, 310);
    EXPECT_EQ(y, 395);
    group.Move(-10, 5);
    child.GetPos(x, y);
    EXPECT_EQ(x, 300);
    EXPECT_EQ(y, 400);
}

TEST(Geometry, ScreenPositionsCountTheWindowsPosition) {
    CLQWindow window;
    window.Create(100, 50, 300, 300);
    CLQGroupCtrl group;
    group.Create(10, 10, 100, 100);
    Probe child;
    child.Create(20, 30, 5, 5);
    group.AddChild(&child);
    window.AddChild(&group);
    int x;
    int y;
    child.GetScreenXY(x, y);
    EXPECT_EQ(x, 120);
    EXPECT_EQ(y, 80);
    EXPECT_TRUE(child.CheckPoint(120, 80));
    EXPECT_TRUE(child.CheckPoint(124, 84));
    EXPECT_FALSE(child.CheckPoint(125, 84));
    EXPECT_FALSE(child.CheckPoint(119, 80));
}

TEST(Visibility, NeedsTheControlAndAllItsOwnersShown) {
    CLQWindow window;
    CLQGroupCtrl group;
    Probe child;
    group.AddChild(&child);
    window.AddChild(&group);
    EXPECT_TRUE(child.IsOwnerShow());
    group.SetShow(false);
    EXPECT_FALSE(child.IsOwnerShow());
    EXPECT_TRUE(child.IsShow()) << "its own flag stays its own";
    group.SetShow(true);
    window.SetShow(false);
    EXPECT_FALSE(child.IsOwnerShow());
    window.SetShow(true);
    child.SetShow(false);
    group.SetShow(false);
    group.SetShow(true);
    EXPECT_FALSE(child.IsOwnerShow());
}

TEST(Language, ChangesThroughTheWholeWindow) {
    CLQWindow window;
    CLQGroupCtrl group;
    Probe inner;
    Probe outer;
    group.AddChild(&inner);
    window.AddChild(&group);
    window.AddChild(&outer);
    window.ChangeLanguage();
    EXPECT_EQ(inner.languageChanges, 1);
    EXPECT_EQ(outer.languageChanges, 1);
}

TEST(Borrowed, ReadsAsNullOnceTheObjectHasEnded) {
    CLQGroupCtrl group;
    group.AddChild(new Probe);
    const korvane::Borrowed<CLQBaseCtrl> child = group.GetChild(0);
    const korvane::Borrowed<CLQBaseCtrl> copy = child;
    EXPECT_EQ(child, group.GetChild(0));
    EXPECT_TRUE(child->IsShow());
    group.DelChild(child, true);
    EXPECT_EQ(child.Get(), nullptr);
    EXPECT_EQ(copy.Get(), nullptr);
}

TEST(Borrowed, IsNullUntilItIsSetAndMayBeSetAnew) {
    korvane::Borrowed<Probe> borrowed;
    EXPECT_FALSE(borrowed);
    Probe first;
    borrowed = &first;
    EXPECT_EQ(borrowed, &first);
    {
        Probe second;
        borrowed = &second;
        EXPECT_EQ(borrowed, &second);
    }
    EXPECT_FALSE(borrowed);
    borrowed = &first;
    EXPECT_EQ(borrowed, &first);
    borrowed = nullptr;
    EXPECT_FALSE(borrowed);
}

}  // namespace
