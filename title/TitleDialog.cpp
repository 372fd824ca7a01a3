#include "title/TitleDialog.h"

#include "engine/core/Message.h"

namespace {

constexpr int kClockPeriod = 5000;
constexpr int kAFFlashPeriod = 500;
constexpr int kDefaultHideTime = 3000;

/// What all copies of a loaded link hold in common; its end is that of the link.
std::shared_ptr<CLQShareMemLink> ShareLink(const CLQShareMemLink& link) {
    return {new CLQShareMemLink(link), [](CLQShareMemLink* shared) {
                shared->Unload();
                delete shared;
            }};
}

}  // namespace

CLQTitleDialog::CLQTitleDialog() {
    m_timerUpdateTime.SetCallBack(this, &CLQTitleDialog::OnTimerUpdateTime);
    m_timerUpdateTime.SetTimer(kClockPeriod);
    m_timerUpdateTime.StartTimer();
    m_timerAFFlashing.SetTimer(kAFFlashPeriod);
    m_timerHide.SetTimer(kDefaultHideTime);

    m_link.Load();
    m_pSysInfo = m_link.GetSysInfo();
    m_linkOwner = ShareLink(m_link);

    ReadShortCutDefaultID();
}

CLQTitleDialog::CLQTitleDialog(const CLQTitleDialog& other) = default;

CLQTitleDialog& CLQTitleDialog::operator=(const CLQTitleDialog& other) = default;

CLQTitleDialog::~CLQTitleDialog() = default;

void CLQTitleDialog::Draw(CLQSurfHandle& target) {
    CLQWindow::Draw(target);
}

std::wstring CLQTitleDialog::GetDialogName() {
    return std::wstring();
}

bool CLQTitleDialog::OnInit() {
    const bool initialised = CLQWindow::OnInit();
    PrepareShortCutConfig();
    BuildTitle();
    BuildShortCutPanel();
    BuildShortCutShadow();
    UpdateTAText();
    UpdateAllIcon();
    UpdateAllShortCutIcon();
    return initialised;
}

bool CLQTitleDialog::DoMessage(_LQMessage* msg) {
    if (msg && msg->code == korvane::kMsgSysInfoChanged)
        RefreshItem(msg->param);
    return CLQWindow::DoMessage(msg);
}

void CLQTitleDialog::RefreshItem(int item) {
    switch (item) {
        case korvane::kItemBluetooth:
            UpdateBT();
            UpdateAllShortCutIcon();
            break;
        case korvane::kItemClockForm:
            m_strTime.clear();
            UpdateTime();
            break;
        case korvane::kItemMute:
            UpdateMute();
            break;
        case korvane::kItemRdsIcons:
            UpdateREG();
            UpdatePTY();
            UpdateAF();
            UpdateTA();
            UpdateTP();
            break;
        case korvane::kItemReg:
            UpdateREG();
            break;
        case korvane::kItemPty:
            UpdatePTY();
            break;
        case korvane::kItemAf:
            UpdateAF();
            break;
        case korvane::kItemTa:
            UpdateTA();
            break;
        case korvane::kItemTp:
            UpdateTP();
            break;
        case korvane::kItemGps:
            UpdateGPS();
            break;
        case korvane::kItemGuide:
            UpdateGuideBtn();
            break;
        case korvane::kItemTrafficAnnouncement:
            UpdateTACancelBtn();
            break;
        case korvane::kItemZones:
            UpdateSwitchBtn();
            break;
        case korvane::kItemLanguage:
            UpdateTAText();
            break;
        case korvane::kItemUsb:
        case korvane::kItemDiscAudio:
        case korvane::kItemDiscVideo:
        case korvane::kItemIpod:
        case korvane::kItemTv:
        case korvane::kItemAux:
        case korvane::kItemNavi:
            UpdateAllShortCutIcon();
            break;
        default:
            break;
    }
}

void CLQTitleDialog::UpdateAllIcon() {
    UpdateTACancelBtn();
    UpdateSwitchBtn();
    UpdateGuideBtn();
    UpdateREG();
    UpdatePTY();
    UpdateAF();
    UpdateTA();
    UpdateTP();
    UpdateGPS();
    UpdateMute();
    UpdateBT();
    UpdateTime();
    UpdateBackBtn();
}

void CLQTitleDialog::SetTitleBkgSurf(const wchar_t* imageFile) {
    if (m_pGpTitle && imageFile)
        m_pGpTitle->SetBkgSurf(imageFile);
}

void CLQTitleDialog::MoveTitleToDefaultPos() {
    if (!m_pGpTitle)
        return;
    m_pGpTitle->MoveTo(m_nDefaultX, m_nDefaultY);
    m_pGpTitle->SetShow(true);
}

void CLQTitleDialog::GetTitleDefaultPos(int& x, int& y) {
    x = m_nDefaultX;
    y = m_nDefaultY;
}

CLQGroupCtrl* CLQTitleDialog::GetGpTitle() {
    return m_pGpTitle;
}

unsigned char CLQTitleDialog::GetParkingStation() {
    return m_pSysInfo ? m_pSysInfo->parking : 1;
}
