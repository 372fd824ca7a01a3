#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace korvane::tools {

/// Something that is wrong with a layout (an error), or that is likely to be (a warning).
struct Finding {
    bool isError = true;
    /// Counts from 1; 0 stands for the file as a whole.
    int line = 0;
    std::string text;
};

/// What has been found in one file. The first kMaxKept findings are kept, the others counted.
class Findings {
  public:
    static constexpr std::size_t kMaxKept = 100;

    void AddError(int line, const std::string& text) { Add({true, line, text}); }
    void AddWarning(int line, const std::string& text) { Add({false, line, text}); }

    bool HasErrors() const { return hasErrors_; }
    bool HasWarnings() const { return hasWarnings_; }

    /// One line each, those of the file as a whole first, then by their lines: "<name>:<line>: <text>".
    std::vector<std::string> Describe(const std::string& name) const;

  private:
    void Add(const Finding& finding);

    std::vector<Finding> kept_;
    std::size_t dropped_ = 0;
    bool hasErrors_ = false;
    bool hasWarnings_ = false;
};

}  // namespace korvane::tools
