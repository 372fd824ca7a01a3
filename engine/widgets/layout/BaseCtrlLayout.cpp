#include <algorithm>

#include "engine/widgets/layout/CtrlStorage.h"
#include "engine/window/BaseCtrl.h"
#include "engine/window/GroupCtrl.h"

namespace {

/// Layouts tell where a control lies in its group, controls where they lie in their window.
int ToWindow(int position, int origin) {
    const long long sum = static_cast<long long>(position) + origin;
    return static_cast<int>(std::clamp<long long>(sum, -korvane::kMaxPosition, korvane::kMaxPosition));
}

}  // namespace

void CLQBaseCtrl::ExchangeLayout(korvane::LayoutArchive& archive) {
    archive.Text(L"name", m_strName, [this](const std::wstring& name) { SetCtrlName(name.c_str()); });

    int originX = 0;
    int originY = 0;
    if (m_pOwnerGroup)
        m_pOwnerGroup->GetPos(originX, originY);
    int x = m_nX - originX;
    int y = m_nY - originY;
    int width = m_nWidth;
    int height = m_nHeight;
    archive.Number(L"x", x, [&x](int value) { x = value; });
    archive.Number(L"y", y, [&y](int value) { y = value; });
    archive.Number(L"width", width, [&width](int value) { width = value; });
    archive.Number(L"height", height, [&height](int value) { height = value; });
    if (archive.IsLoading()) {
        Create(ToWindow(x, originX), ToWindow(y, originY), std::clamp(width, 0, korvane::kMaxExtent),
               std::clamp(height, 0, korvane::kMaxExtent));
    }

    archive.Flag(L"shown", m_bShow, [this](bool shown) { SetShow(shown); });
    archive.Flag(L"enabled", m_bEnabled, [this](bool enabled) { EnableWindow(enabled); });
    archive.Flag(L"focusable", m_bFocusEnabled, [this](bool focusable) { EnableFocus(focusable); });
    archive.Flag(L"receives", m_bRecvMsg, [this](bool receives) { EnableRecvMsg(receives); });
    archive.Number(L"langid", m_nLangID, [this](int id) { SetLangID(id); });
}

bool CLQBaseCtrl::LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section) {
    return korvane::LoadFromIni(ini, section, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQBaseCtrl::LoadCtrlFromBin(CLQMemBlob& blob, int index) {
    return korvane::LoadFromBlob(blob, index, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQBaseCtrl::SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section) {
    return korvane::SaveToIni(ini, section, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}

bool CLQBaseCtrl::SaveCtrlToBin(CLQMemBlob& blob, int index) {
    return korvane::SaveToBlob(blob, index, m_nKind, [this](auto& archive) { ExchangeLayout(archive); });
}
