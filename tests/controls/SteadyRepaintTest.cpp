#include <atomic>
#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

#include "tests/controls/TestWheel.h"
#include "tests/support/Scene.h"

namespace {

std::atomic<long> allocations{0};

}  // namespace

void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size ? size : 1))
        return memory;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
    return ::operator new(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace {

using korvane::test::AmBounds;
using korvane::test::FmBounds;
using korvane::test::Scene;
using korvane::test::TestWheel;

TEST(NumSliderRepaint, AllocatesNothingInSteadyState) {
    const Scene scene;
    for (const _FreqStruct_& bounds : {FmBounds(), AmBounds()}) {
        TestWheel wheel;
        wheel.Prepare(bounds, bounds.minimum);
        wheel.SlideMove(false);
        wheel.StartMove();
        CLQSurfHandle canvas =
            CLQSurfManager::GetInstance()->CreateSurface(400, 270, eSurface_ARGB8888, true);
        const auto rollOnce = [&wheel, &canvas] {
            for (int tick = 0; tick < korvane::test::kTicksPerStep; ++tick) {
                wheel.OnTime(nullptr, 0);
                wheel.Draw(canvas);
            }
            wheel.SetVaule(100.0f);
        };
        rollOnce();
        rollOnce();
        const long before = allocations;
        rollOnce();
        EXPECT_EQ(allocations - before, 0);
    }
}

}  // namespace
