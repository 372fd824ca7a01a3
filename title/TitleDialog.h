#pragma once

#include <memory>
#include <string>

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
/// touches through where it shows nothing. A copy shares the controls and the link to the service.
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
    /// Builds the strip and the panel. The result is that of CLQWindow::OnInit.
    bool OnInit() override;
    /// Hook for a press on the back button; does nothing.
    void OnBtnBackPressUp() override;

    /// Shows a title; `hideMs` above 0 clears it after so many milliseconds. A null text changes nothing.
    void SetTitleInfo(const wchar_t* text, bool scroll, int hideMs);
    /// The same with a text of the language table.
    void SetTitleInfo(int langId, bool scroll, int hideMs);
    /// Shows an image instead of the title. A null name clears the title and leaves the time-out alone.
    void SetTitleIcon(const wchar_t* imageFile, int hideMs);
    std::wstring GetTitleInfo();
    void SetTitleBkgSurf(const wchar_t* imageFile);
    void SetTitleBackBtnID(int langId);
    /// Shows the back button in place of the status icons; no traffic announcement is shown meanwhile.
    void SetTitleBackBtnShow(bool show);
    void MoveTitleToDefaultPos();
    void GetTitleDefaultPos(int& x, int& y);
    /// Null before `OnInit`, like the groups of the panel.
    CLQGroupCtrl* GetGpTitle();
    /// Brings everything that the strip shows into line with the system information.
    void UpdateAllIcon();
    /// Which of the two zone buttons is offered: the one to the rear (true, as at first) or to the front.
    void SetSourceType(bool toRear);
    /// The state of the parking brake, 1 when nobody knows.
    unsigned char GetParkingStation();

    void EnablePlayTime(bool show);
    /// In pixels; a negative width counts as 0. 162 at first.
    void SetPlayTimeWidth(int width);
    void SetPlayTime(const wchar_t* text, bool scroll);
    bool IsPlayTimeShow();

    CLQGroupCtrl* GetShortCutControl();
    CLQGroupCtrl* GetShortCurShadow();
    /// Called with the button when the panel's back button is released; the panel stays open.
    void SetShortCutBackCallBack(void (*callback)(void*));
    void CreatConfigDir(std::wstring dir);

  private:
    void UpdateGPS();
    void UpdateMute();
    void UpdateBT();
    void UpdateREG();
    void UpdatePTY();
    void UpdateAF();
    void UpdateTA();
    void UpdateTP();
    void UpdateBackBtn();
    void UpdateGuideBtn();
    void UpdateSwitchBtn();
    void UpdateTACancelBtn();
    void OnTimerAFFlashing(void*, int);
    void OnTimerHide(void*, int);
    void OnBtnPressUp(void* ctrl);
    void PostMessageToMain(int msg, unsigned wParam, long lParam, bool send);

    void UpdateTime();
    void OnTimerUpdateTime(void*, int);
    void UpdateTAText();

    void ReadShortCutDefaultID();
    void SetDefaultShortCutIcon();
    void UpdateAllShortCutIcon();
    void SetShortCutBtnSurf(CLQButton* button, wchar_t* name);
    void SetShortCutBtnDisableState(CLQButton* button, int id);
    void OnShurtCutBtnPressUp(void* ctrl);

    // Steps of OnInit.
    void BuildTitle();
    void FindTitleControls();
    void SplitTitleInfo();
    void PrepareShortCutConfig();
    void BuildShortCutPanel();
    void BuildShortCutShadow();

    void LayOutPlayTime();
    void ApplyHideTime(int hideMs);
    void ClearTitleIcon();
    void ShowRdsIcon(CLQStatic* icon, unsigned char bit, bool on, const wchar_t* normal,
                     const wchar_t* focus);
    void RefreshItem(int item);

    static constexpr int kShortCutCount = 5;

    void (*m_pfnShortCutBack)(void*) = nullptr;
    unsigned char m_byShortCutID[kShortCutCount] = {};
    CLQButton* m_pShortCutBtn[kShortCutCount] = {};
    CLQButton* m_pShortCutBack = nullptr;
    // The window deletes the three groups; the groups delete what is in them.
    CLQGroupCtrl* m_pGpShortCutShadow = nullptr;
    CLQGroupCtrl* m_pGpShortCut = nullptr;
    CLQGroupCtrl* m_pGpTitle = nullptr;
    CLQStatic* m_pStInfo = nullptr;
    CLQButton* m_pBtnTACancel = nullptr;
    CLQButton* m_pBtnToFront = nullptr;
    CLQButton* m_pBtnToRear = nullptr;
    CLQButton* m_pBtnGuide = nullptr;
    CLQButton* m_pBtnBack = nullptr;
    CLQGroupCtrl* m_pGpIconInfo = nullptr;
    CLQStatic* m_pIconGPS = nullptr;
    CLQStatic* m_pIconMute = nullptr;
    CLQStatic* m_pIconBT = nullptr;
    CLQGroupCtrl* m_pGpRDS = nullptr;
    CLQStatic* m_pIconREG = nullptr;
    CLQStatic* m_pIconPTY = nullptr;
    CLQStatic* m_pIconAF = nullptr;
    CLQStatic* m_pIconTA = nullptr;
    CLQStatic* m_pIconTP = nullptr;
    CLQGroupCtrl* m_pGp12HR = nullptr;
    CLQStatic* m_pSt24HR = nullptr;
    CLQStatic* m_pSt12HR = nullptr;
    CLQStatic* m_pIconAM = nullptr;
    CLQStatic* m_pIconPM = nullptr;
    CLQTimer m_timerUpdateTime;
    std::wstring m_strTime;
    bool m_bBackBtnShow = false;
    int m_nDefaultX = 0;
    int m_nDefaultY = 19;
    CLQShareMemLink m_link;
    _LQSysInfo* m_pSysInfo = nullptr;
    bool m_bSourceType = true;
    CLQTimer m_timerAFFlashing;
    bool m_bAFFlashPhase = false;
    CLQSurfHandle m_surfAFNormal;
    CLQSurfHandle m_surfAFFocus;
    int m_nInfoWidth = 0;
    CLQTimer m_timerHide;
    bool m_bTitleIconShow = false;
    CLQStatic* m_pStPlayTime = nullptr;
    int m_nPlayTimeWidth = 162;
    CLQGroupCtrl* m_pGpInfo = nullptr;
    CLQStatic* m_pStTAText = nullptr;
    std::wstring m_strConfigDir;
    int m_nDefaultShortCutID[kShortCutCount] = {-1, -1, -1, -1, -1};
    std::wstring m_strDefaultShortCutID;
    /// Unloads the link when the last of the copies that share it ends.
    std::shared_ptr<CLQShareMemLink> m_linkOwner;
};
