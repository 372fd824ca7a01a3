#include "controls/ButtonTree.h"

CLQButtonTree::CLQButtonTree() {
    m_nKind = korvane::kKindButtonTree;
}

CLQButtonTree::CLQButtonTree(const CLQButtonTree& other) = default;

CLQButtonTree& CLQButtonTree::operator=(const CLQButtonTree& other) = default;

CLQButtonTree::~CLQButtonTree() = default;

bool CLQButtonTree::DoMessage(_LQMessage*) {
    return false;
}

void CLQButtonTree::Draw(CLQSurfHandle&) {
    if (m_pOwnerWnd && IsNeedRedraw())
        Redraw(false);
}
