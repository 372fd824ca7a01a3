#include "tests/module/slides/RecordingDisplay.h"

#include <memory>

#include "platform/DisplayModule.h"
#include "platform/Export.h"

// A display that hands on what it is given.

namespace {

korvane::test::PresentSink g_sink = nullptr;

class RecordingDisplay : public korvane::Display {
  public:
    bool Open(int, int, const wchar_t*, HWND) override { return true; }
    void Present(const std::uint32_t* pixels, int stride, int left, int top, int right, int bottom) override {
        if (g_sink)
            g_sink(pixels, stride, left, top, right, bottom);
    }
    void WaitEvents(int) override {}
    void Wake() override {}
};

}  // namespace

extern "C" {

KORVANE_EXPORTED korvane::Display* KorvaneCreateDisplay(int version, const korvane::DisplayHost*) {
    if (version != korvane::kDisplayModuleVersion)
        return nullptr;
    return std::make_unique<RecordingDisplay>().release();
}

KORVANE_EXPORTED void RecorderSetSink(korvane::test::PresentSink sink) {
    g_sink = sink;
}
}
