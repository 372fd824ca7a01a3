#pragma once

#include <functional>
#include <string>
#include <sys/types.h>

namespace korvane::test {

/// A copy of this process that runs one function and ends. It is killed, if need be, when this ends.
class ForkedProcess {
  public:
    /// What the function returns, 0 to 255, is the process's exit code. Give the test's expectations as that:
    /// a failure that the copy notes is not the test's.
    explicit ForkedProcess(const std::function<int()>& run);
    ~ForkedProcess();
    ForkedProcess(const ForkedProcess&) = delete;
    ForkedProcess& operator=(const ForkedProcess&) = delete;

    pid_t Id() const { return id_; }

    /// Ends it as the system ends a process without memory: with SIGKILL, wherever it is. Returns when it is
    /// gone.
    void Kill();

    /// Waits for its end. The exit code, or minus the number of the signal that ended it.
    int Wait();

  private:
    pid_t id_;
    int result_ = 0;
    bool running_ = true;
};

/// One end of a wait between processes that are forked after it was made: who waits goes on when somebody
/// opens it.
class Gate {
  public:
    Gate();
    ~Gate();
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;

    /// Lets `count` waits through.
    void Open(int count = 1) const;
    /// False when nobody has opened it within ten seconds.
    bool Wait() const;

  private:
    int ends_[2];
};

}  // namespace korvane::test
