#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "engine/window/BaseCtrl.h"
#include "engine/window/parts/Background.h"
#include "engine/window/parts/ChildList.h"
#include "engine/window/parts/ChildRouting.h"

/// A control that owns child controls, which are drawn, moved and shown with it.
///
/// Children have positions in the window's coordinates, as the group itself has, and are not cut at the
/// group's edges. The group deletes the children that were created with `new` (see CLQWnd::operator new) when
/// it is destroyed; copies of a group share their children, which live until the last of them ends. Deleting
/// a child by hand is harmless at any time.
class KORVANE_API CLQGroupCtrl : public CLQBaseCtrl {
  public:
    CLQGroupCtrl();
    CLQGroupCtrl(const CLQGroupCtrl& other);
    CLQGroupCtrl& operator=(const CLQGroupCtrl& other);
    ~CLQGroupCtrl() override;

    void Move(int dx, int dy) override;
    void MoveTo(int x, int y) override;
    void SetShow(bool show) override;
    void LoadResource() override;
    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;
    void ChangeLanguage() override;
    void SetFatherWnd(CLQWindow* window) override;
    void Redraw(bool needed) override;
    void Invalidate() override;
    void DrawBaseCtrl(CLQSurfHandle& target, int x, int y) override;
    void EnableOwnerUpdate(bool enable) override;
    bool IsChildExist(CLQBaseCtrl* ctrl) override;
    /// The clone has clones of the children.
    CLQBaseCtrl* Clone() override;
    bool LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section) override;
    bool LoadCtrlFromBin(CLQMemBlob& blob, int index) override;
    bool SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section) override;
    bool SaveCtrlToBin(CLQMemBlob& blob, int index) override;

    /// Adds a child on top of the others. A null child, a child that is there already and the group itself or
    /// one of its owners are ignored. A child of another group or window leaves that one.
    void AddChild(CLQBaseCtrl* child);
    /// Takes a child out, and deletes it if `destroy` is set and it was created with `new`. False when it is
    /// not a child of this group. A child that was taken out belongs to the caller.
    bool DelChild(CLQBaseCtrl* child, bool destroy);
    /// The control of that name in the name table, at any depth; null without a table or such a name.
    CLQBaseCtrl* FindCtrl(const wchar_t* name);

    /// Loads position, looks and children from a compiled layout (".bin", see docs/file-formats.md). A name
    /// without a folder is looked for in the layout folder. False, changing nothing, for a missing or damaged
    /// file.
    bool LoadGroupCtrlFromBin(const wchar_t* file);
    void BuildRelationNameToPtr();
    void ReleaseRelationMap();

    /// Background image, drawn at the top-left corner and cut at the group's edges; empty or null removes it.
    void SetBkgSurf(const wchar_t* file);
    /// Plain background colour under the image, with its alpha. A null colour keeps the last one.
    void EnableBkgColor(bool enable, _LQColor* color);

    int GetChildCount() const;
    /// Children in drawing order; null outside 0 to count - 1.
    CLQBaseCtrl* GetChild(int index) const;

  protected:
    void ExchangeLayout(korvane::LayoutArchive& archive);

  private:
    friend class CLQBaseCtrl;
    friend class CLQWindow;

    struct NamedCtrl {
        CLQBaseCtrl* ctrl = nullptr;
        korvane::LifeWatch life;
    };

    bool IsLayoutKind(int kind) const;
    void DeleteChildren();
    template <class Load>
    void AddLoadedChild(int kind, Load load);
    void NoteNames(std::map<std::wstring, NamedCtrl>& names) const;
    void AbandonChildren();
    void InvalidateChildren();
    void AdoptOrphans();

    korvane::ChildList m_children;
    korvane::Capture m_captured;
    std::map<std::wstring, NamedCtrl> m_mapNameToCtrl;
    korvane::Background m_background;
};
