#include "title/TitleDialog.h"

void CLQTitleDialog::UpdateTime() {}
void CLQTitleDialog::OnTimerUpdateTime(void*, int) {}
void CLQTitleDialog::LayOutPlayTime() {}
void CLQTitleDialog::UpdateTAText() {}
void CLQTitleDialog::EnablePlayTime(bool) {}
void CLQTitleDialog::SetPlayTimeWidth(int) {}
void CLQTitleDialog::SetPlayTime(const wchar_t*, bool) {}
bool CLQTitleDialog::IsPlayTimeShow() {
    return false;
}
