#include <cstdlib>
#include <gtest/gtest.h>

#include "tests/support/AllocationCount.h"

namespace korvane::test {
namespace {

TEST(AllocationCount, CountsAlignedMemory) {
    if (!CountsMalloc())
        GTEST_SKIP() << "only operator new is counted here";
    const int before = AllocationCount();
    // In volatiles, so that the compiler keeps the allocations.
    void* volatile one = ::aligned_alloc(64, 640);
    void* other = nullptr;
    EXPECT_EQ(::posix_memalign(&other, 64, 640), 0);
    void* volatile kept = other;
    EXPECT_EQ(AllocationCount() - before, 2);
    std::free(one);
    std::free(kept);
}

}  // namespace
}  // namespace korvane::test
