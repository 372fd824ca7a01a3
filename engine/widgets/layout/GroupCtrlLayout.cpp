#include <algorithm>

#include "engine/system/System.h"
#include "engine/widgets/layout/CtrlFactory.h"
#include "engine/widgets/layout/CtrlStorage.h"
#include "engine/widgets/layout/IniTree.h"
#include "engine/window/GroupCtrl.h"

namespace {

/// Levels of controls from the group down, itself included.
int HeightOf(const CLQGroupCtrl& group) {
    int below = 0;
    for (int i = 0; i < group.GetChildCount(); ++i) {
        const CLQBaseCtrl* child = group.GetChild(i);
        if (!child)
            continue;
        const auto* childGroup = dynamic_cast<const CLQGroupCtrl*>(child);
        below = std::max(below, childGroup ? HeightOf(*childGroup) : 1);
    }
    return below + 1;
}

}  // namespace

void CLQGroupCtrl::ExchangeLayout(korvane::LayoutArchive& archive) {
    CLQBaseCtrl::ExchangeLayout(archive);
    archive.Text(L"background", m_background.File(),
                 [this](const std::wstring& file) { SetBkgSurf(file.c_str()); });
    archive.Color(L"backgroundcolor", m_background.Color(),
                  [this](_LQColor color) { EnableBkgColor(m_background.IsColorEnabled(), &color); });
    archive.Flag(L"fillbackground", m_background.IsColorEnabled(),
                 [this](bool enable) { EnableBkgColor(enable, nullptr); });
}

/// A class derived from the group may be loaded from the layout of a plain one.
bool CLQGroupCtrl::IsLayoutKind(int kind) const {
    return kind == m_nKind || kind == korvane::kKindGroup;
}

void CLQGroupCtrl::DeleteChildren() {
    const korvane::ChildList children = m_children;
    for (std::size_t i = 0; i < children.Size(); ++i) {
        if (CLQBaseCtrl* child = children.At(i))
            DelChild(child, true);
    }
}

template <class Load>
void CLQGroupCtrl::AddLoadedChild(int kind, Load load) {
    CLQBaseCtrl* child = korvane::MakeCtrl(kind).release();
    // A group passes over kinds that this program does not know.
    if (!child)
        return;
    // The child's position is told relative to this group, so it must be in it first; the part that is not
    // told is the group's own.
    AddChild(child);
    child->MoveTo(m_nX, m_nY);
    if (!load(*child))
        DelChild(child, true);
}

bool CLQGroupCtrl::LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section) {
    korvane::IniArchive archive(ini, section, true);
    korvane::LayoutProblem problem;
    if (!IsLayoutKind(archive.Kind()) ||
        !korvane::CheckIniTree(ini, section, korvane::LayoutRule::Bounded, problem))
        return false;
    ExchangeLayout(archive);
    DeleteChildren();
    for (const std::wstring& childSection : archive.Children()) {
        AddLoadedChild(korvane::IniArchive(ini, childSection.c_str(), true).Kind(),
                       [&](CLQBaseCtrl& child) { return child.LoadCtrlFromIni(ini, childSection.c_str()); });
    }
    return true;
}

bool CLQGroupCtrl::LoadCtrlFromBin(CLQMemBlob& blob, int index) {
    if (!IsLayoutKind(blob.GetKind(index)))
        return false;
    korvane::BlobArchive archive(blob, index, true);
    ExchangeLayout(archive);
    DeleteChildren();
    for (const int childIndex : blob.GetChildren(index)) {
        AddLoadedChild(blob.GetKind(childIndex), [&blob, childIndex](CLQBaseCtrl& child) {
            return child.LoadCtrlFromBin(blob, childIndex);
        });
    }
    return true;
}

bool CLQGroupCtrl::SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section) {
    if (!section || HeightOf(*this) > CLQMemBlob::kMaxDepth)
        return false;
    korvane::IniArchive archive(ini, section, false);
    archive.WriteKind(m_nKind);
    ExchangeLayout(archive);
    std::vector<std::wstring> childSections;
    bool saved = true;
    for (int i = 0; i < GetChildCount(); ++i) {
        CLQBaseCtrl* child = GetChild(i);
        if (!child)
            continue;
        childSections.push_back(section + (L"." + std::to_wstring(childSections.size() + 1)));
        saved = saved && child->SaveCtrlToIni(ini, childSections.back().c_str());
    }
    archive.WriteChildren(childSections);
    return saved && archive.IsComplete();
}

bool CLQGroupCtrl::SaveCtrlToBin(CLQMemBlob& blob, int index) {
    if (!blob.BeginRecord(index, m_nKind))
        return false;
    korvane::BlobArchive archive(blob, index, false);
    ExchangeLayout(archive);
    bool saved = archive.IsComplete();
    for (int i = 0; saved && i < GetChildCount(); ++i) {
        if (CLQBaseCtrl* child = GetChild(i))
            saved = child->SaveCtrlToBin(blob, blob.AddRecord(index));
    }
    return saved;
}

bool CLQGroupCtrl::LoadGroupCtrlFromBin(const wchar_t* file) {
    if (!file || !*file)
        return false;
    CLQMemBlob blob;
    const std::wstring path = korvane::ResourcePath(korvane::ResourceKind::Layout, file);
    return blob.LoadFile(path.c_str()) && LoadCtrlFromBin(blob, 0);
}

void CLQGroupCtrl::NoteNames(std::map<std::wstring, NamedCtrl>& names) const {
    for (int i = 0; i < GetChildCount(); ++i) {
        CLQBaseCtrl* child = GetChild(i);
        if (!child)
            continue;
        // Of two controls with one name the first in drawing order, outer before inner, is found.
        if (!child->GetCtrlName().empty())
            names.insert({child->GetCtrlName(), {child, child->WatchLife()}});
        if (const auto* group = dynamic_cast<const CLQGroupCtrl*>(child))
            group->NoteNames(names);
    }
}

void CLQGroupCtrl::BuildRelationNameToPtr() {
    m_mapNameToCtrl.clear();
    NoteNames(m_mapNameToCtrl);
}

CLQBaseCtrl* CLQGroupCtrl::FindCtrl(const wchar_t* name) {
    const auto found = m_mapNameToCtrl.find(name ? name : L"");
    return found != m_mapNameToCtrl.end() && found->second.life.IsAlive() ? found->second.ctrl : nullptr;
}

void CLQGroupCtrl::ReleaseRelationMap() {
    m_mapNameToCtrl.clear();
}
