#include "tests/support/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace korvane::test {

static_assert(ChildProcess::kKilled == -SIGKILL);

struct ChildProcess::State {
    pid_t id = -1;
    int input = -1;
    int output = -1;
    int errors = -1;
    bool running = true;
    int status = 0;
};

namespace {

void Close(int& end) {
    if (end >= 0)
        close(std::exchange(end, -1));
}

/// Reads what has come. At the end of the stream it is closed.
void ReadInto(std::string& text, int& end) {
    char block[4096];
    const ssize_t count = read(end, block, sizeof(block));
    if (count > 0)
        text.append(block, static_cast<std::size_t>(count));
    else if (count == 0 || errno != EINTR)
        Close(end);
}

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& command) : state_(new State) {
    int in[2];
    int out[2];
    int err[2];
    if (pipe2(in, O_CLOEXEC) != 0 || pipe2(out, O_CLOEXEC) != 0 || pipe2(err, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipes");
    // What is said to a process that has ended is no reason for the test to end, but may be one for others.
    std::signal(SIGPIPE, SIG_IGN);
    sigset_t pipeSignal;
    sigemptyset(&pipeSignal);
    sigaddset(&pipeSignal, SIGPIPE);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigdefault(&attributes, &pipeSignal);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, in[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, err[1], STDERR_FILENO);
    std::vector<char*> words;
    for (const std::string& word : command)
        words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    const int failure = posix_spawn(&state_->id, words[0], &actions, &attributes, words.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    Close(in[0]);
    Close(out[1]);
    Close(err[1]);
    state_->input = in[1];
    state_->output = out[0];
    state_->errors = err[0];
    if (failure != 0) {
        state_->running = false;
        throw std::runtime_error(command.front() + " does not start");
    }
}

ChildProcess::~ChildProcess() {
    Kill();
    Close(state_->input);
    Close(state_->output);
    Close(state_->errors);
}

void ChildProcess::Write(const std::string& text) {
    std::size_t written = 0;
    while (state_->input >= 0 && written < text.size()) {
        const ssize_t count = write(state_->input, text.data() + written, text.size() - written);
        if (count > 0)
            written += static_cast<std::size_t>(count);
        else if (errno != EINTR)
            CloseInput();
    }
}

void ChildProcess::CloseInput() {
    Close(state_->input);
}

bool ChildProcess::ReadMore(std::string& output, std::string& errors, int timeoutMs) {
    pollfd ends[] = {{state_->output, POLLIN, 0}, {state_->errors, POLLIN, 0}};
    if ((state_->output < 0 && state_->errors < 0) || timeoutMs <= 0 || poll(ends, 2, timeoutMs) <= 0)
        return false;
    if ((ends[0].revents & (POLLIN | POLLHUP)) != 0)
        ReadInto(output, state_->output);
    if ((ends[1].revents & (POLLIN | POLLHUP)) != 0)
        ReadInto(errors, state_->errors);
    return true;
}

void ChildProcess::Kill() {
    if (state_->running)
        kill(state_->id, SIGKILL);
    Status();
}

void ChildProcess::Freeze() {
    kill(state_->id, SIGSTOP);
    int status = 0;
    waitpid(state_->id, &status, WUNTRACED);
}

void ChildProcess::Thaw() {
    kill(state_->id, SIGCONT);
}

int ChildProcess::Status() {
    int status = 0;
    while (state_->running) {
        if (waitpid(state_->id, &status, 0) < 0) {
            if (errno != EINTR)
                throw std::runtime_error("the process cannot be waited for");
            continue;
        }
        state_->running = false;
        state_->status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
    return state_->status;
}

std::string ThisProgram() {
    return std::filesystem::read_symlink("/proc/self/exe").u8string();
}

void KillThisProcess() {
    raise(SIGKILL);
    std::abort();
}

}  // namespace korvane::test
