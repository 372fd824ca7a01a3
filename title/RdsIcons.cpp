#include "engine/draw/SurfManager.h"
#include "title/TitleDialog.h"

namespace {

constexpr wchar_t kAFNormal[] = L"title_icon_af_n.lqi";
constexpr wchar_t kAFFocus[] = L"title_icon_af_f.lqi";

bool IsOffered(const _LQSysInfo& info, korvane::RdsIcon icon) {
    return (info.rdsIconMask & icon) != 0;
}

/// What the icon of something that is merely on or off shows; nothing when it is not offered.
const wchar_t* IconImage(bool offered, unsigned char on, const wchar_t* normal, const wchar_t* focus) {
    if (!offered)
        return L"";
    return on != 0 ? focus : normal;
}

/// The image, which is loaded when it is needed first.
CLQSurfHandle& Loaded(CLQSurfHandle& image, const wchar_t* file) {
    if (!image.GetSurface())
        image = CLQSurfManager::GetInstance()->CreateSurface(file, true);
    return image;
}

}  // namespace

void CLQTitleDialog::UpdateREG() {
    if (m_pIconREG && m_pSysInfo)
        m_pIconREG->SetBkgSurf(IconImage(IsOffered(*m_pSysInfo, korvane::kRdsIconReg), m_pSysInfo->regOn,
                                         L"title_icon_reg_n.lqi", L"title_icon_reg_f.lqi"));
}

void CLQTitleDialog::UpdatePTY() {
    if (m_pIconPTY && m_pSysInfo)
        m_pIconPTY->SetBkgSurf(IconImage(IsOffered(*m_pSysInfo, korvane::kRdsIconPty), m_pSysInfo->ptyOn,
                                         L"title_icon_pty_n.lqi", L"title_icon_pty_f.lqi"));
}

void CLQTitleDialog::UpdateTA() {
    if (m_pIconTA && m_pSysInfo)
        m_pIconTA->SetBkgSurf(IconImage(IsOffered(*m_pSysInfo, korvane::kRdsIconTa), m_pSysInfo->taOn,
                                        L"title_icon_ta_n.lqi", L"title_icon_ta_f.lqi"));
}

void CLQTitleDialog::UpdateTP() {
    if (m_pIconTP && m_pSysInfo)
        m_pIconTP->SetBkgSurf(IconImage(IsOffered(*m_pSysInfo, korvane::kRdsIconTp), m_pSysInfo->tpOn,
                                        L"title_icon_tp_n.lqi", L"title_icon_tp_f.lqi"));
}

void CLQTitleDialog::UpdateAF() {
    if (!m_pIconAF || !m_pSysInfo)
        return;
    if (!IsOffered(*m_pSysInfo, korvane::kRdsIconAf)) {
        m_pIconAF->SetBkgSurf(L"");
        m_timerAFFlashing.StopTimer();
        return;
    }
    // Read once: another process may write it meanwhile.
    const unsigned char state = m_pSysInfo->afState;
    if (state <= 1) {
        m_pIconAF->SetBkgSurf(state == 1 ? kAFFocus : kAFNormal);
        m_bAFFlashPhase = state == 0;
        m_timerAFFlashing.StopTimer();
    } else if (!m_timerAFFlashing.IsActived()) {
        m_timerAFFlashing.SetCallBack(this, &CLQTitleDialog::OnTimerAFFlashing);
        m_timerAFFlashing.StartTimer();
        OnTimerAFFlashing(nullptr, 0);
    }
}

void CLQTitleDialog::OnTimerAFFlashing(void*, int) {
    if (!m_pIconAF) {
        m_timerAFFlashing.StopTimer();
        return;
    }
    m_pIconAF->SetBkgSurf(m_bAFFlashPhase ? Loaded(m_surfAFFocus, kAFFocus)
                                          : Loaded(m_surfAFNormal, kAFNormal));
    m_bAFFlashPhase = !m_bAFFlashPhase;
}
