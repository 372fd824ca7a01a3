#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

void RegisterOnce(WNDPROC procedure, const wchar_t* name) {
    static const ATOM atom = [&] {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = procedure;
        windowClass.lpszClassName = name;
        return RegisterClassW(&windowClass);
    }();
    static_cast<void>(atom);
}

}  // namespace

TestWindow::TestWindow(const Options& options) {
    RegisterOnce(&Procedure, ClassName());
    handle_ = CreateWindowExW(0, ClassName(), options.title, options.style, 10, 20, options.width,
                              options.height, options.parent, nullptr, nullptr, nullptr);
    DrainQueue();
    ValidateRect(handle_, nullptr);
    SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

TestWindow::~TestWindow() {
    SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
    DestroyWindow(handle_);
}

std::vector<UINT> TestWindow::Numbers() const {
    std::vector<UINT> numbers;
    for (const Received& message : received_)
        numbers.push_back(message.message);
    return numbers;
}

LRESULT CALLBACK TestWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const self = reinterpret_cast<TestWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self) {
        self->received_.push_back({message, wParam, lParam});
        const auto handler = self->onMessage;
        LRESULT result = 0;
        if (handler && handler(message, wParam, lParam, result))
            return result;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

std::vector<UINT> DrainQueue() {
    std::vector<UINT> numbers;
    MSG message{};
    while (numbers.size() < 1000 && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        numbers.push_back(message.message);
        DispatchMessageW(&message);
    }
    return numbers;
}

}  // namespace korvane
