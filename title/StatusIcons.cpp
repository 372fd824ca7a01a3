#include "title/TitleDialog.h"

void CLQTitleDialog::UpdateGPS() {
    if (m_pIconGPS && m_pSysInfo)
        m_pIconGPS->SetShow(m_pSysInfo->gps != 0);
}

void CLQTitleDialog::UpdateMute() {
    if (m_pIconMute && m_pSysInfo)
        m_pIconMute->SetShow(m_pSysInfo->mute != 0);
}

void CLQTitleDialog::UpdateBT() {
    if (!m_pIconBT || !m_pSysInfo)
        return;
    switch (m_pSysInfo->btState) {
        case 0:
            m_pIconBT->SetBkgSurf(L"");
            break;
        case 1:
            m_pIconBT->SetBkgSurf(L"title_icon_bt_gray.lqi");
            break;
        case 2:
            m_pIconBT->SetBkgSurf(L"title_icon_bt_active.lqi");
            break;
        default:
            // A state in between: the last icon stays.
            break;
    }
}
