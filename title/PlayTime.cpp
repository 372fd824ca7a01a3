#include <algorithm>

#include "title/TitleDialog.h"

void CLQTitleDialog::EnablePlayTime(bool show) {
    if (!m_pStPlayTime)
        return;
    m_pStPlayTime->SetShow(show);
    LayOutPlayTime();
}

void CLQTitleDialog::SetPlayTimeWidth(int width) {
    m_nPlayTimeWidth = std::clamp(width, 0, korvane::kMaxExtent);
    if (!m_pStPlayTime)
        return;
    int oldWidth;
    int height;
    m_pStPlayTime->GetSize(oldWidth, height);
    m_pStPlayTime->SetSize(m_nPlayTimeWidth, height);
    LayOutPlayTime();
}

void CLQTitleDialog::SetPlayTime(const wchar_t* text, bool scroll) {
    if (!m_pStPlayTime)
        return;
    m_pStPlayTime->EnableTextScroll(scroll);
    // Otherwise a change of the language would replace the text.
    m_pStPlayTime->SetLangID(0);
    m_pStPlayTime->SetText(text);
}

bool CLQTitleDialog::IsPlayTimeShow() {
    return m_pStPlayTime && m_pStPlayTime->IsOwnerShow();
}

void CLQTitleDialog::LayOutPlayTime() {
    if (!m_pStInfo || !m_pBtnTACancel)
        return;
    int buttonWidth;
    int buttonHeight;
    m_pBtnTACancel->GetSize(buttonWidth, buttonHeight);
    int oldWidth;
    int height;
    m_pStInfo->GetSize(oldWidth, height);
    // From the width in the layout, so that a repetition gives the same.
    const int room = m_nInfoWidth + buttonWidth;
    // Shown in its own right: a traffic announcement hides title and play time together.
    if (!m_pStPlayTime || !m_pStPlayTime->IsShow()) {
        m_pStInfo->SetSize(room, height);
        return;
    }
    constexpr int kGap = 10;  // pixels between title and play time
    m_pStInfo->SetSize(room - m_nPlayTimeWidth - kGap, height);
    int x;
    int y;
    m_pStInfo->GetPos(x, y);
    m_pStPlayTime->MoveTo(x + room - m_nPlayTimeWidth, y);
}
