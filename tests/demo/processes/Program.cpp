#include "tests/demo/processes/Program.h"

#include <chrono>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace korvane::test {

namespace {

constexpr int kPatienceMs = 60000;

int NowMs() {
    using std::chrono::duration_cast;
    using std::chrono::milliseconds;
    using std::chrono::steady_clock;
    static const steady_clock::time_point start = steady_clock::now();
    return static_cast<int>(duration_cast<milliseconds>(steady_clock::now() - start).count());
}

bool HasLine(const std::string& text, const std::string& line) {
    return ("\n" + text).find("\n" + line + "\n") != std::string::npos;
}

}  // namespace

Program::Program(const std::vector<std::string>& command) {
    int out[2];
    int err[2];
    if (pipe2(out, O_CLOEXEC) != 0 || pipe2(err, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipes");
    std::vector<char*> words;
    for (const std::string& word : command)
        words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    id_ = fork();
    if (id_ < 0)
        throw std::runtime_error("no process");
    if (id_ == 0) {
        dup2(out[1], STDOUT_FILENO);
        dup2(err[1], STDERR_FILENO);
        execv(words[0], words.data());
        _exit(127);
    }
    close(out[1]);
    close(err[1]);
    output_.end = out[0];
    errors_.end = err[0];
}

Program::~Program() {
    Kill();
    for (const Pipe* const pipe : {&output_, &errors_}) {
        if (pipe->end >= 0)
            close(pipe->end);
    }
}

bool Program::WaitForLine(const std::string& line) {
    const int deadline = NowMs() + kPatienceMs;
    while (!HasLine(output_.text, line)) {
        if (!ReadMore(deadline))
            return false;
    }
    return true;
}

int Program::Wait() {
    const int deadline = NowMs() + kPatienceMs;
    while (ReadMore(deadline)) {
    }
    // Both pipes are closed when it ends. Without that it has used up its time.
    if (output_.end >= 0 || errors_.end >= 0)
        Kill();
    return Reap();
}

void Program::Kill() {
    if (running_)
        kill(id_, SIGKILL);
    Reap();
}

void Program::Stop() const {
    kill(id_, SIGSTOP);
}

/// Waits for more to read and reads it. False when there will be none, or none came in time.
bool Program::ReadMore(int deadline) {
    pollfd ends[] = {{output_.end, POLLIN, 0}, {errors_.end, POLLIN, 0}};
    if (output_.end < 0 && errors_.end < 0)
        return false;
    const int left = deadline - NowMs();
    if (left <= 0 || poll(ends, 2, left) <= 0)
        return false;
    for (Pipe* const pipe : {&output_, &errors_}) {
        const pollfd& end = ends[pipe == &output_ ? 0 : 1];
        if ((end.revents & (POLLIN | POLLHUP)) == 0)
            continue;
        char block[4096];
        const ssize_t count = read(pipe->end, block, sizeof block);
        if (count > 0) {
            pipe->text.append(block, static_cast<std::size_t>(count));
        } else {
            close(pipe->end);
            pipe->end = -1;
        }
    }
    return true;
}

int Program::Reap() {
    if (running_) {
        int result = 0;
        waitpid(id_, &result, 0);
        status_ = WIFEXITED(result) ? WEXITSTATUS(result) : -WTERMSIG(result);
        running_ = false;
    }
    return status_;
}

}  // namespace korvane::test
