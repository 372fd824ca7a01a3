#include "controls/DialScaleEx.h"

#include <cstdarg>

#include "engine/core/Rect.h"
#include "platform/coredll.h"

namespace {

/// The mode of `CLQSurfHandle::RotateBlt` that smooths.
constexpr int kSmoothRotation = 2;

}  // namespace

CLQDialScaleEx::CLQDialScaleEx() {
    m_nKind = korvane::kKindDialScale;
}

CLQDialScaleEx::CLQDialScaleEx(const CLQDialScaleEx& other) = default;

CLQDialScaleEx& CLQDialScaleEx::operator=(const CLQDialScaleEx& other) = default;

CLQDialScaleEx::~CLQDialScaleEx() = default;

bool CLQDialScaleEx::Create(int x, int y, int width, int height) {
    CLQBaseCtrl::Create(x, y, width, height);
    PutCentre();
    // Applications know a gauge whose creation never fails.
    return true;
}

void CLQDialScaleEx::SetSize(int width, int height) {
    CLQBaseCtrl::SetSize(width, height);
    PutCentre();
}

void CLQDialScaleEx::PutCentre() {
    m_nCentreX = m_nWidth / 2;
    m_nCentreY = m_nHeight / 2;
}

void CLQDialScaleEx::SetBkgSurf(const wchar_t* file) {
    if (!file)
        return;
    m_imageBkg = korvane::NamedImage();
    m_imageBkg.SetFile(file);
    Invalidate();
}

void CLQDialScaleEx::SetBkgSurf(CLQSurfHandle& surface) {
    m_imageBkg.SetSurface(surface);
    Invalidate();
}

void CLQDialScaleEx::SetPointerSurf(const wchar_t* file0, ...) {
    SetPointerFile(m_arrNeedle[0], file0);
    std::va_list files;
    va_start(files, file0);
    for (int i = 1; i < kNeedles; ++i)
        SetPointerFile(m_arrNeedle[i], va_arg(files, const wchar_t*));
    va_end(files);
    Invalidate();
}

void CLQDialScaleEx::SetPointerSurf(CLQSurfHandle& surface0, CLQSurfHandle& surface1,
                                    CLQSurfHandle& surface2) {
    SetPointerSurface(m_arrNeedle[0], surface0);
    SetPointerSurface(m_arrNeedle[1], surface1);
    SetPointerSurface(m_arrNeedle[2], surface2);
    Invalidate();
}

void CLQDialScaleEx::SetPointerFile(Needle& needle, const wchar_t* file) {
    needle.image = korvane::NamedImage();
    needle.image.SetFile(file);
    // Not half the height of the image, which is not loaded yet.
    needle.pivotX = 0;
    needle.pivotY = 0;
}

void CLQDialScaleEx::SetPointerSurface(Needle& needle, CLQSurfHandle& surface) {
    needle.image.SetSurface(surface);
    needle.pivotX = 0;
    needle.pivotY = surface.GetHeight() / 2;
}

void CLQDialScaleEx::SetPointerCenter(int i, tagPOINT* point) {
    if (!IsNeedle(i) || !point)
        return;
    m_arrNeedle[i].pivotX = static_cast<int>(point->x);
    m_arrNeedle[i].pivotY = static_cast<int>(point->y);
}

void CLQDialScaleEx::SetStartAngle(int i, int angle) {
    if (!IsNeedle(i))
        return;
    m_arrNeedle[i].arc.start = korvane::NormalAngle(angle);
    TurnNeedle(m_arrNeedle[i]);
}

void CLQDialScaleEx::SetEndAngle(int i, int angle) {
    if (!IsNeedle(i))
        return;
    m_arrNeedle[i].arc.end = korvane::NormalAngle(angle);
    TurnNeedle(m_arrNeedle[i]);
}

void CLQDialScaleEx::SetDialScaleNum(int i, int count) {
    if (count <= 1) {
        // Meant: needle 0 gets the fallback, whichever needle was asked for.
        m_arrNeedle[0].arc.marks = 2;
    } else if (IsNeedle(i)) {
        Needle& needle = m_arrNeedle[i];
        needle.arc.marks = count;
        needle.mark = needle.arc.ClampMark(needle.mark);
        // Meant: the angle is taken on needle 0's arc.
        needle.angle = m_arrNeedle[0].arc.AngleOfMark(needle.mark);
    }
    Invalidate();
}

void CLQDialScaleEx::SetCurrentDialScale(int i, int mark) {
    if (!IsNeedle(i))
        return;
    m_arrNeedle[i].mark = m_arrNeedle[i].arc.ClampMark(mark);
    TurnNeedle(m_arrNeedle[i]);
}

int CLQDialScaleEx::GetCurrentDialScale(int i) {
    return IsNeedle(i) ? m_arrNeedle[i].mark : 0;
}

void CLQDialScaleEx::TurnNeedle(Needle& needle) {
    needle.angle = needle.arc.AngleOfMark(needle.mark);
    Invalidate();
}

int CLQDialScaleEx::CalcDialScaleAngle(int x, int y) {
    int left = 0;
    int top = 0;
    GetScreenXY(left, top);
    const double dx = static_cast<double>(x) - left - m_nCentreX;
    const double dy = static_cast<double>(y) - top - m_nCentreY;
    return korvane::AngleOfPoint(dx, dy);
}

int CLQDialScaleEx::CalcAngleFromNum(int i, int mark) {
    return IsNeedle(i) ? m_arrNeedle[i].arc.AngleOfMark(mark) : 0;
}

int CLQDialScaleEx::CalcNumFromAngle(int i, int angle) {
    return IsNeedle(i) ? m_arrNeedle[i].arc.MarkNearest(angle) : 0;
}

bool CLQDialScaleEx::GetAngleInRange(int i, int angle, int& onArc) {
    onArc = 0;
    return IsNeedle(i) && m_arrNeedle[i].arc.Snap(angle, onArc);
}

bool CLQDialScaleEx::DoMessage(_LQMessage* msg) {
    if (!msg)
        return false;
    switch (msg->code) {
        case korvane::kMsgPress:
            if (!CheckPoint(msg->x, msg->y))
                return false;
            m_nPress = 1;
            return true;
        case korvane::kMsgMove:
            return m_nPress == 1;
        case korvane::kMsgRelease:
            if (m_nPress != 1)
                return false;
            m_nPress = 0;
            return true;
        default:
            return false;
    }
}

void CLQDialScaleEx::Draw(CLQSurfHandle& target) {
    if (m_pOwnerWnd && !IsNeedRedraw())
        return;
    DrawFace(target);
    DrawNeedles(target);
    if (m_pOwnerWnd)
        Redraw(false);
}

void CLQDialScaleEx::DrawFace(CLQSurfHandle& target) {
    CLQSurfHandle& face = m_imageBkg.Surface();
    int x = 0;
    int y = 0;
    GetScreenXY(x, y);
    const int width = face.GetWidth();
    const int height = face.GetHeight();
    const _LQRect centred = korvane::RectOfEdges(x + (m_nWidth - width) / 2, y + (m_nHeight - height) / 2,
                                                 x + (m_nWidth + width) / 2, y + (m_nHeight + height) / 2);
    const _LQRect shown = korvane::Intersect(centred, GetScreenRect());
    if (korvane::IsEmpty(shown))
        return;
    target.BitBlt(face, shown.left, shown.top, shown.right - shown.left, shown.bottom - shown.top,
                  shown.left - centred.left, shown.top - centred.top);
}

void CLQDialScaleEx::DrawNeedles(CLQSurfHandle& target) {
    int x = 0;
    int y = 0;
    GetScreenXY(x, y);
    for (Needle& needle : m_arrNeedle) {
        target.RotateBlt(needle.image.Surface(), x + m_nCentreX, y + m_nCentreY, 1.0f, 1.0f, needle.pivotX,
                         needle.pivotY, needle.angle, kSmoothRotation);
    }
}
