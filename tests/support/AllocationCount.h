#pragma once

namespace korvane::test {

/// How often the program and its libraries have asked for memory so far: with operator new and, where
/// CountsMalloc, with malloc, calloc, realloc, aligned_alloc or posix_memalign. Freeing does not count.
///
/// A program that calls it has its allocation functions replaced, so such tests have programs of their own.
int AllocationCount();

/// False where the C library has no allocator to count in front of, as under a sanitizer that brings its own.
bool CountsMalloc();

}  // namespace korvane::test
