#pragma once

#include <string>
#include <vector>

#include "tests/support/Program.h"

namespace korvane::test {

/// What another process of a test does: a function of the test's own program, which is started once more to
/// run it on the same device. Made at namespace scope, under a name of its own in the program.
class Role {
  public:
    using Words = std::vector<std::string>;
    /// What it returns, 0 to 255, is the process's exit status. Give the test's expectations as that: a
    /// failure that the other process notes is not the test's.
    using Play = int (*)(const Words& words);

    Role(const char* name, Play play);

    const char* Name() const { return name_; }

  private:
    const char* name_;
};

/// A process that plays a role. No word has a line's end in it.
class OtherProcess : public Program {
  public:
    explicit OtherProcess(const Role& role, const Role::Words& words = {});
};

/// Says a line to the test, which it hears from the OtherProcess. For the function of a role.
void TellTest(const std::string& line);

/// Waits until the test says something. False when it has ended, or waits for this process to end. For the
/// function of a role.
bool AwaitTest();

/// Plays the role that was asked for when the program was started as another process; its exit status. -1
/// when it was not.
int PlayRole(int argc, char** argv);

}  // namespace korvane::test
