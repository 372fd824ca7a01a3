#include "engine/widgets/elements/TextElement.h"
#include "sysinfo/MainApplication.h"
#include "title/TitleDialog.h"

namespace {

unsigned WordOf(korvane::TitleButton button) {
    return static_cast<unsigned>(button);
}

}  // namespace

void CLQTitleDialog::SetTitleBackBtnID(int langId) {
    if (!m_pBtnBack)
        return;
    constexpr int kCaption = 1;
    if (auto* caption = dynamic_cast<CLQTextElement*>(m_pBtnBack->GetGUIElement(kCaption)))
        caption->SetLangID(langId);
    m_pBtnBack->ChangeLanguage();
}

void CLQTitleDialog::SetTitleBackBtnShow(bool show) {
    if (show == m_bBackBtnShow)
        return;
    m_bBackBtnShow = show;
    UpdateBackBtn();
    UpdateTACancelBtn();
}

void CLQTitleDialog::SetSourceType(bool toRear) {
    m_bSourceType = toRear;
    UpdateSwitchBtn();
}

void CLQTitleDialog::UpdateBackBtn() {
    if (m_pBtnBack)
        m_pBtnBack->SetShow(m_bBackBtnShow);
    if (m_pGpIconInfo)
        m_pGpIconInfo->SetShow(!m_bBackBtnShow);
}

void CLQTitleDialog::UpdateGuideBtn() {
    if (m_pBtnGuide)
        m_pBtnGuide->SetShow(m_pSysInfo && m_pSysInfo->guideAvail != 0);
}

void CLQTitleDialog::UpdateSwitchBtn() {
    if (!m_pBtnToFront || !m_pBtnToRear)
        return;
    const bool offered = m_pSysInfo && m_pSysInfo->frontRearAvail != 0;
    m_pBtnToRear->SetShow(offered && m_bSourceType);
    m_pBtnToFront->SetShow(offered && !m_bSourceType);
}

void CLQTitleDialog::UpdateTACancelBtn() {
    if (!m_pBtnTACancel || !m_pStTAText || !m_pGpInfo)
        return;
    const bool announced = m_pSysInfo && m_pSysInfo->taActive != 0 && !m_bBackBtnShow;
    m_pBtnTACancel->SetShow(announced);
    m_pStTAText->SetShow(announced);
    m_pGpInfo->SetShow(!announced);
    LayOutPlayTime();
}

void CLQTitleDialog::OnBtnPressUp(void* ctrl) {
    korvane::RequestKeyBeep();
    const auto* button = static_cast<CLQBaseCtrl*>(ctrl);
    // Both the hook and the callback may delete this dialog: nothing may follow them.
    if (!button)
        return;
    if (button == m_pBtnTACancel)
        PostMessageToMain(korvane::kMainTitleButton, WordOf(korvane::TitleButton::TrafficCancel), 0, false);
    else if (button == m_pBtnToFront || button == m_pBtnToRear)
        PostMessageToMain(korvane::kMainTitleButton, WordOf(korvane::TitleButton::SwitchZone), 0, false);
    else if (button == m_pBtnGuide)
        PostMessageToMain(korvane::kMainTitleButton, WordOf(korvane::TitleButton::Guide), 0, false);
    else if (button == m_pBtnBack)
        OnBtnBackPressUp();
    else if (button == m_pShortCutBack && m_pfnShortCutBack)
        m_pfnShortCutBack(ctrl);
}

void CLQTitleDialog::OnBtnBackPressUp() {}

void CLQTitleDialog::PostMessageToMain(int msg, unsigned wParam, long lParam, bool send) {
    const HWND mainWindow = FindWindowW(nullptr, korvane::kMainWindowName);
    if (!mainWindow)
        return;
    const UINT code = static_cast<UINT>(msg);
    if (send)
        SendMessageW(mainWindow, code, wParam, lParam);
    else
        PostMessageW(mainWindow, code, wParam, lParam);
}
