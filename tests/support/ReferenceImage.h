#pragma once

#include <gtest/gtest.h>
#include <string>

#include "engine/draw/Surface.h"

namespace korvane::test {

/// Compares a 32-bit surface with the picture tests/references/<name>.png, pixel for pixel. On a difference
/// the message says how many pixels differ and which is the first, and the actual picture, the expected one
/// and their difference are written below the build folder. A missing reference fails.
///
/// With the environment variable KORVANE_ACCEPT_REFERENCES set, differing and missing references are written
/// anew: look at each of them before it is committed.
::testing::AssertionResult MatchesReference(CLQSurfHandle surface, const std::string& name);

}  // namespace korvane::test
