#include "tools/commandline/WrongUsage.h"

#include <vector>

namespace korvane::tools {
namespace {

/// "encode, decode and info"
std::string ListCommands(const CLI::App* app) {
    std::string list;
    const auto commands = app->get_subcommands([](const CLI::App*) { return true; });
    for (std::size_t i = 0; i < commands.size(); ++i) {
        if (i > 0)
            list += i + 1 < commands.size() ? ", " : " and ";
        list += commands[i]->get_name();
    }
    return list;
}

}  // namespace

std::string DescribeWrongUsage(const CLI::App* app, const CLI::Error& error) {
    const std::string name = app->get_name() + ": ";
    const std::vector<std::string> unknown = app->remaining();
    if (app->get_subcommands().empty() && !unknown.empty())
        return name + "'" + unknown.front() + "' is unknown; the commands are " + ListCommands(app) + "\n";
    return name + CLI::FailureMessage::simple(app, error);
}

}  // namespace korvane::tools
