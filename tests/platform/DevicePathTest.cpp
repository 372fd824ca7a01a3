#include <cstdlib>
#include <gtest/gtest.h>

#include "platform/Simulation.h"

#include "tests/platform/DeviceFolder.h"

namespace korvane {
namespace {

TEST(DevicePath, TakesSeparatorsOfEitherKindWithOrWithoutALeadingOne) {
    const DeviceFolder device;
    device.Write("NandFlash/Application/a.ini");
    const std::string expected = device.Path() + "/NandFlash/Application/a.ini";
    EXPECT_EQ(ToHostPath(L"\\NandFlash\\Application\\a.ini"), expected);
    EXPECT_EQ(ToHostPath(L"NandFlash\\Application\\a.ini"), expected);
    EXPECT_EQ(ToHostPath(L"/NandFlash/Application//a.ini"), expected);
    EXPECT_EQ(ToHostPath(L"\\NandFlash/.\\Application\\a.ini"), expected);
}

TEST(DevicePath, IsMatchedWithoutRegardToCase) {
    const DeviceFolder device;
    device.Write("NandFlash/Application/Profile/LQ_SysSettings.ini");
    EXPECT_EQ(ToHostPath(L"\\NANDFLASH\\application\\profile\\lq_syssettings.INI"),
              device.Path() + "/NandFlash/Application/Profile/LQ_SysSettings.ini");
}

TEST(DevicePath, PrefersTheExactSpelling) {
    const DeviceFolder device;
    device.Write("abc");
    device.Write("Abc");
    device.Write("aBC");
    EXPECT_EQ(ToHostPath(L"abc"), device.Path() + "/abc");
    EXPECT_EQ(ToHostPath(L"aBC"), device.Path() + "/aBC");
    EXPECT_EQ(ToHostPath(L"ABC"), device.Path() + "/Abc");
}

TEST(DevicePath, FoldsLettersBeyondAscii) {
    const DeviceFolder device;
    device.Write("Żółw/ΑΘΉΝΑ/Москва");
    EXPECT_EQ(ToHostPath(L"żÓŁW\\αθήνα\\МОСКВА"), device.Path() + "/Żółw/ΑΘΉΝΑ/Москва");
}

TEST(DevicePath, NeverLeavesTheRoot) {
    const DeviceFolder device;
    device.Write("inside/file");
    EXPECT_EQ(ToHostPath(L"..\\..\\inside\\file"), device.Path() + "/inside/file");
    EXPECT_EQ(ToHostPath(L"\\inside\\..\\..\\..\\etc\\passwd"), device.Path() + "/etc/passwd");
    EXPECT_EQ(ToHostPath(L"\\"), device.Path());
    EXPECT_EQ(ToHostPath(L".."), device.Path());
}

TEST(DevicePath, KeepsWhatDoesNotExistAsItIsGiven) {
    const DeviceFolder device;
    device.Write("Data/known");
    EXPECT_EQ(ToHostPath(L"\\data\\New Folder\\New.ini"), device.Path() + "/Data/New Folder/New.ini");
}

TEST(DevicePath, IsEmptyForNothing) {
    const DeviceFolder device;
    EXPECT_EQ(ToHostPath(nullptr), "");
    EXPECT_EQ(ToHostPath(L""), "");
}

TEST(DevicePath, SurvivesPathsOfEveryKind) {
    const DeviceFolder device;
    EXPECT_EQ(ToHostPath(std::wstring(5000, L'a').c_str()), device.Path() + '/' + std::string(5000, 'a'));
    std::wstring deep;
    for (int i = 0; i < 2000; ++i)
        deep += L"a\\..\\";
    EXPECT_EQ(ToHostPath(deep.c_str()), device.Path());
    const wchar_t lone[] = {static_cast<wchar_t>(0xD800), L'x', 0};
    EXPECT_EQ(ToHostPath(lone), device.Path() + "/\xEF\xBF\xBDx");
}

TEST(DeviceRoot, ComesFromTheEnvironmentUnlessSet) {
    setenv("KORVANE_DEVICE_ROOT", "/some/where", 1);
    SetDeviceRoot("");
    EXPECT_EQ(DeviceRoot(), "/some/where");
    SetDeviceRoot("/else/where/");
    EXPECT_EQ(ToHostPath(L"\\a"), "/else/where/a");
    unsetenv("KORVANE_DEVICE_ROOT");
    SetDeviceRoot("");
    EXPECT_NE(DeviceRoot(), "");
}

}  // namespace
}  // namespace korvane
