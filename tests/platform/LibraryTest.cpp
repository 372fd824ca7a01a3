#include <filesystem>
#include <gtest/gtest.h>

#include "platform/coredll.h"

#include "tests/platform/DeviceFolder.h"

namespace korvane {
namespace {

constexpr wchar_t kPath[] = L"\\NandFlash\\Application\\Bin\\LQ_ShareMem.dll";

// A device on which the test's library lies under the name that a device gives it.
class LibraryTest : public testing::Test {
  protected:
    LibraryTest() {
        device_.Write("NandFlash/Application/bin/broken.dll", "no library");
        std::filesystem::copy_file(KORVANE_TEST_MODULE,
                                   device_.At("NandFlash/Application/bin/lq_sharemem.DLL"));
    }
    DeviceFolder device_;
};

TEST_F(LibraryTest, IsLoadedByItsPathOnTheDevice) {
    const HMODULE module = LoadLibraryW(kPath);
    ASSERT_NE(module, nullptr);
    const auto function =
        reinterpret_cast<int (*)()>(reinterpret_cast<void*>(GetProcAddressW(module, L"LQ_GetAnswer")));
    ASSERT_NE(function, nullptr);
    EXPECT_EQ(function(), 42);
    EXPECT_TRUE(FreeLibrary(module));
}

TEST_F(LibraryTest, HasNoFunctionOfAnotherName) {
    const HMODULE module = LoadLibraryW(kPath);
    EXPECT_EQ(GetProcAddressW(module, L"lq_getanswer"), nullptr);
    EXPECT_EQ(GetProcAddressW(module, L""), nullptr);
    EXPECT_EQ(GetProcAddressW(module, nullptr), nullptr);
    EXPECT_TRUE(FreeLibrary(module));
}

TEST_F(LibraryTest, IsFreedAsOftenAsItWasLoaded) {
    const HMODULE module = LoadLibraryW(kPath);
    EXPECT_EQ(LoadLibraryW(kPath), module);
    EXPECT_TRUE(FreeLibrary(module));
    EXPECT_NE(GetProcAddressW(module, L"LQ_GetAnswer"), nullptr);
    EXPECT_TRUE(FreeLibrary(module));
    EXPECT_FALSE(FreeLibrary(module));
    EXPECT_EQ(GetProcAddressW(module, L"LQ_GetAnswer"), nullptr);
}

TEST_F(LibraryTest, IsNotLoadedFromWhatIsNoLibrary) {
    EXPECT_EQ(LoadLibraryW(L"\\NandFlash\\Application\\Bin\\missing.dll"), nullptr);
    EXPECT_EQ(LoadLibraryW(L"\\NandFlash\\Application\\Bin\\broken.dll"), nullptr);
    EXPECT_EQ(LoadLibraryW(L"\\NandFlash"), nullptr);
    EXPECT_EQ(LoadLibraryW(nullptr), nullptr);
    EXPECT_FALSE(FreeLibrary(nullptr));
    EXPECT_EQ(GetProcAddressW(nullptr, L"LQ_GetAnswer"), nullptr);
}

}  // namespace
}  // namespace korvane
