#pragma once

#include "controls/parts/DialArc.h"
#include "engine/widgets/elements/NamedImage.h"
#include "engine/window/BaseCtrl.h"
#include "platform/Export.h"

struct tagPOINT;

/// A round gauge: a face, centred in the control, and up to three needles that turn about its middle.
///
/// Needle i, 0 to 2, points along the angle of its current mark. Its marks are spread evenly over an arc of
/// its own, from 90 to 180 degrees with 2 marks at first. Angles are whole degrees, 0 along the screen's +x
/// axis, growing clockwise; any int is brought into [0, 360). An arc whose end is below its start runs
/// through 0.
///
/// A touch is consumed and turns no needle. Images that are named are loaded when they are first drawn; one
/// that cannot be loaded is tried again at each drawing. Copies share the images. A needle index outside 0 to
/// 2 changes nothing.
class KORVANEEX_API CLQDialScaleEx : public CLQBaseCtrl {
  public:
    CLQDialScaleEx();
    CLQDialScaleEx(const CLQDialScaleEx& other);
    CLQDialScaleEx& operator=(const CLQDialScaleEx& other);
    ~CLQDialScaleEx() override;

    /// Always true, also for a place out of range, which the control does not take.
    bool Create(int x, int y, int width, int height) override;
    void SetSize(int width, int height) override;
    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;

    /// The face: an image file, read anew also under the same name unless another handle holds its image, or
    /// a surface. It shows in its own size, cut to the control around its middle. A null name changes
    /// nothing.
    void SetBkgSurf(const wchar_t* file);
    void SetBkgSurf(CLQSurfHandle& surface);

    /// The needles, pointing to the right, drawn in this order: exactly three file names, null or empty for
    /// no needle, or three surfaces. A needle turns about its pivot, which becomes the image's top-left
    /// corner for a file and the middle of the left edge, (0, height / 2), for a surface.
    void SetPointerSurf(const wchar_t* file0, ...);
    void SetPointerSurf(CLQSurfHandle& surface0, CLQSurfHandle& surface1, CLQSurfHandle& surface2);
    /// The point of needle i's image that sits on the middle of the control. Seen at the next repaint, for
    /// which it does not ask. A null point changes nothing.
    void SetPointerCenter(int i, tagPOINT* point);

    /// The angles of needle i's first and last mark.
    void SetStartAngle(int i, int angle);
    void SetEndAngle(int i, int angle);
    /// The number of needle i's marks. The needle is put where its mark lies on needle 0's arc, until its own
    /// arc or mark is set again. For a number of 1 or less needle 0, whatever i is, gets 2 marks and keeps
    /// its mark and angle.
    void SetDialScaleNum(int i, int count);
    /// Turns needle i to a mark, counted from 0 and clamped to those there are.
    void SetCurrentDialScale(int i, int mark);
    /// 0 for an index outside 0 to 2.
    int GetCurrentDialScale(int i);

  protected:
    /// What a dial that is turned by touch is built from: the angle of a screen point about the middle, the
    /// angle of a mark, the mark nearest to an angle, and the nearest angle on the arc, with whether the
    /// angle lay on it. See korvane::DialArc. 0 and false for an index outside 0 to 2.
    int CalcDialScaleAngle(int x, int y);
    int CalcAngleFromNum(int i, int mark);
    int CalcNumFromAngle(int i, int angle);
    bool GetAngleInRange(int i, int angle, int& onArc);

  private:
    static constexpr int kNeedles = 3;

    struct Needle {
        korvane::NamedImage image;
        int pivotX = 0;
        int pivotY = 0;
        korvane::DialArc arc;
        int mark = 0;
        int angle = 90;  ///< set with arc, count and mark, and only then
    };

    static bool IsNeedle(int i) { return i >= 0 && i < kNeedles; }
    void PutCentre();
    void SetPointerFile(Needle& needle, const wchar_t* file);
    void SetPointerSurface(Needle& needle, CLQSurfHandle& surface);
    void TurnNeedle(Needle& needle);
    void DrawFace(CLQSurfHandle& target);
    void DrawNeedles(CLQSurfHandle& target);

    korvane::NamedImage m_imageBkg;
    Needle m_arrNeedle[kNeedles];
    int m_nCentreX = 0;  ///< from the control's top-left corner
    int m_nCentreY = 0;
};
