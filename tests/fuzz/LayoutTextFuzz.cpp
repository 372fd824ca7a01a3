#include <cstdint>
#include <sstream>
#include <string>

#include "engine/system/IniReadWrite.h"
#include "engine/widgets/layout/CompileLayout.h"
#include "engine/widgets/layout/MemBlob.h"
#include "platform/Unicode.h"

#include "tests/fuzz/Require.h"

namespace {

/// Reads sections and entries into memory only; how files are parsed is a matter of its own.
void Read(const std::string& text, CLQIniReadWrite& ini) {
    std::istringstream lines(text);
    std::wstring section;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t equals = line.find('=');
        if (line.size() >= 2 && line.front() == '[' && line.back() == ']') {
            section = korvane::FromUtf8(line.substr(1, line.size() - 2));
        } else if (equals != std::string::npos) {
            const std::wstring key = korvane::FromUtf8(line.substr(0, equals));
            const std::wstring value = korvane::FromUtf8(line.substr(equals + 1));
            ini.SetValue(section.c_str(), key.c_str(), value.c_str(), true);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CLQIniReadWrite ini;
    Read(std::string(data, data + size), ini);
    CLQMemBlob blob;
    korvane::LayoutProblem problem;
    if (!korvane::CompileLayout(ini, blob, problem)) {
        Require(!problem.message.empty(), "a failure says why");
        return 0;
    }
    CLQIniReadWrite text;
    if (!korvane::DecompileLayout(blob, text))
        return 0;
    CLQMemBlob again;
    Require(korvane::CompileLayout(text, again, problem), "what was decompiled can be compiled");
    Require(again.ToBytes() == blob.ToBytes(), "decompiling and compiling changes nothing");
    return 0;
}
