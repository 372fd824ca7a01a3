#pragma once

#include <string>

namespace korvane::tools {

/// How a command ended: the program's exit status and, unless that is success, what is wrong.
struct Outcome {
    static constexpr int kSuccess = 0;
    static constexpr int kFailure = 1;
    static constexpr int kWrongUsage = 2;

    static Outcome Failure(std::string what) { return {kFailure, std::move(what)}; }
    static Outcome WrongUsage(std::string what) { return {kWrongUsage, std::move(what)}; }

    int status = kSuccess;
    std::string error;
};

}  // namespace korvane::tools
