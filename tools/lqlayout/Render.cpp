#include "tools/lqlayout/Render.h"

#include "engine/core/Message.h"
#include "engine/text/LangManager.h"
#include "engine/window/GroupCtrl.h"
#include "engine/window/Screen.h"
#include "engine/window/Window.h"
#include "platform/Display.h"
#include "platform/Simulation.h"
#include "platform/Unicode.h"

#include "tools/png/Png.h"
#include "tools/png/SurfacePicture.h"

namespace korvane::tools {
namespace {

/// The screen, off-screen and with a clock that stands still, until the end of the scope.
class OffScreen {
  public:
    explicit OffScreen(const ScreenSize& size) {
        SYSTEMTIME time = {};
        time.wYear = 2024;
        time.wMonth = 1;
        time.wDay = 1;
        UseManualClock(0, time);
        isOpen_ = CLQScreen::GetInstance()->Open("memory", size.width, size.height, L"Layout");
    }
    OffScreen(const OffScreen&) = delete;
    OffScreen& operator=(const OffScreen&) = delete;
    ~OffScreen() { CLQScreen::GetInstance()->Close(); }

    bool IsOpen() const { return isOpen_; }

    png::Picture Paint() {
        CLQScreen::GetInstance()->Paint();
        return png::FromSurface(CLQScreen::GetInstance()->GetScreenSurfHandle());
    }

  private:
    bool isOpen_ = false;
};

/// Calls `change` for the control of each name.
template <class Change>
bool ChangeCtrls(CLQGroupCtrl& group, const std::vector<std::string>& names, std::string& error,
                 Change change) {
    for (const std::string& name : names) {
        CLQBaseCtrl* const ctrl = group.FindCtrl(FromUtf8(name).c_str());
        if (!ctrl) {
            error = "no control has the name \"" + name + "\"";
            return false;
        }
        change(*ctrl);
    }
    return true;
}

/// A touch in the middle of the control, which holds it.
void Press(CLQBaseCtrl& ctrl) {
    const _LQRect rect = ctrl.GetScreenRect();
    _LQMessage press;
    press.code = kMsgPress;
    press.x = rect.left + (rect.right - rect.left) / 2;
    press.y = rect.top + (rect.bottom - rect.top) / 2;
    ctrl.DoMessage(&press);
}

bool SetState(CLQGroupCtrl& group, const RenderOptions& options, std::string& error) {
    group.BuildRelationNameToPtr();
    return ChangeCtrls(group, options.shown, error, [](CLQBaseCtrl& ctrl) { ctrl.SetShow(true); }) &&
           ChangeCtrls(group, options.hidden, error, [](CLQBaseCtrl& ctrl) { ctrl.SetShow(false); }) &&
           ChangeCtrls(group, options.disabled, error, [](CLQBaseCtrl& ctrl) { ctrl.EnableWindow(false); }) &&
           ChangeCtrls(group, options.pressed, error, Press);
}

}  // namespace

bool RenderLayout(Layout& layout, const RenderOptions& options, const std::filesystem::path& png,
                  std::string& error) {
    OffScreen screen(options.screen);
    if (!screen.IsOpen()) {
        error = DisplayFailure();
        return false;
    }
    if (!options.language.empty() &&
        !CLQLangManager::GetInstance()->LoadLanguage(FromUtf8(options.language).c_str())) {
        error = "the language table " + options.language + " is missing or damaged";
        return false;
    }
    CLQWindow window;
    CLQGroupCtrl group;
    window.Create(0, 0, options.screen.width, options.screen.height);
    _LQColor black = {0, 0, 0, 255};
    window.EnableBkgColor(true, &black);
    window.AddChild(&group);
    if (!group.LoadCtrlFromBin(layout.Records(), 0)) {
        error = "cannot be loaded";
        return false;
    }
    if (!SetState(group, options, error))
        return false;
    std::string what;
    if (!png::WritePng(png, screen.Paint(), what)) {
        error = png.string() + ": " + what;
        return false;
    }
    return true;
}

}  // namespace korvane::tools
