#include "tests/title/bench/TestStrip.h"

namespace korvane::test {
namespace {

class TitleText : public TestStrip {
  protected:
    TitleText() {
        LoadTexts("7 = Radio\n8 = Settings\n");
        Start();
        info = Find<CLQStatic>(L"StInfo");
    }

    CLQStatic* info = nullptr;
};

TEST_F(TitleText, ShowsALiteralText) {
    dialog->SetTitleInfo(L"Station one", false, 0);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Station one");
    EXPECT_EQ(info->GetText(), L"Station one");
}

TEST_F(TitleText, ShowsATextOfTheLanguageTable) {
    dialog->SetTitleInfo(7, false, 0);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Radio");
}

TEST_F(TitleText, FollowsTheLanguageOnlyWhileItIsATextOfTheTable) {
    dialog->SetTitleInfo(7, false, 0);
    LoadTexts("7 = Rundfunk\n8 = Einstellungen\n");
    EXPECT_EQ(dialog->GetTitleInfo(), L"Rundfunk");
    dialog->SetTitleInfo(L"Station one", false, 0);
    LoadTexts("7 = Radio\n");
    EXPECT_EQ(dialog->GetTitleInfo(), L"Station one");
}

TEST_F(TitleText, StaysWhenTheTextIsNull) {
    dialog->SetTitleInfo(L"Station one", false, 1000);
    dialog->SetTitleInfo(nullptr, true, 0);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Station one");
    scene.Advance(999);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Station one");
    scene.Advance(1);
    EXPECT_EQ(dialog->GetTitleInfo(), L"") << "the null text has not touched the time-out";
}

TEST_F(TitleText, MayBeEmpty) {
    dialog->SetTitleInfo(L"Station one", false, 0);
    dialog->SetTitleInfo(L"", false, 0);
    EXPECT_EQ(dialog->GetTitleInfo(), L"");
}

TEST_F(TitleText, EndsWithItsTimeOut) {
    for (const int hideMs : {1, 3000, 3001, 60000}) {
        // The system runs no timer faster than every 10 ms.
        const unsigned due = hideMs < 10 ? 10 : static_cast<unsigned>(hideMs);
        dialog->SetTitleInfo(L"Station one", false, hideMs);
        scene.Advance(due - 1);
        EXPECT_EQ(dialog->GetTitleInfo(), L"Station one") << hideMs;
        scene.Advance(1);
        EXPECT_EQ(dialog->GetTitleInfo(), L"") << hideMs;
    }
}

TEST_F(TitleText, OfTheLanguageTableEndsWithItsTimeOutForGood) {
    dialog->SetTitleInfo(7, false, 3000);
    scene.Advance(2999);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Radio");
    scene.Advance(1);
    EXPECT_EQ(dialog->GetTitleInfo(), L"");
    LoadTexts("7 = Rundfunk\n");
    EXPECT_EQ(dialog->GetTitleInfo(), L"") << "a change of the language does not bring it back";
}

TEST_F(TitleText, IsHiddenOnceByATimeOut) {
    dialog->SetTitleInfo(L"Station one", false, 1000);
    scene.Advance(1000);
    info->SetText(L"Put there by the application");
    scene.Advance(5000);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Put there by the application");
}

TEST_F(TitleText, StaysWithoutATimeOut) {
    for (const int hideMs : {0, -1, -3000}) {
        dialog->SetTitleInfo(L"Station one", false, 1000);
        dialog->SetTitleInfo(L"Station two", false, hideMs);
        scene.Advance(60000);
        EXPECT_EQ(dialog->GetTitleInfo(), L"Station two") << hideMs;
        dialog->SetTitleInfo(L"Station one", false, 1000);
        dialog->SetTitleInfo(7, false, hideMs);
        scene.Advance(60000);
        EXPECT_EQ(dialog->GetTitleInfo(), L"Radio") << hideMs;
    }
}

TEST_F(TitleText, BeginsItsTimeOutAnewWithEachTitle) {
    dialog->SetTitleInfo(L"Station one", false, 3000);
    scene.Advance(2999);
    dialog->SetTitleInfo(L"Station two", false, 3000);
    scene.Advance(2999);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Station two");
    scene.Advance(1);
    EXPECT_EQ(dialog->GetTitleInfo(), L"");
}

TEST_F(TitleText, ScrollsOnlyWhenItIsToldTo) {
    const std::wstring longText(80, L'W');
    dialog->SetTitleInfo(longText.c_str(), true, 0);
    const auto start = PixelsOfCtrl(*info);
    scene.Advance(600);
    EXPECT_FALSE(PixelsOfCtrl(*info) == start);
    dialog->SetTitleInfo(longText.c_str(), false, 0);
    const auto rest = PixelsOfCtrl(*info);
    scene.Advance(600);
    EXPECT_TRUE(PixelsOfCtrl(*info) == rest);
}

TEST_F(TitleText, ScrollsThroughOnceAndRests) {
    const std::wstring longText(20, L'W');
    dialog->SetTitleInfo(longText.c_str(), true, 0);
    const auto start = PixelsOfCtrl(*info);
    scene.Advance(60000);
    const auto rest = PixelsOfCtrl(*info);
    EXPECT_TRUE(rest == start);
    scene.Advance(600);
    EXPECT_TRUE(PixelsOfCtrl(*info) == rest);
}

TEST_F(TitleText, GivesWayToAnImage) {
    dialog->SetTitleInfo(L"Station one", true, 0);
    dialog->SetTitleIcon(L"cover.lqi", 0);
    EXPECT_EQ(dialog->GetTitleInfo(), L"");
    EXPECT_EQ(ImageSeenAt(info), "cover.lqi");
}

TEST_F(TitleText, TakesTheImageAwayAgain) {
    dialog->SetTitleIcon(L"cover.lqi", 0);
    dialog->SetTitleInfo(L"Station one", false, 0);
    EXPECT_EQ(ImageSeenAt(info), "");
    dialog->SetTitleIcon(L"cover.lqi", 0);
    dialog->SetTitleInfo(7, false, 0);
    EXPECT_EQ(ImageSeenAt(info), "");
}

TEST_F(TitleText, OfTheLanguageTableTakesEveryImageAwayAndALiteralOneOnlyATitle) {
    info->SetBkgSurf(L"strip.lqi");
    dialog->SetTitleInfo(L"Station one", false, 0);
    EXPECT_EQ(ImageSeenAt(info), "strip.lqi");
    dialog->SetTitleInfo(7, false, 0);
    EXPECT_EQ(ImageSeenAt(info), "");
}

TEST_F(TitleText, DoesNotComeBackWithTheLanguageBehindAnImage) {
    dialog->SetTitleInfo(7, false, 0);
    dialog->SetTitleIcon(L"cover.lqi", 0);
    LoadTexts("7 = Rundfunk\n");
    EXPECT_EQ(dialog->GetTitleInfo(), L"");
}

TEST_F(TitleText, StopsScrollingForAnImage) {
    dialog->SetTitleInfo(L"Station one", true, 0);
    dialog->SetTitleIcon(L"cover.lqi", 0);
    info->SetText(std::wstring(80, L'W').c_str());
    const auto rest = PixelsOfCtrl(*info);
    scene.Advance(600);
    EXPECT_TRUE(PixelsOfCtrl(*info) == rest);
}

TEST_F(TitleText, HidesAnImageAfterItsTimeOut) {
    dialog->SetTitleIcon(L"cover.lqi", 3000);
    scene.Advance(2999);
    EXPECT_EQ(ImageSeenAt(info), "cover.lqi");
    scene.Advance(1);
    EXPECT_EQ(ImageSeenAt(info), "");
}

TEST_F(TitleText, LeavesATextBehindAnImageThatTimesOut) {
    dialog->SetTitleIcon(L"cover.lqi", 3000);
    info->SetText(L"Put there by the application");
    scene.Advance(3000);
    EXPECT_EQ(ImageSeenAt(info), "");
    EXPECT_EQ(dialog->GetTitleInfo(), L"Put there by the application");
}

TEST_F(TitleText, KeepsAnImageWithoutTimeOut) {
    dialog->SetTitleIcon(L"cover.lqi", 1000);
    dialog->SetTitleIcon(L"strip.lqi", 0);
    scene.Advance(60000);
    EXPECT_EQ(ImageSeenAt(info), "strip.lqi");
}

TEST_F(TitleText, IsClearedByANullImageThatStartsNoTimeOut) {
    dialog->SetTitleInfo(L"Station one", false, 0);
    dialog->SetTitleIcon(nullptr, 5000);
    EXPECT_EQ(dialog->GetTitleInfo(), L"");
    info->SetText(L"Put there by the application");
    scene.Advance(5000);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Put there by the application");
}

TEST_F(TitleText, KeepsItsTimeOutAtANullImage) {
    dialog->SetTitleInfo(L"Station one", false, 3000);
    dialog->SetTitleIcon(nullptr, 0);
    info->SetText(L"Put there by the application");
    scene.Advance(3000);
    EXPECT_EQ(dialog->GetTitleInfo(), L"");
}

TEST_F(TitleText, KeepsTheImageAtANullImage) {
    dialog->SetTitleIcon(L"cover.lqi", 0);
    dialog->SetTitleIcon(nullptr, 0);
    EXPECT_EQ(ImageSeenAt(info), "cover.lqi");
}

TEST_F(TitleText, ShowsNothingForAMissingImage) {
    dialog->SetTitleIcon(L"missing.lqi", 1000);
    EXPECT_EQ(ImageSeenAt(info), "");
    scene.Advance(1000);
    dialog->SetTitleInfo(L"Station one", false, 0);
    EXPECT_EQ(dialog->GetTitleInfo(), L"Station one");
}

TEST_F(TitleText, SurvivesHugeTextsAndTimes) {
    dialog->SetTitleInfo(std::wstring(100000, L'x').c_str(), true, 2147483647);
    scene.Advance(10000);
    EXPECT_EQ(dialog->GetTitleInfo().size(), 100000u);
    dialog->SetTitleInfo(-2147483647 - 1, true, -2147483647 - 1);
    dialog->SetTitleInfo(2147483647, true, 1);
    scene.Advance(1000);
    EXPECT_EQ(dialog->GetTitleInfo(), L"");
}

}  // namespace
}  // namespace korvane::test
