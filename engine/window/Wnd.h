#pragma once

#include <cstddef>
#include <new>
#include <string>

#include "engine/core/Life.h"
#include "engine/core/Message.h"
#include "engine/draw/Surface.h"
#include "platform/Export.h"

namespace korvane {

/// Sizes of windows and controls lie in 0 to kMaxExtent, positions in -kMaxPosition to kMaxPosition (pixels).
constexpr int kMaxExtent = 32767;
constexpr int kMaxPosition = 1000000;

/// Kind codes of windows and controls, as in layouts and in `CLQWnd::GetKind`.
enum WndKind : int {
    kKindWindow = 1,
    kKindGroup = 2,
    kKindButton = 3,
    kKindStatic = 4,
    kKindImageView = 5,
    kKindSlider = 6,
    kKindMenuItem = 50,
    kKindSliderEx = 51,
    kKindDialSlider = 52,
    kKindNumSlider = 53,
    kKindSwitchList = 54,
    kKindButtonTree = 56,
    kKindDialScale = 58,
};

}  // namespace korvane

/// Root of everything on screen. The order of the virtual operations is fixed.
class KORVANE_API CLQWnd {
  public:
    CLQWnd();
    CLQWnd(const CLQWnd& other);
    CLQWnd& operator=(const CLQWnd& other);
    virtual ~CLQWnd();

    /// Places the object. False, changing nothing, for a size or position out of range.
    virtual bool Create(int x, int y, int width, int height);
    /// A size out of range becomes the nearest in range.
    virtual void SetSize(int width, int height);
    /// Moves by an offset; `MoveTo` moves to a position. Both stop at the end of the range.
    virtual void Move(int dx, int dy);
    virtual void MoveTo(int x, int y);
    virtual void SetShow(bool show);
    /// Shown in its own right, whatever its owners are.
    virtual bool IsShow();
    /// Whether keys may give it the focus.
    virtual void EnableFocus(bool enable);
    /// Hook: load what is loaded by name. The engine's own classes load on first use and do nothing here.
    virtual void LoadResource();
    virtual void SetFocus(bool focus);
    /// Without message reception the object is as air to all input.
    virtual void EnableRecvMsg(bool enable);
    /// A disabled object takes no input and shows its disabled look if it has one.
    virtual void EnableWindow(bool enable);
    /// True when the message was consumed.
    virtual bool DoMessage(_LQMessage* msg);
    /// Paints at the absolute screen position into a surface that stands for the screen.
    virtual void Draw(CLQSurfHandle& target);
    /// Receives the click commands (273) that controls post to the screen's window; true when handled.
    virtual bool DoCommand(_LQMessage* msg);
    virtual void ChangeLanguage();

    void GetPos(int& x, int& y);
    void GetSize(int& width, int& height);
    bool IsFocus();
    bool IsFocusEnabled() const;
    bool IsRecvMsgEnabled() const;
    bool IsWindowEnabled() const;
    int GetKind() const;

    /// Ends with this object; see korvane::LifeWatch.
    korvane::LifeWatch WatchLife() const { return m_life.Watch(); }

    /// Groups and windows delete the children that were created with `new`, and only those: these operators
    /// note which objects were. CLQWnd has to be the first base of a class for that.
    static void* operator new(std::size_t size);
    static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
    static void* operator new(std::size_t size, void* where) noexcept;
    static void operator delete(void* memory) noexcept;
    static void operator delete(void* memory, const std::nothrow_t&) noexcept;
    static void operator delete(void* memory, void* where) noexcept;
    bool IsCreatedWithNew() const;

  protected:
    int m_nX = 0;
    int m_nY = 0;
    int m_nWidth = 0;
    int m_nHeight = 0;
    int m_nKind = 0;
    bool m_bShow = true;
    bool m_bFocus = false;
    bool m_bFocusEnabled = false;
    bool m_bRecvMsg = true;
    bool m_bEnabled = true;

  private:
    korvane::Life m_life;
    bool m_bCreatedWithNew = false;
};
