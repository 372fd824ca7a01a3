#include "platform/Export.h"

extern "C" KORVANE_EXPORTED int LQ_GetAnswer() {
    return 42;
}
