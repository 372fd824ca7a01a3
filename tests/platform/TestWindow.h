#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/coredll.h"

namespace korvane {

struct Received {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

/// A visible top-level window, 100 by 80 pixels unless told otherwise, that notes what its procedure receives
/// after WM_CREATE. Its messages of creation are taken from the queue before the constructor returns.
class TestWindow {
  public:
    struct Options {
        const wchar_t* title = L"";
        DWORD style = WS_POPUP | WS_VISIBLE;
        HWND parent = nullptr;
        int width = 100;
        int height = 80;
    };

    TestWindow() : TestWindow(Options{}) {}
    explicit TestWindow(const Options& options);
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    HWND Handle() const { return handle_; }
    std::vector<Received>& All() { return received_; }
    std::vector<UINT> Numbers() const;
    void Forget() { received_.clear(); }

    /// Called before the default procedure; a message that it answers with true goes no further.
    std::function<bool(UINT, WPARAM, LPARAM, LRESULT&)> onMessage;

    static const wchar_t* ClassName() { return L"Korvane.Test"; }

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND handle_ = nullptr;
    std::vector<Received> received_;
};

/// The numbers of all messages that wait, in the order in which a loop gets them; dispatches each.
std::vector<UINT> DrainQueue();

}  // namespace korvane
