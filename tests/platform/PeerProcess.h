#pragma once

#include <string>

#include "tests/support/Program.h"

namespace korvane {

/// A running windowpeer. It gets what the test says and answers; it ends by itself, at the latest, with the
/// object.
class PeerProcess : public test::Program {
  public:
    PeerProcess();
    ~PeerProcess() { Wait(); }

    /// Says a command and hears the answer. Empty when the process has ended.
    std::string Ask(const std::string& command) {
        Say(command);
        return Hear();
    }
};

}  // namespace korvane
