#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>

#include "sysinfo/SysInfo.h"
#include "sysinfo/SysInfoFields.h"

namespace {

struct Place {
    const wchar_t* name;
    std::size_t offset;
    int item;
};

constexpr Place kPlaces[] = {
    {L"btState", 0, 1},
    {L"clock24h", 3, 4},
    {L"mute", 4, 5},
    {L"parking", 5, 6},
    {L"gps", 6, 13},
    {L"rdsIconMask", 9, 7},
    {L"regOn", 10, 8},
    {L"ptyOn", 11, 9},
    {L"afState", 12, 10},
    {L"taOn", 13, 11},
    {L"tpOn", 14, 12},
    {L"taActive", 15, 15},
    {L"frontRearAvail", 16, 16},
    {L"guideAvail", 17, 14},
    {L"language", 18, 17},
    {L"usbPresent", 22, 22},
    {L"discAudioPresent", 23, 23},
    {L"discVideoPresent", 24, 24},
    {L"ipodPresent", 25, 25},
    {L"tvPresent", 26, 26},
    {L"naviPresent", 28, 28},
    {L"aux1Present", 29, 27},
    {L"aux2Present", 30, 27},
    {L"source", 31, 31},
    {L"rearZone", 32, 32},
};

TEST(SysInfoRecord, HasItsFieldsWhereOtherProcessesPutThem) {
    EXPECT_EQ(sizeof(_LQSysInfo), 33u);
    EXPECT_EQ(alignof(_LQSysInfo), 1u);
    ASSERT_EQ(std::size(korvane::kSysInfoFields), std::size(kPlaces));
    for (std::size_t i = 0; i < std::size(kPlaces); ++i) {
        const korvane::SysInfoField& field = korvane::kSysInfoFields[i];
        EXPECT_EQ(std::wstring(field.name), kPlaces[i].name);
        EXPECT_EQ(field.offset, kPlaces[i].offset) << i;
        EXPECT_EQ(field.item, kPlaces[i].item) << i;
    }
}

TEST(SysInfoRecord, NamesNoFieldTwice) {
    std::set<std::wstring> names;
    std::set<std::size_t> offsets;
    for (const korvane::SysInfoField& field : korvane::kSysInfoFields) {
        EXPECT_TRUE(names.insert(field.name).second);
        EXPECT_TRUE(offsets.insert(field.offset).second);
    }
}

}  // namespace
