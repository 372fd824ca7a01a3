#pragma once

#include "tests/module/slides/RecordingDisplay.h"

namespace korvane::test {

/// Where the display "recorder" hands what it is given; null: nowhere. Throws when its module is not there.
void SetRecorderSink(PresentSink sink);

}  // namespace korvane::test
