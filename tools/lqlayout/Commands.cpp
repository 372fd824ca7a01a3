#include "tools/lqlayout/Commands.h"

#include <vector>

#include "engine/system/IniReadWrite.h"
#include "engine/widgets/layout/CompileLayout.h"
#include "engine/widgets/layout/MemBlob.h"
#include "platform/Unicode.h"

#include "tools/hostfile/HostFile.h"

namespace korvane::tools {
namespace {

namespace fs = std::filesystem;

std::string About(const fs::path& file, const std::string& what) {
    return file.string() + ": " + what;
}

constexpr std::size_t kMaxTextSize = std::size_t{1} << 20;

}  // namespace

bool CompileFile(const FilePair& pair, std::string& error) {
    if (IsOneFile(pair, error))
        return false;
    std::vector<std::uint8_t> text;
    std::string what;
    if (!ReadHostFile(pair.from, kMaxTextSize, text, what)) {
        error = About(pair.from, what);
        return false;
    }
    CLQIniReadWrite ini;
    ini.SetContents(std::string(text.begin(), text.end()));
    CLQMemBlob blob;
    LayoutProblem problem;
    if (!CompileLayout(ini, blob, problem)) {
        error = About(pair.from, "[" + ToUtf8(problem.section) + "]: " + problem.message);
        return false;
    }
    const std::vector<unsigned char> bytes = blob.ToBytes();
    if (!ReplaceHostFile(pair.to, bytes.data(), bytes.size(), what)) {
        error = About(pair.to, what);
        return false;
    }
    return true;
}

}  // namespace korvane::tools
