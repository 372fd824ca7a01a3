#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "platform/Unicode.h"
#include "sysinfo/ShareMemLink.h"

#include "tests/sysinfo/LinkDevice.h"
#include "tests/sysinfo/LinkSlots.h"

namespace korvane::test {
namespace {

template <class Function>
Function Find(HMODULE library, const wchar_t* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddressW(library, name)));
}

int StubCalls(const CLQShareMemLink& link) {
    return Find<int (*)()>(link.hModule, L"StubCalls")();
}

class ShareMemLink : public LinkDevice {};

TEST_F(ShareMemLink, StartsEmpty) {
    EXPECT_EQ(WordsOf(CLQShareMemLink()), LinkWords());
}

TEST_F(ShareMemLink, LoadsTheServiceWithAllItsEntryPoints) {
    InstallRealService();
    CLQShareMemLink link;
    EXPECT_TRUE(link.Load());
    const LinkWords words = WordsOf(link);
    EXPECT_EQ(words[kLibraryWord], link.hModule);
    EXPECT_NE(link.hModule, nullptr);
    for (std::size_t i = 0; i < std::size(kEntryPoints); ++i) {
        EXPECT_NE(words[kFirstSlot + i], nullptr) << i;
        EXPECT_EQ(words[kFirstSlot + i],
                  reinterpret_cast<void*>(GetProcAddressW(link.hModule, kEntryPoints[i])))
            << i;
    }
    EXPECT_EQ(words[kStandByWord], nullptr);
    EXPECT_TRUE(link.Unload());
}

TEST_F(ShareMemLink, FindsTheServiceInItsFolderOnly) {
    InstallStub("complete");
    std::filesystem::rename(At("NandFlash/Application/Bin"), At("NandFlash/Application/Lib"));
    CLQShareMemLink link;
    EXPECT_FALSE(link.Load());
    EXPECT_EQ(WordsOf(link), LinkWords());
}

TEST_F(ShareMemLink, StaysEmptyWithoutTheServiceAndCanBeLoadedLater) {
    CLQShareMemLink link;
    EXPECT_FALSE(link.Load());
    EXPECT_EQ(WordsOf(link), LinkWords());
    InstallStub("complete");
    EXPECT_TRUE(link.Load());
    EXPECT_TRUE(link.Unload());
}

TEST_F(ShareMemLink, StaysEmptyWhenTheServiceIsNoLibrary) {
    InstallStub("complete");
    const std::filesystem::path library = At("NandFlash/Application/Bin/LQ_ShareMem.dll");
    std::filesystem::remove(library);
    std::ofstream(library) << "no library";
    CLQShareMemLink link;
    EXPECT_FALSE(link.Load());
    EXPECT_EQ(WordsOf(link), LinkWords());
}

TEST_F(ShareMemLink, ReportsASecondLoadAsAFailureAndStaysAsItIs) {
    InstallStub("complete");
    CLQShareMemLink link;
    ASSERT_TRUE(link.Load());
    const LinkWords before = WordsOf(link);
    EXPECT_FALSE(link.Load());
    EXPECT_EQ(WordsOf(link), before);
    const HMODULE library = link.hModule;
    EXPECT_TRUE(link.Unload());
    EXPECT_FALSE(FreeLibrary(library)) << "the second one took no hold of the library";
}

TEST_F(ShareMemLink, CallsNothingOfTheServiceToLoadAndToUnload) {
    InstallStub("complete");
    CLQShareMemLink link;
    ASSERT_TRUE(link.Load());
    const HMODULE library = LoadLibraryW(L"\\NandFlash\\Application\\Bin\\LQ_ShareMem.dll");
    const auto calls = Find<int (*)()>(library, L"StubCalls");
    EXPECT_EQ(calls(), 0);
    EXPECT_TRUE(link.Unload());
    EXPECT_EQ(calls(), 0) << "none of the entry points that release something";
    FreeLibrary(library);
}

TEST_F(ShareMemLink, AsksTheServiceForItsRecordAtEveryCall) {
    InstallStub("complete");
    CLQShareMemLink link;
    ASSERT_TRUE(link.Load());
    _LQSysInfo* const record = Find<_LQSysInfo* (*)()>(link.hModule, L"StubRecord")();
    EXPECT_EQ(link.GetSysInfo(), record);
    EXPECT_EQ(link.GetSysInfo(), record);
    EXPECT_EQ(StubCalls(link), 2);
    EXPECT_EQ(link.pFallbackInfo, nullptr);
    EXPECT_TRUE(link.Unload());
}

TEST_F(ShareMemLink, PassesOnThatTheServiceHasNoRecord) {
    InstallStub("without_record");
    CLQShareMemLink link;
    EXPECT_TRUE(link.Load());
    EXPECT_EQ(link.GetSysInfo(), nullptr);
    EXPECT_EQ(StubCalls(link), 1);
    EXPECT_EQ(link.pFallbackInfo, nullptr);
    EXPECT_TRUE(link.Unload());
}

TEST_F(ShareMemLink, IsEmptyAfterItWasUnloadedAndCanBeLoadedAgain) {
    InstallRealService();
    CLQShareMemLink link;
    ASSERT_TRUE(link.Load());
    _LQSysInfo* const record = link.GetSysInfo();
    ASSERT_NE(record, nullptr);
    const HMODULE library = link.hModule;
    EXPECT_TRUE(link.Unload());
    EXPECT_EQ(WordsOf(link), LinkWords());
    EXPECT_FALSE(FreeLibrary(library)) << "it has let go of the library";
    record->mute = 1;
    EXPECT_TRUE(link.Load());
    EXPECT_EQ(link.GetSysInfo(), record) << "the record keeps its address";
    EXPECT_TRUE(link.Unload());
}

TEST_F(ShareMemLink, ThatNeverLoadedCanBeUnloaded) {
    CLQShareMemLink link;
    EXPECT_TRUE(link.Unload());
    EXPECT_TRUE(link.Unload());
    EXPECT_EQ(WordsOf(link), LinkWords());
}

TEST_F(ShareMemLink, LinksOfOneProcessShareTheLibrary) {
    InstallRealService();
    CLQShareMemLink first;
    CLQShareMemLink second;
    ASSERT_TRUE(first.Load());
    ASSERT_TRUE(second.Load());
    EXPECT_EQ(first.GetSysInfo(), second.GetSysInfo());
    EXPECT_TRUE(first.Unload());
    EXPECT_NE(second.GetSysInfo(), nullptr);
    EXPECT_TRUE(second.Unload());
}

/// The service lacks one entry point, by its slot.
class IncompleteService : public LinkDevice, public testing::WithParamInterface<std::size_t> {
  protected:
    IncompleteService() { InstallStub("lacks_" + ToUtf8(kEntryPoints[GetParam()])); }
};

TEST_P(IncompleteService, GivesItsOtherEntryPoints) {
    CLQShareMemLink link;
    EXPECT_FALSE(link.Load());
    EXPECT_NE(link.hModule, nullptr);
    const LinkWords words = WordsOf(link);
    for (std::size_t i = 0; i < std::size(kEntryPoints); ++i)
        EXPECT_EQ(words[kFirstSlot + i] == nullptr, i == GetParam()) << i;
    EXPECT_FALSE(link.Load());
    EXPECT_EQ(WordsOf(link), words);

    const bool hasRecord = link.pfnGetSysInfo != nullptr;
    EXPECT_NE(link.GetSysInfo(), nullptr);
    EXPECT_EQ(link.pFallbackInfo == nullptr, hasRecord);
    EXPECT_TRUE(link.Unload());
    EXPECT_EQ(WordsOf(link), LinkWords());
}

INSTANTIATE_TEST_SUITE_P(EachEntryPoint, IncompleteService,
                         testing::Range<std::size_t>(0, std::size(kEntryPoints)), [](const auto& slot) {
                             return "Lacks" + ToUtf8(kEntryPoints[slot.param]).substr(3);
                         });

}  // namespace
}  // namespace korvane::test
