#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace korvane::test {

/// A program that runs beside the test. It is killed, if need be, when this ends.
class Program {
  public:
    /// The first word is the program's file.
    explicit Program(const std::vector<std::string>& command);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Reads what it prints until that line has come. False when it ends without it or a minute passes.
    bool WaitForLine(const std::string& line);

    /// Reads what it prints until it ends; its exit status, or minus the number of the signal that ended it.
    /// One that runs for more than a minute is killed.
    int Wait();

    /// Ends it wherever it is, with SIGKILL, and waits until it is gone.
    void Kill();
    /// Lets it stand still, as a program does that hangs, until it is killed.
    void Stop() const;

    /// What it has printed, as far as it was read.
    const std::string& Output() const { return output_.text; }
    const std::string& Errors() const { return errors_.text; }

  private:
    struct Pipe {
        int end = -1;
        std::string text;
    };

    bool ReadMore(int deadline);
    int Reap();

    pid_t id_ = -1;
    int status_ = 0;
    bool running_ = true;
    Pipe output_;
    Pipe errors_;
};

}  // namespace korvane::test
