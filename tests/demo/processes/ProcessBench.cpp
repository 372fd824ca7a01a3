#include "tests/demo/processes/ProcessBench.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <stdexcept>

#include "module/ThumbNail.h"
#include "platform/Simulation.h"
#include "sysinfo/MainApplication.h"
#include "sysinfo/SysInfoFields.h"

namespace korvane::test {

namespace {

constexpr wchar_t kScreenClass[] = L"KorvaneScreen";
constexpr UINT kSysInfoChanged = 1191;
constexpr UINT kPatienceMs = 20000;
constexpr UINT_PTR kPatienceTimer = 1;

constexpr char kCounter[] = "tests.counter";

/// The end of the patience that begins with it.
class Deadline {
  public:
    bool IsOver() const { return Clock::now() >= end_; }

  private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point end_ = Clock::now() + std::chrono::milliseconds(kPatienceMs);
};

bool IsSame(const png::Picture& a, const png::Picture& b, const RECT& part) {
    if (a.width != b.width || a.height != b.height || a.pixels.empty())
        return false;
    for (int y = part.top; y < part.bottom; ++y) {
        const auto row = static_cast<std::ptrdiff_t>(y) * a.width;
        if (!std::equal(a.pixels.begin() + row + part.left, a.pixels.begin() + row + part.right,
                        b.pixels.begin() + row + part.left))
            return false;
    }
    return true;
}

}  // namespace

ProcessBench::Device::Device() {
    if (!Enter())
        throw std::runtime_error("no scratch device");
}

ProcessBench::ProcessBench() {
    WNDCLASSW description = {};
    description.lpfnWndProc = &ListenerProc;
    description.lpszClassName = kScreenClass;
    RegisterClassW(&description);
    listener_ = CreateWindowExW(0, kScreenClass, L"Listener", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr,
                                nullptr);
    SetWindowLongPtrW(listener_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    // Some systems forget the record, and the picture, when no process has them any more.
    service_.Record();
    CLQSurfHandle picture;
    GetThumbNail(picture);
}

ProcessBench::~ProcessBench() {
    DestroyWindow(listener_);
}

LRESULT CALLBACK ProcessBench::ListenerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const self = reinterpret_cast<ProcessBench*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self && message == kSysInfoChanged)
        self->items_.push_back(static_cast<int>(wParam));
    return DefWindowProcW(window, message, wParam, lParam);
}

std::unique_ptr<Program> ProcessBench::StartHeadUnit() {
    return Start({KORVANE_TEST_HEADUNIT, "--display", "memory", "--device-root", DeviceRoot()},
                 "headunit: ready");
}

std::unique_ptr<Program> ProcessBench::StartMainApplication() {
    return Start({KORVANE_TEST_MAINAPP, "--device-root", DeviceRoot()}, "mainapp: ready");
}

std::unique_ptr<Program> ProcessBench::StartServiceUser() {
    return Start({KORVANE_TEST_SERVICEUSER, DeviceRoot(), kCounter}, "serviceuser: ready");
}

std::unique_ptr<Program> ProcessBench::Start(const std::vector<std::string>& command,
                                             const std::string& readyLine) {
    auto program = std::make_unique<Program>(command);
    if (!program->WaitForLine(readyLine))
        ADD_FAILURE() << command.front() << " does not start: " << program->Errors();
    return program;
}

ProcessBench::Answer ProcessBench::Ctl(const std::vector<std::string>& arguments) {
    std::vector<std::string> command = {KORVANE_TEST_HEADUNITCTL, "--device-root", DeviceRoot()};
    command.insert(command.end(), arguments.begin(), arguments.end());
    Program program(command);
    const int status = program.Wait();
    return {status, program.Output(), program.Errors()};
}

void ProcessBench::Touch(int x, int y) {
    for (const char* const phase : {"press", "release"}) {
        const Answer answer = Ctl({phase, std::to_string(x), std::to_string(y)});
        ASSERT_EQ(answer.status, 0) << answer.errors;
    }
}

png::Picture ProcessBench::Screenshot() {
    const std::string file = DeviceRoot() + "/screen.png";
    png::Picture picture;
    std::string reason;
    if (Ctl({"screenshot", file}).status == 0)
        png::ReadPng(file, picture, reason);
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    return picture;
}

std::string ProcessBench::Record() {
    std::string fields;
    for (const SysInfoField& field : kSysInfoFields)
        fields += std::to_string(Get(field.name)) + " ";
    return fields;
}

bool ProcessBench::AwaitCount() {
    const Deadline deadline;
    const std::string name = kCounter;
    const std::wstring counter(name.begin(), name.end());
    const int before = Get(counter.c_str());
    while (!deadline.IsOver()) {
        if (Get(counter.c_str()) > before)
            return true;
    }
    return false;
}

bool ProcessBench::AwaitItem(int item) {
    SetTimer(listener_, kPatienceTimer, kPatienceMs, nullptr);
    MSG msg = {};
    bool found = false;
    while (!found && GetMessageW(&msg, listener_, 0, 0) > 0 && msg.message != WM_TIMER) {
        DispatchMessageW(&msg);
        found = std::find(items_.begin(), items_.end(), item) != items_.end();
    }
    KillTimer(listener_, kPatienceTimer);
    items_.clear();
    return found;
}

bool ProcessBench::AwaitChange(const png::Picture& from, const RECT& part) {
    return AwaitLook(from, part, false);
}

bool ProcessBench::AwaitSame(const png::Picture& as, const RECT& part) {
    return AwaitLook(as, part, true);
}

bool ProcessBench::AwaitLook(const png::Picture& picture, const RECT& part, bool same) {
    const Deadline deadline;
    while (!deadline.IsOver()) {
        const png::Picture screen = Screenshot();
        if (!screen.pixels.empty() && IsSame(screen, picture, part) == same)
            return true;
    }
    return false;
}

std::string ProcessBench::HostPath(const wchar_t* devicePath) const {
    return ToHostPath(devicePath);
}

}  // namespace korvane::test
