#pragma once

#include <map>
#include <string>
#include <type_traits>

#include "engine/core/HandlerCast.h"
#include "engine/window/CallBack.h"
#include "engine/window/Wnd.h"

class CLQGroupCtrl;
class CLQIniReadWrite;
class CLQMemBlob;
class CLQWindow;

namespace korvane {
class LayoutArchive;
}

/// A control. It lives in a window or in a group; its position is in the coordinates of its window, also
/// inside a group.
///
/// A copy has the source's looks, size, position and callbacks, but is not placed in a window or group, holds
/// no press and has no focus.
class KORVANE_API CLQBaseCtrl : public CLQWnd {
  public:
    CLQBaseCtrl();
    CLQBaseCtrl(const CLQBaseCtrl& other);
    CLQBaseCtrl& operator=(const CLQBaseCtrl& other);
    ~CLQBaseCtrl() override;

    bool Create(int x, int y, int width, int height) override;
    void SetSize(int width, int height) override;
    void Move(int dx, int dy) override;
    void MoveTo(int x, int y) override;
    void SetShow(bool show) override;
    void SetFocus(bool focus) override;
    void EnableWindow(bool enable) override;
    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;
    void ChangeLanguage() override;

    /// Sets the owner window; null takes the control out of its window.
    virtual void SetFatherWnd(CLQWindow* window);
    /// Sets or clears the repaint mark of this control alone; asks for no repaint.
    virtual void Redraw(bool needed);
    /// True when the screen point lies inside the control.
    virtual bool CheckPoint(int x, int y);
    /// Marks the control for repainting and has its window repaint the control's rectangle.
    virtual void Invalidate();
    /// Draws the control, marked or not, with its top-left corner at (x, y) of the target.
    virtual void DrawBaseCtrl(CLQSurfHandle& target, int x, int y);
    /// Hooks, called by `SetFocus` when the focus comes or goes.
    virtual void OnFocus();
    virtual void OnLostFocus();
    /// Whether a touch on the control should sound the key beep.
    virtual bool IsCanBeep();
    /// Without owner update `Invalidate` marks the control and leaves the repaint to whoever switched it off.
    virtual void EnableOwnerUpdate(bool enable);
    virtual void SetLangID(int id);
    /// True for the control itself and, in a group, for everything inside.
    virtual bool IsChildExist(CLQBaseCtrl* ctrl);
    /// A copy created with `new`; the caller owns it until it is added to a window or group.
    /// A class of an application that does not override it clones as the engine class it derives from.
    virtual CLQBaseCtrl* Clone();
    /// Layout storage. The ini form keeps each control in a section of its own; the blob form keeps records
    /// at the given index. False when there is no such section or record or it does not fit.
    virtual bool LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section);
    virtual bool LoadCtrlFromBin(CLQMemBlob& blob, int index);
    virtual bool SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section);
    virtual bool SaveCtrlToBin(CLQMemBlob& blob, int index);

    /// Registers the handler for an event code, in place of an earlier one. A null target or handler makes a
    /// record that is ignored. The handler takes (void* sender), or (void* sender, data) for events with
    /// data, and is cast to this type by the caller.
    void AddCallBack(int event, CLQWnd* target, void (CLQWnd::*handler)());

    /// The same without a cast: `handler` is a member of the target that takes nothing, (Sender*), or
    /// (Sender*, data) with the event's own data type: `float*` for value changed, `int` for item chosen.
    template <class Target>
    void AddCallBack(int event, Target* target, void (Target::*handler)());
    template <class Target, class Sender>
    void AddCallBack(int event, Target* target, void (Target::*handler)(Sender*));
    template <class Target, class Sender, class Data>
    void AddCallBack(int event, Target* target, void (Target::*handler)(Sender*, Data));

    /// Absolute screen position of the top-left corner.
    void GetScreenXY(int& x, int& y);
    /// The control's rectangle on the screen. When a window repaints, nothing that a control draws outside it
    /// shows; a control that is drawn by itself, with `Draw` or `DrawBaseCtrl`, is not cut.
    _LQRect GetScreenRect();
    bool IsNeedRedraw();
    /// True when the control and all its owners are shown.
    bool IsOwnerShow();
    bool IsPressed() const { return m_nPress == 1; }
    /// Ends a press without a release, as for a control that no longer takes input.
    void DropPress();

    /// The name by which `CLQGroupCtrl::FindCtrl` finds the control.
    void SetCtrlName(const wchar_t* name);
    const std::wstring& GetCtrlName() const;

    CLQWindow* GetFatherWnd() const;
    CLQGroupCtrl* GetFatherGroup() const;

  protected:
    /// Calls the handler registered for the event, if any. Returns false when the handler destroyed this
    /// control: the caller then returns at once without touching it.
    bool FireEvent(int event) { return FireEvent(event, korvane::EventData()); }
    bool FireEvent(int event, void* data) {
        return FireEvent(event, korvane::EventData{korvane::EventData::Kind::Pointer, data, 0});
    }
    bool FireEvent(int event, int index) {
        return FireEvent(event, korvane::EventData{korvane::EventData::Kind::Index, nullptr, index});
    }

    /// Marks the control and has its window repaint a rectangle of the screen, as far as the control has it:
    /// for a change that leaves the rest as it is.
    void InvalidatePart(const _LQRect& part);

    /// Reads or writes what a layout keeps of the control.
    void ExchangeLayout(korvane::LayoutArchive& archive);

    int m_nPress = 0;                  ///< 1 while the control holds a press that began inside it
    CLQWindow* m_pOwnerWnd = nullptr;  ///< borrowed; null while the control is in no window
    std::map<int, _LQCallBack> m_mapCallBack;
    int m_nLangID = 0;

  private:
    friend class CLQGroupCtrl;
    friend class CLQWindow;

    inline bool FireEvent(int event, const korvane::EventData& data);
    void StoreCallBack(int event, const _LQCallBack& record);
    void InvalidateArea();
    void RequestRepaint(const _LQRect& rect);
    void LeaveOwner();

    CLQGroupCtrl* m_pOwnerGroup = nullptr;
    std::wstring m_strName;
    bool m_bNeedRedraw = true;
    bool m_bOwnerUpdate = true;
};

inline bool CLQBaseCtrl::FireEvent(int event, const korvane::EventData& data) {
    const auto found = m_mapCallBack.find(event);
    if (found == m_mapCallBack.end())
        return true;
    // The handler may register another in place of this record.
    const _LQCallBack record = found->second;
    if (!record.target || !record.handler || !record.targetLife.IsAlive())
        return true;
    const korvane::LifeWatch self = WatchLife();
    record.invoke(record, this, data);
    return self.IsAlive();
}

template <class Target>
void CLQBaseCtrl::AddCallBack(int event, Target* target, void (Target::*handler)()) {
    static_assert(std::is_base_of<CLQWnd, Target>::value, "handlers are members of CLQWnd classes");
    using Handler = void (Target::*)();
    StoreCallBack(
        event, {target,
                korvane::HandlerCast<void (CLQWnd::*)()>(handler),
                [](const _LQCallBack& record, CLQBaseCtrl*, const korvane::EventData&) {
                    (static_cast<Target*>(record.target)->*korvane::HandlerCast<Handler>(record.handler))();
                },
                {}});
}

template <class Target, class Sender>
void CLQBaseCtrl::AddCallBack(int event, Target* target, void (Target::*handler)(Sender*)) {
    static_assert(std::is_base_of<CLQWnd, Target>::value, "handlers are members of CLQWnd classes");
    using Handler = void (Target::*)(Sender*);
    StoreCallBack(event,
                  {target,
                   korvane::HandlerCast<void (CLQWnd::*)()>(handler),
                   [](const _LQCallBack& record, CLQBaseCtrl* sender, const korvane::EventData&) {
                       (static_cast<Target*>(record.target)->*korvane::HandlerCast<Handler>(record.handler))(
                           static_cast<Sender*>(sender));
                   },
                   {}});
}

template <class Target, class Sender, class Data>
void CLQBaseCtrl::AddCallBack(int event, Target* target, void (Target::*handler)(Sender*, Data)) {
    static_assert(std::is_base_of<CLQWnd, Target>::value, "handlers are members of CLQWnd classes");
    static_assert(std::is_pointer<Data>::value || std::is_same<Data, int>::value,
                  "event data is a pointer or an index");
    using Handler = void (Target::*)(Sender*, Data);
    StoreCallBack(event,
                  {target,
                   korvane::HandlerCast<void (CLQWnd::*)()>(handler),
                   [](const _LQCallBack& record, CLQBaseCtrl* sender, const korvane::EventData& data) {
                       Data value{};
                       if constexpr (std::is_pointer<Data>::value)
                           value = static_cast<Data>(data.pointer);
                       else
                           value = data.index;
                       (static_cast<Target*>(record.target)->*korvane::HandlerCast<Handler>(record.handler))(
                           static_cast<Sender*>(sender), value);
                   },
                   {}});
}
