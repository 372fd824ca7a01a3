#include "tests/platform/EnvironmentVariable.h"

#include <utility>
#include <windows.h>

namespace korvane {

EnvironmentVariable::EnvironmentVariable(std::string name, const std::string& value)
    : name_(std::move(name)) {
    SetEnvironmentVariableA(name_.c_str(), value.c_str());
}

EnvironmentVariable::~EnvironmentVariable() {
    SetEnvironmentVariableA(name_.c_str(), nullptr);
}

}  // namespace korvane
