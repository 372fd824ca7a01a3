#include <filesystem>
#include <gtest/gtest.h>

#include "platform/Simulation.h"
#include "platform/coredll.h"

#include "tests/platform/DeviceFolder.h"

namespace korvane {
namespace {

/// A stick beside the device, plugged in at "\\USB".
class PluggedMedia : public testing::Test {
  protected:
    PluggedMedia() : stick_(device_.Path() + " stick") {
        std::filesystem::create_directory(std::filesystem::u8path(stick_));
        PlugMedium(L"USB", stick_);
    }
    ~PluggedMedia() override {
        PlugMedium(L"USB", "");
        std::error_code ignored;
        std::filesystem::remove_all(std::filesystem::u8path(stick_), ignored);
    }

    static std::wstring FirstNameIn(const wchar_t* pattern) {
        WIN32_FIND_DATAW data;
        const HANDLE search = FindFirstFileW(pattern, &data);
        if (search == INVALID_HANDLE_VALUE)
            return L"";
        FindClose(search);
        return data.cFileName;
    }

    const DeviceFolder device_;
    const std::string stick_;
};

TEST_F(PluggedMedia, TakeThePlaceOfAFolderInTheRoot) {
    device_.Write("USB/beneath");
    EXPECT_EQ(HostPath(L"\\USB"), std::filesystem::u8path(stick_));
    EXPECT_EQ(HostPath(L"\\usb\\New.txt"), std::filesystem::u8path(stick_ + "/New.txt"));
    EXPECT_EQ(HostPath(L"\\NandFlash\\..\\Usb"), std::filesystem::u8path(stick_));
    EXPECT_EQ(FirstNameIn(L"\\USB\\*"), L"");
}

TEST_F(PluggedMedia, AreReadAndWrittenAsTheRestOfTheDevice) {
    ASSERT_TRUE(CreateDirectoryW(L"\\USB\\Müzik", nullptr));
    EXPECT_TRUE(std::filesystem::is_directory(std::filesystem::u8path(stick_ + "/Müzik")));
    EXPECT_EQ(FirstNameIn(L"\\USB\\*"), L"Müzik");
    EXPECT_NE(GetFileAttributesW(L"\\usb\\MÜZIK") & FILE_ATTRIBUTE_DIRECTORY, 0u);
}

TEST_F(PluggedMedia, StandNowhereElse) {
    EXPECT_EQ(HostPath(L"\\Folder\\USB"), device_.At("Folder/USB"));
    EXPECT_EQ(HostPath(L"\\USB2"), device_.At("USB2"));
    EXPECT_EQ(HostPath(L"\\USB\\..\\.."), std::filesystem::u8path(device_.Path()));
    EXPECT_EQ(HostPath(L"\\USB\\..\\..\\USB"), std::filesystem::u8path(stick_));
}

TEST_F(PluggedMedia, ArePulledOut) {
    PlugMedium(L"usb", "");
    EXPECT_EQ(HostPath(L"\\USB"), device_.At("USB"));
}

TEST_F(PluggedMedia, AreReplacedByTheNextOne) {
    PlugMedium(L"usb", device_.Path());
    EXPECT_EQ(HostPath(L"\\USB\\a"), device_.At("a"));
}

TEST_F(PluggedMedia, MayVanish) {
    std::filesystem::remove(std::filesystem::u8path(stick_));
    EXPECT_EQ(GetFileAttributesW(L"\\USB"), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(FirstNameIn(L"\\USB\\*"), L"");
}

}  // namespace
}  // namespace korvane
