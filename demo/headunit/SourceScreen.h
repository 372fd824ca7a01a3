#pragma once

#include "KorvaneEx.h"

#include "demo/headunit/SourcesButton.h"
#include "demo/headunit/menu/MenuButton.h"

namespace korvane::demo {

struct Source;

/// The screen of a source that has none of its own, or whose device is not there: its picture, its name and
/// a hint.
class SourceScreen : public CLQWindow {
  public:
    std::wstring GetDialogName() override { return L"Source"; }
    bool OnInit() override;

    void ShowSource(const Source& source, const _LQSysInfo* record);
    CLQButton& GetSourcesButton() { return sourcesButton_; }
    MenuButton& GetMenuButton() { return menuButton_; }

  private:
    CLQImageView picture_;
    CLQStatic caption_;
    CLQStatic hint_;
    SourcesButton sourcesButton_;
    MenuButton menuButton_;
};

}  // namespace korvane::demo
