#include "module/MessageLoop.h"

#include <cstdint>

#include "engine/core/Message.h"
#include "engine/system/System.h"
#include "platform/coredll.h"

namespace {

/// Milliseconds that a press or click may wait in the queue.
constexpr std::uint32_t kFreshMs = 700;

/// The range of key messages, as it is peeked for.
constexpr UINT kFirstKeyMessage = 256;
constexpr UINT kLastKeyMessage = 264;

/// Unsigned, so that it is right across a wrap of the clock, and so that a time stamp of the future is stale.
bool IsStale(const MSG& msg) {
    const std::uint32_t age =
        static_cast<std::uint32_t>(GetCurrentMS()) - static_cast<std::uint32_t>(msg.time);
    return age > kFreshMs;
}

/// Decides what the loop hands on.
class StaleInputFilter {
  public:
    bool Drops(const MSG& msg) {
        switch (msg.message) {
            case korvane::kMsgPress:
                dropsRelease_ = IsStale(msg);
                return dropsRelease_;
            case korvane::kMsgRelease: {
                const bool drops = dropsRelease_;
                dropsRelease_ = false;
                return drops;
            }
            case korvane::kMsgCommand:
                return IsStale(msg);
            default:
                return false;
        }
    }

  private:
    bool dropsRelease_ = false;  // the press that this release would end was dropped
};

}  // namespace

int InitMessage() {
    MSG msg = {};
    return PeekMessageW(&msg, nullptr, kFirstKeyMessage, kLastKeyMessage, PM_NOREMOVE);
}

void WndDoModel() {
    StaleInputFilter filter;
    MSG msg = {};
    while (GetMessageW(&msg, nullptr, 0, 0) != 0) {
        if (filter.Drops(msg))
            continue;
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    PostQuitMessage(0);
}
