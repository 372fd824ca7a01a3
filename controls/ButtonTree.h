#pragma once

#include "engine/window/BaseCtrl.h"
#include "platform/Export.h"

/// A placeholder: it has a place, a size and a kind, takes no input and paints nothing.
class KORVANEEX_API CLQButtonTree : public CLQBaseCtrl {
  public:
    CLQButtonTree();
    CLQButtonTree(const CLQButtonTree& other);
    CLQButtonTree& operator=(const CLQButtonTree& other);
    ~CLQButtonTree() override;

    bool DoMessage(_LQMessage* msg) override;
    void Draw(CLQSurfHandle& target) override;
};
