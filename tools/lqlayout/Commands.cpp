#include "tools/lqlayout/Commands.h"

#include "engine/system/IniReadWrite.h"
#include "engine/widgets/layout/CompileLayout.h"
#include "engine/widgets/layout/MemBlob.h"

#include "tools/hostfile/HostFile.h"
#include "tools/lqlayout/Checks.h"
#include "tools/lqlayout/Findings.h"
#include "tools/lqlayout/Layout.h"

namespace korvane::tools {
namespace {

namespace fs = std::filesystem;
using Messages = std::vector<std::string>;

/// Adds one message; returns false.
bool Fail(const fs::path& file, const std::string& what, Messages& messages) {
    messages.push_back(file.string() + ": " + what);
    return false;
}

void Tell(const Findings& findings, const fs::path& file, Messages& messages) {
    for (std::string& line : findings.Describe(file.string()))
        messages.push_back(std::move(line));
}

bool Replace(const fs::path& file, const void* bytes, std::size_t size, Messages& messages) {
    std::string what;
    return ReplaceHostFile(file, bytes, size, what) || Fail(file, what, messages);
}

bool IsOneFile(const FilePair& pair, Messages& messages) {
    std::string error;
    if (!tools::IsOneFile(pair, error))
        return false;
    messages.push_back(error);
    return true;
}

/// Nothing of the layout would be lost, or `what` says what.
bool IsWhole(const Layout& layout, std::string& what) {
    if (layout.RecordCount() != static_cast<int>(layout.Ctrls().size())) {
        what = "has records that are in no group";
        return false;
    }
    for (const LayoutCtrl& ctrl : layout.Ctrls()) {
        if (!ctrl.isKnown) {
            what = layout.Describe(ctrl) + " is of kind " + std::to_string(ctrl.kind) +
                   ", which only its application knows";
            return false;
        }
    }
    return true;
}

bool ReadCompiled(const fs::path& file, Layout& layout, Messages& messages) {
    Findings findings;
    if (!layout.Read(file, findings)) {
        Tell(findings, file, messages);
        return false;
    }
    return !layout.Text() || Fail(file, "is not a compiled layout", messages);
}

}  // namespace

bool CompileFile(const FilePair& pair, Messages& messages) {
    if (IsOneFile(pair, messages))
        return false;
    Findings findings;
    Layout layout;
    if (layout.Read(pair.from, findings)) {
        if (!layout.Text())
            return Fail(pair.from, "is compiled already", messages);
        CheckValues(layout, findings);
    }
    Tell(findings, pair.from, messages);
    if (findings.HasErrors())
        return false;
    const std::vector<unsigned char> bytes = layout.Records().ToBytes();
    return Replace(pair.to, bytes.data(), bytes.size(), messages);
}

bool DumpFile(const fs::path& file, std::string& text, Messages& messages) {
    Layout layout;
    std::string what;
    if (!ReadCompiled(file, layout, messages))
        return false;
    if (!IsWhole(layout, what))
        return Fail(file, what, messages);
    CLQIniReadWrite ini;
    // The spacing and the line breaks of the first entry become those of all.
    ini.SetContents("[Layout]\nkind = group\n");
    if (!DecompileLayout(layout.Records(), ini))
        return Fail(file, "is too large for a text", messages);
    text = ini.GetContents();
    CLQMemBlob again;
    LayoutProblem problem;
    if (!CompileLayout(ini, again, problem) || again.ToBytes() != layout.Records().ToBytes())
        messages.push_back(file.string() +
                           ": warning: was compiled by another program; its text gives another file");
    return true;
}

bool DumpFile(const FilePair& pair, Messages& messages) {
    std::string text;
    return !IsOneFile(pair, messages) && DumpFile(pair.from, text, messages) &&
           Replace(pair.to, text.data(), text.size(), messages);
}

bool CheckFile(const fs::path& file, const CheckOptions& options, Messages& messages) {
    Findings findings;
    Layout layout;
    if (layout.Read(file, findings)) {
        CheckValues(layout, findings);
        CheckNames(layout, findings);
        if (options.checksImages)
            CheckPictures(layout, findings);
        CheckPlaces(layout, options.screen, findings);
        CheckTexts(layout, options.languages, findings);
    }
    Tell(findings, file, messages);
    return !findings.HasErrors() && !(options.isStrict && findings.HasWarnings());
}

bool RenderFile(const FilePair& pair, const RenderOptions& options, Messages& messages) {
    if (IsOneFile(pair, messages))
        return false;
    Findings findings;
    Layout layout;
    if (!layout.Read(pair.from, findings)) {
        Tell(findings, pair.from, messages);
        return false;
    }
    std::string error;
    return RenderLayout(layout, options, pair.to, error) || Fail(pair.from, error, messages);
}

}  // namespace korvane::tools
