#include <atomic>
#include <cstdlib>
#include <new>

#include "tests/support/AllocationCount.h"

namespace {

std::atomic<int> allocations{0};

}  // namespace

namespace korvane::test {

int AllocationCount() {
    return allocations;
}

bool CountsMalloc() {
    return false;
}

}  // namespace korvane::test

// Apart from what they count, so that the compiler does not see that new is malloc. The forms for arrays
// and those that do not throw are here because a sanitizer's own would not come by here.

void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
    return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++allocations;
    return std::malloc(size == 0 ? 1 : size);
}
void* operator new[](std::size_t size, const std::nothrow_t& nothrow) noexcept {
    return operator new(size, nothrow);
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
