#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace korvane::tools {

/// What to print about a command line that CLI11 refused: the program's name, what is wrong and, where the
/// command is unknown, which there are. For CLI::App::failure_message.
std::string DescribeWrongUsage(const CLI::App* app, const CLI::Error& error);

}  // namespace korvane::tools
