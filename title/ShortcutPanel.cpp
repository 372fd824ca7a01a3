#include <string>

#include "sysinfo/MainApplication.h"
#include "title/ShortcutSources.h"
#include "title/TitleDialog.h"

void CLQTitleDialog::BuildShortCutPanel() {
    DelChild(m_pGpShortCut, true);
    auto panel = std::make_unique<CLQGroupCtrl>();
    panel->LoadGroupCtrlFromBin(L"dlgShortCut.bin");
    m_pGpShortCut = panel.get();
    AddChild(panel.release());
    m_pGpShortCut->BuildRelationNameToPtr();
    m_pGpShortCut->SetShow(false);
    for (int i = 0; i < kShortCutCount; ++i) {
        const std::wstring name = L"ShortCutBtn" + std::to_wstring(i + 1);
        m_pShortCutBtn[i] = dynamic_cast<CLQButton*>(m_pGpShortCut->FindCtrl(name.c_str()));
        if (m_pShortCutBtn[i])
            m_pShortCutBtn[i]->AddCallBack(korvane::kEventReleased, this,
                                           &CLQTitleDialog::OnShurtCutBtnPressUp);
    }
    m_pGpShortCut->ReleaseRelationMap();
}

void CLQTitleDialog::BuildShortCutShadow() {
    DelChild(m_pGpShortCutShadow, true);
    auto shadow = std::make_unique<CLQGroupCtrl>();
    shadow->LoadGroupCtrlFromBin(L"dlgshortcutshadow.bin");
    m_pGpShortCutShadow = shadow.get();
    AddChild(shadow.release());
    m_pGpShortCutShadow->BuildRelationNameToPtr();
    m_pShortCutBack = dynamic_cast<CLQButton*>(m_pGpShortCutShadow->FindCtrl(L"Button_shortcutback"));
    m_pGpShortCutShadow->SetShow(false);
    _LQColor veil = {8, 8, 8, 100};
    m_pGpShortCutShadow->EnableBkgColor(true, &veil);
    if (m_pShortCutBack)
        m_pShortCutBack->AddCallBack(korvane::kEventReleased, this, &CLQTitleDialog::OnBtnPressUp);
    m_pGpShortCutShadow->ReleaseRelationMap();

    // The panel lies over its shadow.
    DelChild(m_pGpShortCut, false);
    AddChild(m_pGpShortCut);
}

CLQGroupCtrl* CLQTitleDialog::GetShortCutControl() {
    return m_pGpShortCut;
}

CLQGroupCtrl* CLQTitleDialog::GetShortCurShadow() {
    return m_pGpShortCutShadow;
}

void CLQTitleDialog::SetShortCutBackCallBack(void (*callback)(void*)) {
    m_pfnShortCutBack = callback;
}

void CLQTitleDialog::SetShortCutBtnSurf(CLQButton* button, wchar_t* name) {
    if (!button || !name)
        return;
    constexpr int kPicture = 0;
    const std::wstring base = name;
    button->SetImagePath(kPicture, eImage_Normal, (base + L"_n.lqi").c_str());
    button->SetImagePath(kPicture, eImage_Pressed, (base + L"_p.lqi").c_str());
    button->SetImagePath(kPicture, eImage_Focus, (base + L"_f.lqi").c_str());
    button->SetImagePath(kPicture, eImage_Disabled, (base + L"_d.lqi").c_str());
}

void CLQTitleDialog::SetShortCutBtnDisableState(CLQButton* button, int id) {
    if (button)
        button->EnableWindow(korvane::IsSourcePresent(id, m_pSysInfo));
}

void CLQTitleDialog::OnShurtCutBtnPressUp(void* ctrl) {
    korvane::RequestKeyBeep();
    // Looked up once in this process, also in vain, and by class as well; unlike PostMessageToMain, and
    // meant.
    static const HWND mainWindow = FindWindowW(korvane::kMainWindowName, korvane::kMainWindowName);
    const auto* const pressed = static_cast<CLQBaseCtrl*>(ctrl);
    for (int i = 0; pressed && i < kShortCutCount; ++i) {
        if (m_pShortCutBtn[i] == pressed) {
            PostMessageW(mainWindow, korvane::kMainSourceChosen, 1, m_byShortCutID[i]);
            break;
        }
    }
    for (CLQGroupCtrl* const layer : {m_pGpShortCut.Get(), m_pGpShortCutShadow.Get()}) {
        if (layer)
            layer->SetShow(false);
    }
}
