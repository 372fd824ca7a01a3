#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/support/ChildProcess.h"

namespace korvane::test {

/// A program that runs beside the test, which speaks to it and hears it in lines. It is killed, if need be,
/// when this ends.
class Program {
  public:
    /// The exit status of one that was killed.
    static constexpr int kKilled = ChildProcess::kKilled;

    /// The first word is the program's file.
    explicit Program(const std::vector<std::string>& command);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Gives it a line to read.
    void Say(const std::string& line);

    /// The first line it prints that was not heard yet. Empty when it ends without one, or a minute passes.
    std::string Hear();

    /// Reads what it prints until that line has come. False when it ends without it or a minute passes.
    bool WaitForLine(const std::string& line);

    /// Gives it nothing more and reads what it prints until it ends; its exit status, or minus the number of
    /// the signal that ended it. One that runs for more than a minute is killed.
    int Wait();

    /// Ends it as the system ends a process without memory, wherever it is. Returns when it is gone.
    void Kill();

    /// Takes the processor away from it, as from a program that hangs, and gives it back.
    void Freeze();
    void Thaw();

    /// What it has printed, as far as it was read.
    const std::string& Output() const { return output_; }
    const std::string& Errors() const { return errors_; }

  private:
    ChildProcess process_;
    std::string output_;
    std::string errors_;
    std::size_t heard_ = 0;
};

}  // namespace korvane::test
