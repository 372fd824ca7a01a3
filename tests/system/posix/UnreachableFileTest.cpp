#include <gtest/gtest.h>

#include "engine/system/IniReadWrite.h"

#include "tests/system/ScratchDevice.h"

TEST(IniThatCannotBeReached, IsNotTakenForAMissingFile) {
    const ScratchDevice device;
    const auto link = device.HostPath("x.ini");
    std::filesystem::create_symlink(link, link);
    CLQIniReadWrite ini;
    ini.SetFileName(L"x.ini");
    EXPECT_TRUE(ini.SetValue(L"a", L"x", 1, true));
    ini.Update();
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(ini.GetInt(L"a", L"x", 0), 1);
}
