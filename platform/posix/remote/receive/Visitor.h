#pragma once

#include <cstdint>
#include <optional>

#include "platform/posix/files/Descriptor.h"
#include "platform/posix/queue/Session.h"
#include "platform/posix/remote/wire/Packet.h"

namespace korvane {

/// Another process that hands over messages for windows of this one. It posts, or awaits the answer to one
/// message that it has sent.
class Visitor final : public SentMessage {
  public:
    enum class State { Idle, Held, Gone };

    explicit Visitor(Descriptor channel) : channel_(std::move(channel)) {}

    int Channel() const { return channel_.Number(); }

    /// Puts what has come into the queues of the windows' threads, without waiting. Held: a queue is full, so
    /// that the rest must stay with the sender.
    State TakeIn(Session& session);

    /// Takes back what still waits for an answer. What is being answered goes on, so that the object must
    /// stay for as long as it IsAwaiting(). Both need the session's mutex.
    void Withdraw();
    bool IsAwaiting() const { return queue_ != nullptr; }

    /// Needs the session's mutex. The answer is dropped when the sender has gone.
    void Finish(LRESULT result) override;

    void Close() { channel_.Close(); }

  private:
    bool PutHeld(Session& session);
    void Accept(Session& session, const Packet& packet);
    void Answer(LRESULT result);

    Descriptor channel_;
    std::optional<MSG> held_;  // the posted message that found its queue full
    ThreadQueue* queue_ = nullptr;
    std::uint32_t serial_ = 0;
};

}  // namespace korvane
