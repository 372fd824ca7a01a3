#include <cstring>

#include "tests/service/ServiceDevice.h"
#include "tests/support/OtherProcess.h"

namespace korvane::test {
namespace {

constexpr unsigned int kPicture = 32 + 240 * 144 * 4;
constexpr unsigned int kCapacity = 160 * 1024;

class ThumbnailBuffer : public ServiceDevice {};

const Role fillBuffer("FillBuffer", [](const Role::Words&) {
    const LoadedService service;
    unsigned char* buffer = nullptr;
    if (service.getThumbNail(kCapacity, &buffer) != 1)
        return 1;
    std::memset(buffer, 0x5A, kCapacity);
    return 0;
});

TEST_F(ThumbnailBuffer, StartsZeroedAndHasRoomForAPicture) {
    unsigned char* buffer = nullptr;
    ASSERT_EQ(getThumbNail(kPicture, &buffer), 1);
    ASSERT_NE(buffer, nullptr);
    for (unsigned int i = 0; i < kPicture; ++i)
        ASSERT_EQ(buffer[i], 0);
}

TEST_F(ThumbnailBuffer, IsTheSameInAllProcesses) {
    unsigned char* buffer = nullptr;
    ASSERT_EQ(getThumbNail(kPicture, &buffer), 1);
    ASSERT_EQ(OtherProcess(fillBuffer).Wait(), 0);
    EXPECT_EQ(buffer[0], 0x5A);
    EXPECT_EQ(buffer[kCapacity - 1], 0x5A);
}

TEST_F(ThumbnailBuffer, StaysAtItsAddressWhateverIsReleased) {
    unsigned char* first = nullptr;
    unsigned char* second = nullptr;
    ASSERT_EQ(getThumbNail(1, &first), 1);
    EXPECT_EQ(releaseThumbNail(), 1);
    first[0] = 1;
    ASSERT_EQ(getThumbNail(kCapacity, &second), 1);
    EXPECT_EQ(first, second);
    EXPECT_EQ(getThumbNail(0, &second), 1);
    EXPECT_EQ(first, second);
}

TEST_F(ThumbnailBuffer, IsRefusedToWhoAsksForMoreThanItHas) {
    unsigned char here = 0;
    unsigned char* buffer = &here;
    EXPECT_EQ(getThumbNail(kCapacity + 1, &buffer), 0);
    EXPECT_EQ(getThumbNail(0xFFFFFFFF, &buffer), 0);
    EXPECT_EQ(buffer, &here) << "it is left alone";
    EXPECT_EQ(getThumbNail(kPicture, nullptr), 0);
}

TEST_F(ThumbnailBuffer, IsNotTheRecord) {
    unsigned char* buffer = nullptr;
    ASSERT_EQ(getThumbNail(kCapacity, &buffer), 1);
    std::memset(buffer, 0xFF, kCapacity);
    EXPECT_EQ(getSysInfo()->mute, 0);
}

}  // namespace
}  // namespace korvane::test
