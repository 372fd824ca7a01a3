#include "tests/support/Program.h"

#include <chrono>

namespace korvane::test {

namespace {

/// The minute that a program has from here on.
class Minute {
  public:
    int LeftMs() const {
        using std::chrono::duration_cast;
        using std::chrono::milliseconds;
        return static_cast<int>(duration_cast<milliseconds>(end_ - Clock::now()).count());
    }

  private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point end_ = Clock::now() + std::chrono::minutes(1);
};

bool HasLine(const std::string& text, const std::string& line) {
    return ("\n" + text).find("\n" + line + "\n") != std::string::npos;
}

}  // namespace

Program::Program(const std::vector<std::string>& command) : process_(command) {}

Program::~Program() = default;

void Program::Say(const std::string& line) {
    process_.Write(line + '\n');
}

std::string Program::Hear() {
    const Minute minute;
    std::size_t end = output_.find('\n', heard_);
    while (end == std::string::npos) {
        if (!process_.ReadMore(output_, errors_, minute.LeftMs()))
            return {};
        end = output_.find('\n', heard_);
    }
    const std::string line = output_.substr(heard_, end - heard_);
    heard_ = end + 1;
    return line;
}

bool Program::WaitForLine(const std::string& line) {
    const Minute minute;
    while (!HasLine(output_, line)) {
        if (!process_.ReadMore(output_, errors_, minute.LeftMs()))
            return false;
    }
    return true;
}

int Program::Wait() {
    const Minute minute;
    process_.CloseInput();
    while (process_.ReadMore(output_, errors_, minute.LeftMs())) {
    }
    if (minute.LeftMs() <= 0)
        process_.Kill();
    return process_.Status();
}

void Program::Kill() {
    process_.Kill();
}

void Program::Freeze() {
    process_.Freeze();
}

void Program::Thaw() {
    process_.Thaw();
}

}  // namespace korvane::test
