// The other process of the tests with windows of several processes. It does what it reads, a command a line,
// and answers each with one line.

#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "platform/Simulation.h"
#include "platform/Unicode.h"
#include "platform/coredll.h"

#include "tests/platform/PeerMessages.h"

namespace {

using namespace korvane;

HWND found = nullptr;
std::vector<HWND> windows;
std::string received;

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message >= WM_APP && message < kPeerStops) {
        received += ' ' + std::to_string(message - WM_APP) + ':' + std::to_string(wParam) + ':' +
                    std::to_string(lParam);
    }
    switch (message) {
        case kPeerAdds:
            return static_cast<LRESULT>(2 * wParam) + lParam;
        case kPeerBounces:
            return wParam == 0 ? 0 : SendMessageW(found, kPeerBounces, wParam - 1, lParam) + 1;
        case kPeerEnds:
            std::_Exit(3);
        case kPeerHangs:
            std::cout << "hanging" << std::endl;
            std::this_thread::sleep_for(std::chrono::hours(1));
            return 0;
        case kPeerCloses:
            DestroyWindow(window);
            return 55;
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

std::string MakeWindow(const std::wstring& className, const std::wstring& title) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &Procedure;
    windowClass.lpszClassName = className.c_str();
    RegisterClassW(&windowClass);
    windows.push_back(CreateWindowExW(0, className.c_str(), title.c_str(), WS_POPUP, 0, 0, 10, 10, nullptr,
                                      nullptr, nullptr, nullptr));
    return windows.back() ? "ok" : "failed";
}

std::string NamesOf(HWND window) {
    wchar_t className[256] = L"";
    wchar_t title[256] = L"";
    GetClassNameW(window, className, 256);
    GetWindowTextW(window, title, 256);
    return ToUtf8(className) + ' ' + ToUtf8(title);
}

// Only those of the tests; a system has others.
BOOL CALLBACK AppendNames(HWND window, LPARAM list) {
    const std::string names = NamesOf(window);
    if (names.compare(0, 8, "Korvane.") == 0)
        *reinterpret_cast<std::string*>(list) += '[' + names + ']';
    return TRUE;
}

std::string Take(unsigned count) {
    std::string taken;
    MSG message{};
    for (; count > 0; --count) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0)
            return taken + " quit";
        taken += ' ' + std::to_string(message.message - WM_APP) + ':' + std::to_string(message.wParam) + ':' +
                 std::to_string(message.lParam);
        DispatchMessageW(&message);
    }
    return taken;
}

std::string Serve() {
    received.clear();
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0 && message.message != kPeerStops)
        DispatchMessageW(&message);
    return "served" + received;
}

// Posts 0, 1, 2 and so on, each as often as it takes.
std::string PostMany(WPARAM count, LPARAM lParam) {
    for (WPARAM i = 0; i < count; ++i) {
        while (!PostMessageW(found, WM_APP, i, lParam)) {
            if (GetLastError() != ERROR_NOT_ENOUGH_QUOTA)
                return "failed after " + std::to_string(i);
            std::this_thread::yield();
        }
    }
    return "ok";
}

std::string Do(const std::string& line) {
    std::istringstream words(line);
    std::string command;
    std::string first;
    std::string second;
    long long third = 0;
    words >> command >> first >> second >> third;
    const auto number = [](const std::string& text) { return std::strtoll(text.c_str(), nullptr, 10); };
    const auto name = [](const std::string& text) { return text == "-" ? std::wstring() : FromUtf8(text); };
    if (command == "window")
        return MakeWindow(FromUtf8(first), name(second));
    if (command == "windows") {
        for (long long i = 0; i < number(second); ++i)
            MakeWindow(FromUtf8(first), std::to_wstring(i));
        return "ok";
    }
    if (command == "title")
        return SetWindowTextW(windows.at(static_cast<std::size_t>(number(first))), name(second).c_str())
                   ? "ok"
                   : "failed";
    if (command == "destroy")
        return DestroyWindow(windows.at(static_cast<std::size_t>(number(first)))) ? "ok" : "failed";
    if (command == "root") {
        SetDeviceRoot(first);
        return "ok";
    }
    if (command == "manual") {
        UseManualClock(0, SYSTEMTIME{2024, 1, 0, 1, 0, 0, 0, 0});
        return "ok";
    }
    if (command == "find") {
        found = FindWindowW(first == "*" ? nullptr : FromUtf8(first).c_str(),
                            second == "*" ? nullptr : name(second).c_str());
        return found ? NamesOf(found) : "none";
    }
    if (command == "list") {
        std::string list;
        EnumWindows(&AppendNames, reinterpret_cast<LPARAM>(&list));
        return list.empty() ? "none" : list;
    }
    const auto message = static_cast<UINT>(WM_APP + number(first));
    const auto wParam = static_cast<WPARAM>(number(second));
    if (command == "post")
        return PostMessageW(found, message, wParam, static_cast<LPARAM>(third)) ? "ok" : "failed";
    if (command == "send")
        return std::to_string(SendMessageW(found, message, wParam, static_cast<LPARAM>(third)));
    if (command == "postmany")
        return PostMany(static_cast<WPARAM>(number(first)), static_cast<LPARAM>(number(second)));
    if (command == "take")
        return "taken" + Take(static_cast<unsigned>(number(first)));
    if (command == "serve")
        return Serve();
    return "what?";
}

}  // namespace

int main() {
    std::string line;
    while (std::getline(std::cin, line))
        std::cout << Do(line) << std::endl;
    return 0;
}
