#include "platform/posix/remote/receive/Inbox.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <sys/epoll.h>
#include <sys/eventfd.h>

#include "platform/posix/remote/wire/Channel.h"

namespace korvane {
namespace {

constexpr std::uint64_t kListenerNumber = 0;
constexpr std::uint64_t kInterruptNumber = 1;
constexpr std::size_t kMostVisitors = 512;
constexpr int kMostEvents = 64;

bool IsAwaiting(const Visitor& visitor) {
    const std::lock_guard<std::mutex> lock(TheSession().mutex);
    return visitor.IsAwaiting();
}

}  // namespace

Inbox::Inbox()
    : events_(epoll_create1(EPOLL_CLOEXEC)),
      interrupt_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      lastNumber_(kInterruptNumber) {
    Watch(interrupt_.Number(), kInterruptNumber);
}

void Inbox::Watch(int descriptor, std::uint64_t number) const {
    epoll_event event{};
    event.events = EPOLLIN;
    event.data.u64 = number;
    epoll_ctl(events_.Number(), EPOLL_CTL_ADD, descriptor, &event);
}

void Inbox::Unwatch(int descriptor) const {
    epoll_event ignored{};
    epoll_ctl(events_.Number(), EPOLL_CTL_DEL, descriptor, &ignored);
}

void Inbox::Listen(int listener) {
    listener_ = listener;
    ResumeListening();
}

void Inbox::Dismiss() {
    if (listening_)
        PauseListening();
    listener_ = -1;
    for (auto visitor = visitors_.begin(); visitor != visitors_.end();) {
        const auto next = std::next(visitor);
        if (!IsAwaiting(*visitor->second))
            Leave(visitor);
        visitor = next;
    }
}

void Inbox::Wait() const {
    epoll_event event;
    epoll_wait(events_.Number(), &event, 1, -1);
}

void Inbox::Interrupt() const {
    eventfd_write(interrupt_.Number(), 1);
}

void Inbox::TakeIn() {
    // Each call gives others a turn after this many events, however fast more come.
    constexpr int kRounds = 16;
    ForgetAnswered();
    RetryHeld();
    if (!listening_ && visitors_.size() < kMostVisitors)
        ResumeListening();
    for (int i = 0; i < kRounds && TakeInOnce(); ++i) {
    }
}

// True when there may be more.
bool Inbox::TakeInOnce() {
    epoll_event events[kMostEvents];
    const int count = epoll_wait(events_.Number(), events, kMostEvents, 0);
    for (int i = 0; i < count; ++i) {
        const std::uint64_t number = events[i].data.u64;
        const auto visitor = visitors_.find(number);
        if (number == kListenerNumber)
            AcceptAll();
        else if (visitor != visitors_.end())
            TakeFromVisitor(visitor);
    }
    return count == kMostEvents;
}

void Inbox::AcceptAll() {
    for (int i = 0; i < kMostEvents && visitors_.size() < kMostVisitors; ++i) {
        Descriptor channel = AcceptFrom(listener_);
        if (!channel.IsOpen()) {
            if (errno == EINTR || errno == ECONNABORTED)
                continue;
            if (errno != EAGAIN)
                PauseListening();
            return;
        }
        const std::uint64_t number = ++lastNumber_;
        const auto visitor = visitors_.emplace(number, std::make_unique<Visitor>(std::move(channel))).first;
        Watch(visitor->second->Channel(), number);
        TakeFromVisitor(visitor);
    }
    if (visitors_.size() == kMostVisitors)
        PauseListening();
}

// There is no room for more: those who come wait in line.
void Inbox::PauseListening() {
    listening_ = false;
    Unwatch(listener_);
}

void Inbox::ResumeListening() {
    if (listener_ < 0)
        return;
    listening_ = true;
    Watch(listener_, kListenerNumber);
}

void Inbox::TakeFromVisitor(Visitors::iterator visitor) {
    switch (visitor->second->TakeIn(TheSession())) {
        case Visitor::State::Idle:
            break;
        case Visitor::State::Held:
            held_.push_back(visitor->first);
            Unwatch(visitor->second->Channel());
            break;
        case Visitor::State::Gone:
            Leave(visitor);
            break;
    }
}

void Inbox::RetryHeld() {
    std::vector<std::uint64_t> retried;
    retried.swap(held_);
    for (const std::uint64_t number : retried) {
        const auto visitor = visitors_.find(number);
        if (visitor == visitors_.end())
            continue;
        Watch(visitor->second->Channel(), number);
        TakeFromVisitor(visitor);
    }
}

void Inbox::Leave(Visitors::iterator visitor) {
    std::unique_ptr<Visitor> gone = std::move(visitor->second);
    visitors_.erase(visitor);
    // Closing alone does not end the watch while a process that is being started has a copy.
    Unwatch(gone->Channel());
    gone->Close();
    const std::lock_guard<std::mutex> lock(TheSession().mutex);
    gone->Withdraw();
    if (gone->IsAwaiting())
        leaving_.push_back(std::move(gone));
}

void Inbox::ForgetAnswered() {
    if (leaving_.empty())
        return;
    const std::lock_guard<std::mutex> lock(TheSession().mutex);
    leaving_.erase(
        std::remove_if(leaving_.begin(), leaving_.end(),
                       [](const std::unique_ptr<Visitor>& visitor) { return !visitor->IsAwaiting(); }),
        leaving_.end());
}

void Inbox::Abandon() {
    events_.Close();
    interrupt_.Close();
    for (auto& [number, visitor] : visitors_) {
        visitor->Close();
        visitor->Withdraw();
        if (visitor->IsAwaiting())
            leaving_.push_back(std::move(visitor));
    }
    visitors_.clear();
}

}  // namespace korvane
