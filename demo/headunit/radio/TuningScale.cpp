#include "demo/headunit/radio/TuningScale.h"

#include <cstdlib>

namespace korvane::demo {

namespace {

/// From here on the scale tunes.
constexpr int kDragPixels = 5;

}  // namespace

bool TuningScale::DoMessage(_LQMessage* msg) {
    if (msg && msg->code == kMsgPress) {
        isDragged_ = false;
    } else if (msg && msg->code == kMsgMove) {
        isDragged_ = isDragged_ || std::abs(m_nPressY - msg->y) >= kDragPixels;
    } else if (msg && msg->code == kMsgRelease && isDragged_) {
        ForgetMarkers();
        Invalidate();
    }
    return CLQDialSlider::DoMessage(msg);
}

void TuningScale::Draw(CLQSurfHandle& target) {
    // Drawing notes where the markers in view are.
    if (IsNeedRedraw())
        ForgetMarkers();
    CLQDialSlider::Draw(target);
}

void TuningScale::ForgetMarkers() {
    for (_LQRect& marker : m_arrHitRect)
        marker = _LQRect();
}

}  // namespace korvane::demo
