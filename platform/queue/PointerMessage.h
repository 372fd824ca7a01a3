#pragma once

#include "platform/coredll.h"

namespace korvane {

/// Whether the parameters of the message point into the sender's memory, so that it can neither wait in a
/// queue nor leave the process.
bool CarriesPointers(UINT message);

}  // namespace korvane
