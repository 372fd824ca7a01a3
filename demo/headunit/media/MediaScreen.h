#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "KorvaneEx.h"

#include "demo/headunit/SourcesButton.h"
#include "demo/headunit/media/Player.h"
#include "demo/headunit/media/ProgressBar.h"
#include "demo/headunit/menu/MenuButton.h"

namespace korvane::demo {

struct Source;

/// The screen of the sources that play a medium: the track, how much of it has been played, and buttons to
/// pause, to go to another track, and to repeat a passage from A to B.
///
/// Each source keeps its place in its medium. The playback goes on while the screen is not shown, and rests
/// while another source plays or a finger holds the progress bar.
class MediaScreen : public CLQWindow {
  public:
    std::wstring GetDialogName() override { return L"Media"; }
    bool OnInit() override;
    void ChangeLanguage() override;

    /// Goes on with the medium of a source.
    void PlaySource(const Source& source);
    /// Lets every medium rest.
    void Rest();
    /// Puts other tracks into a source, which plays them from that one on when its turn comes, or at once if
    /// it has it.
    void InsertTracks(int source, Tracks tracks, std::size_t first);

    /// Called with the seconds that have been played of the track when they change.
    void WhenTimePasses(std::function<void(int seconds)> handler) { onTime_ = std::move(handler); }
    CLQButton& GetSourcesButton() { return sourcesButton_; }
    MenuButton& GetMenuButton() { return menuButton_; }

  private:
    void CreateTrackLabels();
    void CreateProgress();
    void CreateTransportButtons();
    void CreateRepeatButtons();

    /// Brings the player up to the present moment.
    void CatchUp();
    /// Looks at it again when the next second has been played.
    void AwaitSecond();
    void Hold(bool hold);

    /// All of it, after a change of track or language; otherwise what has changed.
    void ShowTrack();
    void ShowTime();
    void ShowPassage();
    void ShowState();

    void OnTick(void*, int);
    void OnProgress(CLQSliderCtrl* slider, int* seconds);
    void OnPlay(CLQButton* button);
    void OnPrevious(CLQButton* button);
    void OnNext(CLQButton* button);
    void OnRepeatStart(CLQButton* button);
    void OnRepeatEnd(CLQButton* button);
    void OnRepeatCancel(CLQButton* button);

    std::map<int, Player> players_;  // by source
    Player* player_ = nullptr;       // the one whose source plays
    const Source* source_ = nullptr;
    unsigned caughtUpMs_ = 0;  // when the player was brought up to the moment
    bool isHeld_ = false;      // the progress bar, by a finger
    int shownSeconds_ = -1;
    std::size_t shownTrack_ = 0;
    std::function<void(int seconds)> onTime_;

    CLQStatic title_;
    CLQStatic artist_;
    ProgressBar progress_;
    CLQStatic elapsed_;
    CLQStatic state_;
    CLQStatic length_;
    CLQButton previous_;
    CLQButton play_;
    CLQButton next_;
    CLQButton repeatStart_;
    CLQButton repeatEnd_;
    CLQButton repeatCancel_;
    SourcesButton sourcesButton_;
    MenuButton menuButton_;
    CLQTimer timer_;
};

}  // namespace korvane::demo
