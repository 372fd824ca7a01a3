#include "platform/posix/remote/receive/Station.h"

#include <atomic>
#include <csignal>
#include <pthread.h>

#include "platform/DeviceKey.h"
#include "platform/clock/SystemTime.h"
#include "platform/posix/queue/Session.h"
#include "platform/posix/remote/Fork.h"
#include "platform/posix/remote/receive/Endpoint.h"
#include "platform/posix/remote/receive/Inbox.h"

namespace korvane {
namespace {

struct Station {
    std::mutex mutex;                    // taken before the session's
    std::unique_ptr<Endpoint> endpoint;  // while there are top-level windows
    std::unique_ptr<Inbox> inbox;        // made with the first endpoint, kept for the next
    bool hasWindows = false;
    bool ended = false;
    std::vector<std::unique_ptr<Inbox>> abandoned;  // of the process that this one is a copy of

    std::atomic<bool> open{false};
    std::atomic<bool> unread{false};  // open, but nobody takes in what comes while all threads wait
    std::atomic<bool> known{false};
    std::atomic<bool> reading{false};
    pthread_t reader{};
};

Station& TheStation() {
    // Never destroyed: static destructors of other modules still close windows.
    static Station& station = *new Station;
    return station;
}

std::vector<ListedWindow> TopLevelWindows() {
    Session& session = TheSession();
    std::vector<ListedWindow> windows;
    const std::lock_guard<std::mutex> lock(session.mutex);
    for (auto at = session.windows.rbegin(); at != session.windows.rend(); ++at) {
        const Window& window = *at->second;
        if ((window.style & WS_CHILD) == 0)
            windows.push_back(
                {static_cast<std::uint32_t>(at->first), window.born, window.windowClass->name, window.title});
    }
    return windows;
}

void TakeIn(Station& station) {
    station.inbox->TakeIn();
    // Who waits for other processes only has nobody to wait for any more.
    const bool known = station.endpoint && station.inbox->HasVisitors();
    if (station.known.exchange(known) && !known)
        WakeAllQueues();
}

void* Read(void*) {
    Station& station = TheStation();
    while (station.reading) {
        station.inbox->Wait();
        const std::lock_guard<std::mutex> lock(station.mutex);
        if (station.reading)
            TakeIn(station);
    }
    return nullptr;
}

// Signals are for the program's own threads.
bool StartReader(Station& station) {
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    station.reading = true;
    station.reading = pthread_create(&station.reader, nullptr, &Read, nullptr) == 0;
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return station.reading;
}

// Takes the files away when the program ends or the library is unloaded.
struct StationEnd {
    ~StationEnd() {
        Station& station = TheStation();
        std::unique_lock<std::mutex> lock(station.mutex);
        station.ended = true;
        station.open = false;
        station.unread = false;
        if (station.reading.exchange(false)) {
            station.inbox->Interrupt();
            lock.unlock();
            pthread_join(station.reader, nullptr);
            lock.lock();
        }
        station.endpoint.reset();
    }
};

void OpenEndpoint(Station& station) {
    static const StationEnd end;
    PrepareForFork();
    station.endpoint = Endpoint::Open(DeviceKey());
    if (!station.endpoint)
        return;
    if (!station.inbox) {
        auto inbox = std::make_unique<Inbox>();
        if (!inbox->IsUsable()) {
            station.endpoint.reset();
            return;
        }
        station.inbox = std::move(inbox);
    }
    station.inbox->Listen(station.endpoint->Listener());
    if (!station.open.exchange(true))
        station.unread = true;
}

void CloseEndpoint(Station& station) {
    if (!station.endpoint)
        return;
    station.inbox->Dismiss();
    station.known = false;
    // Who holds the file open still reads it.
    station.endpoint->Publish({});
    station.endpoint.reset();
}

}  // namespace

void PublishWindows() {
    Station& station = TheStation();
    const std::lock_guard<std::mutex> lock(station.mutex);
    const std::vector<ListedWindow> windows = TopLevelWindows();
    if (station.ended)
        return;
    const bool areFirst = !station.hasWindows && !windows.empty();
    station.hasWindows = !windows.empty();
    if (areFirst)
        OpenEndpoint(station);
    if (!station.hasWindows)
        CloseEndpoint(station);
    else if (station.endpoint)
        station.endpoint->Publish(windows);
}

void TakeInRemoteMessages() {
    Station& station = TheStation();
    if (!station.open)
        return;
    const std::lock_guard<std::mutex> lock(station.mutex);
    if (!station.ended)
        TakeIn(station);
}

bool ReadsRemoteMessages(std::unique_lock<std::mutex>& lock) {
    Station& station = TheStation();
    if (!station.unread.exchange(false))
        return true;
    lock.unlock();
    {
        const std::lock_guard<std::mutex> stationLock(station.mutex);
        if (!station.ended)
            StartReader(station);
    }
    lock.lock();
    return false;
}

bool IsKnownElsewhere() {
    return TheStation().known;
}

int RemoteReaders() {
    return TheStation().reading ? 1 : 0;
}

std::string OwnEndpoint() {
    Station& station = TheStation();
    const std::lock_guard<std::mutex> lock(station.mutex);
    return station.endpoint ? station.endpoint->Name() : std::string();
}

void LockStation() {
    TheStation().mutex.lock();
    TheSession().mutex.lock();
}

void UnlockStation() {
    TheSession().mutex.unlock();
    TheStation().mutex.unlock();
}

void AbandonStation() {
    Station& station = TheStation();
    station.open = false;
    station.unread = false;
    station.known = false;
    station.reading = false;
    station.hasWindows = false;
    if (station.inbox) {
        station.inbox->Abandon();
        station.abandoned.push_back(std::move(station.inbox));
    }
    if (station.endpoint)
        station.endpoint->Abandon();
    station.endpoint.reset();
    for (const std::unique_ptr<ThreadQueue>& queue : TheSession().queues)
        queue->raised.Close();
}

}  // namespace korvane
