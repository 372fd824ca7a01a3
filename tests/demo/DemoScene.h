#pragma once

#include <string>
#include <vector>

#include "tests/support/Scene.h"

namespace korvane::test {

/// A scene whose device has the head unit's pictures, layouts, languages and factory settings, and the
/// system-information service. The language is English.
class DemoScene : public Scene {
  public:
    DemoScene();
    ~DemoScene();

    /// The texts of all labels that are shown, on any window.
    std::vector<std::wstring> Labels() const;
    /// Whether one of them is this one.
    bool Shows(const std::wstring& text) const;
    /// A control of that name that is shown, on any window; null without one.
    CLQBaseCtrl* FindControl(const wchar_t* name) const;
    bool ShowsControl(const wchar_t* name) const { return FindControl(name) != nullptr; }

    void Touch(int x, int y) {
        Press(x, y);
        Release(x, y);
    }
};

}  // namespace korvane::test
