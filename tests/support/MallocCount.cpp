#include <atomic>
#include <cerrno>
#include <cstdlib>

#include "tests/support/AllocationCount.h"

namespace {

// Set before anything runs: the dynamic linker allocates first.
std::atomic<int> allocations{0};

}  // namespace

namespace korvane::test {

int AllocationCount() {
    return allocations;
}

bool CountsMalloc() {
    return true;
}

}  // namespace korvane::test

// A program's own malloc serves all its libraries, operator new and the C library included. These are glibc's
// names for the functions behind it.
extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);

void* malloc(std::size_t size) noexcept {
    ++allocations;
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) noexcept {
    ++allocations;
    return __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size) noexcept {
    ++allocations;
    return __libc_realloc(memory, size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
    ++allocations;
    return __libc_memalign(alignment, size);
}

int posix_memalign(void** memory, std::size_t alignment, std::size_t size) noexcept {
    ++allocations;
    if (alignment < sizeof(void*) || (alignment & (alignment - 1)) != 0)
        return EINVAL;
    void* const block = __libc_memalign(alignment, size);
    if (!block)
        return ENOMEM;
    *memory = block;
    return 0;
}

}  // extern "C"
