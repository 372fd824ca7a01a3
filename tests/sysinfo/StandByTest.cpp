#include <cstring>
#include <gtest/gtest.h>

#include "sysinfo/ShareMemLink.h"

#include "tests/sysinfo/LinkDevice.h"

namespace korvane::test {
namespace {

class StandByRecord : public LinkDevice {
  protected:
    ~StandByRecord() override { link.Unload(); }

    CLQShareMemLink link;
};

TEST_F(StandByRecord, HasTwoAuxiliaryInputsAndNothingElse) {
    link.Load();
    const _LQSysInfo* const record = link.GetSysInfo();
    ASSERT_NE(record, nullptr);
    unsigned char bytes[33];
    std::memcpy(bytes, record, sizeof(bytes));
    for (int i = 0; i < 33; ++i)
        EXPECT_EQ(bytes[i], i == 29 ? 1 : i == 30 ? 2 : 0) << i;
}

TEST_F(StandByRecord, IsTheSameAtEveryCall) {
    _LQSysInfo* const record = link.GetSysInfo();
    EXPECT_EQ(link.pFallbackInfo, record);
    EXPECT_EQ(link.GetSysInfo(), record);
    link.Load();
    EXPECT_EQ(link.GetSysInfo(), record) << "nothing was loaded";
}

TEST_F(StandByRecord, IsTheLinksOwn) {
    CLQShareMemLink other;
    EXPECT_NE(link.GetSysInfo(), other.GetSysInfo());
    EXPECT_TRUE(other.Unload());
}

TEST_F(StandByRecord, StandsInForAServiceWithoutTheEntryPoint) {
    InstallStub("lacks_LQ_GetSysInfo");
    EXPECT_FALSE(link.Load());
    _LQSysInfo* const record = link.GetSysInfo();
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(link.pFallbackInfo, record);
    EXPECT_EQ(record->aux2Present, 2);
}

TEST_F(StandByRecord, GivesWayToTheServiceAndGoesWhenTheLinkIsUnloaded) {
    const _LQSysInfo* const standBy = link.GetSysInfo();
    InstallRealService();
    ASSERT_TRUE(link.Load());
    EXPECT_NE(link.GetSysInfo(), standBy);
    EXPECT_EQ(link.pFallbackInfo, standBy) << "who took its address goes on reading it";
    EXPECT_TRUE(link.Unload());
    EXPECT_EQ(link.pFallbackInfo, nullptr);
    EXPECT_EQ(link.GetSysInfo()->aux1Present, 1) << "a new one";
}

}  // namespace
}  // namespace korvane::test
