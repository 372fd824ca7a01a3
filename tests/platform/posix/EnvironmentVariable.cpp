#include "tests/platform/EnvironmentVariable.h"

#include <cstdlib>
#include <utility>

namespace korvane {

EnvironmentVariable::EnvironmentVariable(std::string name, const std::string& value)
    : name_(std::move(name)) {
    setenv(name_.c_str(), value.c_str(), 1);
}

EnvironmentVariable::~EnvironmentVariable() {
    unsetenv(name_.c_str());
}

}  // namespace korvane
