#include "tests/platform/PeerProcess.h"

namespace korvane {

PeerProcess::PeerProcess() : Program({KORVANE_WINDOW_PEER}) {}

}  // namespace korvane
