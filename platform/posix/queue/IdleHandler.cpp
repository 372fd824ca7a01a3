#include <utility>

#include "platform/Simulation.h"
#include "platform/posix/queue/Session.h"

namespace korvane {

void SetIdleHandler(std::function<bool()> handler) {
    ThreadQueue& queue = CurrentQueue();
    std::shared_ptr<std::function<bool()>> kept;
    if (handler)
        kept = std::make_shared<std::function<bool()>>(std::move(handler));
    const std::lock_guard<std::mutex> lock(TheSession().mutex);
    queue.idleHandler.swap(kept);
}

}  // namespace korvane
