#include <gtest/gtest.h>

#include "platform/Simulation.h"
#include "sysinfo/MainApplication.h"
#include "sysinfo/SysInfoFields.h"

#include "tests/demo/processes/ProcessBench.h"

namespace korvane::test {

namespace {

constexpr int kDisc = 4;
constexpr int kNavigation = 17;

constexpr RECT kIcons = {0, 0, 200, 60};
constexpr RECT kContent = {0, 60, 800, 480};

class ThreeProcesses : public ProcessBench {
  protected:
    /// The main application's doing: what reaches its window, whoever has it.
    void ChooseSource(int source) {
        ForgetItems();
        ASSERT_TRUE(PostMessageW(FindWindowW(nullptr, kMainWindowName), kMainSourceChosen, 1, source));
        ASSERT_TRUE(AwaitItem(kItemSource));
        EXPECT_EQ(Get(L"source"), source);
    }
    void Set(const char* field, int value) {
        const Answer answer = Ctl({"set", field, std::to_string(value)});
        ASSERT_EQ(answer.status, 0) << answer.errors;
    }
};

}  // namespace

TEST_F(ThreeProcesses, GoOnWhenAnyOfThemIsKilledAndFindTheRecordIntact) {
    auto user = StartServiceUser();
    auto mainApplication = StartMainApplication();
    auto headUnit = StartHeadUnit();
    const png::Picture radio = Screenshot();
    std::string record = Record();

    user->Kill();
    EXPECT_EQ(Record(), record);
    Set("mute", 1);
    EXPECT_TRUE(AwaitChange(radio, kIcons)) << "the head unit no longer follows the record";
    ChooseSource(kDisc);
    EXPECT_TRUE(AwaitChange(radio, kContent));
    ChooseSource(0);
    EXPECT_TRUE(AwaitSame(radio, kContent));

    user = StartServiceUser();
    record = Record();
    mainApplication->Kill();
    EXPECT_EQ(Record(), record);
    EXPECT_TRUE(AwaitCount()) << "the service user does not go on";
    Touch(688, 224);
    EXPECT_TRUE(AwaitChange(radio, kContent)) << "the panel does not open without a main application";
    Touch(400, 300);
    EXPECT_TRUE(AwaitSame(radio, kContent));
    Set("mute", 0);
    EXPECT_TRUE(AwaitSame(radio, kIcons));

    record = Record();
    mainApplication = StartMainApplication();
    EXPECT_EQ(Record(), record) << "a new main application overwrites the living record";
    ForgetItems();
    Touch(667, 30);
    EXPECT_TRUE(AwaitItem(kItemSource)) << "the head unit does not find the new main application";
    EXPECT_EQ(Get(L"source"), kNavigation);
    const png::Picture navigation = Screenshot();

    record = Record();
    headUnit->Kill();
    EXPECT_EQ(Record(), record);
    EXPECT_EQ(Ctl({"press", "1", "1"}).errors, "headunitctl: no head unit is running on this device\n");
    ChooseSource(kDisc);
    EXPECT_TRUE(AwaitCount());

    headUnit = StartHeadUnit();
    EXPECT_TRUE(AwaitChange(radio, kContent)) << "the head unit forgets the source that plays";
    ChooseSource(kNavigation);
    EXPECT_TRUE(AwaitSame(navigation, kContent));
    ChooseSource(0);
    EXPECT_TRUE(AwaitSame(radio, kContent));
}

TEST_F(ThreeProcesses, StartWithAPlausibleRecordAndKeepItAfterwards) {
    auto mainApplication = StartMainApplication();
    EXPECT_EQ(Get(L"clock24h"), 1);
    EXPECT_EQ(Get(L"gps"), 1);
    EXPECT_EQ(Get(L"discAudioPresent"), 1);
    EXPECT_EQ(Get(L"mute"), 0);
    Set("gps", 0);
    Set("clock24h", 0);
    mainApplication->Kill();
    mainApplication = StartMainApplication();
    EXPECT_EQ(Get(L"gps"), 0);
    EXPECT_EQ(Get(L"clock24h"), 0);
}

TEST_F(ThreeProcesses, LetNoSecondOfAKindIn) {
    const auto mainApplication = StartMainApplication();
    const auto headUnit = StartHeadUnit();
    Program otherMain({KORVANE_TEST_MAINAPP, "--device-root", DeviceRoot()});
    EXPECT_EQ(otherMain.Wait(), 1);
    EXPECT_EQ(otherMain.Errors(), "mainapp: a main application is running on this device already\n");
    Program otherUnit({KORVANE_TEST_HEADUNIT, "--display", "memory", "--device-root", DeviceRoot()});
    EXPECT_EQ(otherUnit.Wait(), 1);
    EXPECT_EQ(otherUnit.Errors(), "headunit: a head unit is running on this device already\n");
}

TEST_F(ThreeProcesses, LetOneOfAKindInOfManyThatStartAtOnce) {
    const std::vector<std::string> mainApplication = {KORVANE_TEST_MAINAPP, "--device-root", DeviceRoot()};
    const std::vector<std::string> headUnit = {KORVANE_TEST_HEADUNIT, "--display", "memory", "--device-root",
                                               DeviceRoot()};
    const std::pair<std::vector<std::string>, const char*> kinds[] = {{mainApplication, "mainapp: ready"},
                                                                      {headUnit, "headunit: ready"}};
    for (const auto& [command, ready] : kinds) {
        std::vector<std::unique_ptr<Program>> programs;
        for (int i = 0; i < 6; ++i)
            programs.push_back(std::make_unique<Program>(command));
        int running = 0;
        for (const auto& program : programs)
            running += program->WaitForLine(ready) ? 1 : 0;
        EXPECT_EQ(running, 1) << ready;
    }
}

/// Where the main application lives: in a process of its own, or in the head unit's.
class SourceSwitch : public ThreeProcesses, public testing::WithParamInterface<bool> {};

TEST_P(SourceSwitch, WorksTheSameWhereverTheMainApplicationLives) {
    std::unique_ptr<Program> mainApplication;
    if (GetParam())
        mainApplication = StartMainApplication();
    const auto headUnit = StartHeadUnit();
    const png::Picture radio = Screenshot();

    Touch(688, 224);
    Touch(244, 137);
    EXPECT_TRUE(AwaitItem(kItemSource));
    EXPECT_EQ(Get(L"source"), kDisc);
    EXPECT_TRUE(AwaitChange(radio, kIcons)) << "there is no back button";

    Touch(100, 30);
    EXPECT_TRUE(AwaitItem(kItemSource));
    EXPECT_EQ(Get(L"source"), 0);
    EXPECT_TRUE(AwaitSame(radio, kIcons));
    EXPECT_TRUE(AwaitSame(radio, kContent));
}

INSTANTIATE_TEST_SUITE_P(InOneProcessOrTwo, SourceSwitch, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& where) {
                             return where.param ? "Two" : "One";
                         });

}  // namespace korvane::test
