#include "platform/posix/remote/receive/Visitor.h"

#include <algorithm>

#include "platform/posix/remote/wire/Channel.h"

namespace korvane {
namespace {

HWND OwnWindow(const Packet& packet) {
    return reinterpret_cast<HWND>(static_cast<UINT_PTR>(packet.window));
}

}  // namespace

Visitor::State Visitor::TakeIn(Session& session) {
    // More than a queue holds; a sender that never pauses must not keep the caller.
    constexpr std::size_t kMostAtOnce = 2 * MessageRing::kLimit;
    for (std::size_t i = 0; i < kMostAtOnce; ++i) {
        if (held_ && !PutHeld(session))
            return State::Held;
        Packet packet;
        switch (TakeFrom(channel_.Number(), packet)) {
            case Arrival::Packet:
                Accept(session, packet);
                break;
            case Arrival::Garbage:
                break;
            case Arrival::Nothing:
                return State::Idle;
            case Arrival::Ended:
                return State::Gone;
        }
    }
    return held_ && !PutHeld(session) ? State::Held : State::Idle;
}

// True when the message need be held no longer.
bool Visitor::PutHeld(Session& session) {
    const std::lock_guard<std::mutex> lock(session.mutex);
    if (const Window* window = FindWindowOf(session, held_->hwnd)) {
        if (!window->queue->posted.Push(*held_))
            return false;
        WakeQueue(session, *window->queue);
    }
    held_.reset();
    return true;
}

void Visitor::Accept(Session& session, const Packet& packet) {
    const MSG arrived{OwnWindow(packet),
                      packet.message,
                      static_cast<WPARAM>(packet.wParam),
                      static_cast<LPARAM>(packet.lParam),
                      GetTickCount(),
                      {}};
    const std::lock_guard<std::mutex> lock(session.mutex);
    const Window* window = FindWindowOf(session, arrived.hwnd);
    if (packet.kind == PacketKind::Post && window) {
        held_ = arrived;
        held_->pt = session.pointer;
    } else if (packet.kind == PacketKind::Send && !IsAwaiting()) {
        serial_ = packet.serial;
        message = arrived;
        if (!window)
            return Answer(0);
        queue_ = window->queue;
        queue_->sent.push_back(this);
        WakeQueue(session, *queue_);
    }
}

void Visitor::Withdraw() {
    if (!queue_)
        return;
    const auto waiting = std::find(queue_->sent.begin(), queue_->sent.end(), this);
    if (waiting == queue_->sent.end())
        return;
    queue_->sent.erase(waiting);
    queue_ = nullptr;
}

void Visitor::Finish(LRESULT result) {
    queue_ = nullptr;
    Answer(result);
}

void Visitor::Answer(LRESULT result) {
    Packet answer;
    answer.kind = PacketKind::Answer;
    answer.serial = serial_;
    answer.lParam = result;
    HandOver(channel_.Number(), answer);
}

}  // namespace korvane
