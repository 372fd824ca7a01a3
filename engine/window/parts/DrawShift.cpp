#include "engine/window/parts/DrawShift.h"

#include "engine/core/Rect.h"

namespace korvane {

DrawShift::DrawShift(CLQSurface& surface, int dx, int dy) : surface_(surface), clip_(surface.GetClip()) {
    surface_.GetOrigin(originX_, originY_);
    surface_.SetOrigin(originX_ - dx, originY_ - dy);
    _LQRect shifted = clip_;
    shifted.left -= dx;
    shifted.right -= dx;
    shifted.top -= dy;
    shifted.bottom -= dy;
    surface_.SetClip(&shifted);
}

DrawShift::~DrawShift() {
    surface_.SetOrigin(originX_, originY_);
    surface_.SetClip(&clip_);
}

DrawClip::DrawClip(CLQSurface& surface, const _LQRect& rect) : surface_(surface), clip_(surface.GetClip()) {
    const _LQRect bounded = Intersect(clip_, rect);
    surface_.SetClip(&bounded);
}

DrawClip::~DrawClip() {
    surface_.SetClip(&clip_);
}

}  // namespace korvane
