#pragma once

#include "platform/coredll.h"

namespace korvane {

/// Set in the handles of other processes' windows, never in those of this process's own.
constexpr UINT_PTR kRemoteHandleBit = 0x40000000;

constexpr bool IsOwnHandle(UINT_PTR handle) {
    return handle > 0 && handle < kRemoteHandleBit;
}

inline bool IsRemoteHandle(HWND window) {
    return (reinterpret_cast<UINT_PTR>(window) & kRemoteHandleBit) != 0;
}

}  // namespace korvane
