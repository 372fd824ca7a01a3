#pragma once

#include <ostream>
#include <vector>

#include "sysinfo/MainApplication.h"

namespace korvane::test {

/// A main application that notes what reaches it.
class MainWindow {
  public:
    explicit MainWindow(const wchar_t* title = kMainWindowName, const wchar_t* windowClass = kMainWindowName);
    ~MainWindow() { Close(); }
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// Ends it, as when the main application ends.
    void Close();

    struct Message {
        UINT code;
        WPARAM wParam;
        LPARAM lParam;
        bool operator==(const Message& other) const {
            return code == other.code && wParam == other.wParam && lParam == other.lParam;
        }
        friend std::ostream& operator<<(std::ostream& stream, const Message& message) {
            return stream << message.code << '(' << message.wParam << ", " << message.lParam << ')';
        }
    };

    /// What was asked since the last call, but for the beeps. Messages are posted: pump before.
    std::vector<Message> TakeMessages();
    /// The beeps since the last call.
    int TakeBeeps();

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND handle_ = nullptr;
    std::vector<Message> messages_;
    int beeps_ = 0;
};

}  // namespace korvane::test
