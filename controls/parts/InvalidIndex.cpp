#include "controls/parts/InvalidIndex.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace korvane {

void FailInvalidIndex(const char* operation, int index, std::size_t count) {
    const std::string line = std::string(operation) + ": invalid parameter: index " + std::to_string(index) +
                             " of " + std::to_string(count) + " elements\n";
    std::fputs(line.c_str(), stderr);
    std::abort();
}

}  // namespace korvane
