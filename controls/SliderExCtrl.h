#pragma once

#include <string>

#include "engine/draw/Surface.h"
#include "engine/widgets/SliderCtrl.h"
#include "platform/Export.h"

/// A media player's progress bar: a slider that can show the two ends of a passage that is repeated, A and B,
/// as icons, and the passage between them as a band.
///
/// It shows the passage and does not play it. Touches move the value, as in any slider, and never A or B. A
/// vertical slider shows neither icons nor band.
///
/// A and B are kept as values and as places along the track. The places are those of the range and the size
/// at the time when a point is set. Copies share the images. Cloned through CLQBaseCtrl it is a plain slider.
class KORVANEEX_API CLQSliderExCtrl : public CLQSliderCtrl {
  public:
    CLQSliderExCtrl();
    CLQSliderExCtrl(const CLQSliderExCtrl& other);
    CLQSliderExCtrl& operator=(const CLQSliderExCtrl& other);
    ~CLQSliderExCtrl() override;

    void Draw(CLQSurfHandle& target) override;

    /// The row of the screen at which both icons begin; 0 at first. An icon shows above the row, and left of
    /// the column, of the screen whose number is the slider's height, or width: a slider on which icons are
    /// to show is therefore higher than the number of the row.
    void SetReapetIconOffset(int y);
    /// Sets A, in units of the slider's value, clamped into the range. While B is set A may come to lie
    /// beyond it; the band is then not shown.
    void EnableReapetAIcon(int value);
    /// Sets the second point, clamped into the range. The lower of the two is A from then on. Ignored while A
    /// is not set.
    void EnableReapetBIcon(int value);
    /// Takes both points away.
    void CancelReapetPlay();
    /// True while both points are set.
    bool IsReapetABShow();

    /// The images, read at once. Null is ignored, a file that cannot be read leaves none. None of the four
    /// asks for a repaint.
    ///
    /// There is one image for the band, and both of its setters set it: the passage looks the same before and
    /// behind the play position.
    void SetReapetBkgSurf(const wchar_t* file);
    void SetReapetBkgActiveSurf(const wchar_t* file);
    void SetReapetASurf(const wchar_t* file);
    void SetReapetBSurf(const wchar_t* file);

  protected:
    CLQSurfHandle m_surfReapetBkg;
    std::wstring m_strReapetBkg;
    /// The part of the band that was played. Nothing here sets it; a class derived from this one may.
    CLQSurfHandle m_surfReapetBkgActive;
    std::wstring m_strReapetBkgActive;
    CLQSurfHandle m_surfReapetA;
    std::wstring m_strReapetA;
    CLQSurfHandle m_surfReapetB;
    std::wstring m_strReapetB;
    int m_nReapetIconOffset = 0;
    bool m_bReapetAShow = false;
    bool m_bReapetBShow = false;
    int m_nReapetA = 0;
    int m_nReapetB = 0;
    int m_nReapetAPos = 0;  ///< pixels along the track
    int m_nReapetBPos = 0;

  private:
    void SetReapetA(int value);
    void SetReapetB(int value);
    void DrawReapetBand(CLQSurfHandle& target);
    void DrawReapetIcon(CLQSurfHandle& target, CLQSurfHandle& icon, int pos);
};
