#include "engine/core/Message.h"
#include "title/TitleDialog.h"

namespace {

/// The control of that name and class; null for a missing one and for one of another class.
template <class Ctrl>
Ctrl* FindCtrlOfClass(CLQGroupCtrl& group, const wchar_t* name) {
    return dynamic_cast<Ctrl*>(group.FindCtrl(name));
}

/// A hidden copy under a name of its own. Null when a class of the application clones into another one.
std::unique_ptr<CLQStatic> CloneHidden(CLQStatic& original, const wchar_t* name) {
    std::unique_ptr<CLQBaseCtrl> clone(original.Clone());
    if (!dynamic_cast<CLQStatic*>(clone.get()))
        return nullptr;
    clone->SetCtrlName(name);
    clone->SetShow(false);
    return std::unique_ptr<CLQStatic>(static_cast<CLQStatic*>(clone.release()));
}

}  // namespace

void CLQTitleDialog::BuildTitle() {
    // What an earlier strip showed, and still had to do, ends with it.
    DelChild(m_pGpTitle, true);
    m_timerAFFlashing.StopTimer();
    m_timerHide.StopTimer();
    m_bTitleIconShow = false;
    m_strTime.clear();

    auto title = std::make_unique<CLQGroupCtrl>();
    title->LoadGroupCtrlFromBin(L"GpTitle.bin");
    m_pGpTitle = title.get();
    AddChild(title.release());
    m_pGpTitle->BuildRelationNameToPtr();
    m_pGpTitle->GetScreenXY(m_nDefaultX, m_nDefaultY);
    FindTitleControls();
    m_pGpTitle->ReleaseRelationMap();
    SplitTitleInfo();
}

void CLQTitleDialog::FindTitleControls() {
    CLQGroupCtrl& title = *m_pGpTitle;
    m_pStInfo = FindCtrlOfClass<CLQStatic>(title, L"StInfo");
    if (m_pStInfo) {
        int height;
        m_pStInfo->GetSize(m_nInfoWidth, height);
    }
    m_pBtnTACancel = FindCtrlOfClass<CLQButton>(title, L"BtnTACancel");
    m_pBtnToFront = FindCtrlOfClass<CLQButton>(title, L"BtnToFront");
    m_pBtnToRear = FindCtrlOfClass<CLQButton>(title, L"BtnToRear");
    m_pBtnGuide = FindCtrlOfClass<CLQButton>(title, L"BtnGuide");
    m_pBtnBack = FindCtrlOfClass<CLQButton>(title, L"BtnBack");
    m_pGpIconInfo = FindCtrlOfClass<CLQGroupCtrl>(title, L"GpIconInfo");
    m_pIconGPS = FindCtrlOfClass<CLQStatic>(title, L"IconGPS");
    m_pIconMute = FindCtrlOfClass<CLQStatic>(title, L"IconMute");
    m_pIconBT = FindCtrlOfClass<CLQStatic>(title, L"IconBT");
    m_pGpRDS = FindCtrlOfClass<CLQGroupCtrl>(title, L"GpRDS");
    m_pIconREG = FindCtrlOfClass<CLQStatic>(title, L"IconREG");
    m_pIconPTY = FindCtrlOfClass<CLQStatic>(title, L"IconPTY");
    m_pIconAF = FindCtrlOfClass<CLQStatic>(title, L"IconAF");
    m_pIconTA = FindCtrlOfClass<CLQStatic>(title, L"IconTA");
    m_pIconTP = FindCtrlOfClass<CLQStatic>(title, L"IconTP");
    m_pSt24HR = FindCtrlOfClass<CLQStatic>(title, L"St24HR");
    m_pGp12HR = title.FindCtrl(L"Gp12HR");
    m_pSt12HR = FindCtrlOfClass<CLQStatic>(title, L"St12HR");
    m_pIconAM = title.FindCtrl(L"IconAM");
    m_pIconPM = title.FindCtrl(L"IconPM");

    for (CLQButton* button : {m_pBtnTACancel.Get(), m_pBtnToFront.Get(), m_pBtnToRear.Get(),
                              m_pBtnGuide.Get(), m_pBtnBack.Get()}) {
        if (button)
            button->AddCallBack(korvane::kEventReleased, this, &CLQTitleDialog::OnBtnPressUp);
    }
}

/// Puts the title into a group that a traffic announcement hides, together with the play time; the text of
/// the announcement stands in its place then.
void CLQTitleDialog::SplitTitleInfo() {
    if (!m_pStInfo)
        return;
    m_pStInfo->SetTextScrollNum(1);
    std::unique_ptr<CLQStatic> trafficText = CloneHidden(*m_pStInfo, L"StTAText");
    std::unique_ptr<CLQStatic> playTime = CloneHidden(*m_pStInfo, L"StPlayTime");
    if (!trafficText || !playTime)
        return;
    int width;
    int height;
    playTime->GetSize(width, height);
    playTime->SetSize(m_nPlayTimeWidth, height);

    m_pStPlayTime = playTime.get();
    m_pStTAText = trafficText.get();

    auto info = std::make_unique<CLQGroupCtrl>();
    info->SetCtrlName(L"GpInfo");
    info->AddChild(m_pStInfo);
    info->AddChild(playTime.release());
    info->SetShow(true);
    m_pGpInfo = info.get();
    m_pGpTitle->AddChild(trafficText.release());
    m_pGpTitle->AddChild(info.release());
}
