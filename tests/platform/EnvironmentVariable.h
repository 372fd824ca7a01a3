#pragma once

#include <string>

namespace korvane {

/// Sets a variable of this process's environment as long as it lives, and removes it then.
class EnvironmentVariable {
  public:
    EnvironmentVariable(std::string name, const std::string& value);
    ~EnvironmentVariable();
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

  private:
    std::string name_;
};

}  // namespace korvane
