#pragma once

#include <string>

#include "engine/core/Borrowed.h"
#include "engine/widgets/Button.h"
#include "engine/widgets/ImageView.h"
#include "engine/widgets/Static.h"
#include "engine/window/GroupCtrl.h"
#include "platform/Export.h"

/// A panel in which the user steps through the entries of a USB medium one at a time: the current entry under
/// its icon, the names above and below it, and an arrow at either end.
///
/// It has no list and reads no files. The application shows three names with `ChangImage`, and learns by a
/// callback what the user asks for. In root mode, in which there is nothing to show, the view has a large
/// picture and the name of the medium, and takes no input.
///
/// A touch of an arrow asks for the entry above or below; so does a swipe down or up, and a swipe to the
/// right asks to open the current entry. The view alone takes input: its children get none.
///
/// Copies share the children. The callback may delete the view.
class KORVANEEX_API CLQFileView : public CLQGroupCtrl {
  public:
    /// What the callback gets.
    enum Request : int {
        kRequestOpen = 0,
        kRequestDown = 1,
        kRequestUp = 2,
    };

    CLQFileView();
    CLQFileView(const CLQFileView& other);
    CLQFileView& operator=(const CLQFileView& other);
    ~CLQFileView() override;

    /// Places the children as well, in the window's coordinates, also when the view cannot be placed. The top
    /// and the bottom label have rows of their own, 110 and 409, whatever `y` is.
    bool Create(int x, int y, int width, int height) override;
    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;

    /// The name of the medium; "MY USB" at first. Null is ignored. Outside root mode it shows from the next
    /// entry into it.
    void SetRootName(const wchar_t* name);
    /// Registers the function that gets the requests, a `void (*)(int request)`. Null: none. True when there
    /// is one.
    bool LQ_FV_Register(void* callback);
    /// Shows the current entry and its neighbours. An arrow shows where there is a name to go to. Null counts
    /// as empty, and three empty names enter root mode.
    ///
    /// No label scrolls afterwards, whatever `noScroll` is.
    void ChangImage(const wchar_t* upText, const wchar_t* downText, const wchar_t* centreText, bool noScroll);
    /// Enters root mode. Left by this, it shows until the next `ChangImage`.
    void OnUpdateFileViewCtrl(bool rootMode);

  protected:
    using RequestCallBack = void (*)(int request);

    /// Owned by the group; null where memory ran out and after their end.
    korvane::Borrowed<CLQButton> m_pBtnUp;
    korvane::Borrowed<CLQStatic> m_pStTop;
    korvane::Borrowed<CLQImageView> m_pImageIcon;
    korvane::Borrowed<CLQButton> m_pBtnDown;
    korvane::Borrowed<CLQStatic> m_pStBottom;
    korvane::Borrowed<CLQStatic> m_pStCentre;
    bool m_bContentSet = false;  ///< entries were shown once
    int m_nPressY = 0;
    bool m_bOpenArmed = false;  ///< a press fell where such a swipe may begin
    bool m_bSwipeUpArmed = false;
    bool m_bSwipeDownArmed = false;
    bool m_bNoScroll = false;
    int m_nPressX = 0;
    std::wstring m_strRootName;
    RequestCallBack m_pfnRequest = nullptr;
    bool m_bRootMode = false;

    /// 1 once a press has armed a swipe up or down in any view of the process; never cleared.
    static unsigned char s_byBandTouched;

  private:
    /// What the arrows would ask for if they took input themselves.
    void OnBtnUp(void* button);
    void EnableLabelScroll(bool enable);
    bool DoPress(const _LQMessage& msg);
    bool DoRelease(const _LQMessage& msg);
    void TakeInput();
    /// False when the callback destroyed the view.
    bool SendRequest(Request request);
};
