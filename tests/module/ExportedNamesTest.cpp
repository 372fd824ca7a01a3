#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "module/MessageLoop.h"
#include "module/Slides.h"
#include "module/SysBeep.h"
#include "module/ThumbNail.h"
#include "platform/Simulation.h"
#include "platform/coredll.h"

namespace {

namespace fs = std::filesystem;

/// A device on which the library lies under the name that a device gives it.
class ExportedNames : public testing::Test {
  protected:
    ExportedNames() {
        std::random_device random;
        do {
            root = fs::temp_directory_path() / ("korvane-module-" + std::to_string(random()));
        } while (!fs::create_directory(root));
        fs::create_symlink(fs::u8path(KORVANE_TEST_LIBRARY), root / "KorvaneEx.dll");
        korvane::SetDeviceRoot(root.u8string());
        library = LoadLibraryW(L"\\KorvaneEx.dll");
    }
    ~ExportedNames() override {
        FreeLibrary(library);
        korvane::SetDeviceRoot(std::string());
        std::error_code ignored;
        fs::remove_all(root, ignored);
    }

    const void* Find(const wchar_t* name) const {
        return reinterpret_cast<const void*>(GetProcAddressW(library, name));
    }

    fs::path root;
    HMODULE library = nullptr;
};

TEST_F(ExportedNames, OfFunctionsArePlain) {
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(Find(L"InitMessage"), reinterpret_cast<const void*>(&InitMessage));
    EXPECT_EQ(Find(L"WndDoModel"), reinterpret_cast<const void*>(&WndDoModel));
    EXPECT_EQ(Find(L"MoveInOutCtrl"), reinterpret_cast<const void*>(&MoveInOutCtrl));
    EXPECT_EQ(Find(L"MoveInOutCtrl2"), reinterpret_cast<const void*>(&MoveInOutCtrl2));
    EXPECT_EQ(Find(L"MoveInOutCtrl3"), reinterpret_cast<const void*>(&MoveInOutCtrl3));
    EXPECT_EQ(Find(L"SysBeep"), reinterpret_cast<const void*>(&SysBeep));
    EXPECT_EQ(Find(L"SetThumbNail"), reinterpret_cast<const void*>(&SetThumbNail));
    EXPECT_EQ(Find(L"GetThumbNail"), reinterpret_cast<const void*>(&GetThumbNail));
}

TEST_F(ExportedNames, AreExact) {
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(Find(L"initmessage"), nullptr);
    EXPECT_EQ(Find(L"WndDoModal"), nullptr);
    EXPECT_EQ(Find(L"SysBeep "), nullptr);
}

}  // namespace
