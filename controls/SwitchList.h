#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/core/Types.h"
#include "engine/draw/Surface.h"
#include "engine/text/Font.h"
#include "engine/window/BaseCtrl.h"
#include "platform/Export.h"

/// Which caption colour `CLQSwitchList::SetTextColor` sets.
enum _eTextColorType : int {
    eTextColor_Normal = 0,
    eTextColor_Active = 1,
    eTextColor_Focus = 2,
    eTextColor_Disable = 3,
    eTextColor_All = 4,
};

/// A column of icons with captions, one of which the user picks. Icons that do not fit on one page are on a
/// second one, and the last cell of each page switches between the two.
///
/// Each item has an icon for each of four looks: disabled while the whole list is, active while it is
/// touched, focus when it is the selected one, and normal otherwise. The icons are borrowed: the application
/// keeps them alive. Every look that is painted needs an icon, which may be null or empty, for each cell of
/// the page; the program ends, with one line on standard error, when one of these lists is too short.
///
/// The application learns of clicks by a callback, which may delete the list. It moves the selection itself.
class KORVANEEX_API CLQSwitchList : public CLQBaseCtrl {
  public:
    /// Gets the index of the item, counted through both pages, and whether the click changes the selection.
    using ClickCallBack = void (*)(int index, bool changed);

    CLQSwitchList();
    CLQSwitchList(const CLQSwitchList& other);
    CLQSwitchList& operator=(const CLQSwitchList& other);
    ~CLQSwitchList() override;

    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;
    void ChangeLanguage() override;

    /// Cells of a page, the one that switches pages among them. This and the four setters of icons ask for no
    /// repaint.
    void SetIconNumPrePage(int count);
    void SetIconNormalSurf(std::vector<CLQSurfHandle*>& icons);
    void SetIconActiveSurf(std::vector<CLQSurfHandle*>& icons);
    void SetIconFocusSurf(std::vector<CLQSurfHandle*>& icons);
    void SetIconDisableSurf(std::vector<CLQSurfHandle*>& icons);

    /// The captions, one an item; an empty one shows nothing. Texts keep the identifiers that were set
    /// before, which replace them at the next change of the language.
    void SetText(std::vector<std::wstring>& texts);
    /// Takes the captions from the language table, at once and whenever the language changes.
    void SetText(std::vector<int>& ids);
    /// Any other value of `type` sets none.
    void SetTextColor(_eTextColorType type, _LQColor& color);
    /// In pixels; 15 by 15 at first. A caption as wide as the list or wider is shrunk, to 10 pixels at the
    /// least.
    void SetFontSize(int width, int height);
    /// The background, read anew unless another handle holds the file's image.
    void SetBkgSurf(const wchar_t* file);

    /// Selects an item; a negative index selects none. An index for which there is no focus icon changes
    /// nothing.
    void SetFouceIndex(int index);
    /// A disabled list takes no touch and shows its disabled look.
    void SetDisable(bool disable);
    /// Shows the second page; the first one where all icons fit on it.
    void SetPageDown(bool down);
    /// Null: none.
    void SetCallBackClick(ClickCallBack callBack);

  protected:
    int m_nIconNumPrePage = 0;
    CLQSurfHandle m_surfBkg;
    std::vector<CLQSurfHandle*> m_vecIconNormal;  ///< borrowed, like those of the other looks
    std::vector<CLQSurfHandle*> m_vecIconActive;
    std::vector<CLQSurfHandle*> m_vecIconFocus;
    std::vector<CLQSurfHandle*> m_vecIconDisable;
    std::vector<std::wstring> m_vecText;
    std::vector<int> m_vecLangID;
    ClickCallBack m_pfnClick = nullptr;
    bool m_bPageDown = false;
    int m_nCurPress = -1;  ///< the item that is touched
    int m_nFocus = -1;
    int m_nPressDown = -1;  ///< the items where the last touch began and ended
    int m_nPressUp = -1;
    bool m_bDisable = false;
    CLQFont* m_pFont = nullptr;  ///< borrowed
    std::array<_LQColor, 4> m_colorText;
    int m_nFontWidth = 15;
    int m_nFontHeight = 15;

  private:
    /// What a cell shows. A size of 0 by 0 stands for nothing at all.
    struct CellLook {
        CLQSurfHandle* icon = nullptr;
        int width = 0;
        int height = 0;
        _LQColor color;
    };

    void GetPosForCenter(int srcW, int srcH, int dstW, int dstH, int& x, int& y);
    int GetIndexByMousePos(int pos);
    void LookTextsUp();
    void DoRelease(const _LQMessage& msg);
    CellLook LookOf(int item) const;
    void DrawBackground(CLQSurfHandle& target, int x, int y);
    void DrawCells(CLQSurfHandle& target, int x, int y);
    void DrawCaption(CLQSurfHandle& target, const std::wstring& text, const CellLook& look, int x, int y);
    void FitFont(const std::wstring& text, int& width, int& height);
};
