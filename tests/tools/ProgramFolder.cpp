#include "tests/tools/ProgramFolder.h"

#include <cstdlib>

namespace korvane::test {

int ProgramFolder::Run(const std::string& arguments) {
    const std::string command =
        '"' + program_ + "\" " + arguments + " >" + Quoted(".out") + " 2>" + Quoted(".err");
    const int status = std::system(command.c_str());
    output_ = Text(".out");
    errors_ = Text(".err");
    std::filesystem::remove(At(".out"));
    std::filesystem::remove(At(".err"));
    // Where the status holds more than the exit code, that is its second byte.
    return status > 255 ? status / 256 : status;
}

std::string ProgramFolder::Text(const std::string& name) const {
    const std::vector<std::uint8_t> bytes = Read(name);
    return {bytes.begin(), bytes.end()};
}

void ProgramFolder::WriteText(const std::string& name, const std::string& text) const {
    Write(name, {text.begin(), text.end()});
}

}  // namespace korvane::test
