#include <cstring>
#include <string>

#include "platform/DeviceKey.h"
#include "platform/Unicode.h"
#include "platform/windows/Handle.h"

#include "tests/platform/memory/MemoryDevice.h"

namespace korvane {
namespace {

/// A device where the system has something else under the region's name already.
class Section : public MemoryDevice {
  protected:
    static std::wstring ObjectName() { return L"Local\\korvane-" + FromUtf8(DeviceKey()) + L"-memory-state"; }

    static Handle MakeSection(DWORD protection, DWORD size) {
        return Handle(
            CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, protection, 0, size, ObjectName().c_str()));
    }
};

TEST_F(Section, ThatNobodyMadeHereIsLeftAlone) {
    const Handle section = MakeSection(PAGE_READWRITE, 1000);
    void* const bytes = MapViewOfFile(section.Get(), FILE_MAP_WRITE, 0, 0, 0);
    ASSERT_NE(bytes, nullptr);
    std::memset(bytes, 'x', 1000);
    EXPECT_EQ(Map(10), nullptr);
    EXPECT_EQ(std::string(static_cast<const char*>(bytes), 1000), std::string(1000, 'x'));
    UnmapViewOfFile(bytes);
}

TEST_F(Section, ThatIsTooSmallForTheRegionIsRefused) {
    const Handle section = MakeSection(PAGE_READWRITE, 1);
    EXPECT_EQ(Map(100000), nullptr);
    EXPECT_NE(Map(10), nullptr) << "it is zeroed, and its page has room";
}

TEST_F(Section, WithoutMemoryIsRefused) {
    const Handle section = MakeSection(PAGE_READWRITE | SEC_RESERVE, 100000);
    EXPECT_EQ(Map(10), nullptr);
}

TEST_F(Section, IsNoneWhereTheNameIsThatOfAnotherObject) {
    const Handle event(CreateEventW(nullptr, TRUE, FALSE, ObjectName().c_str()));
    ASSERT_TRUE(event.IsOpen());
    EXPECT_EQ(Map(10), nullptr);
}

}  // namespace
}  // namespace korvane
