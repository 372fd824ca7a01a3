#pragma once

#include <cstddef>
#include <cstring>

namespace korvane::test {

/// Whether the compiler follows the C++ ABI by which `VirtualOrder` reads member pointers.
#if defined(__GXX_ABI_VERSION)
constexpr bool kKnowsVirtualOrder = true;
#else
constexpr bool kKnowsVirtualOrder = false;
#endif

/// The place of a virtual operation in its class: the destructor is 0, the operation declared after it 1.
template <class Operation>
int VirtualOrder(Operation operation) {
    struct {
        std::ptrdiff_t pointer;
        std::ptrdiff_t adjustment;
    } parts = {};
    static_assert(sizeof(parts) == sizeof(operation), "a member pointer of two words");
    std::memcpy(&parts, &operation, sizeof(parts));
    // The mark of a virtual operation is the lowest bit of the pointer, on ARM that of the adjustment.
    const std::ptrdiff_t offset = parts.adjustment & 1 ? parts.pointer : parts.pointer - 1;
    const int slot = static_cast<int>(offset / static_cast<std::ptrdiff_t>(sizeof(void*)));
    return slot - 1;  // the destructor takes two slots
}

}  // namespace korvane::test
