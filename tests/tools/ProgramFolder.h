#pragma once

#include <string>

#include "tests/tools/TemporaryFolder.h"

namespace korvane::test {

/// A folder in which one of the command-line tools is run.
class ProgramFolder : public TemporaryFolder {
  protected:
    explicit ProgramFolder(std::string program) : program_(std::move(program)) {}

    /// A file of the folder as an argument.
    std::string Quoted(const std::string& name) const { return '"' + At(name).string() + '"'; }

    /// Runs the program to its end; returns its exit status and keeps what it printed.
    int Run(const std::string& arguments);

    std::string Text(const std::string& name) const;
    void WriteText(const std::string& name, const std::string& text) const;

    std::string output_;
    std::string errors_;

  private:
    std::string program_;
};

}  // namespace korvane::test
