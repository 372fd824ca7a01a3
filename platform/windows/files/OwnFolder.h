#pragma once

#include <string>

namespace korvane {

/// The folder, with a separator at its end, of this library. Its modules lie beside it.
std::wstring OwnFolder();

}  // namespace korvane
