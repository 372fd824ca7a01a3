#include <utility>

#include "platform/Simulation.h"
#include "platform/windows/queue/ThreadQueue.h"

namespace korvane {

void SetIdleHandler(std::function<bool()> handler) {
    CurrentQueue().idleHandler =
        handler ? std::make_shared<std::function<bool()>>(std::move(handler)) : nullptr;
}

}  // namespace korvane
