#pragma once

#include <memory>
#include <string>
#include <vector>

namespace korvane::test {

/// A process of the system whose standard streams this one holds the ends of. Killed, if need be, at its end.
class ChildProcess {
  public:
    static constexpr int kKilled = -9;

    /// Throws when it does not start.
    explicit ChildProcess(const std::vector<std::string>& command);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// What nobody reads any more is lost.
    void Write(const std::string& text);
    void CloseInput();

    /// Waits for more to read, at most so long, and appends it; lines end in "\n" alone. False when there
    /// will be no more, or none came in time.
    bool ReadMore(std::string& output, std::string& errors, int timeoutMs);

    void Kill();
    void Freeze();
    void Thaw();

    /// Waits for its end. The exit status, kKilled, or minus the number of the signal that ended it.
    int Status();

  private:
    struct State;
    std::unique_ptr<State> state_;
};

/// The file of the program that runs.
std::string ThisProgram();

/// Ends this process as ChildProcess::Kill would.
[[noreturn]] void KillThisProcess();

}  // namespace korvane::test
