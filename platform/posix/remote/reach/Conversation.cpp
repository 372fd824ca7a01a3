#include <chrono>
#include <poll.h>
#include <sys/eventfd.h>

#include "platform/posix/LastError.h"
#include "platform/posix/queue/Send.h"
#include "platform/posix/remote/Fork.h"
#include "platform/posix/remote/RemoteWindows.h"
#include "platform/posix/remote/reach/Neighbours.h"
#include "platform/posix/remote/receive/Station.h"
#include "platform/queue/PointerMessage.h"

namespace korvane {
namespace {

using SteadyClock = std::chrono::steady_clock;

// Lets the queue of the calling thread end a wait for a socket. A thread without a queue has no windows, so
// that nothing can be sent to it.
class SocketWait {
  public:
    SocketWait() : queue_(CurrentQueueIfAny()) {
        if (!queue_)
            return;
        const std::lock_guard<std::mutex> lock(TheSession().mutex);
        if (!queue_->raised.IsOpen())
            queue_->raised = Descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
        ++queue_->socketWaits;
    }
    ~SocketWait() {
        if (!queue_)
            return;
        const std::lock_guard<std::mutex> lock(TheSession().mutex);
        --queue_->socketWaits;
    }
    SocketWait(const SocketWait&) = delete;
    SocketWait& operator=(const SocketWait&) = delete;

    /// Answers what has been sent to the thread, then waits until something comes from the socket or for the
    /// thread. False when the deadline has passed.
    bool Step(int socket, SteadyClock::time_point deadline) {
        if (queue_)
            AnswerSentMessages(*queue_);
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - SteadyClock::now()).count();
        pollfd waits[] = {{socket, POLLIN, 0}, {queue_ ? queue_->raised.Number() : -1, POLLIN, 0}};
        poll(waits, 2, left > 0 ? static_cast<int>(left) : 0);
        eventfd_t ignored;
        if (waits[1].revents != 0)
            eventfd_read(waits[1].fd, &ignored);
        return left > 0;
    }

  private:
    ThreadQueue* queue_;
};

enum class Outcome { Answered, Ended, TooLate };

Outcome AwaitAnswer(const Descriptor& channel, std::uint32_t serial, std::chrono::milliseconds patience,
                    LRESULT& result) {
    const auto deadline = SteadyClock::now() + patience;
    SocketWait wait;
    for (bool inTime = true; inTime;) {
        inTime = wait.Step(channel.Number(), deadline);
        Packet packet;
        switch (TakeFrom(channel.Number(), packet)) {
            case Arrival::Packet:
                if (packet.kind != PacketKind::Answer || packet.serial != serial)
                    break;
                result = static_cast<LRESULT>(packet.lParam);
                return Outcome::Answered;
            case Arrival::Garbage:
            case Arrival::Nothing:
                break;
            case Arrival::Ended:
                return Outcome::Ended;
        }
    }
    return Outcome::TooLate;
}

bool Begin(Neighbours::Target& target, HWND window, Packet& packet, Descriptor& channel) {
    static std::uint32_t lastSerial = 0;  // under the mutex
    Neighbours& neighbours = TheNeighbours();
    const std::lock_guard<std::mutex> lock(neighbours.mutex);
    target = neighbours.Resolve(window);
    if (!target.peer)
        return Fail(ERROR_INVALID_WINDOW_HANDLE);
    packet.kind = PacketKind::Send;
    packet.window = target.window;
    packet.serial = ++lastSerial;
    switch (target.peer->Send(packet, channel)) {
        case Handover::Done:
            return true;
        case Handover::Full:
            return Fail(ERROR_NOT_ENOUGH_QUOTA);
        case Handover::Broken:
            break;
    }
    return Fail(ERROR_INVALID_WINDOW_HANDLE);
}

void ReadMeanwhile() {
    Session& session = TheSession();
    std::unique_lock<std::mutex> lock(session.mutex);
    ReadsRemoteMessages(lock);
}

}  // namespace

bool SendToRemoteWindow(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                        std::chrono::milliseconds patience, LRESULT& result) {
    if (CarriesPointers(message))
        return Fail(ERROR_MESSAGE_SYNC_ONLY);
    PrepareForFork();
    ReadMeanwhile();
    Packet packet;
    packet.message = message;
    packet.wParam = wParam;
    packet.lParam = lParam;
    Neighbours::Target target;
    Descriptor channel;
    if (!Begin(target, window, packet, channel))
        return false;
    const Outcome outcome = AwaitAnswer(channel, packet.serial, patience, result);
    const std::lock_guard<std::mutex> lock(TheNeighbours().mutex);
    switch (outcome) {
        case Outcome::Answered:
            target.peer->Reuse(std::move(channel));
            break;
        case Outcome::Ended:
            target.peer->AwaitEnd();
            SetLastError(ERROR_INVALID_WINDOW_HANDLE);
            break;
        case Outcome::TooLate:
            SetLastError(ERROR_TIMEOUT);
            break;
    }
    return outcome == Outcome::Answered;
}

}  // namespace korvane
