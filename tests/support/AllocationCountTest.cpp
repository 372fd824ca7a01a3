#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

#include "engine/draw/SurfManager.h"

#include "tests/support/AllocationCount.h"

namespace korvane::test {
namespace {

/// How many allocations a call makes that returns memory. Passes the memory on in a volatile, so that the
/// compiler keeps the allocation.
template <class Allocate>
int Counted(Allocate allocate) {
    const int before = AllocationCount();
    void* volatile memory = allocate();
    const int count = AllocationCount() - before;
    std::free(memory);
    return count;
}

TEST(AllocationCount, CountsOperatorNew) {
    const int before = AllocationCount();
    int* volatile one = new int;
    int* volatile many = new int[10];
    EXPECT_EQ(AllocationCount() - before, 2);
    delete one;
    delete[] many;
    EXPECT_EQ(AllocationCount() - before, 2) << "freeing does not count";
}

TEST(AllocationCount, CountsWhatTheLibrariesAllocate) {
    CLQSurfManager* const manager = CLQSurfManager::GetInstance();
    const int before = AllocationCount();
    CLQSurfHandle surface = manager->CreateSurface(10, 10, eSurface_ARGB8888, true);
    EXPECT_GT(AllocationCount(), before);
}

TEST(AllocationCount, CountsEachWayOfTheCLibrary) {
    if (!CountsMalloc())
        GTEST_SKIP() << "only operator new is counted here";
    EXPECT_EQ(Counted([] { return std::malloc(10); }), 1);
    EXPECT_EQ(Counted([] { return std::calloc(10, 10); }), 1);
    EXPECT_EQ(Counted([] { return std::realloc(std::malloc(10), 10000); }), 2);
    EXPECT_EQ(Counted([] { return ::strdup("what the C library allocates by itself"); }), 1);
}

TEST(AllocationCount, CountsNothingWhereNothingIsAllocated) {
    const int before = AllocationCount();
    volatile int sum = 0;
    for (int i = 0; i < 100; ++i)
        sum = sum + i;
    EXPECT_EQ(AllocationCount(), before);
}

}  // namespace
}  // namespace korvane::test
