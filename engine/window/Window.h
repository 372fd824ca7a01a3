#pragma once

#include <string>
#include <vector>

#include "engine/window/BaseCtrl.h"
#include "engine/window/parts/Background.h"
#include "engine/window/parts/ChildList.h"
#include "engine/window/parts/ChildRouting.h"
#include "engine/window/parts/UpdateRegion.h"

/// A dialog or screen that owns controls. `Create` puts it on top of the windows on the screen, its end takes
/// it off.
///
/// The application calls `Create`, then `OnInit`. Children that were created with `new` are deleted with the
/// window (see CLQWnd::operator new). A window without a background is transparent, to the eye and, where no
/// control consumes them, to touches.
class KORVANE_API CLQWindow : public CLQWnd {
  public:
    CLQWindow();
    /// A copy has the background of its source and shares its controls, but is not on the screen.
    CLQWindow(const CLQWindow& other);
    CLQWindow& operator=(const CLQWindow& other);
    ~CLQWindow() override;

    bool Create(int x, int y, int width, int height) override;
    void SetSize(int width, int height) override;
    void Move(int dx, int dy) override;
    void MoveTo(int x, int y) override;
    void SetShow(bool show) override;
    void LoadResource() override;
    bool DoMessage(_LQMessage* msg) override;
    /// Paints the background and all shown controls, as far as they lie inside the target's clip.
    void Draw(CLQSurfHandle& target) override;
    bool DoCommand(_LQMessage* msg) override;
    void ChangeLanguage() override;

    virtual std::wstring GetDialogName();
    /// Hook: build the window's contents. The application calls it once after `Create`.
    virtual bool OnInit();
    /// Hook for a transition when the window comes (true) or goes.
    virtual void OnTransEffect(CLQSurfHandle& target, bool enter);
    virtual void OnBtnBackPressUp();

    void AddChild(CLQBaseCtrl* child);
    bool DelChild(CLQBaseCtrl* child, bool destroy);
    int GetChildCount() const;
    CLQBaseCtrl* GetChild(int index) const;

    /// Moves the focus to a control of this window; null takes it away.
    void SetFocusCtrl(CLQBaseCtrl* ctrl);
    CLQBaseCtrl* GetFocusCtrl() const;
    /// Hands all pointer messages to one control, until the next release has been handed to it or until
    /// another control, or null, is named.
    void SetRecvMsgCtrl(CLQBaseCtrl* ctrl);

    /// Switches the collecting of repaint rectangles off and on. While it is off, an invalidated control is
    /// marked but not repainted.
    void EnableUpdateRect(bool enable);
    void ClearUpdateRectVec();
    /// Paints the window's background into a rectangle of the target given by its edges in screen
    /// coordinates.
    void FillBkgRect(CLQSurfHandle& target, int left, int top, int right, int bottom);

    void SetBkgSurf(const wchar_t* file);
    void EnableBkgColor(bool enable, _LQColor* color);

    /// True when the address is that of a control of this window, at any depth. It is compared, not used.
    bool HoldsCtrl(const void* ctrl) const;

    /// Has a rectangle of the screen repainted.
    void InvalidateRect(const _LQRect& rect);
    /// The rectangles that wait for repainting.
    const korvane::UpdateRegion& GetUpdateRects() const;
    /// True when the background hides everything below this rectangle.
    bool IsOpaqueIn(const _LQRect& rect);

  private:
    friend class CLQBaseCtrl;
    friend class CLQScreen;

    _LQRect ScreenRect() const;
    void AbandonChildren();
    void AdoptOrphans();
    void DropInput();
    void ForgetCtrl(CLQBaseCtrl* ctrl);
    bool RoutePointer(const _LQMessage& msg);
    bool RouteKey(const _LQMessage& msg);
    bool PressFocused();
    bool ReleasePressed();
    bool MoveFocus(int key);

    korvane::ChildList m_children;
    /// All controls whose owner this window is, those inside groups included.
    std::vector<CLQBaseCtrl*> m_placed;
    korvane::UpdateRegion m_updateRects;
    korvane::Capture m_captured;
    korvane::Capture m_recvMsg;
    /// The control that a key has pressed.
    korvane::Capture m_keyPressed;
    bool m_bHoldsPress = false;
    bool m_bUpdateRect = true;
    CLQBaseCtrl* m_pFocusCtrl = nullptr;
    korvane::LifeWatch m_focusLife;
    korvane::Background m_background;
};
