#include "tests/platform/PeerProcess.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace korvane {

PeerProcess::PeerProcess() {
    int input[2];
    int output[2];
    if (pipe2(input, O_CLOEXEC) != 0 || pipe2(output, O_CLOEXEC) != 0) {
        ADD_FAILURE() << "no pipe can be made";
        return;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
    std::string program = KORVANE_WINDOW_PEER;
    char* const arguments[] = {program.data(), nullptr};
    if (posix_spawn(&process_, program.c_str(), &actions, nullptr, arguments, environ) != 0)
        ADD_FAILURE() << program << " does not start";
    posix_spawn_file_actions_destroy(&actions);
    close(input[0]);
    close(output[1]);
    input_ = fdopen(input[1], "w");
    output_ = fdopen(output[0], "r");
    // What is said to a process that has ended is no reason for the test to end.
    std::signal(SIGPIPE, SIG_IGN);
}

PeerProcess::~PeerProcess() {
    AwaitEnd();
    std::fclose(output_);
}

void PeerProcess::Say(const std::string& command) {
    std::fputs((command + '\n').c_str(), input_);
    std::fflush(input_);
}

std::string PeerProcess::Hear() {
    std::string line;
    for (int c = std::fgetc(output_); c != EOF && c != '\n'; c = std::fgetc(output_))
        line += static_cast<char>(c);
    return line;
}

std::string PeerProcess::Ask(const std::string& command) {
    Say(command);
    return Hear();
}

void PeerProcess::Kill() {
    if (process_ > 0)
        kill(process_, SIGKILL);
    AwaitEnd();
}

void PeerProcess::AwaitEnd() {
    if (input_)
        std::fclose(input_);
    input_ = nullptr;
    int status = 0;
    if (process_ > 0)
        waitpid(process_, &status, 0);
    process_ = -1;
}

void PeerProcess::Freeze() {
    kill(process_, SIGSTOP);
    int status = 0;
    waitpid(process_, &status, WUNTRACED);
}

void PeerProcess::Thaw() {
    kill(process_, SIGCONT);
}

}  // namespace korvane
