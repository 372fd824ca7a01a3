#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>

#include "engine/system/IniReadWrite.h"
#include "engine/system/System.h"
#include "platform/coredll.h"
#include "title/ShortcutSources.h"
#include "title/TitleDialog.h"

namespace {

constexpr wchar_t kSystemSettings[] = L"\\NandFlash\\Application\\Profile\\LQ_SysSettings.ini";
// Counts from the root although it does not begin with a backslash.
constexpr wchar_t kFactorySettings[] = L"NandFlash\\Application\\profile\\LQ_ShortcutConfig.ini";
constexpr wchar_t kPanelSettings[] = L"\\ShortCut.ini";
constexpr wchar_t kPanelSection[] = L"ShortCut";

/// The panel's settings count the buttons from 1.
std::wstring KeyOfButton(int index) {
    return std::to_wstring(index + 1);
}

}  // namespace

void CLQTitleDialog::ReadShortCutDefaultID() {
    if (!IsFileExist(kFactorySettings)) {
        constexpr int kFactoryIds[kShortCutCount] = {korvane::kSourceTuner, korvane::kSourceDiscAudio,
                                                     korvane::kSourceNavi, korvane::kSourceTelephone,
                                                     korvane::kSourceTv};
        std::copy(std::begin(kFactoryIds), std::end(kFactoryIds), std::begin(m_nDefaultShortCutID));
        return;
    }
    CLQIniReadWrite settings;
    settings.SetFileName(kFactorySettings);
    m_strDefaultShortCutID = settings.GetString(L"Default", L"DEFUALTID", L"");

    // The first pass leaves slot 0 behind even when it finds no comma: a single id is the second button's.
    std::wstring rest = m_strDefaultShortCutID;
    int slot = 0;
    std::size_t comma = rest.find(L',');
    do {
        if (comma != std::wstring::npos) {
            m_nDefaultShortCutID[slot] = _wtol(rest.substr(0, comma).c_str());
            rest.erase(0, comma + 1);
            comma = rest.find(L',');
        }
        ++slot;
    } while (comma != std::wstring::npos && slot < kShortCutCount);
    // Ids beyond the five buttons are ignored.
    if (!rest.empty() && slot < kShortCutCount)
        m_nDefaultShortCutID[slot] = _wtol(rest.c_str());
}

void CLQTitleDialog::CreatConfigDir(std::wstring dir) {
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(dir.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        CreateDir(dir);
    else
        FindClose(search);
}

void CLQTitleDialog::PrepareShortCutConfig() {
    CLQIniReadWrite settings;
    settings.SetFileName(kSystemSettings);
    m_strConfigDir = settings.GetString(L"PATH", L"DATAPATH", L"");
    CreatConfigDir(m_strConfigDir);
    // From here on it names the panel's settings themselves.
    m_strConfigDir += kPanelSettings;
    if (IsFileExist(m_strConfigDir))
        return;
    std::FILE* const file = _wfopen(m_strConfigDir.c_str(), L"wb");
    if (!file)
        return;
    std::fclose(file);
    SetDefaultShortCutIcon();
}

void CLQTitleDialog::SetDefaultShortCutIcon() {
    CLQIniReadWrite settings;
    settings.SetFileName(m_strConfigDir);
    for (int i = 0; i < kShortCutCount; ++i) {
        settings.SetValue(kPanelSection, KeyOfButton(i).c_str(), m_nDefaultShortCutID[i], true);
        m_byShortCutID[i] = static_cast<unsigned char>(m_nDefaultShortCutID[i]);
        settings.Update();
    }
}

void CLQTitleDialog::UpdateAllShortCutIcon() {
    CLQIniReadWrite settings;
    settings.SetFileName(m_strConfigDir);
    for (int i = 0; i < kShortCutCount; ++i) {
        // The key stands in the section's place, which CLQIniReadWrite takes as well. An id is cut to a byte.
        const int id = settings.GetInt(KeyOfButton(i).c_str(), kPanelSection, m_nDefaultShortCutID[i]);
        m_byShortCutID[i] = static_cast<unsigned char>(id);
    }
    for (int i = 0; i < kShortCutCount; ++i) {
        if (const wchar_t* const source = korvane::SourceName(m_byShortCutID[i])) {
            std::wstring name = source;
            SetShortCutBtnSurf(m_pShortCutBtn[i], name.data());
        }
        SetShortCutBtnDisableState(m_pShortCutBtn[i], m_byShortCutID[i]);
    }
}
