#pragma once

#include <memory>
#include <string>
#include <vector>

#include "controls/FreqStruct.h"
#include "engine/core/Types.h"
#include "engine/draw/Surface.h"
#include "engine/text/Font.h"
#include "engine/window/BaseCtrl.h"
#include "platform/Export.h"

/// A tuner's scale: ticks one step apart pass a fixed pointer, which marks the current frequency, and the
/// stored frequencies, presets 1 to 6, show beside the ticks.
///
/// A drag tunes by one step for every 12 pixels begun, upwards to higher values, counted from the press and
/// kept within the bounds; each move of 5 pixels or more fires korvane::kEventValueChanged with a pointer to
/// the value (float). A release over a preset fires korvane::kEventItemChosen with its index (int) and then
/// tunes to it; any other release of a press fires korvane::kEventReleased.
///
/// Frequencies are in the band's own unit. Copies share the images. Handlers may delete the control.
class KORVANEEX_API CLQDialSlider : public CLQBaseCtrl {
  public:
    CLQDialSlider();
    CLQDialSlider(const CLQDialSlider& other);
    CLQDialSlider& operator=(const CLQDialSlider& other);
    ~CLQDialSlider() override;

    /// The number of ticks comes from the height given here; a later `SetSize` leaves it.
    bool Create(int x, int y, int width, int height) override;
    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;

    /// The images of background, pointer and preset marker. The first call of each wins, also when its file
    /// is missing. Always true.
    bool SetBKgnd(const wchar_t* file);
    bool SetPointgnd(const wchar_t* file);
    bool SetIcongnd(const wchar_t* file);
    /// The same for the shadow, which lies over everything; always false.
    bool SetShadowGnd(const wchar_t* file);

    /// The font of labels and preset numbers, borrowed; the default font at first. Null: no text.
    void SetFont(CLQFont* font);
    /// In pixels; 16 by 16 at first.
    void SetFontSize(int width, int height);

    /// The frequency from one tick to the next. With decimals its hundredths alone count, so it is expected
    /// below 1; a step without any, like a step of 0, shows no presets.
    void SetScal(float scale);
    /// True, as at first: frequencies with one decimal. False: whole numbers.
    void SetDec(bool decimal);
    /// Takes over bounds, step and decimals. The label of the bounds is ignored and the value kept.
    void SetBoundScalFreqID(_FreqStruct_ bounds);
    /// Any frequency, also outside the bounds. Exactly 0 means that there is none: the scale takes no drag
    /// then.
    void SetVaule(float value);

    /// 1 for a value below the bounds, 2 for one above them, else 0.
    int IsBound(float value);
    /// The preset whose marker, as last drawn, has the point, given from the control's corner, inside; -1
    /// for none.
    int IsInRect(int x, int y);
    /// Integer part and hundredths of a value, which gets a guard of 0.002 against rounding first.
    int GetIntNum(float value);
    int GetDocNum(float value);

    /// Presets count from 0 in the order in which they were added; at most six can be touched.
    void AddShortcut(float value);
    /// Replaces a preset. An index that there is none for ends the program.
    void SetShortCut(int index, float value);
    /// Removes the first preset with the same hundredths, which are cut off here, not guarded: 87.499 is not
    /// 87.5. Nothing when there is none.
    void DeleteShortcut(float value);
    void DeleteAllCut();

    /// The label of a frequency: one decimal or, without decimals, the whole number, cut to 9 characters.
    std::wstring FormatStr(float value) const;

  protected:
    static constexpr int kTouchablePresets = 6;

    std::shared_ptr<CLQSurfHandle> m_pBkgnd;
    std::shared_ptr<CLQSurfHandle> m_pPointgnd;
    std::shared_ptr<CLQSurfHandle> m_pIcongnd;
    std::shared_ptr<CLQSurfHandle> m_pShadowGnd;
    CLQFont* m_pFont = nullptr;  ///< borrowed
    std::vector<float> m_vecShortcut;
    float m_fMaximum = 0.0f;
    float m_fMinimum = 0.0f;
    float m_fScale = 0.0f;
    float m_fValue = 0.0f;       ///< 0: none
    float m_fPressValue = 0.0f;  ///< the value when the press began
    int m_nTickCount = 0;
    int m_nFontWidth = 16;
    int m_nFontHeight = 16;
    int m_nPressY = 0;    ///< of the last press, or of the release that ended it
    int m_nHalfSpan = 0;  ///< rows above the one of the current value
    bool m_bDecimal = true;
    /// Where each preset's marker was last drawn, from the control's corner.
    _LQRect m_arrHitRect[kTouchablePresets];

  private:
    enum Bound { kWithinBounds = 0, kBelowBounds = 1, kAboveBounds = 2 };
    static constexpr int kNoPreset = -1;

    bool DoMove(const _LQMessage& msg);
    void DoRelease(const _LQMessage& msg);
    int PresetAt(const _LQMessage& msg);
    /// The element for `index`, or the end of the program.
    float& ShortcutAt(int index, const char* operation);
    void SetImage(std::shared_ptr<CLQSurfHandle>& image, const wchar_t* file);

    bool HasValue() const { return m_fValue != 0.0f; }
    bool HasStep() const;
    float Clamped(float value) const;
    int StepsAboveMinimum() const;
    int StepsAbove(float preset) const;

    void DrawTicks(CLQSurfHandle& target, int left, int top);
    void DrawLabel(CLQSurfHandle& target, float frequency, int left, int tickTop);
    void DrawPresets(CLQSurfHandle& target, int left, int top);
    void DrawPreset(CLQSurfHandle& target, int index, int left, int top, int y);
};
