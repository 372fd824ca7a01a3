#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

#include "KorvaneEx.h"

#include "demo/headunit/files/FolderBrowser.h"
#include "demo/headunit/media/Track.h"

namespace korvane::demo {

/// The folders and files of the stick, "\USB" on the device, one entry at a time. There is one such screen.
///
/// It reads the folder when it is shown, when the user enters it, and when it finds that it came or went.
class FilesScreen : public CLQWindow {
  public:
    FilesScreen();
    ~FilesScreen() override;

    std::wstring GetDialogName() override { return L"Files"; }
    bool OnInit() override;
    void SetShow(bool show) override;
    void ChangeLanguage() override;

    /// Whether a stick is plugged in. One that is plugged in again shows from its beginning.
    void PlugIn(bool isPlugged);
    /// Goes to the folder above. False in the stick's own folder.
    bool LeaveFolder();

    /// Called with the music of the folder and the number, from 0, of the one that was opened.
    void WhenMusicOpened(std::function<void(Tracks, std::size_t)> handler) { onMusic_ = std::move(handler); }
    /// Called when a folder turned out not to be there any more.
    void WhenFolderGone(std::function<void()> handler) { onGone_ = std::move(handler); }

  private:
    void CreateFolderLabels();
    void CreateView();

    void ShowEntries();
    void ShowNothing();
    void ShowFolder();
    void ShowHint();
    std::wstring Label(int offset) const;
    bool HasEntries() const { return isPlugged_ && browser_.EntryCount() > 0 && browser_.HasMedium(); }
    bool IsFolderAsShown() const { return browser_.IsFolderThere() == browser_.HasMedium(); }
    bool LeadsSomewhere() const;

    void OnRequest(int request);
    void OnTick(void*, int);
    void Open();
    void PlayMusic(const FolderEntry& first);

    static FilesScreen* instance_;

    FolderBrowser browser_;
    bool isPlugged_ = true;
    std::function<void(Tracks, std::size_t)> onMusic_;
    std::function<void()> onGone_;

    CLQStatic folder_;
    CLQStatic number_;
    CLQImageView swipe_;
    CLQFileView view_;
    CLQStatic hint_;
    CLQTimer timer_;
};

}  // namespace korvane::demo
