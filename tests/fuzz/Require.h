#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program when a fuzz target's promise is broken, in every kind of build.
inline void Require(bool holds, const char* promise) {
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
}
