#pragma once

#include <memory>
#include <string>

#include "controls/FreqStruct.h"
#include "engine/draw/Surface.h"
#include "engine/system/Timer.h"
#include "engine/text/Font.h"
#include "engine/window/BaseCtrl.h"
#include "platform/Export.h"

/// A number wheel for a tuner's frequency: the current value between its lower and its higher neighbour.
///
/// With decimals it is an odometer, whose integer column rolls only when the two-digit fraction carries or
/// borrows; without, one column of whole numbers. A vertical swipe asks the application, through a callback,
/// to seek; the application rolls the wheel with `StartMove` until `MoveStop`. Each step takes 200 ms, wraps
/// at the bounds and fires korvane::kEventValueChanged with a pointer to the value (float).
///
/// An application constructs it, calls `Create`, `SetFont` and `SetFontSize`, sets images, callbacks and
/// bounds, and then the value. Copies share the images and the timer, whose ticks go to the control that was
/// copied. Callbacks and handlers may delete the control.
class KORVANEEX_API CLQNumSlider : public CLQBaseCtrl {
  public:
    /// Gets the context that was set with it, and the wheel.
    using MoveCallBack = void (*)(void* context, void* sender);

    CLQNumSlider();
    CLQNumSlider(const CLQNumSlider& other);
    CLQNumSlider& operator=(const CLQNumSlider& other);
    ~CLQNumSlider() override;

    bool Create(int x, int y, int width, int height) override;
    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;

    /// The font of the numbers, borrowed. Without one no number shows and no touch is taken.
    void SetFont(CLQFont* font);
    /// Size of the numbers in pixels, also applied to the current font at once.
    void SetFontSize(int width, int height);
    /// The step between neighbouring rows.
    void SetScal(float scale);
    /// True: two decimals. False: whole numbers.
    void SetDec(bool decimal);
    /// Takes over bounds, step, decimals and label, and leaves the wheel without a value.
    void SetBoundScalFreqID(_FreqStruct_ bounds);
    /// The label beside the wheel; null clears it.
    void SetCurrFreqID(const wchar_t* text);
    /// Shows a value, brought within the bounds. Exactly 0 means that there is none: the wheel then shows its
    /// images only and takes no swipe.
    void SetVaule(float value);

    /// 1 for a value below the bounds, 2 for one above them, else 0.
    int IsBound(float value);
    /// Integer part and hundredths of a value, which gets a guard of 0.002 against rounding first.
    int GetIntNum(float value);
    int GetDocNum(float value);

    /// Loads the two images, of fixed names, that fade the top and the bottom row. `Create` does it by
    /// itself. This and the two below read their files anew, unless a copy of the wheel still holds the
    /// images.
    void SetShadowGnd();
    /// The images that mark the two directions.
    void SetSeekUpGnd(const wchar_t* file);
    void SetSeekDownGnd(const wchar_t* file);

    /// Called after a swipe up, after a swipe down, and when a rolling wheel is touched. All three share one
    /// context, the one that was set last. A null callback is not called.
    void SetMoveUpCallBack(MoveCallBack callBack, void* context);
    void SetMoveDownCallBack(MoveCallBack callBack, void* context);
    void SetMoveStopCallBack(MoveCallBack callBack, void* context);

    /// Does what a swipe does: keeps the direction for `StartMove`, down for lower values, and calls the
    /// callback.
    void SlideMove(bool down);
    /// Rolls the wheel, step after step, in the direction of the last swipe.
    void StartMove();
    /// Stops the wheel where it is, also in the middle of a step, which then does not count.
    void MoveStop();
    bool IsMove();

    /// True where the wheel takes touches: as wide as "111.11" and as high as three rows of its font,
    /// whatever the size of the control.
    bool CheckPointIn(int x, int y);

    /// One tick of the timer: rolls on by a quarter of a step. Both arguments are ignored.
    void OnTime(void*, int);

  protected:
    MoveCallBack m_pfnMoveDown = nullptr;
    MoveCallBack m_pfnMoveUp = nullptr;
    MoveCallBack m_pfnMoveStop = nullptr;
    void* m_pContext = nullptr;
    std::shared_ptr<CLQSurfHandle> m_pShadowUp;
    std::shared_ptr<CLQSurfHandle> m_pShadowDown;
    std::shared_ptr<CLQSurfHandle> m_pSeekUp;
    std::shared_ptr<CLQSurfHandle> m_pSeekDown;
    std::shared_ptr<CLQSurfHandle> m_pLabel;
    CLQTimer m_timer;
    CLQFont* m_pFont = nullptr;  ///< borrowed
    std::wstring m_strFreqID;
    float m_fMinimum = 0.0f;
    float m_fMaximum = 0.0f;
    float m_fScale = 0.0f;
    float m_fValue = 0.0f;  ///< 0: none
    int m_nInteger = 0;     ///< integer part and hundredths of the value
    int m_nDecimal = 0;
    int m_nFontWidth = 0;
    int m_nFontHeight = 0;
    int m_nIntegerOffset = 0;  ///< how far the columns have scrolled in this step, in pixels
    int m_nDecimalOffset = 0;
    int m_nPressY = 0;
    int m_nTickStep = 0;  ///< pixels per tick; above 0 while the value falls
    bool m_bDecimal = false;
    bool m_bDown = false;
    bool m_bMoving = false;

  private:
    enum Bound { kWithinBounds = 0, kBelowBounds = 1, kAboveBounds = 2 };

    bool HasValue() const { return m_fValue != 0.0f; }
    bool IntegerColumnRolls() const;
    void StepValue();
    void SplitValue();
    void ResetOffsets();
    void ApplyFontSize();

    bool DoPress(const _LQMessage& msg);
    void DoRelease(const _LQMessage& msg);
    void CallBack(MoveCallBack callBack);

    void DrawNumbers(CLQSurfHandle& target, const _LQRect& area);
    void DrawOdometer(CLQSurfHandle& target, const _LQRect& area, int rows);
    void DrawCounter(CLQSurfHandle& target, const _LQRect& area, int rows);
    void DrawNumberText(CLQSurfHandle& target, const wchar_t* text, int right, int top, _LQRect clip);
    void DrawImages(CLQSurfHandle& target, const _LQRect& area);
};
