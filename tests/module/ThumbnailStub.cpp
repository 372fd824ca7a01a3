#include "platform/Export.h"

// A service whose picture buffer does what a test tells it to.

namespace {

unsigned char memory[160 * 1024] = {};
unsigned char* given = memory;
bool refuses = false;
unsigned int lastSize = 0;
int calls = 0;

}  // namespace

extern "C" {

KORVANE_EXPORTED int LQ_GetThumbNail(unsigned int size, unsigned char** buffer) {
    ++calls;
    lastSize = size;
    if (refuses)
        return 0;
    *buffer = given;
    return -1;
}

KORVANE_EXPORTED unsigned char* StubMemory() {
    return memory;
}
KORVANE_EXPORTED void StubGives(unsigned char* buffer) {
    given = buffer;
}
KORVANE_EXPORTED void StubRefuses() {
    refuses = true;
}
KORVANE_EXPORTED unsigned int StubLastSize() {
    return lastSize;
}
KORVANE_EXPORTED int StubCalls() {
    return calls;
}
}
