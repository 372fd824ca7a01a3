#pragma once

#include "platform/coredll.h"

namespace korvane {

// What the peer's windows do with a message that is sent to them.
constexpr UINT kPeerAdds = WM_APP + 1;  // gives 2 * wParam + lParam
constexpr UINT kPeerBounces =
    WM_APP + 2;  // sends it on with wParam - 1, gives the answer plus 1; 0 for wParam 0
constexpr UINT kPeerEnds = WM_APP + 3;    // ends the process on the spot
constexpr UINT kPeerHangs = WM_APP + 4;   // never answers
constexpr UINT kPeerCloses = WM_APP + 5;  // destroys the window, gives 55
constexpr UINT kPeerStops = WM_APP + 99;  // posted: ends the loop

}  // namespace korvane
