#include "tests/support/InstallService.h"
#include "tests/title/bench/ExerciseStrip.h"
#include "tests/title/bench/TestStrip.h"

namespace korvane::test {
namespace {

class TitleCopy : public TestStrip {
  protected:
    TitleCopy() { Start(); }

    std::unique_ptr<CLQTitleDialog> Copy() { return std::make_unique<CLQTitleDialog>(*dialog); }
};

TEST_F(TitleCopy, SharesTheControls) {
    const auto copy = Copy();
    EXPECT_EQ(copy->GetGpTitle(), dialog->GetGpTitle());
    EXPECT_EQ(copy->GetShortCutControl(), dialog->GetShortCutControl());
    EXPECT_EQ(copy->GetShortCurShadow(), dialog->GetShortCurShadow());
    copy->SetTitleInfo(L"Station one", false, 0);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Station one");
}

TEST_F(TitleCopy, HasTheStateOfItsSource) {
    dialog->GetGpTitle()->MoveTo(50, 60);
    Record().parking = 3;
    const auto copy = Copy();
    int x;
    int y;
    copy->GetTitleDefaultPos(x, y);
    EXPECT_EQ(x, kStripX);
    EXPECT_EQ(y, kStripY);
    EXPECT_EQ(copy->GetParkingStation(), 3);
}

TEST_F(TitleCopy, OutlivesItsSource) {
    auto copy = Copy();
    Set(L"rdsIconMask", 31);
    Set(L"afState", 2);
    dialog->SetTitleInfo(L"Station one", false, 3000);
    dialog.reset();
    scene.Advance(10000);
    EXPECT_EQ(copy->GetTitleInfo(), L"Station one") << "a timer of a destroyed dialog never fires";
    copy->Create(0, 0, 800, 480);
    scene.Pump();
    copy->SetTitleInfo(L"Station two", false, 3000);
    scene.Advance(3000);
    EXPECT_EQ(copy->GetTitleInfo(), L"");
    ExerciseStrip(*copy, scene);
}

TEST_F(TitleCopy, MayEndBeforeItsSource) {
    Copy().reset();
    Record().gps = 1;
    Notify(kItemGps);
    EXPECT_EQ(ImageSeenAt(L"IconGPS"), "gps.lqi");
    ExerciseStrip(*dialog, scene);
}

TEST_F(TitleCopy, ClearsTheImageThatItShowedItself) {
    const auto copy = Copy();
    copy->SetTitleIcon(L"cover.lqi", 3000);
    EXPECT_EQ(ImageSeenAt(L"StInfo"), "cover.lqi");
    scene.Advance(3000);
    EXPECT_EQ(ImageSeenAt(L"StInfo"), "");
}

TEST_F(TitleCopy, SharesTheFlashing) {
    Set(L"rdsIconMask", 31);
    Set(L"afState", 2);
    const auto copy = Copy();
    Set(L"afState", 1);
    scene.Advance(5000);
    EXPECT_EQ(ImageSeenAt(L"IconAF"), "title_icon_af_f.lqi");
}

TEST_F(TitleCopy, SurvivesTheControlsThatItShares) {
    const auto copy = Copy();
    ASSERT_TRUE(dialog->DelChild(dialog->GetGpTitle(), true));
    EXPECT_EQ(copy->GetGpTitle(), nullptr);
    ExerciseStrip(*copy, scene);
    ASSERT_TRUE(dialog->OnInit());
    EXPECT_EQ(copy->GetGpTitle(), nullptr) << "the new strip is not the copy's";
    ExerciseStrip(*copy, scene);
}

TEST_F(TitleCopy, MayBeInitialisedOnItsOwn) {
    const auto copy = Copy();
    copy->Create(0, 0, 800, 480);
    ASSERT_TRUE(copy->OnInit());
    ExerciseStrip(*copy, scene);
    ExerciseStrip(*dialog, scene);
}

TEST_F(TitleCopy, MayBeAssigned) {
    auto other = std::make_unique<CLQTitleDialog>();
    other->Create(0, 0, 800, 480);
    other->OnInit();
    other->SetTitleInfo(L"Station one", true, 3000);
    *other = *dialog;
    EXPECT_EQ(other->GetGpTitle(), dialog->GetGpTitle());
    scene.Advance(10000);
    ExerciseStrip(*other, scene);
    dialog.reset();
    scene.Advance(10000);
    ExerciseStrip(*other, scene);
}

TEST_F(TitleCopy, MayBeAssignedToItself) {
    const CLQTitleDialog& same = *dialog;
    *dialog = same;
    EXPECT_NE(dialog->GetGpTitle(), nullptr);
    ExerciseStrip(*dialog, scene);
}

constexpr wchar_t kServicePath[] = L"\\NandFlash\\Application\\Bin\\LQ_ShareMem.dll";

/// A strip beside which nobody holds the service.
class TitleLink : public TestStrip {
  protected:
    TitleLink() : TestStrip(TestService::Missing) { InstallService(scene.DeviceFolder()); }

    /// A handle that keeps nothing loaded, to see whether others do.
    HMODULE Peek() {
        const HMODULE library = LoadLibraryW(kServicePath);
        FreeLibrary(library);
        return library;
    }
    static bool IsLoaded(HMODULE library) { return GetProcAddressW(library, L"LQ_GetSysInfo") != nullptr; }
};

TEST_F(TitleLink, IsUnloadedWithTheDialog) {
    Start();
    const HMODULE library = Peek();
    EXPECT_TRUE(IsLoaded(library));
    dialog.reset();
    EXPECT_FALSE(IsLoaded(library));
}

TEST_F(TitleLink, IsUnloadedWithTheLastCopyInEitherOrder) {
    for (const bool sourceFirst : {true, false}) {
        Start();
        const HMODULE library = Peek();
        auto copy = std::make_unique<CLQTitleDialog>(*dialog);
        auto& first = sourceFirst ? dialog : copy;
        auto& last = sourceFirst ? copy : dialog;
        first.reset();
        EXPECT_TRUE(IsLoaded(library));
        EXPECT_EQ(last->GetParkingStation(), 0) << "the record is still there";
        ExerciseStrip(*last, scene);
        last.reset();
        EXPECT_FALSE(IsLoaded(library));
    }
}

TEST_F(TitleLink, OfADialogThatIsAssignedToEndsWithTheAssignment) {
    Start();
    const HMODULE library = Peek();
    CLQTitleDialog other;
    other = *dialog;
    dialog.reset();
    EXPECT_TRUE(IsLoaded(library));
    other = CLQTitleDialog(other);
    EXPECT_TRUE(IsLoaded(library));
    EXPECT_EQ(other.GetParkingStation(), 0);
}

class TitleLinkStandBy : public TestStrip {
  protected:
    TitleLinkStandBy() : TestStrip(TestService::Missing) { Start(); }
};

TEST_F(TitleLinkStandBy, RecordIsSharedByCopiesInEitherOrder) {
    for (const bool sourceFirst : {true, false}) {
        Start();
        auto copy = std::make_unique<CLQTitleDialog>(*dialog);
        auto& first = sourceFirst ? dialog : copy;
        auto& last = sourceFirst ? copy : dialog;
        first.reset();
        EXPECT_EQ(last->GetParkingStation(), 0);
        ExerciseStrip(*last, scene);
        last.reset();
    }
}

}  // namespace
}  // namespace korvane::test
