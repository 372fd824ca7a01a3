#pragma once

#include <cstddef>
#include <vector>

#include "KorvaneEx.h"

#include "demo/headunit/Source.h"
#include "demo/headunit/SourceScreen.h"
#include "demo/headunit/files/FilesScreen.h"
#include "demo/headunit/gauges/GaugesScreen.h"
#include "demo/headunit/media/MediaScreen.h"
#include "demo/headunit/menu/MenuScreen.h"
#include "demo/headunit/radio/PresetsScreen.h"
#include "demo/headunit/radio/RadioScreen.h"
#include "demo/headunit/radio/Tuner.h"
#include "demo/headunit/settings/SettingsScreen.h"
#include "demo/headunit/sources/SourcesScreen.h"
#include "demo/headunit/strip/TitleStrip.h"

namespace korvane::demo {

/// The head unit: a screen for what plays, a menu that leads to the others, and the title strip over them.
/// Which source plays, in which zone and in which language it speaks, it reads from the system record; what
/// the user chooses it asks of the main application, which writes the record.
class HeadUnit {
  public:
    static constexpr int kWidth = 800;
    static constexpr int kHeight = 480;

    HeadUnit();
    HeadUnit(const HeadUnit&) = delete;
    HeadUnit& operator=(const HeadUnit&) = delete;
    ~HeadUnit();

    /// Builds everything with its top-left corner at (x, y) of the screen.
    void Create(int x, int y);

  private:
    /// In their order from what plays inwards.
    enum class Screen { Player, Presets, Menu, Sources, Gauges, Files, Settings };

    std::vector<CLQWindow*> Screens();
    void OnSystemChanged(int item);
    void OnBack();
    void OnMenu(MenuItem item);
    void ChooseSource(int id);
    void PlayFiles(Tracks tracks, std::size_t first);
    void ChooseSetting(SysInfoItem item, int value);

    void ShowPhone();
    void ShowLanguage();
    void ShowZone();
    void ShowStick();
    void ShowSource();
    void PlaySource();
    void ShowPresence();
    bool SlidesTo(const Source& source) const;
    void ShowScreen(Screen screen);
    void SlideTo(Screen screen);
    void Enter(Screen screen);
    void SwitchWindows();
    CLQWindow& ShownWindow();
    bool PlaysRadio() const;
    bool PlaysMedium() const;
    void ShowTitle();
    int Title() const;

    static constexpr int kNoSource = -1;

    int x_ = 0;
    int y_ = 0;
    CLQShareMemLink link_;
    const _LQSysInfo* record_ = nullptr;
    const Source* current_ = nullptr;
    bool isSourceThere_ = true;         // the device of the current one
    int lastMedium_ = kUsbMusicSource;  // the one that played last
    int awaited_ = kNoSource;           // the one that the user has asked for
    bool hasPhone_ = false;
    Screen screen_ = Screen::Player;

    Tuner tuner_;
    RadioScreen radio_{tuner_};
    PresetsScreen presets_{tuner_};
    MediaScreen media_;
    SourceScreen other_;
    MenuScreen menu_;
    SourcesScreen sources_;
    GaugesScreen gauges_;
    FilesScreen files_;
    SettingsScreen settings_;
    TitleStrip strip_;
};

}  // namespace korvane::demo
