#pragma once

#include "platform/Export.h"

extern "C" {

/// Makes sure that the calling thread has a message queue, without taking anything out of it. Returns a
/// non-zero number when a key message waits there.
KORVANEEX_API int InitMessage();

/// Runs the message loop of the calling thread until WM_QUIT, and then posts WM_QUIT once more, so that a
/// loop around this one ends too. May be nested.
///
/// Input that waited in the queue for more than 700 ms is dropped, because by then the screen may show
/// something else: a press together with the next release, and a click that a control posted. Moves are
/// always handed on.
KORVANEEX_API void WndDoModel();
}
