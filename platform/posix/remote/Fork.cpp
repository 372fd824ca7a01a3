#include "platform/posix/remote/Fork.h"

#include <pthread.h>

#include "platform/posix/remote/reach/Neighbours.h"
#include "platform/posix/remote/receive/Station.h"

namespace korvane {
namespace {

// In the order in which they are taken everywhere.
void LockAll() {
    TheNeighbours().mutex.lock();
    LockStation();
}

void UnlockAll() {
    UnlockStation();
    TheNeighbours().mutex.unlock();
}

void AbandonAll() {
    AbandonStation();
    TheNeighbours().Disconnect();
    UnlockAll();
}

}  // namespace

void PrepareForFork() {
    static const int result = pthread_atfork(&LockAll, &UnlockAll, &AbandonAll);
    static_cast<void>(result);
}

}  // namespace korvane
