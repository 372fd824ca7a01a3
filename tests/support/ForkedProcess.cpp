#include "tests/support/ForkedProcess.h"

#include <cerrno>
#include <csignal>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace korvane::test {

ForkedProcess::ForkedProcess(const std::function<int()>& run) : id_(fork()) {
    if (id_ < 0)
        throw std::runtime_error("no process can be forked");
    if (id_ == 0)
        _exit(run());
}

ForkedProcess::~ForkedProcess() {
    Kill();
}

void ForkedProcess::Kill() {
    if (running_)
        kill(id_, SIGKILL);
    Wait();
}

int ForkedProcess::Wait() {
    if (!running_)
        return result_;
    int status = 0;
    while (waitpid(id_, &status, 0) < 0) {
        if (errno != EINTR)
            throw std::runtime_error("the process cannot be waited for");
    }
    running_ = false;
    result_ = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    return result_;
}

Gate::Gate() {
    if (pipe(ends_) != 0)
        throw std::runtime_error("no pipe can be made");
}

Gate::~Gate() {
    close(ends_[0]);
    close(ends_[1]);
}

void Gate::Open(int count) const {
    const std::string pass(static_cast<std::size_t>(count), 'x');
    if (write(ends_[1], pass.data(), pass.size()) != static_cast<ssize_t>(pass.size()))
        throw std::runtime_error("the gate cannot be opened");
}

bool Gate::Wait() const {
    pollfd end = {ends_[0], POLLIN, 0};
    if (poll(&end, 1, 10000) != 1)
        return false;
    char pass;
    return read(ends_[0], &pass, 1) == 1;
}

}  // namespace korvane::test
