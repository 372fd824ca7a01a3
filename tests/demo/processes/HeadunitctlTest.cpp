#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "platform/Simulation.h"
#include "sysinfo/SysInfoFields.h"

#include "tests/demo/processes/ProcessBench.h"

namespace korvane::test {

namespace {

namespace fs = std::filesystem;

/// The strip without the clock, the wheel, and the panel of shortcuts.
constexpr RECT kIcons = {0, 0, 200, 60};
constexpr RECT kWheel = {221, 105, 579, 343};
constexpr RECT kPanel = {0, 60, 800, 216};

using Headunitctl = ProcessBench;

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

}  // namespace

TEST_F(Headunitctl, PrintsTheWholeRecordFieldByField) {
    ASSERT_EQ(Ctl({"set", "language", "5"}).status, 0);
    const Answer answer = Ctl({"get"});
    EXPECT_EQ(answer.status, 0) << answer.errors;
    EXPECT_EQ(static_cast<std::size_t>(std::count(answer.output.begin(), answer.output.end(), '\n')),
              std::size(kSysInfoFields));
    EXPECT_EQ(answer.output.find("btState          0\n"), 0u) << answer.output;
    EXPECT_TRUE(Contains(answer.output, "\nlanguage         5\n")) << answer.output;
}

TEST_F(Headunitctl, PrintsTheFieldsThatAreNamed) {
    ASSERT_EQ(Ctl({"set", "mute", "255"}).status, 0);
    EXPECT_EQ(Ctl({"get", "mute", "gps"}).output, "mute             255\ngps              0\n");
}

TEST_F(Headunitctl, TellsOthersOfAChange) {
    ASSERT_EQ(Ctl({"set", "afState", "2"}).status, 0);
    EXPECT_TRUE(AwaitItem(kItemAf));
    EXPECT_EQ(Get(L"afState"), 2);
}

TEST_F(Headunitctl, RefusesFieldsThatThereAreNot) {
    for (const std::string field : {"volume", "", "reserved27", "MUTE"}) {
        for (const std::vector<std::string>& command :
             {std::vector<std::string>{"set", field, "1"}, std::vector<std::string>{"get", "mute", field}}) {
            const Answer answer = Ctl(command);
            EXPECT_EQ(answer.status, 2);
            EXPECT_TRUE(Contains(answer.errors, "headunitctl: '" + field + "' is no field")) << answer.errors;
            EXPECT_EQ(answer.output, "");
        }
    }
}

TEST_F(Headunitctl, RefusesValuesThatNoFieldCanHave) {
    for (const std::string value : {"256", "-1", "1x", "", " 1", "0x10", "99999999999999999999"}) {
        const Answer answer = Ctl({"set", "mute", value});
        EXPECT_EQ(answer.status, 2) << value;
        EXPECT_TRUE(Contains(answer.errors, "from 0 to 255")) << answer.errors;
    }
    EXPECT_EQ(Get(L"mute"), 0);
}

TEST_F(Headunitctl, RefusesCommandsThatMakeNoSense) {
    for (const std::vector<std::string>& command :
         std::vector<std::vector<std::string>>{{},
                                               {"dance"},
                                               {"set", "mute"},
                                               {"set", "mute", "1", "2"},
                                               {"press", "1"},
                                               {"press", "one", "2"},
                                               {"swipe", "1", "2", "3"},
                                               {"swipe", "1", "2", "3", "4", "--ms", "-5"},
                                               {"thumbnail"},
                                               {"thumbnail", "put"},
                                               {"screenshot"},
                                               {"get", "--device-root", "/no/such/folder"}}) {
        const Answer answer = Ctl(command);
        EXPECT_EQ(answer.status, 2) << answer.errors;
        EXPECT_EQ(answer.errors.find("headunitctl: "), 0u) << answer.errors;
        EXPECT_EQ(answer.output, "");
    }
}

TEST_F(Headunitctl, SaysThatThereIsNoService) {
    const std::string device = DeviceRoot();
    const std::string bareDevice = HostPath(L"\\bare");
    fs::create_directory(fs::u8path(bareDevice));
    SetDeviceRoot(bareDevice);
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"get"}, std::vector<std::string>{"set", "mute", "1"},
          std::vector<std::string>{"thumbnail", "get", HostPath(L"\\thumbnail.png")}}) {
        const Answer answer = Ctl(command);
        EXPECT_EQ(answer.status, 1);
        EXPECT_TRUE(Contains(answer.errors, "service")) << answer.errors;
    }
    SetDeviceRoot(device);
}

TEST_F(Headunitctl, SaysThatNoHeadUnitIsRunning) {
    const std::string file = HostPath(L"\\none.png");
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"press", "400", "240"}, std::vector<std::string>{"screenshot", file},
          std::vector<std::string>{"swipe", "1", "1", "2", "2"}}) {
        const Answer answer = Ctl(command);
        EXPECT_EQ(answer.status, 1);
        EXPECT_EQ(answer.errors, "headunitctl: no head unit is running on this device\n");
    }
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(Headunitctl, TakesNoTouchBesideTheScreen) {
    const auto headUnit = StartHeadUnit();
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"press", "800", "0"}, std::vector<std::string>{"move", "0", "480"},
          std::vector<std::string>{"release", "-1", "0"},
          std::vector<std::string>{"swipe", "0", "0", "0", "480"}}) {
        const Answer answer = Ctl(command);
        EXPECT_EQ(answer.status, 2);
        EXPECT_TRUE(Contains(answer.errors, "outside the screen, which is 800 by 480")) << answer.errors;
    }
    EXPECT_EQ(Ctl({"press", "799", "479"}).status, 0);
}

TEST_F(Headunitctl, TakesAPictureOfWhatTheTouchesBeforeHaveDone) {
    const auto headUnit = StartHeadUnit();
    const png::Picture before = Screenshot();
    ASSERT_EQ(before.width, 800);
    ASSERT_EQ(before.height, 480);
    Touch(688, 224);
    EXPECT_TRUE(AwaitChange(before, kPanel));
    Touch(400, 300);
    EXPECT_TRUE(AwaitSame(before, kPanel));
    EXPECT_TRUE(fs::is_empty(HostPath(L"\\Temp"))) << "pictures are left on the device";
}

TEST_F(Headunitctl, LeavesNoPictureBehindWhenItIsKilledBeforeItHasFetchedOne) {
    const fs::path folder = HostPath(L"\\Temp");
    fs::create_directories(folder);
    std::ofstream(folder / "HeadUnit-7.lqi") << "picture";
    std::ofstream(folder / "notes.txt") << "notes";
    const auto headUnit = StartHeadUnit();
    EXPECT_FALSE(fs::exists(folder / "HeadUnit-7.lqi"));
    EXPECT_TRUE(fs::exists(folder / "notes.txt"));
}

TEST_F(Headunitctl, SwipesTheWheel) {
    const auto headUnit = StartHeadUnit();
    const png::Picture before = Screenshot();
    const Answer answer = Ctl({"swipe", "340", "280", "340", "160", "--ms", "30"});
    ASSERT_EQ(answer.status, 0) << answer.errors;
    EXPECT_TRUE(AwaitChange(before, kWheel));
}

TEST_F(Headunitctl, ShowsInTheStripWhatItSets) {
    const auto headUnit = StartHeadUnit();
    const png::Picture before = Screenshot();
    ASSERT_EQ(Ctl({"set", "mute", "1"}).status, 0);
    EXPECT_TRUE(AwaitChange(before, kIcons));
    ASSERT_EQ(Ctl({"set", "mute", "0"}).status, 0);
    EXPECT_TRUE(AwaitSame(before, kIcons));
}

TEST_F(Headunitctl, SaysThatAHeadUnitThatHangsDoesNotAnswer) {
    const auto headUnit = StartHeadUnit();
    headUnit->Freeze();
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"press", "1", "1"},
          std::vector<std::string>{"screenshot", HostPath(L"\\none.png")}}) {
        const Answer answer = Ctl(command);
        EXPECT_EQ(answer.status, 1);
        EXPECT_EQ(answer.errors, "headunitctl: the head unit does not answer\n");
    }
}

TEST_F(Headunitctl, ExchangesTheThumbnail) {
    png::Picture cover;
    cover.width = 480;
    cover.height = 288;
    for (int y = 0; y < cover.height; ++y) {
        for (int x = 0; x < cover.width; ++x)
            cover.pixels.push_back(x < 240 ? 0xFFC03020U : 0xFF2040C0U);
    }
    const std::string in = HostPath(L"\\cover.png");
    const std::string out = HostPath(L"\\out.png");
    std::string reason;
    ASSERT_TRUE(png::WritePng(in, cover, reason)) << reason;
    const Answer put = Ctl({"thumbnail", "put", in});
    ASSERT_EQ(put.status, 0) << put.errors;
    const Answer fetched = Ctl({"thumbnail", "get", out});
    ASSERT_EQ(fetched.status, 0) << fetched.errors;
    png::Picture thumbnail;
    ASSERT_TRUE(png::ReadPng(out, thumbnail, reason)) << reason;
    ASSERT_EQ(thumbnail.width, 240);
    ASSERT_EQ(thumbnail.height, 144);
    EXPECT_EQ(thumbnail.pixels.front(), 0xFFC03020U);
    EXPECT_EQ(thumbnail.pixels.back(), 0xFF2040C0U);
}

TEST_F(Headunitctl, NamesTheFileThatItCannotReadOrWrite) {
    const Answer put = Ctl({"thumbnail", "put", HostPath(L"\\missing.png")});
    EXPECT_EQ(put.status, 1);
    EXPECT_TRUE(Contains(put.errors, "missing.png: ")) << put.errors;
    const Answer fetched = Ctl({"thumbnail", "get", HostPath(L"\\no folder\\out.png")});
    EXPECT_EQ(fetched.status, 1);
    EXPECT_TRUE(Contains(fetched.errors, "out.png: ")) << fetched.errors;
}

}  // namespace korvane::test
