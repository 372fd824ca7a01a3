#include <gtest/gtest.h>

#include "platform/Simulation.h"

#include "tests/demo/processes/ProcessBench.h"

// Where the windows of two devices do not meet.

namespace korvane::test {

using Tour = ProcessBench;

TEST_F(Tour, DisturbsNoHeadUnitThatRuns) {
    constexpr RECT kContent = {0, 60, 800, 480};
    const auto headUnit = StartHeadUnit();
    const png::Picture radio = Screenshot();
    const std::string record = Record();
    Program tour({KORVANE_TEST_HEADUNIT, "--tour", HostPath(L"\\tour"), "--device-root", DeviceRoot()});
    EXPECT_EQ(tour.Wait(), 0) << tour.Errors();
    EXPECT_EQ(Record(), record);
    EXPECT_TRUE(AwaitSame(radio, kContent));
}

}  // namespace korvane::test
