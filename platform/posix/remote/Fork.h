#pragma once

namespace korvane {

/// Makes sure that a child made by fork has no part in the connections of its parent, and does not keep its
/// endpoint alive.
void PrepareForFork();

}  // namespace korvane
