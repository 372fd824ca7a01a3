#pragma once

#include <cstddef>

namespace korvane {

/// Ends the program, with one line on standard error, for an index outside a container of `count` elements.
/// Such an index is a mistake of the application for which there is no result to go on with.
[[noreturn]] void FailInvalidIndex(const char* operation, int index, std::size_t count);

}  // namespace korvane
