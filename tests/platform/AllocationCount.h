#pragma once

namespace korvane {

/// How often the program has called operator new so far.
int AllocationCount();

}  // namespace korvane
