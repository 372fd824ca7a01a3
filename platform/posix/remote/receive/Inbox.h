#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "platform/posix/remote/receive/Visitor.h"

namespace korvane {

/// All that other processes hand over to this one.
class Inbox {
  public:
    Inbox();

    /// False when the process may open no more files; the object is of no use then.
    bool IsUsable() const { return events_.IsOpen() && interrupt_.IsOpen(); }

    /// The socket to accept visitors from: borrowed, until Dismiss.
    void Listen(int listener);

    /// Accepts no more visitors, and parts from those who do not wait for an answer.
    void Dismiss();

    /// Takes in everything that has come, without waiting. Not with the session's mutex held.
    void TakeIn();

    /// Waits until there is something to take in, or somebody calls Interrupt.
    void Wait() const;
    void Interrupt() const;

    bool HasVisitors() const { return !visitors_.empty(); }

    /// Gives up all connections, which belong to another process, of which this one is a copy. With the
    /// session's mutex held.
    void Abandon();

  private:
    using Visitors = std::map<std::uint64_t, std::unique_ptr<Visitor>>;  // by number

    bool TakeInOnce();
    void AcceptAll();
    void PauseListening();
    void ResumeListening();
    void TakeFromVisitor(Visitors::iterator visitor);
    void RetryHeld();
    void Leave(Visitors::iterator visitor);
    void ForgetAnswered();
    void Watch(int descriptor, std::uint64_t number) const;
    void Unwatch(int descriptor) const;

    Descriptor events_;
    Descriptor interrupt_;
    int listener_ = -1;
    bool listening_ = false;
    std::uint64_t lastNumber_;
    Visitors visitors_;
    std::vector<std::uint64_t> held_;
    std::vector<std::unique_ptr<Visitor>> leaving_;  // gone, but what they sent is being answered
};

}  // namespace korvane
