#pragma once

#include <string>

namespace korvane {

/// The folder, with a slash at its end, of the file that holds this code: the library, or a program that has
/// it linked in. Its modules lie beside it. Empty when it cannot be found out.
std::string OwnFolder();

}  // namespace korvane
