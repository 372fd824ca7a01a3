#pragma once

#include "platform/posix/queue/Session.h"

namespace korvane {

/// Runs what other threads have sent to windows of the calling thread, `queue` being its queue.
void AnswerSentMessages(ThreadQueue& queue);

/// Calls the procedure of a window of the calling thread; 0 when it is none.
LRESULT CallProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace korvane
