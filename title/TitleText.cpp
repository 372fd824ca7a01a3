#include "title/TitleDialog.h"

void CLQTitleDialog::SetTitleInfo(const wchar_t* text, bool scroll, int hideMs) {
    if (!m_pStInfo || !text)
        return;
    m_pStInfo->EnableTextScroll(scroll);
    if (m_bTitleIconShow)
        ClearTitleIcon();
    // Otherwise a change of the language would replace the text.
    m_pStInfo->SetLangID(0);
    m_pStInfo->SetText(text);
    ApplyHideTime(hideMs);
}

void CLQTitleDialog::SetTitleInfo(int langId, bool scroll, int hideMs) {
    if (!m_pStInfo)
        return;
    m_pStInfo->EnableTextScroll(scroll);
    // Also an image that the layout gave.
    ClearTitleIcon();
    m_pStInfo->SetLangID(langId);
    m_pStInfo->ChangeLanguage();
    ApplyHideTime(hideMs);
}

void CLQTitleDialog::SetTitleIcon(const wchar_t* imageFile, int hideMs) {
    if (!m_pStInfo)
        return;
    m_pStInfo->EnableTextScroll(false);
    m_pStInfo->SetLangID(0);
    m_pStInfo->SetText(L"");
    if (!imageFile)
        return;
    m_pStInfo->SetBkgSurf(imageFile);
    m_bTitleIconShow = true;
    ApplyHideTime(hideMs);
}

std::wstring CLQTitleDialog::GetTitleInfo() {
    return m_pStInfo ? m_pStInfo->GetText() : std::wstring();
}

void CLQTitleDialog::ClearTitleIcon() {
    m_pStInfo->SetBkgSurf(L"");
    m_bTitleIconShow = false;
}

void CLQTitleDialog::ApplyHideTime(int hideMs) {
    if (hideMs <= 0) {
        m_timerHide.StopTimer();
        return;
    }
    m_timerHide.SetCallBack(this, &CLQTitleDialog::OnTimerHide);
    m_timerHide.SetTimer(hideMs);
    m_timerHide.StartTimer();
}

void CLQTitleDialog::OnTimerHide(void*, int) {
    m_timerHide.StopTimer();
    if (!m_pStInfo)
        return;
    if (m_bTitleIconShow) {
        ClearTitleIcon();
    } else {
        m_pStInfo->SetText(L"");
        m_pStInfo->SetLangID(0);
    }
}
