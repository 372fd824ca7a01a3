#include <cstring>
#include <gtest/gtest.h>

#include "demo/mainapp/MainApplication.h"
#include "demo/mainapp/SettingMessage.h"
#include "tests/demo/DemoScene.h"

namespace korvane::demo {

namespace {

class MainApplicationTest : public testing::Test {
  protected:
    MainApplicationTest() : mainApplication_(MainApplication::KeyBeep::Silent) { mainApplication_.Start(); }

    void Post(UINT message, WPARAM wParam, LPARAM lParam) {
        ASSERT_TRUE(PostMessageW(FindWindowW(kMainWindowName, kMainWindowName), message, wParam, lParam));
        scene_.Pump();
    }
    int Get(const wchar_t* field) { return service_.Value(field, -1); }

    test::DemoScene scene_;
    tools::SystemService service_;
    MainApplication mainApplication_;
};

}  // namespace

TEST_F(MainApplicationTest, FillsAFreshRecord) {
    EXPECT_EQ(Get(L"gps"), 1);
    EXPECT_EQ(Get(L"rdsIconMask"), 31);
    EXPECT_EQ(Get(L"clock24h"), 1);
    EXPECT_EQ(Get(L"mute"), 0);
    EXPECT_EQ(Get(L"aux2Present"), 0);
    EXPECT_EQ(Get(L"source"), 0);
}

TEST_F(MainApplicationTest, SwitchesToTheSourceThatWasChosen) {
    Post(kMainSourceChosen, 1, 18);
    EXPECT_EQ(Get(L"source"), 18);
}

TEST_F(MainApplicationTest, IgnoresASourceThatTheRecordCannotHold) {
    Post(kMainSourceChosen, 1, 18);
    for (const LPARAM source : {LPARAM{-1}, LPARAM{256}, LPARAM{65536}}) {
        Post(kMainSourceChosen, 1, source);
        EXPECT_EQ(Get(L"source"), 18);
    }
}

TEST_F(MainApplicationTest, ObeysTheButtonsOfTheStrip) {
    service_.SetValue(L"taActive", 1);
    Post(kMainTitleButton, 1, 0);
    EXPECT_EQ(Get(L"taActive"), 0);
    Post(kMainTitleButton, 2, 0);
    EXPECT_EQ(Get(L"rearZone"), 1);
    Post(kMainTitleButton, 2, 0);
    EXPECT_EQ(Get(L"rearZone"), 0);
    Post(kMainTitleButton, 3, 0);
    EXPECT_EQ(Get(L"source"), 17);
}

TEST_F(MainApplicationTest, IgnoresButtonsThatThereAreNot) {
    const _LQSysInfo before = *service_.Record();
    for (const WPARAM button : {0u, 4u, 0xFFFFFFFFu})
        Post(kMainTitleButton, button, 0);
    EXPECT_EQ(std::memcmp(&before, service_.Record(), sizeof before), 0);
}

TEST_F(MainApplicationTest, ChangesTheSettingsThatTheUserChooses) {
    Post(kMainSettingChosen, kItemLanguage, 5);
    EXPECT_EQ(Get(L"language"), 5);
    Post(kMainSettingChosen, kItemClockForm, 0);
    EXPECT_EQ(Get(L"clock24h"), 0);
    Post(kMainSettingChosen, kItemMute, 1);
    EXPECT_EQ(Get(L"mute"), 1);
    Post(kMainSettingChosen, kItemTa, 0);
    EXPECT_EQ(Get(L"taOn"), 0);
    Post(kMainSettingChosen, kItemAf, 0);
    EXPECT_EQ(Get(L"afState"), 0);
}

TEST_F(MainApplicationTest, ChangesNothingElseByTheMessageForSettings) {
    const _LQSysInfo before = *service_.Record();
    for (const WPARAM item : {WPARAM{0}, WPARAM{kItemGps}, WPARAM{kItemSource}, static_cast<WPARAM>(-1)})
        Post(kMainSettingChosen, item, 1);
    for (const LPARAM value : {LPARAM{-1}, LPARAM{2}, LPARAM{256}})
        Post(kMainSettingChosen, kItemMute, value);
    for (const LPARAM value : {LPARAM{-1}, LPARAM{256}, LPARAM{65541}})
        Post(kMainSettingChosen, kItemLanguage, value);
    EXPECT_EQ(std::memcmp(&before, service_.Record(), sizeof before), 0);
}

TEST_F(MainApplicationTest, IsAloneOnItsDevice) {
    MainApplication other(MainApplication::KeyBeep::Silent);
    EXPECT_FALSE(other.Start());
    EXPECT_FALSE(mainApplication_.Start());
}

TEST(MainApplicationAtItsStart, LeavesALivingRecordAlone) {
    test::DemoScene scene;
    tools::SystemService service;
    service.SetValue(L"tvPresent", 1);
    MainApplication mainApplication(MainApplication::KeyBeep::Silent);
    ASSERT_TRUE(mainApplication.Start());
    EXPECT_EQ(service.Value(L"gps", -1), 0);
    EXPECT_EQ(service.Value(L"clock24h", -1), 0);
}

TEST(MainApplicationAtItsStart, KeepsTheUsersLanguageInAFreshRecord) {
    test::DemoScene scene;
    tools::SystemService service;
    service.SetValue(L"language", 9);
    MainApplication mainApplication(MainApplication::KeyBeep::Silent);
    ASSERT_TRUE(mainApplication.Start());
    EXPECT_EQ(service.Value(L"gps", -1), 1);
    EXPECT_EQ(service.Value(L"language", -1), 9);
    EXPECT_EQ(service.Value(L"clock24h", -1), 1) << "nobody had chosen yet";
    EXPECT_EQ(service.Value(L"mute", -1), 0);
}

TEST(MainApplicationAtItsEnd, TakesItsWindowAlong) {
    test::DemoScene scene;
    {
        MainApplication mainApplication(MainApplication::KeyBeep::Silent);
        ASSERT_TRUE(mainApplication.Start());
        EXPECT_NE(FindWindowW(nullptr, kMainWindowName), nullptr);
    }
    EXPECT_EQ(FindWindowW(nullptr, kMainWindowName), nullptr);
}

}  // namespace korvane::demo
