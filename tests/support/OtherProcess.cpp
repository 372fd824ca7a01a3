#include "tests/support/OtherProcess.h"

#include <cstdlib>
#include <iostream>
#include <map>
#include <string_view>

#include "platform/Simulation.h"

namespace korvane::test {

namespace {

constexpr char kOption[] = "--role";

std::map<std::string, Role::Play>& Roles() {
    static std::map<std::string, Role::Play> roles;
    return roles;
}

std::string NextLine() {
    std::string line;
    std::getline(std::cin, line);
    return line;
}

}  // namespace

Role::Role(const char* name, Play play) : name_(name) {
    if (!Roles().emplace(name, play).second)
        std::abort();
}

// The words go through the pipe, which changes no letter of them; a command line might.
OtherProcess::OtherProcess(const Role& role, const Role::Words& words) : Program({ThisProgram(), kOption}) {
    Say(role.Name());
    Say(DeviceRoot());
    Say(std::to_string(words.size()));
    for (const std::string& word : words)
        Say(word);
}

void TellTest(const std::string& line) {
    std::cout << line << std::endl;
}

bool AwaitTest() {
    std::string line;
    return static_cast<bool>(std::getline(std::cin, line));
}

int PlayRole(int argc, char** argv) {
    if (argc != 2 || std::string_view(argv[1]) != kOption)
        return -1;
    const auto role = Roles().find(NextLine());
    SetDeviceRoot(NextLine());
    Role::Words words(static_cast<std::size_t>(std::atoi(NextLine().c_str())));
    for (std::string& word : words)
        word = NextLine();
    return role == Roles().end() ? 255 : role->second(words);
}

}  // namespace korvane::test
