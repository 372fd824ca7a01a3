#include "title/TitleDialog.h"

void CLQTitleDialog::PrepareShortCutConfig() {}
void CLQTitleDialog::BuildShortCutPanel() {}
void CLQTitleDialog::BuildShortCutShadow() {}
void CLQTitleDialog::ReadShortCutDefaultID() {}
void CLQTitleDialog::SetDefaultShortCutIcon() {}
void CLQTitleDialog::UpdateAllShortCutIcon() {}
void CLQTitleDialog::SetShortCutBtnSurf(CLQButton*, wchar_t*) {}
void CLQTitleDialog::SetShortCutBtnDisableState(CLQButton*, int) {}
void CLQTitleDialog::OnShurtCutBtnPressUp(void*) {}
CLQGroupCtrl* CLQTitleDialog::GetShortCutControl() {
    return m_pGpShortCut;
}
CLQGroupCtrl* CLQTitleDialog::GetShortCurShadow() {
    return m_pGpShortCutShadow;
}
void CLQTitleDialog::SetShortCutBackCallBack(void (*callback)(void*)) {
    m_pfnShortCutBack = callback;
}
void CLQTitleDialog::CreatConfigDir(std::wstring) {}
