#pragma once

#include <functional>
#include <utility>

#include "KorvaneEx.h"

namespace korvane::demo {

/// The strip on top of every screen, with the panel that switches sources below it.
class TitleStrip : public CLQTitleDialog {
  public:
    bool OnInit() override;
    bool DoMessage(_LQMessage* msg) override;
    void OnBtnBackPressUp() override;

    /// Called when the back button was pressed, or the key of its meaning, which works without the button.
    void WhenBack(std::function<void()> handler) { onBack_ = std::move(handler); }
    /// Called with the item number when the system information has changed and the strip shows it.
    void WhenSystemChanged(std::function<void(int item)> handler) { onSystemChanged_ = std::move(handler); }

    /// Shows a title of the language table, for good.
    void ShowTitle(int caption);
    /// Shows a text of the language table, or a picture, in place of the title for three seconds.
    void ShowNotice(int caption);
    void ShowNotice(const wchar_t* picture);

    void OpenShortcuts();
    void CloseShortcuts();
    bool ShowsShortcuts();

    /// Shows how much of a track has been played, until `EnablePlayTime(false)`.
    void ShowPlayTime(int seconds);

  private:
    void OnNoticeGone(void*, int);
    void ShowShortcuts(bool show);

    std::function<void()> onBack_;
    std::function<void(int item)> onSystemChanged_;
    int title_ = 0;
    CLQTimer noticeTimer_;
};

}  // namespace korvane::demo
