#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "platform/coredll.h"

#include "demo/headunit/tour/ScratchDevice.h"
#include "tests/support/Program.h"
#include "tools/png/Png.h"
#include "tools/systemservice/SystemService.h"

namespace korvane::test {

/// A device of the test's own, on which the real programs run, each in its process and the head unit
/// off-screen.
class ProcessBench : public testing::Test {
  protected:
    ProcessBench();
    ~ProcessBench() override;

    /// Started, and ready.
    std::unique_ptr<Program> StartHeadUnit();
    std::unique_ptr<Program> StartMainApplication();
    std::unique_ptr<Program> StartServiceUser();

    struct Answer {
        int status;
        std::string output;
        std::string errors;
    };
    /// Runs headunitctl on the device.
    Answer Ctl(const std::vector<std::string>& arguments);
    /// Has it touch the screen in one place.
    void Touch(int x, int y);
    /// Has it take a picture of the screen; one without pixels when there is none.
    png::Picture Screenshot();

    int Get(const wchar_t* field) { return service_.Value(field, -1); }
    /// All fields, to be compared.
    std::string Record();
    /// Waits until a service user has counted on.
    bool AwaitCount();
    /// Waits until the service has told of a change of that item, or has done so since it was waited for
    /// last.
    bool AwaitItem(int item);
    void ForgetItems() { items_.clear(); }

    /// Waits until a part of the screen, given by its edges, looks different from that picture, or the same.
    bool AwaitChange(const png::Picture& from, const RECT& part);
    bool AwaitSame(const png::Picture& as, const RECT& part);

    std::string HostPath(const wchar_t* devicePath) const;

  private:
    static LRESULT CALLBACK ListenerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::unique_ptr<Program> Start(const std::vector<std::string>& command, const std::string& readyLine);
    bool AwaitLook(const png::Picture& picture, const RECT& part, bool same);

    /// There before any other member asks for the device.
    struct Device : demo::ScratchDevice {
        Device();
    };

    Device device_;
    tools::SystemService service_;
    /// Of the class of a screen, so that the service tells it of changes.
    HWND listener_ = nullptr;
    std::vector<int> items_;
};

}  // namespace korvane::test
