#include "demo/headunit/strip/TitleStrip.h"

#include "demo/headunit/media/PlayTimeText.h"
#include "demo/headunit/strip/ShortcutCaptions.h"

namespace korvane::demo {

namespace {

constexpr int kNoticeMs = 3000;
/// The title comes back a moment after the strip has cleared the notice.
constexpr int kTitleReturnsMs = kNoticeMs + 200;

}  // namespace

bool TitleStrip::OnInit() {
    const bool result = CLQTitleDialog::OnInit();
    // The dialog hands over the button alone; the strip is the window that holds it.
    SetShortCutBackCallBack([](void* button) {
        static_cast<TitleStrip*>(static_cast<CLQButton*>(button)->GetFatherWnd())->CloseShortcuts();
    });
    noticeTimer_.SetTimer(kTitleReturnsMs);
    noticeTimer_.SetCallBack(this, &TitleStrip::OnNoticeGone);
    return result;
}

bool TitleStrip::DoMessage(_LQMessage* msg) {
    if (msg && msg->code == kMsgKeyDown && msg->param == VK_ESCAPE) {
        OnBtnBackPressUp();
        return true;
    }
    // The other keys are for the screen below, unless the panel covers it.
    const bool isKey = msg && (msg->code == kMsgKeyDown || msg->code == kMsgKeyUp);
    if (isKey && !ShowsShortcuts())
        return false;
    const bool isSystemChange = msg && msg->code == kMsgSysInfoChanged;
    const int item = isSystemChange ? msg->param : 0;
    const bool result = CLQTitleDialog::DoMessage(msg);
    if (isSystemChange && onSystemChanged_)
        onSystemChanged_(item);
    return result;
}

void TitleStrip::OnBtnBackPressUp() {
    if (onBack_)
        onBack_();
}

void TitleStrip::ShowTitle(int caption) {
    title_ = caption;
    noticeTimer_.StopTimer();
    SetTitleInfo(caption, true, 0);
}

void TitleStrip::ShowNotice(int caption) {
    SetTitleInfo(caption, false, kNoticeMs);
    noticeTimer_.StartTimer();
}

void TitleStrip::ShowNotice(const wchar_t* picture) {
    SetTitleIcon(picture, kNoticeMs);
    noticeTimer_.StartTimer();
}

void TitleStrip::OnNoticeGone(void*, int) {
    ShowTitle(title_);
}

void TitleStrip::OpenShortcuts() {
    if (CLQGroupCtrl* const panel = GetShortCutControl())
        CaptionShortcuts(*panel);
    ShowShortcuts(true);
}

void TitleStrip::CloseShortcuts() {
    ShowShortcuts(false);
}

bool TitleStrip::ShowsShortcuts() {
    CLQGroupCtrl* const panel = GetShortCutControl();
    return panel && panel->IsShow();
}

void TitleStrip::ShowShortcuts(bool show) {
    for (CLQGroupCtrl* const group : {GetShortCurShadow(), GetShortCutControl()}) {
        if (group)
            group->SetShow(show);
    }
}

void TitleStrip::ShowPlayTime(int seconds) {
    SetPlayTime(PlayTimeText(seconds).c_str(), false);
    if (!IsPlayTimeShow())
        EnablePlayTime(true);
}

}  // namespace korvane::demo
