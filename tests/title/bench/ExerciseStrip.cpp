#include "tests/title/bench/ExerciseStrip.h"

#include "engine/core/Message.h"
#include "title/TitleDialog.h"

#include "tests/support/Scene.h"

namespace korvane::test {

namespace {

/// A touch may end the group and what is in it.
void Touch(CLQGroupCtrl* touched, Scene& scene) {
    const Borrowed<CLQGroupCtrl> group = touched;
    for (int i = 0; group && i < group->GetChildCount(); ++i) {
        const Borrowed<CLQBaseCtrl> child = group->GetChild(i);
        if (!child)
            continue;
        const _LQRect rect = child->GetScreenRect();
        scene.Press((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
        scene.Release(rect.left, rect.top);
        Touch(dynamic_cast<CLQGroupCtrl*>(child.Get()), scene);
    }
}

}  // namespace

void ExerciseStrip(CLQTitleDialog& dialog, Scene& scene) {
    const wchar_t* const texts[] = {nullptr, L"", L"title"};
    for (const int time : {-1, 0, 10}) {
        for (const wchar_t* text : texts) {
            dialog.SetTitleInfo(text, true, time);
            dialog.SetTitleIcon(text, time);
            dialog.SetTitleBkgSurf(text);
            dialog.SetPlayTime(text, true);
        }
        dialog.SetTitleInfo(time, false, time);
        dialog.SetTitleBackBtnID(time);
        dialog.SetPlayTimeWidth(time);
        scene.Advance(20);
    }
    dialog.GetTitleInfo();
    dialog.GetParkingStation();
    dialog.MoveTitleToDefaultPos();
    for (const bool state : {true, false, true}) {
        dialog.EnablePlayTime(state);
        dialog.SetSourceType(state);
        dialog.SetTitleBackBtnShow(state);
        dialog.UpdateAllIcon();
        _LQMessage msg;
        msg.code = kMsgSysInfoChanged;
        for (msg.param = -1; msg.param <= 33; ++msg.param)
            dialog.DoMessage(&msg);
        dialog.IsPlayTimeShow();
        scene.Advance(1100);
        Touch(dialog.GetGpTitle(), scene);
        for (CLQGroupCtrl* panel : {dialog.GetShortCutControl(), dialog.GetShortCurShadow()}) {
            if (!panel)
                continue;
            panel->SetShow(true);
            Touch(panel, scene);
        }
    }
    dialog.ChangeLanguage();
    scene.Advance(5100);
}

}  // namespace korvane::test
