#include "tests/title/bench/MainWindow.h"

#include <utility>

#include "engine/core/Message.h"

namespace korvane::test {

MainWindow::MainWindow(const wchar_t* title, const wchar_t* windowClass) {
    WNDCLASSW description = {};
    description.lpfnWndProc = &Procedure;
    description.lpszClassName = windowClass;
    // Fails for the second window of a class, which is there then.
    RegisterClassW(&description);
    handle_ =
        CreateWindowExW(0, windowClass, title, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

void MainWindow::Close() {
    if (!handle_)
        return;
    SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
    DestroyWindow(handle_);
    handle_ = nullptr;
}

std::vector<MainWindow::Message> MainWindow::TakeMessages() {
    return std::exchange(messages_, {});
}

int MainWindow::TakeBeeps() {
    return std::exchange(beeps_, 0);
}

LRESULT CALLBACK MainWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const self = reinterpret_cast<MainWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self && message == kMainKeyBeep)
        ++self->beeps_;
    else if (self && message >= WM_USER && message != kMsgSysInfoChanged)
        self->messages_.push_back({message, wParam, lParam});
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace korvane::test
