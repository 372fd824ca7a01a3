#include "tests/module/slides/RecorderSink.h"

#include <filesystem>
#include <stdexcept>

#include "platform/Simulation.h"
#include "platform/coredll.h"

namespace korvane::test {
namespace {

// Held for good: the display's code must outlive the screen. Libraries are loaded from a device; this one
// lies at the top of its own.
HMODULE LoadRecorder() {
    const std::filesystem::path file = std::filesystem::u8path(KORVANE_TEST_RECORDER);
    const std::string root = DeviceRoot();
    SetDeviceRoot(file.parent_path().u8string());
    const HMODULE module = LoadLibraryW((L"\\" + file.filename().wstring()).c_str());
    SetDeviceRoot(root);
    return module;
}

}  // namespace

void SetRecorderSink(PresentSink sink) {
    static const HMODULE module = LoadRecorder();
    const auto set = reinterpret_cast<SetPresentSink>(
        reinterpret_cast<void*>(module ? GetProcAddressW(module, kSetPresentSinkName) : nullptr));
    if (!set)
        throw std::runtime_error("the recording display cannot be loaded");
    set(sink);
}

}  // namespace korvane::test
