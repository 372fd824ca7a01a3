#pragma once

namespace korvane {

/// A program that was started with a double click gets a console for itself, whose end would be the
/// program's: leaves such a console. Streams that lead to it lead nowhere then.
void LeaveOwnConsole();

}  // namespace korvane
