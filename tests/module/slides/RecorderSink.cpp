#include "tests/module/slides/RecorderSink.h"

#include <dlfcn.h>
#include <stdexcept>

namespace korvane::test {

void SetRecorderSink(PresentSink sink) {
    // Held for good: the display's code must outlive the screen.
    static void* const module = dlopen(KORVANE_TEST_RECORDER, RTLD_NOW | RTLD_LOCAL);
    const auto set = module ? reinterpret_cast<SetPresentSink>(dlsym(module, kSetPresentSinkName)) : nullptr;
    if (!set)
        throw std::runtime_error("the recording display cannot be loaded");
    set(sink);
}

}  // namespace korvane::test
