#pragma once

#include <cstdio>
#include <string>

namespace korvane {

/// A running windowpeer. It gets what the test says and answers; it ends, at the latest, with the object.
class PeerProcess {
  public:
    PeerProcess();
    ~PeerProcess();
    PeerProcess(const PeerProcess&) = delete;
    PeerProcess& operator=(const PeerProcess&) = delete;

    /// Says a command and hears the answer. Empty when the process has ended.
    std::string Ask(const std::string& command);

    void Say(const std::string& command);
    std::string Hear();

    /// Ends the process at once, without any clean-up, and waits until it is gone.
    void Kill();

    /// Waits until the process has ended by itself.
    void AwaitEnd();

    /// Takes the processor away from it, and gives it back.
    void Freeze();
    void Thaw();

  private:
    int process_ = -1;
    std::FILE* input_ = nullptr;
    std::FILE* output_ = nullptr;
};

}  // namespace korvane
