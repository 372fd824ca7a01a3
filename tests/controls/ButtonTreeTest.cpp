#include <gtest/gtest.h>
#include <vector>

#include "controls/ButtonTree.h"
#include "engine/draw/SurfManager.h"
#include "engine/window/Window.h"

namespace {

/// Counts the calls of the virtual that clears the repaint mark.
class CountingTree : public CLQButtonTree {
  public:
    void Redraw(bool needed) override {
        cleared += needed ? 0 : 1;
        CLQButtonTree::Redraw(needed);
    }
    int cleared = 0;
};

std::vector<unsigned char> Stored(CLQSurfHandle surface) {
    std::vector<unsigned char> bytes(static_cast<std::size_t>(surface.CalcStoreMemSize()));
    CLQSurfHandle copy = surface;
    EXPECT_EQ(copy.SaveSurface(bytes.data(), static_cast<int>(bytes.size())), eError_None);
    return bytes;
}

CLQSurfHandle Canvas() {
    CLQSurfHandle canvas = CLQSurfManager::GetInstance()->CreateSurface(64, 64, eSurface_ARGB8888, true);
    _LQColor grey = {10, 20, 30, 255};
    canvas.FillRect(0, 0, 64, 64, grey, false);
    return canvas;
}

TEST(ButtonTree, IsOfKind56) {
    EXPECT_EQ(CLQButtonTree().GetKind(), 56);
}

TEST(ButtonTree, HandlesNoMessage) {
    CLQButtonTree tree;
    ASSERT_TRUE(tree.Create(0, 0, 50, 50));
    for (const unsigned int code : {0u, 256u, 257u, 273u, 512u, 513u, 514u, 1191u, 0xFFFFFFFFu}) {
        _LQMessage msg;
        msg.code = code;
        msg.x = 25;
        msg.y = 25;
        EXPECT_FALSE(tree.DoMessage(&msg)) << code;
    }
    EXPECT_FALSE(tree.DoMessage(nullptr));
    EXPECT_FALSE(tree.IsPressed());
}

TEST(ButtonTree, PaintsNothingAndKeepsItsMarkWithoutAWindow) {
    CountingTree tree;
    ASSERT_TRUE(tree.Create(0, 0, 50, 50));
    CLQSurfHandle canvas = Canvas();
    const std::vector<unsigned char> before = Stored(canvas);
    tree.Draw(canvas);
    EXPECT_EQ(Stored(canvas), before);
    EXPECT_EQ(tree.cleared, 0);
    EXPECT_TRUE(tree.IsNeedRedraw());
}

TEST(ButtonTree, ClearsItsMarkThroughTheVirtualInAWindow) {
    CLQWindow window;
    CountingTree tree;
    ASSERT_TRUE(tree.Create(0, 0, 50, 50));
    window.AddChild(&tree);
    CLQSurfHandle canvas = Canvas();
    const std::vector<unsigned char> before = Stored(canvas);

    tree.Invalidate();
    tree.Draw(canvas);
    EXPECT_FALSE(tree.IsNeedRedraw());
    EXPECT_EQ(tree.cleared, 1);

    tree.Draw(canvas);
    EXPECT_EQ(tree.cleared, 1) << "an unmarked control is left alone";
    EXPECT_EQ(Stored(canvas), before);
    window.DelChild(&tree, false);
}

TEST(ButtonTree, DrawsOnAnEmptyHandle) {
    CLQButtonTree tree;
    CLQSurfHandle nothing;
    tree.Draw(nothing);
    SUCCEED();
}

TEST(ButtonTree, CopiesItsPlaceAndKind) {
    CLQButtonTree tree;
    ASSERT_TRUE(tree.Create(3, 4, 50, 60));
    CLQButtonTree copy(tree);
    CLQButtonTree assigned;
    assigned = tree;
    for (CLQButtonTree* other : {&copy, &assigned}) {
        int x = 0, y = 0, width = 0, height = 0;
        other->GetPos(x, y);
        other->GetSize(width, height);
        EXPECT_EQ(x, 3);
        EXPECT_EQ(y, 4);
        EXPECT_EQ(width, 50);
        EXPECT_EQ(height, 60);
        EXPECT_EQ(other->GetKind(), 56);
    }
}

}  // namespace
