#pragma once

namespace korvane::bench {

/// Starts the program that shows one wheel off-screen a few times and prints how long its first frame took
/// from the start of the process, how much memory was resident then, and the stripped sizes of the libraries.
/// False, with a line on standard error, when it cannot be run.
bool PrintProgramFigures();

}  // namespace korvane::bench
