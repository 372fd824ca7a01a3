#include "tests/tools/ProgramFolder.h"

#include <vector>

#include "tests/support/Program.h"

namespace korvane::test {
namespace {

/// Words with a space between them; one in quotation marks may hold spaces.
std::vector<std::string> Words(const std::string& text) {
    std::vector<std::string> words;
    bool isQuoted = false;
    bool isInside = false;
    for (const char character : text) {
        if (character == '"') {
            isQuoted = !isQuoted;
        } else if (character == ' ' && !isQuoted) {
            isInside = false;
            continue;
        }
        if (!isInside)
            words.emplace_back();
        isInside = true;
        if (character != '"')
            words.back() += character;
    }
    return words;
}

}  // namespace

int ProgramFolder::Run(const std::string& arguments) {
    std::vector<std::string> command = Words(arguments);
    command.insert(command.begin(), program_);
    Program program(command);
    const int status = program.Wait();
    output_ = program.Output();
    errors_ = program.Errors();
    return status;
}

std::string ProgramFolder::Text(const std::string& name) const {
    const std::vector<std::uint8_t> bytes = Read(name);
    return {bytes.begin(), bytes.end()};
}

void ProgramFolder::WriteText(const std::string& name, const std::string& text) const {
    Write(name, {text.begin(), text.end()});
}

}  // namespace korvane::test
