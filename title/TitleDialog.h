#pragma once

#include <memory>
#include <string>

#include "engine/core/Borrowed.h"
#include "engine/draw/Surface.h"
#include "engine/system/Timer.h"
#include "engine/widgets/Button.h"
#include "engine/widgets/Static.h"
#include "engine/window/GroupCtrl.h"
#include "engine/window/Window.h"
#include "sysinfo/ShareMemLink.h"

/// The title and status strip at the top of every screen, with the shortcut panel for switching sources.
///
/// It is built from the layouts "GpTitle.bin", "dlgShortCut.bin" and "dlgshortcutshadow.bin", finds its
/// controls in them by name, and does without those that are missing. What it shows of the system follows
/// the system-information service: from `OnInit` on, and at each message 1191.
///
/// As the panel hangs below the strip, give the window the size of the screen; it has no background and lets
/// touches through where it shows nothing.
///
/// A control that the layouts lack, or that the application deletes, is done without. A copy shares the
/// controls, the timers and the link to the service. A timer ticks for the dialog that started it and ends
/// with that; the buttons go on answering to the dialog that built them.
class KORVANEEX_API CLQTitleDialog : public CLQWindow {
  public:
    CLQTitleDialog();
    CLQTitleDialog(const CLQTitleDialog& other);
    CLQTitleDialog& operator=(const CLQTitleDialog& other);
    ~CLQTitleDialog() override;

    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;
    /// An empty string.
    std::wstring GetDialogName() override;
    /// Builds the strip and the panel, in place of those of an earlier call. The result is that of
    /// CLQWindow::OnInit.
    bool OnInit() override;
    /// Hook for a press on the back button; does nothing.
    void OnBtnBackPressUp() override;

    /// Shows a title; `hideMs` above 0 clears it after so many milliseconds. A null text changes nothing.
    void SetTitleInfo(const wchar_t* text, bool scroll, int hideMs);
    /// The same with a text of the language table.
    void SetTitleInfo(int langId, bool scroll, int hideMs);
    /// Shows an image instead of the title. A null name clears the text alone, and leaves image and time-out
    /// as they are.
    void SetTitleIcon(const wchar_t* imageFile, int hideMs);
    std::wstring GetTitleInfo();
    /// The image below the strip. A null name changes nothing.
    void SetTitleBkgSurf(const wchar_t* imageFile);
    /// The caption of the back button, which is its element 1.
    void SetTitleBackBtnID(int langId);
    /// Shows the back button in place of the status icons; no traffic announcement is shown meanwhile.
    void SetTitleBackBtnShow(bool show);
    /// Moves the strip to its default position and shows it.
    void MoveTitleToDefaultPos();
    /// (0, 19) before `OnInit`, then where the layout puts the strip on the screen.
    void GetTitleDefaultPos(int& x, int& y);
    /// Null before `OnInit`, like the groups of the panel.
    CLQGroupCtrl* GetGpTitle();
    /// Brings everything that the strip shows into line with the system information.
    void UpdateAllIcon();
    /// Which of the two zone buttons is offered: the one to the rear (true, as at first) or to the front.
    void SetSourceType(bool toRear);
    /// The state of the parking brake, 1 when nobody knows.
    unsigned char GetParkingStation();

    /// Shows the play time at the end of the title, which gives way, or hides it, as at first.
    void EnablePlayTime(bool show);
    /// In pixels; a negative width counts as 0. 162 at first.
    void SetPlayTimeWidth(int width);
    /// A null text counts as empty.
    void SetPlayTime(const wchar_t* text, bool scroll);
    /// Whether it can be seen: false also while a traffic announcement stands in its place.
    bool IsPlayTimeShow();

    /// The panel and the veil behind it, both hidden at first. The application shows them; a choice of a
    /// source hides them.
    CLQGroupCtrl* GetShortCutControl();
    CLQGroupCtrl* GetShortCurShadow();
    /// Called with the button when the panel's back button is released; the panel stays open.
    void SetShortCutBackCallBack(void (*callback)(void*));
    /// Makes the folder and those above it, unless it is there.
    void CreatConfigDir(std::wstring dir);

  private:
    // The controls: TitleControls.cpp.
    void BuildTitle();
    void FindTitleControls();
    void SplitTitleInfo();

    /// What message 1191 asks for.
    void RefreshItem(int item);

    // The title: TitleText.cpp.
    void ApplyHideTime(int hideMs);
    void ClearTitleIcon();
    void OnTimerHide(void*, int);

    // The icons: StatusIcons.cpp and RdsIcons.cpp.
    void UpdateGPS();
    void UpdateMute();
    void UpdateBT();
    void UpdateREG();
    void UpdatePTY();
    void UpdateAF();
    void UpdateTA();
    void UpdateTP();
    void OnTimerAFFlashing(void*, int);

    // The buttons: TitleButtons.cpp.
    void UpdateBackBtn();
    void UpdateGuideBtn();
    void UpdateSwitchBtn();
    void UpdateTACancelBtn();
    void OnBtnPressUp(void* ctrl);
    void PostMessageToMain(int msg, unsigned wParam, long lParam, bool send);

    // The clock: TitleClock.cpp.
    void UpdateTime();
    void ShowTime(CLQStatic& label, const std::wstring& time);
    void OnTimerUpdateTime(void*, int);

    // PlayTime.cpp and TrafficText.cpp.
    /// Shares the width of the title, and what the cancel button leaves free, between title and play time.
    void LayOutPlayTime();
    void UpdateTAText();

    // The panel: ShortcutPanel.cpp.
    void BuildShortCutPanel();
    void BuildShortCutShadow();
    void SetShortCutBtnSurf(CLQButton* button, wchar_t* name);
    void SetShortCutBtnDisableState(CLQButton* button, int id);
    void OnShurtCutBtnPressUp(void* ctrl);

    // What its buttons stand for: ShortcutConfig.cpp.
    void ReadShortCutDefaultID();
    void PrepareShortCutConfig();
    void SetDefaultShortCutIcon();
    void UpdateAllShortCutIcon();

    static constexpr int kShortCutCount = 5;

    void (*m_pfnShortCutBack)(void*) = nullptr;
    unsigned char m_byShortCutID[kShortCutCount] = {};
    // The window owns the three groups, the groups own what is in them.
    korvane::Borrowed<CLQButton> m_pShortCutBtn[kShortCutCount];
    korvane::Borrowed<CLQButton> m_pShortCutBack;
    korvane::Borrowed<CLQGroupCtrl> m_pGpShortCutShadow;
    korvane::Borrowed<CLQGroupCtrl> m_pGpShortCut;
    korvane::Borrowed<CLQGroupCtrl> m_pGpTitle;
    korvane::Borrowed<CLQStatic> m_pStInfo;
    korvane::Borrowed<CLQButton> m_pBtnTACancel;
    korvane::Borrowed<CLQButton> m_pBtnToFront;
    korvane::Borrowed<CLQButton> m_pBtnToRear;
    korvane::Borrowed<CLQButton> m_pBtnGuide;
    korvane::Borrowed<CLQButton> m_pBtnBack;
    korvane::Borrowed<CLQGroupCtrl> m_pGpIconInfo;
    korvane::Borrowed<CLQStatic> m_pIconGPS;
    korvane::Borrowed<CLQStatic> m_pIconMute;
    korvane::Borrowed<CLQStatic> m_pIconBT;
    korvane::Borrowed<CLQGroupCtrl> m_pGpRDS;
    korvane::Borrowed<CLQStatic> m_pIconREG;
    korvane::Borrowed<CLQStatic> m_pIconPTY;
    korvane::Borrowed<CLQStatic> m_pIconAF;
    korvane::Borrowed<CLQStatic> m_pIconTA;
    korvane::Borrowed<CLQStatic> m_pIconTP;
    korvane::Borrowed<CLQBaseCtrl> m_pGp12HR;
    korvane::Borrowed<CLQStatic> m_pSt24HR;
    korvane::Borrowed<CLQStatic> m_pSt12HR;
    korvane::Borrowed<CLQBaseCtrl> m_pIconAM;
    korvane::Borrowed<CLQBaseCtrl> m_pIconPM;
    CLQTimer m_timerUpdateTime;
    std::wstring m_strTime;
    bool m_bBackBtnShow = false;
    int m_nDefaultX = 0;
    int m_nDefaultY = 19;
    CLQShareMemLink m_link;
    /// The service's, or the link's own; null when the service has none.
    _LQSysInfo* m_pSysInfo = nullptr;
    bool m_bSourceType = true;
    CLQTimer m_timerAFFlashing;
    bool m_bAFFlashPhase = false;
    CLQSurfHandle m_surfAFNormal;
    CLQSurfHandle m_surfAFFocus;
    int m_nInfoWidth = 0;
    CLQTimer m_timerHide;
    bool m_bTitleIconShow = false;
    korvane::Borrowed<CLQStatic> m_pStPlayTime;
    int m_nPlayTimeWidth = 162;
    korvane::Borrowed<CLQGroupCtrl> m_pGpInfo;
    korvane::Borrowed<CLQStatic> m_pStTAText;
    std::wstring m_strConfigDir;
    int m_nDefaultShortCutID[kShortCutCount] = {-1, -1, -1, -1, -1};
    std::wstring m_strDefaultShortCutID;
    /// Unloads the link when the last of the copies that share it ends.
    std::shared_ptr<CLQShareMemLink> m_linkOwner;
};
