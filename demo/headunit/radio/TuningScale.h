#pragma once

#include "KorvaneEx.h"

namespace korvane::demo {

/// The radio's tuning scale. Unlike any CLQDialSlider it takes a touch for one on a marker only where that
/// marker shows, and takes none at the end of a drag.
class TuningScale : public CLQDialSlider {
  public:
    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;

  private:
    void ForgetMarkers();

    bool isDragged_ = false;
};

}  // namespace korvane::demo
