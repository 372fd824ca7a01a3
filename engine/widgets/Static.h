#pragma once

#include <string>

#include "engine/system/Timer.h"
#include "engine/widgets/elements/NamedImage.h"
#include "engine/widgets/elements/TextLine.h"
#include "engine/widgets/elements/TextScroll.h"
#include "engine/window/BaseCtrl.h"

/// A label: one line of text over an optional background image. White, top left, 20 pixels high and at rest
/// unless told otherwise.
///
/// The text scrolls while text scrolling is enabled, its scroll type is not eScroll_None, it is not empty
/// and, if scrolling of too-long text is enabled as well, it is wider than the label. So with both enabled a
/// text that fits rests, and without text scrolling nothing moves, whatever the other switch says.
///
/// In one pass the text leaves at one edge, comes in again at the other and ends where it began. After as
/// many passes as the scroll number says it rests there, until the text, its font or a scroll setting changes
/// or text scrolling is switched on anew; a label that is hidden meanwhile goes on when it is shown again.
/// Only a label that is on a shown window and moves has its timer running.
class KORVANE_API CLQStatic : public CLQBaseCtrl {
  public:
    CLQStatic();
    /// A copy starts its text anew.
    CLQStatic(const CLQStatic& other);
    CLQStatic& operator=(const CLQStatic& other);
    ~CLQStatic() override;

    void Draw(CLQSurfHandle& target) override;
    void ChangeLanguage() override;
    /// Takes the text from the language table, at once and whenever the language changes. 0 leaves the text
    /// as it is and literal from then on.
    void SetLangID(int id) override;
    CLQBaseCtrl* Clone() override;
    bool LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section) override;
    bool LoadCtrlFromBin(CLQMemBlob& blob, int index) override;
    bool SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section) override;
    bool SaveCtrlToBin(CLQMemBlob& blob, int index) override;

    /// Null counts as empty. The language identifier stays: unless it is 0, the next change of the language
    /// replaces the text.
    void SetText(const wchar_t* text);
    std::wstring& GetText();
    /// The background image, drawn at the top-left corner; an empty or null name or an empty handle removes
    /// it.
    void SetBkgSurf(const wchar_t* file);
    void SetBkgSurf(CLQSurfHandle& image);

    /// Borrowed from the font manager; null is the default font.
    void SetFont(CLQFont* font);
    /// The face of that name; null or empty is the default font.
    void SetFontName(const wchar_t* face);
    /// Width and height of the em square in pixels, 1 to 512; values outside are clamped.
    void SetFontSize(int width, int height);
    void SetTextColor(_LQColor& color);
    /// A sum of _eTextStyle flags; 18 is centred both ways. A text that is too wide starts at the left edge.
    void SetTextStyle(int style);

    void EnableTextScroll(bool enable);
    void EnableScrollTextTooLong(bool enable);
    /// The text moves by `pixels` every `period` milliseconds; values below 1 count as 1. 4 and 150 at first.
    void SetScrollParam(int pixels, int period);
    /// eScroll_Left at first. Other values than the enumeration's are ignored.
    void SetScrollType(eScrollType type);
    /// The number of passes; 0, as at first, and less: for ever.
    void SetTextScrollNum(int passes);

  protected:
    void ExchangeLayout(korvane::LayoutArchive& archive);

  private:
    void OnTimerScroll(void*, int);
    void RestartScroll();
    void KeepScrolling(int textWidth);
    bool IsScrollWanted(int textWidth);

    korvane::TextLine m_line;
    korvane::TextScroll m_scroll;
    _LQColor m_colorText{255, 255, 255, 255};
    korvane::NamedImage m_imageBkg;
    CLQTimer m_timerScroll;
};
