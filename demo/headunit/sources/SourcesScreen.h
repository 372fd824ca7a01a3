#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "KorvaneEx.h"

#include "demo/headunit/ListLooks.h"

namespace korvane::demo {

struct Source;

/// A list of sources in two pages, with a picture of the one that plays beside it. There is one such screen.
class SourcesScreen : public CLQWindow {
  public:
    SourcesScreen();
    ~SourcesScreen() override;

    /// The window begins at the screen's upper edge, wherever its contents begin: a switch list takes its
    /// position in the window for the one on the screen.
    bool Create(int x, int y, int width, int height) override;
    std::wstring GetDialogName() override { return L"Sources"; }
    bool OnInit() override;
    void SetShow(bool show) override;

    /// Called with the id of a source that was touched, also for the one that plays.
    void WhenChosen(std::function<void(int id)> handler) { onChosen_ = std::move(handler); }
    /// Shows what plays. A source that is not in the list leaves nothing selected there.
    void ShowSource(const Source& source, const _LQSysInfo* record);
    /// Dims the sources whose device is not there.
    void ShowPresence(const _LQSysInfo* record);

  private:
    void CreateList();
    void CreatePicture();
    void OnClick(int cell, bool changed);

    static SourcesScreen* instance_;

    int top_ = 0;
    int playing_ = -1;  // the cell of the source that plays
    std::function<void(int id)> onChosen_;

    ListLooks looks_;  // the list borrows from it
    std::vector<bool> dimmed_;
    CLQImageView background_;
    CLQSwitchList list_;
    CLQImageView picture_;
    CLQStatic name_;
    CLQStatic hint_;
};

}  // namespace korvane::demo
