// The places of the virtual operations, which applications that are built already call by number. It compiles
// or it does not: a call of `Misplaced` that the optimizer does not find unreachable is an error.

#include <cstddef>
#include <cstring>

#include "KorvaneEx.h"

namespace korvane::test {

[[gnu::error("a virtual operation has left its place")]] void Misplaced();

}  // namespace korvane::test

namespace {

/// Whether the operation is the numbered one of its class, the destructor being 0.
template <class Operation>
[[gnu::always_inline]] inline void ExpectPlace(Operation operation, std::ptrdiff_t place) {
    struct {
        std::ptrdiff_t pointer;
        std::ptrdiff_t adjustment;
    } parts = {};
    static_assert(sizeof(parts) == sizeof(operation), "a member pointer of two words");
    std::memcpy(&parts, &operation, sizeof(parts));
    // The mark of a virtual operation is the lowest bit of the pointer, on ARM that of the adjustment.
    const std::ptrdiff_t offset = parts.adjustment & 1 ? parts.pointer : parts.pointer - 1;
    // The destructor takes two places in the table.
    if (offset != (place + 1) * static_cast<std::ptrdiff_t>(sizeof(void*)))
        korvane::test::Misplaced();
}

template <class Wnd>
void ExpectPlacesOfWnd() {
    ExpectPlace(&Wnd::Create, 1);
    ExpectPlace(&Wnd::SetSize, 2);
    ExpectPlace(&Wnd::Move, 3);
    ExpectPlace(&Wnd::MoveTo, 4);
    ExpectPlace(&Wnd::SetShow, 5);
    ExpectPlace(&Wnd::IsShow, 6);
    ExpectPlace(&Wnd::EnableFocus, 7);
    ExpectPlace(&Wnd::LoadResource, 8);
    ExpectPlace(&Wnd::SetFocus, 9);
    ExpectPlace(&Wnd::EnableRecvMsg, 10);
    ExpectPlace(&Wnd::EnableWindow, 11);
    ExpectPlace(&Wnd::DoMessage, 12);
    ExpectPlace(&Wnd::Draw, 13);
    ExpectPlace(&Wnd::DoCommand, 14);
    ExpectPlace(&Wnd::ChangeLanguage, 15);
}

template <class Ctrl>
void ExpectPlacesOfCtrl() {
    ExpectPlacesOfWnd<Ctrl>();
    ExpectPlace(&Ctrl::SetFatherWnd, 16);
    ExpectPlace(&Ctrl::Redraw, 17);
    ExpectPlace(&Ctrl::CheckPoint, 18);
    ExpectPlace(&Ctrl::Invalidate, 19);
    ExpectPlace(&Ctrl::DrawBaseCtrl, 20);
    ExpectPlace(&Ctrl::OnFocus, 21);
    ExpectPlace(&Ctrl::OnLostFocus, 22);
    ExpectPlace(&Ctrl::IsCanBeep, 23);
    ExpectPlace(&Ctrl::EnableOwnerUpdate, 24);
    ExpectPlace(&Ctrl::SetLangID, 25);
    ExpectPlace(&Ctrl::IsChildExist, 26);
    ExpectPlace(&Ctrl::Clone, 27);
    ExpectPlace(&Ctrl::LoadCtrlFromIni, 28);
    ExpectPlace(&Ctrl::LoadCtrlFromBin, 29);
    ExpectPlace(&Ctrl::SaveCtrlToIni, 30);
    ExpectPlace(&Ctrl::SaveCtrlToBin, 31);
}

template <class Window>
void ExpectPlacesOfWindow() {
    ExpectPlacesOfWnd<Window>();
    ExpectPlace(&Window::GetDialogName, 16);
    ExpectPlace(&Window::OnInit, 17);
    ExpectPlace(&Window::OnTransEffect, 18);
    ExpectPlace(&Window::OnBtnBackPressUp, 19);
}

}  // namespace

namespace korvane::test {

/// Never called; compiling it is the test.
void ExpectVirtualOperationsInPlace() {
    ExpectPlacesOfWnd<CLQWnd>();
    ExpectPlacesOfWindow<CLQWindow>();
    ExpectPlacesOfWindow<CLQTitleDialog>();
    ExpectPlacesOfCtrl<CLQBaseCtrl>();
    ExpectPlacesOfCtrl<CLQGroupCtrl>();
    ExpectPlacesOfCtrl<CLQSliderCtrl>();
    ExpectPlacesOfCtrl<CLQButtonTree>();
    ExpectPlacesOfCtrl<CLQDialScaleEx>();
    ExpectPlacesOfCtrl<CLQDialSlider>();
    ExpectPlacesOfCtrl<CLQFileView>();
    ExpectPlacesOfCtrl<CLQMenuItemCtrl>();
    ExpectPlacesOfCtrl<CLQNumSlider>();
    ExpectPlacesOfCtrl<CLQSliderExCtrl>();
    ExpectPlacesOfCtrl<CLQSwitchList>();
}

}  // namespace korvane::test
