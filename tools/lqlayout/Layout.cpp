#include "tools/lqlayout/Layout.h"

#include <algorithm>
#include <cstring>

#include "engine/widgets/Button.h"
#include "engine/widgets/layout/CompileLayout.h"
#include "engine/widgets/layout/CtrlFactory.h"
#include "engine/window/BaseCtrl.h"
#include "platform/Unicode.h"

#include "tools/hostfile/HostFile.h"
#include "tools/lqlayout/TextTree.h"

namespace korvane::tools {
namespace {

/// What a new control has, for records that do not tell it.
constexpr int kNewSize = 0;
constexpr int kNewElements = 1;

int Bounded(long long value, int least, int greatest) {
    return static_cast<int>(std::clamp<long long>(value, least, greatest));
}

}  // namespace

bool IsCompiledLayout(const std::filesystem::path& file, const std::vector<unsigned char>& bytes) {
    static const char kMagic[] = {'K', 'V', 'L', 'Y'};
    return file.extension() == ".bin" ||
           (bytes.size() >= sizeof kMagic && std::memcmp(bytes.data(), kMagic, sizeof kMagic) == 0);
}

bool Layout::Read(const std::filesystem::path& file, Findings& findings) {
    std::vector<std::uint8_t> bytes;
    std::string error;
    if (!ReadHostFile(file, CLQMemBlob::kMaxFileSize, bytes, error)) {
        findings.AddError(0, error);
        return false;
    }
    const bool isRead = IsCompiledLayout(file, bytes)
                            ? ReadRecords(bytes, findings)
                            : ReadText(std::string(bytes.begin(), bytes.end()), findings);
    if (isRead)
        AddCtrl(0, nullptr);
    return isRead;
}

bool Layout::ReadText(const std::string& bytes, Findings& findings) {
    if (bytes.size() > LayoutText::kMaxSize) {
        findings.AddError(0, "is too large");
        return false;
    }
    text_ = std::make_unique<LayoutText>(bytes, findings);
    sections_ = ListCtrlSections(*text_, findings);
    if (findings.HasErrors())
        return false;
    LayoutProblem problem;
    if (!CompileLayout(text_->Ini(), records_, problem)) {
        const TextSection* section = text_->Find(problem.section);
        findings.AddError(section ? section->line : 0, problem.message);
        return false;
    }
    return true;
}

bool Layout::ReadRecords(const std::vector<unsigned char>& bytes, Findings& findings) {
    if (!records_.FromBytes(bytes.data(), bytes.size()))
        findings.AddError(0, "is not a compiled layout, or damaged");
    else if (records_.GetKind(0) != kKindGroup)
        findings.AddError(0, "the outermost control is not a group");
    return !findings.HasErrors();
}

void Layout::AddCtrl(int record, const LayoutCtrl* group) {
    LayoutCtrl ctrl;
    ctrl.record = record;
    ctrl.kind = records_.GetKind(record);
    ctrl.isKnown = MakeCtrl(ctrl.kind) != nullptr;
    ctrl.name = TextOf(ctrl, L"name");
    const long long originX = group ? group->place.left : 0;
    const long long originY = group ? group->place.top : 0;
    ctrl.place.left = Bounded(originX + Number(ctrl, L"x", 0), -kMaxPosition, kMaxPosition);
    ctrl.place.top = Bounded(originY + Number(ctrl, L"y", 0), -kMaxPosition, kMaxPosition);
    ctrl.place.right = ctrl.place.left + Bounded(Number(ctrl, L"width", kNewSize), 0, kMaxExtent);
    ctrl.place.bottom = ctrl.place.top + Bounded(Number(ctrl, L"height", kNewSize), 0, kMaxExtent);
    ctrl.isSeen = (!group || group->isSeen) && Number(ctrl, L"shown", 1) != 0;
    if (text_)
        ctrl.section = sections_.at(static_cast<std::size_t>(record));
    ctrls_.push_back(ctrl);
    // Only groups load what lies below them.
    if (ctrl.kind != kKindGroup)
        return;
    for (const int child : records_.GetChildren(record))
        AddCtrl(child, &ctrl);
}

std::vector<LayoutElement> Layout::ElementsOf(const LayoutCtrl& ctrl) const {
    std::vector<LayoutElement> elements;
    if (ctrl.kind != kKindButton)
        return elements;
    const int count = std::clamp(Number(ctrl, L"elements", kNewElements), 1, kMaxButtonElements);
    for (int i = 0; i < count; ++i) {
        LayoutElement element;
        element.prefix = L"element" + std::to_wstring(i) + L".";
        element.isText = TextOf(ctrl, element.prefix + L"type") == L"text";
        element.width = std::clamp(Number(ctrl, element.prefix + L"width", 0), 0, kMaxExtent);
        element.height = std::clamp(Number(ctrl, element.prefix + L"height", 0), 0, kMaxExtent);
        if (element.width == 0 || element.height == 0) {
            element.width = ctrl.place.right - ctrl.place.left;
            element.height = ctrl.place.bottom - ctrl.place.top;
        }
        elements.push_back(std::move(element));
    }
    return elements;
}

int Layout::Number(const LayoutCtrl& ctrl, const std::wstring& key, int fallback) const {
    int value = fallback;
    records_.GetNumber(ctrl.record, key, value);
    return value;
}

std::wstring Layout::TextOf(const LayoutCtrl& ctrl, const std::wstring& key) const {
    std::wstring value;
    records_.GetText(ctrl.record, key, value);
    return value;
}

int Layout::LineOf(const LayoutCtrl& ctrl, const std::wstring& key) const {
    return ctrl.section ? ctrl.section->LineOf(key) : 0;
}

int Layout::LineOf(const LayoutCtrl& ctrl) const {
    return ctrl.section ? ctrl.section->line : 0;
}

std::string Layout::Describe(const LayoutCtrl& ctrl) const {
    std::string description = ctrl.isKnown ? ToUtf8(CtrlKindName(ctrl.kind)) : "control";
    description += ctrl.name.empty() ? " without a name" : " \"" + ToUtf8(ctrl.name) + "\"";
    return ctrl.section ? description : description + " (record " + std::to_string(ctrl.record) + ")";
}

}  // namespace korvane::tools
