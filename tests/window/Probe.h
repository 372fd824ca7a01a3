#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "engine/Korvane.h"

namespace korvane::test {

/// A control that paints its rectangle in one colour, follows the common press rules and notes what it was
/// told.
class Probe : public CLQBaseCtrl {
  public:
    explicit Probe(unsigned char shade = 200) : shade_(shade) {}

    bool DoMessage(_LQMessage* msg) override {
        messages.push_back(*msg);
        if (onMessage)
            onMessage(*msg);
        switch (msg->code) {
            case kMsgPress:
                if (!CheckPoint(msg->x, msg->y))
                    return false;
                m_nPress = 1;
                return true;
            case kMsgMove:
                return m_nPress == 1;
            case kMsgRelease:
                if (m_nPress != 1)
                    return false;
                m_nPress = 0;
                if (FireEvent(kEventReleased))
                    ++releases;
                return true;
            default:
                return consumesOthers;
        }
    }

    void Draw(CLQSurfHandle& target) override {
        if (m_pOwnerWnd && !IsNeedRedraw())
            return;
        ++draws;
        if (const auto handler = std::exchange(onDraw, nullptr)) {
            handler();
            return;
        }
        int x;
        int y;
        GetScreenXY(x, y);
        _LQColor color{shade_, static_cast<unsigned char>(shade_ / 2), 40, alpha};
        // Reaches beyond the control on purpose: the repaint keeps it inside.
        target.FillRect(x - 5, y - 5, x + m_nWidth + 5, y + m_nHeight + 5, color, true);
        if (m_pOwnerWnd)
            Redraw(false);
    }

    void OnFocus() override { ++focusGained; }
    void OnLostFocus() override {
        ++focusLost;
        if (const auto handler = std::exchange(onLostFocus, nullptr))
            handler();
    }
    void ChangeLanguage() override { ++languageChanges; }

    std::vector<_LQMessage> messages;
    std::function<void(const _LQMessage&)> onMessage;
    std::function<void()> onDraw;       ///< called once, in place of the painting
    std::function<void()> onLostFocus;  ///< called once
    bool consumesOthers = false;
    unsigned char alpha = 255;
    int releases = 0;
    int draws = 0;
    int focusGained = 0;
    int focusLost = 0;
    int languageChanges = 0;

  private:
    unsigned char shade_;
};

}  // namespace korvane::test
