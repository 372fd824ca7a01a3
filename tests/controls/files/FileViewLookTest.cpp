#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "engine/window/Screen.h"
#include "engine/window/Window.h"

#include "tests/controls/Touches.h"
#include "tests/controls/files/TestFileView.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::test {
namespace {

void WriteViewImages(const std::filesystem::path& folder) {
    CLQSurfHandle arrow = NewSurface(24, 21);
    CLQSurfHandle arrowDown = NewSurface(24, 21);
    _LQColor cyan = {57, 208, 242, 255};
    for (int row = 0; row < 12; ++row) {
        arrow.FillRect(12 - row, 4 + row, 12 + row, 5 + row, cyan, false);
        arrowDown.FillRect(12 - row, 16 - row, 12 + row, 17 - row, cyan, false);
    }
    CLQSurfHandle medium = Filled(96, 129, {60, 90, 140, 255});
    CLQSurfHandle folderIcon = NewSurface(96, 129);
    _LQColor amber = {255, 190, 70, 255};
    folderIcon.FillRect(8, 40, 88, 100, amber, false);
    folderIcon.FillRect(8, 30, 40, 40, amber, false);
    WriteImage(folder / "FileViewUp.lqi", arrow);
    WriteImage(folder / "FileViewDown.lqi", arrowDown);
    WriteImage(folder / "FileViewTop.lqi", medium);
    WriteImage(folder / "fileviewfolder.lqi", folderIcon);
}

class FileViewLook : public testing::Test {
  protected:
    FileViewLook() : scene(500, 480), view(std::make_unique<TestFileView>()) {
        WriteViewImages(scene.ImageFolder());
        _LQColor navy = {16, 24, 40, 255};
        window.Create(0, 0, 500, 480);
        window.EnableBkgColor(true, &navy);
        view->Create(kViewX, kViewY, kViewWidth, kViewHeight);
    }

    void Show() {
        window.AddChild(view.get());
        scene.Pump();
    }

    void ExpectLooks(const char* name) {
        scene.Pump();
        EXPECT_TRUE(MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name));
        const auto partial = scene.Pixels();
        scene.FillWithGarbage();
        CLQScreen::GetInstance()->InvalidateAll();
        scene.Pump();
        EXPECT_EQ(scene.Pixels(), partial) << "painting a part gives the pixels of the whole";
    }

    Scene scene;
    CLQWindow window;
    std::unique_ptr<TestFileView> view;
};

TEST_F(FileViewLook, AtFirst) {
    Show();
    ExpectLooks("file-view-root");
}

TEST_F(FileViewLook, BetweenTwoEntries) {
    Show();
    view->ChangImage(L"Holiday 2023", L"Αθήνα", L"Müller & Söhne", false);
    ExpectLooks("file-view");
}

TEST_F(FileViewLook, AtTheFirstAndAtTheLastEntry) {
    Show();
    view->ChangImage(L"", L"音楽", L"Aufnahmen", false);
    ExpectLooks("file-view-first");
    view->ChangImage(L"Aufnahmen", L"", L"音楽", true);
    ExpectLooks("file-view-last");
}

TEST_F(FileViewLook, InRootMode) {
    Show();
    view->ChangImage(L"Above", L"Below", L"Current", false);
    scene.Pump();
    view->ChangImage(L"", L"", L"", false);
    ExpectLooks("file-view-root");
    view->ChangImage(L"Holiday 2023", L"Αθήνα", L"Müller & Söhne", false);
    ExpectLooks("file-view");
}

TEST_F(FileViewLook, PaintsTheSameDrawnByItself) {
    view->ChangImage(L"Above", L"Below", L"Current", false);
    Show();
    const auto looks = scene.Pixels();
    CLQSurfHandle canvas = Filled(500, 480, {16, 24, 40, 255});
    view->DrawBaseCtrl(canvas, kViewX, kViewY);
    EXPECT_EQ(PixelsOf(canvas), looks);
}

/// The parameter: true for copy construction, false for assignment to a view of its own.
class FileViewCopy : public testing::TestWithParam<bool> {
  protected:
    FileViewCopy() : original(std::make_unique<TestFileView>()) {
        WriteViewImages(scene.ImageFolder());
        original->Create(kViewX, kViewY, kViewWidth, kViewHeight);
        original->LQ_FV_Register(NotingCallBack());
        original->SetRootName(L"Holiday");
        original->ChangImage(L"u", L"d", L"c", true);
        Press(*original, 150, 200);
        Press(*original, 250, 201);
        TakeRequests();
    }

    void Copy() {
        if (GetParam()) {
            copy = std::make_unique<TestFileView>(*original);
            return;
        }
        copy = std::make_unique<TestFileView>();
        copy->Create(0, 0, 50, 50);
        *copy = *original;
    }

    Scene scene{500, 480};
    std::unique_ptr<TestFileView> original;
    std::unique_ptr<TestFileView> copy;
};

TEST_P(FileViewCopy, SharesTheChildrenOfItsOriginal) {
    Copy();
    EXPECT_EQ(copy->GetChildCount(), 6);
    EXPECT_EQ(copy->Up(), original->Up());
    EXPECT_EQ(copy->Top(), original->Top());
    EXPECT_EQ(copy->Icon(), original->Icon());
    EXPECT_EQ(copy->Centre(), original->Centre());
    EXPECT_EQ(copy->Bottom(), original->Bottom());
    EXPECT_EQ(copy->Down(), original->Down());
    copy->ChangImage(L"", L"", L"other", false);
    EXPECT_EQ(original->Centre()->GetText(), L"other");
}

TEST_P(FileViewCopy, HasFlagsPlaceAndCallBackOfItsOriginal) {
    Copy();
    EXPECT_TRUE(copy->IsOpenArmed());
    EXPECT_TRUE(copy->IsSwipeUpArmed());
    EXPECT_TRUE(copy->IsSwipeDownArmed());
    EXPECT_TRUE(copy->IsNoScroll());
    EXPECT_TRUE(copy->IsContentSet());
    EXPECT_FALSE(copy->IsInRootMode());
    EXPECT_EQ(copy->PressX(), 150);
    EXPECT_EQ(copy->PressY(), 201);
    EXPECT_TRUE(Release(*copy, 200, 201));
    EXPECT_EQ(TakeRequests(), std::vector<int>{0});
    EXPECT_TRUE(original->IsOpenArmed());
}

TEST_P(FileViewCopy, HasARootNameAndAModeOfItsOwn) {
    Copy();
    copy->SetRootName(L"Work");
    original->OnUpdateFileViewCtrl(true);
    EXPECT_EQ(original->Centre()->GetText(), L"Holiday");
    EXPECT_FALSE(copy->IsInRootMode());
    copy->OnUpdateFileViewCtrl(true);
    EXPECT_EQ(original->Centre()->GetText(), L"Work");
}

TEST_P(FileViewCopy, EndsBeforeItsOriginal) {
    Copy();
    copy.reset();
    EXPECT_EQ(original->Centre()->GetText(), L"c");
    original->ChangImage(L"", L"", L"", false);
    EXPECT_EQ(original->Centre()->GetText(), L"Holiday");
}

TEST_P(FileViewCopy, OutlivesItsOriginal) {
    Copy();
    original.reset();
    EXPECT_EQ(copy->Centre()->GetText(), L"c");
    EXPECT_TRUE(Press(*copy, 250, 90));
    EXPECT_EQ(TakeRequests(), std::vector<int>{2});
    copy->ChangImage(L"", L"", L"", false);
    EXPECT_EQ(copy->Centre()->GetText(), L"Holiday");
}

TEST_P(FileViewCopy, ShowsInAWindowAfterItsOriginalHasEnded) {
    Copy();
    CLQSurfHandle expected = Filled(500, 480, {16, 24, 40, 255});
    original->Draw(expected);
    CLQWindow window;
    _LQColor navy = {16, 24, 40, 255};
    window.Create(0, 0, 500, 480);
    window.EnableBkgColor(true, &navy);
    window.AddChild(copy.release());  // the window deletes it
    original.reset();
    scene.Pump();
    CLQScreen::GetInstance()->InvalidateAll();
    scene.Pump();
    EXPECT_EQ(scene.Pixels(), PixelsOf(expected));
}

INSTANTIATE_TEST_SUITE_P(Views, FileViewCopy, testing::Bool(), [](const auto& way) {
    return way.param ? std::string("Constructed") : std::string("Assigned");
});

TEST(FileViewCopyOfItself, ChangesNothing) {
    TestFileView view;
    view.Create(kViewX, kViewY, kViewWidth, kViewHeight);
    view.ChangImage(L"u", L"d", L"c", false);
    TestFileView& same = view;
    view = same;
    ASSERT_NE(view.Centre(), nullptr);
    EXPECT_EQ(view.Centre()->GetText(), L"c");
}

}  // namespace
}  // namespace korvane::test
