#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "module/MessageLoop.h"
#include "module/Slides.h"
#include "module/SysBeep.h"
#include "module/ThumbNail.h"
#include "platform/Simulation.h"
#include "platform/coredll.h"

namespace {

/// A device on which the library lies at the top.
class ExportedNames : public testing::Test {
  protected:
    ExportedNames() {
        const std::filesystem::path file = std::filesystem::u8path(KORVANE_TEST_LIBRARY);
        korvane::SetDeviceRoot(file.parent_path().u8string());
        library = LoadLibraryW((L"\\" + file.filename().wstring()).c_str());
    }
    ~ExportedNames() override {
        FreeLibrary(library);
        korvane::SetDeviceRoot(std::string());
    }

    const void* Find(const wchar_t* name) const {
        return reinterpret_cast<const void*>(GetProcAddressW(library, name));
    }

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
