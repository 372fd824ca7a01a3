#pragma once

#include <string>
#include <vector>

#include "controls/FileView.h"

#include "tests/controls/dials/Surfaces.h"
#include "tests/support/Scene.h"

namespace korvane::test {

/// Where most tests put the view. Its icon then covers (202, 165) to (298, 294).
constexpr int kViewX = 100;
constexpr int kViewY = 60;
constexpr int kViewWidth = 300;
constexpr int kViewHeight = 400;

/// A file view that lets tests read what a derived class can read.
class TestFileView : public CLQFileView {
  public:
    CLQButton* Up() { return m_pBtnUp; }
    CLQButton* Down() { return m_pBtnDown; }
    CLQImageView* Icon() { return m_pImageIcon; }
    CLQStatic* Top() { return m_pStTop; }
    CLQStatic* Centre() { return m_pStCentre; }
    CLQStatic* Bottom() { return m_pStBottom; }
    bool IsContentSet() const { return m_bContentSet; }
    bool IsOpenArmed() const { return m_bOpenArmed; }
    bool IsSwipeUpArmed() const { return m_bSwipeUpArmed; }
    bool IsSwipeDownArmed() const { return m_bSwipeDownArmed; }
    bool IsNoScroll() const { return m_bNoScroll; }
    bool IsInRootMode() const { return m_bRootMode; }
    int PressX() const { return m_nPressX; }
    int PressY() const { return m_nPressY; }
    static unsigned char& BandTouched() { return s_byBandTouched; }

    void Disarm() { m_bOpenArmed = m_bSwipeUpArmed = m_bSwipeDownArmed = false; }

    /// The text of the label, empty while it is hidden.
    static std::wstring Shown(CLQStatic* label) { return label->IsShow() ? label->GetText() : L""; }
};

/// What the callback was asked for. It has no context, so that there is one list for the program.
inline std::vector<int>& Requests() {
    static std::vector<int> requests;
    return requests;
}

inline void NoteRequest(int request) {
    Requests().push_back(request);
}

inline void* NotingCallBack() {
    return reinterpret_cast<void*>(&NoteRequest);
}

/// The list of requests since the last call.
inline std::vector<int> TakeRequests() {
    std::vector<int> taken;
    taken.swap(Requests());
    return taken;
}

}  // namespace korvane::test
