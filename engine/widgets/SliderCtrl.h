#pragma once

#include "engine/widgets/elements/NamedImage.h"
#include "engine/window/BaseCtrl.h"

/// A linear slider, horizontal or, running downwards, vertical.
///
/// The images start at the left and top inset. Position 0 of the track lies `track offset` pixels further
/// along the slider, and the track ends as far before the far edge; the thumb moves between the two ends with
/// its whole length. A press inside brings the thumb's middle under the finger, which it then follows, also
/// outside, until the release. Each change of the value by touch fires 29706 with a pointer to the value
/// (int).
class KORVANE_API CLQSliderCtrl : public CLQBaseCtrl {
  public:
    CLQSliderCtrl();
    CLQSliderCtrl(const CLQSliderCtrl& other);
    CLQSliderCtrl& operator=(const CLQSliderCtrl& other);
    ~CLQSliderCtrl() override;

    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;
    CLQBaseCtrl* Clone() override;
    bool LoadCtrlFromIni(CLQIniReadWrite& ini, const wchar_t* section) override;
    bool LoadCtrlFromBin(CLQMemBlob& blob, int index) override;
    bool SaveCtrlToIni(CLQIniReadWrite& ini, const wchar_t* section) override;
    bool SaveCtrlToBin(CLQMemBlob& blob, int index) override;

    /// Image files; an empty or null name removes the image. The fill shows from the track's start to the
    /// thumb's middle. Without a pressed thumb the thumb also shows while it is held.
    void SetBkgSurf(const wchar_t* file);
    void SetFillSurf(const wchar_t* file);
    void SetThumbSurf(const wchar_t* file);
    void SetThumbPressedSurf(const wchar_t* file);

    /// 0 to 100 at first. A maximum below the minimum counts as the minimum. The value is clamped.
    void SetRange(int minimum, int maximum);
    void GetRange(int& minimum, int& maximum) const;
    /// Clamped into the range; fires nothing. Of the slider only the thumb's way is repainted: a derived
    /// class that shows the value elsewhere has that repainted itself.
    void SetValue(int value);
    int GetValue() const;

    /// Where the images start inside the slider, in pixels; all offsets are clamped to +-32767.
    void SetInset(int left, int top);
    void SetTrackOffset(int offset);
    /// The thumb's place across the track: y in a horizontal slider, x in a vertical one.
    void SetThumbOffset(int offset);
    void SetVertical(bool vertical);

  protected:
    /// Pixels from position 0 of the track to the thumb for a value, which is clamped into the range. 0 when
    /// the range is empty or the thumb fills the track.
    int CalcPosFromValue(int value);
    /// The same for the current value.
    int GetThumbPos();

    /// What `Draw` consists of, in this order. All images are read before the first is painted, also the one
    /// of a thumb that is not held, so that no touch waits for a file.
    void LoadImages();
    void DrawBackground(CLQSurfHandle& target);
    void DrawFill(CLQSurfHandle& target);
    void DrawThumb(CLQSurfHandle& target);

    void ExchangeLayout(korvane::LayoutArchive& archive);

    korvane::NamedImage m_imageBkg;
    korvane::NamedImage m_imageFill;
    korvane::NamedImage m_imageThumbPressed;
    korvane::NamedImage m_imageThumb;
    int m_nMin = 0;
    int m_nMax = 100;
    int m_nValue = 0;
    int m_nLeftInset = 0;
    int m_nTopInset = 0;
    int m_nTrackOffset = 0;
    int m_nThumbOffset = 0;
    bool m_bVertical = false;

  private:
    int ThumbLength();
    int LengthAlongTrack(CLQSurfHandle& image) const;
    int MaxThumbPos();
    void InvalidateThumbWay(int from, int to);
    int ValueAt(int x, int y);
    void FollowFinger(const _LQMessage& msg);
    void SetImage(korvane::NamedImage& image, const wchar_t* file);
};
