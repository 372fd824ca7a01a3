#include "demo/headunit/tour/HeadUnitTour.h"

namespace korvane::demo {

namespace {

constexpr int kWheelX = 340;
constexpr unsigned kTickMs = 50;
constexpr unsigned kStepMs = 200;

constexpr int kPresetsX = 696;
constexpr int kPresetsY = 453;
constexpr int kScaleX = 120;
constexpr int kScaleY = 270;
constexpr int kPresetBandX = 692;
constexpr int kPresetBandY = 130;
constexpr unsigned kHoldMs = 1500;
/// The presets' buttons from the left, in the upper row and the lower one.
constexpr int PresetX(int column) {
    return 304 + 186 * column;
}
constexpr int kUpperPresetY = 256;
constexpr int kLowerPresetY = 378;

constexpr int kStripY = 30;
constexpr int kBackX = 100;
constexpr int kTrafficCancelX = 558;
constexpr int kZoneX = 617;
constexpr int kGuideX = 667;
constexpr unsigned kFlashMs = 500;
constexpr unsigned kNoticeMs = 3500;

constexpr int kSourcesX = 688;
constexpr int kSourcesY = 224;
constexpr int kShortcut2X = 244;
constexpr int kShortcutY = 137;
constexpr int kPanelBackX = 400;
constexpr int kPanelBackY = 300;
constexpr unsigned kMinuteMs = 60000;

constexpr int kMenuX = 88;
constexpr int kMenuY = 453;
constexpr unsigned kLongPressMs = 2000;
constexpr int kDriveX = 630;
constexpr int kDriveY = 424;

/// The buttons of the media screen from the left, in the upper row and the lower one.
constexpr int MediaX(int column) {
    return 250 + 150 * column;
}
constexpr int kTransportY = 310;
constexpr int kRepeatY = 406;
constexpr int kProgressY = 202;

constexpr int kFilesX = 400;
constexpr int kFilesY = 234;
constexpr int kFilesDownY = 445;

constexpr int kListX = 180;
/// The cells of the list of sources, from the top.
constexpr int ListCellY(int cell) {
    return 110 + 80 * cell;
}

/// Those of the list of languages.
constexpr int LanguageY(int cell) {
    return 105 + 56 * cell;
}
constexpr int kSwitchX = 550;
/// The switches of the settings, from the top.
constexpr int SwitchY(int row) {
    return 124 + 96 * row;
}

/// The tiles of the menu from the left, in the upper row and the lower one.
constexpr int TileX(int column) {
    return 141 + 259 * column;
}
constexpr int kUpperTileY = 168;
constexpr int kLowerTileY = 368;

void SwipeUp(TourScript& tour) {
    tour.Press(kWheelX, 280).Move(kWheelX, 220).Release(kWheelX, 160);
}

void SwipeDown(TourScript& tour) {
    tour.Press(kWheelX, 160).Release(kWheelX, 280);
}

void StopWheel(TourScript& tour) {
    tour.Touch(kWheelX, 224);
}

void TouchBand(TourScript& tour) {
    tour.Touch(112, 224);
}

void ShowFm(TourScript& tour) {
    tour.Picture("fm");
    // Step by step, with a picture at a quarter of a step.
    SwipeUp(tour);
    tour.Wait(kTickMs).Picture("fm-swiped-up");
    tour.Wait(kStepMs * 5).Picture("fm-seeking-up");
    StopWheel(tour);
    tour.Picture("fm-stopped");
    // The integer column rolls along where the fraction carries.
    tour.Press(387, 408).Move(430, 408).Picture("fm-tuning-by-hand").Release(430, 408);
    tour.Picture("fm-tuned-by-hand");
    SwipeUp(tour);
    tour.Wait(kStepMs + kTickMs).Picture("fm-carry");
    StopWheel(tour);
    // At the end of the band the wheel goes on at the other end.
    tour.Press(430, 408).Move(790, 408).Release(790, 408).Picture("fm-upper-end");
    SwipeUp(tour);
    tour.Wait(kStepMs).Picture("fm-wrapped").Wait(kStepMs + 2 * kTickMs);
    StopWheel(tour);
    SwipeDown(tour);
    tour.Wait(3 * kTickMs).Picture("fm-swiped-down");
    tour.Wait(kStepMs * 4).Picture("fm-wrapped-down");
    StopWheel(tour);
}

void ShowAm(TourScript& tour) {
    tour.Press(112, 224).Picture("band-pressed").Release(112, 224).Picture("am");
    SwipeUp(tour);
    tour.Wait(2 * kTickMs).Picture("am-swiped-up");
    tour.Wait(2 * kStepMs).Picture("am-seeking-up");
    StopWheel(tour);
    tour.Picture("am-stopped");
    TouchBand(tour);
    tour.Picture("fm-again");
}

void ShowPresets(TourScript& tour) {
    tour.Press(kPresetsX, kPresetsY).Picture("presets-button-pressed").Release(kPresetsX, kPresetsY);
    tour.Picture("presets").Touch(PresetX(0), kLowerPresetY).Picture("presets-recalled");
    tour.Press(kScaleX, kScaleY).Move(kScaleX, kScaleY - 100).Picture("presets-dragged");
    tour.Release(kScaleX, kScaleY - 100).Press(PresetX(1), kUpperPresetY).Wait(kHoldMs - 100);
    tour.Picture("presets-held").Wait(100).Picture("presets-stored").Release(PresetX(1), kUpperPresetY);
    tour.Touch(PresetX(2), kLowerPresetY).Picture("presets-near-the-upper-end");
    tour.Touch(kPresetBandX, kPresetBandY).Picture("presets-am");
    tour.Set(L"language", 10).Picture("presets-am-polish").Set(L"language", 0);
    tour.Touch(kPresetBandX, kPresetBandY).Touch(PresetX(0), kLowerPresetY).Touch(kBackX, kStripY);
    tour.Picture("fm-from-the-presets");
}

void ShowStrip(TourScript& tour) {
    tour.Set(L"mute", 1).Set(L"btState", 2).Set(L"regOn", 1).Picture("strip-muted-on-the-phone");
    // AF flashes while it searches.
    tour.Set(L"afState", 2).Wait(kFlashMs).Picture("strip-af-flashes").Wait(kFlashMs);
    tour.Picture("strip-af-flashes-on").Set(L"afState", 1);
    tour.Set(L"mute", 0).Set(L"btState", 1).Set(L"clock24h", 0).Picture("strip-12-hour-clock");
    tour.Set(L"clock24h", 1).Set(L"taActive", 1).Picture("strip-traffic");
    tour.Set(L"language", 5).Picture("strip-traffic-german");
    tour.Press(kTrafficCancelX, kStripY)
        .Picture("strip-traffic-cancel-pressed")
        .Release(kTrafficCancelX, kStripY);
    tour.Picture("german").Set(L"language", 16).Picture("japanese").Set(L"language", 0);
    tour.Touch(kZoneX, kStripY).Picture("strip-rear-zone").Wait(kNoticeMs).Picture("strip-rear-zone-later");
    tour.Touch(kZoneX, kStripY).Wait(kNoticeMs);
    tour.Set(L"btState", 0).Set(L"btState", 1).Picture("strip-phone-connected").Wait(kNoticeMs);
    tour.Set(L"guideAvail", 0).Set(L"frontRearAvail", 0).Set(L"gps", 0).Set(L"rdsIconMask", 0);
    tour.Picture("strip-bare").Set(L"guideAvail", 1).Set(L"frontRearAvail", 1).Set(L"gps", 1);
    tour.Set(L"rdsIconMask", 31);
}

void ShowSources(TourScript& tour) {
    tour.Press(kSourcesX, kSourcesY).Picture("sources-pressed").Release(kSourcesX, kSourcesY);
    tour.Picture("shortcuts").Press(kShortcut2X, kShortcutY).Picture("shortcuts-disc-pressed");
    tour.Release(kShortcut2X, kShortcutY).Picture("disc").Wait(kMinuteMs + 5000).Picture("disc-plays");
    tour.Set(L"discAudioPresent", 0).Picture("disc-taken-out");
    tour.Touch(kSourcesX, kSourcesY).Picture("shortcuts-no-disc");
    tour.Press(kPanelBackX, kPanelBackY).Picture("shortcuts-back-pressed").Release(kPanelBackX, kPanelBackY);
    tour.Press(kBackX, kStripY).Picture("back-pressed").Release(kBackX, kStripY).Picture("radio-again");
    tour.Press(kGuideX, kStripY).Picture("guide-pressed").Release(kGuideX, kStripY).Picture("navigation");
    tour.Set(L"source", 12).Picture("telephone").Set(L"source", 8).Picture("player");
    tour.Set(L"source", 37).Picture("dab");
}

void ShowMenu(TourScript& tour) {
    tour.Press(kMenuX, kMenuY).Picture("menu-button-pressed").Release(kMenuX, kMenuY).Picture("menu");
    tour.Wait(4 * kTickMs).Picture("menu-plays");
    tour.Press(TileX(1), kUpperTileY).Picture("menu-media-pressed").Wait(kLongPressMs);
    tour.Release(TileX(1), kUpperTileY).Picture("menu-media-in-hand");
    tour.Touch(TileX(1), kLowerTileY).Picture("menu-media-moved").Touch(TileX(1), kLowerTileY);
    tour.Touch(TileX(1), kUpperTileY).Touch(kBackX, kStripY).Picture("menu-as-before");
    tour.Touch(TileX(1), kUpperTileY).Picture("media").Touch(kMenuX, kMenuY);
    tour.Picture("menu-media-playing").Set(L"language", 5).Picture("menu-german").Set(L"language", 0);
    tour.Touch(TileX(0), kUpperTileY).Picture("radio-from-the-menu");
}

void ShowGauges(TourScript& tour) {
    tour.Touch(kMenuX, kMenuY).Touch(TileX(0), kLowerTileY).Picture("gauges");
    tour.Wait(8000).Picture("gauges-in-town").Wait(20000).Picture("gauges-on-the-motorway");
    tour.Press(kDriveX, kDriveY).Picture("gauges-stop-pressed").Release(kDriveX, kDriveY).Wait(kMinuteMs);
    tour.Set(L"language", 13).Picture("gauges-stopped-french").Set(L"language", 0);
    tour.Touch(kBackX, kStripY).Picture("menu-again").Touch(kBackX, kStripY);
}

void ShowSourceList(TourScript& tour) {
    tour.Touch(kMenuX, kMenuY).Touch(TileX(2), kUpperTileY).Picture("source-list");
    tour.Press(kListX, ListCellY(4)).Picture("source-list-page-pressed").Release(kListX, ListCellY(4));
    tour.Picture("source-list-second-page").Touch(kListX, ListCellY(1)).Picture("bluetooth");
    tour.Touch(kMenuX, kMenuY).Touch(TileX(2), kUpperTileY).Set(L"tvPresent", 0);
    tour.Touch(kListX, ListCellY(3)).Picture("source-list-no-tv").Wait(kNoticeMs).Set(L"language", 11);
    tour.Picture("source-list-greek").Set(L"language", 0).Touch(kListX, ListCellY(4));
    tour.Touch(kListX, ListCellY(0)).Picture("radio-from-the-list");
}

void ShowMedia(TourScript& tour) {
    tour.Set(L"discAudioPresent", 1).Set(L"source", 4).Wait(30000);
    tour.Press(MediaX(0), kRepeatY)
        .Picture("media-a-pressed")
        .Release(MediaX(0), kRepeatY)
        .Picture("media-a");
    tour.Wait(60000).Touch(MediaX(1), kRepeatY).Picture("media-a-to-b").Wait(40000).Picture("media-repeats");
    tour.Press(300, kProgressY).Move(500, kProgressY).Picture("media-seeks").Release(500, kProgressY);
    tour.Touch(MediaX(2), kRepeatY).Picture("media-repeat-cancelled");
    tour.Touch(MediaX(1), kTransportY).Wait(5000).Picture("media-paused").Touch(MediaX(1), kTransportY);
    tour.Touch(MediaX(0), kTransportY).Touch(MediaX(0), kTransportY).Wait(4000).Picture("media-long-title");
    tour.Set(L"source", 6).Touch(MediaX(2), kTransportY).Wait(12000).Picture("media-stick");
    tour.Set(L"discVideoPresent", 1).Set(L"source", 5).Set(L"language", 11).Wait(3900000);
    tour.Picture("media-film-greek").Set(L"language", 0);
}

void OpenEntry(TourScript& tour) {
    tour.Press(220, kFilesY).Release(340, kFilesY);
}

void StepDown(TourScript& tour) {
    tour.Touch(kFilesX, kFilesDownY);
}

void ShowFiles(TourScript& tour) {
    tour.Touch(kMenuX, kMenuY).Touch(TileX(1), kLowerTileY).Picture("files");
    StepDown(tour);
    tour.Picture("files-down");
    tour.Press(kFilesX, 280).Release(kFilesX, 200).Picture("files-swiped-up");
    tour.Press(kFilesX, 200).Release(kFilesX, 280).Picture("files-swiped-down");
    OpenEntry(tour);
    tour.Picture("files-opened");
    OpenEntry(tour);
    tour.Picture("files-songs");
    OpenEntry(tour);
    tour.Picture("files-plays").Touch(kMenuX, kMenuY).Touch(TileX(1), kLowerTileY).Picture("files-again");
    tour.Touch(kBackX, kStripY).Picture("files-left").Touch(kBackX, kStripY).Picture("files-left-again");
    for (int step = 0; step < 3; ++step) {
        StepDown(tour);
        tour.Picture("files-step");
    }
    tour.Set(L"language", 5).Picture("files-german").Set(L"usbPresent", 0).Picture("files-no-stick");
    tour.Set(L"usbPresent", 1).Set(L"language", 0).Touch(kBackX, kStripY).Touch(kBackX, kStripY);
}

void ShowSettings(TourScript& tour) {
    tour.Touch(kMenuX, kMenuY).Touch(TileX(2), kLowerTileY).Picture("settings");
    tour.Press(kListX, LanguageY(3)).Picture("settings-french-pressed").Release(kListX, LanguageY(3));
    tour.Picture("settings-french").Touch(kListX, LanguageY(6)).Press(kSwitchX, SwitchY(0));
    tour.Picture("settings-clock-pressed").Release(kSwitchX, SwitchY(0));
    tour.Touch(kSwitchX, SwitchY(1)).Touch(kSwitchX, SwitchY(3)).Picture("settings-switched");
    tour.Touch(kListX, LanguageY(4)).Picture("settings-chinese").Touch(kBackX, kStripY);
    tour.Touch(TileX(2), kLowerTileY).Picture("settings-on-the-second-page").Set(L"language", 0);
    for (const int row : {0, 1, 3})
        tour.Touch(kSwitchX, SwitchY(row));
    tour.Touch(kBackX, kStripY).Touch(kBackX, kStripY).Picture("settings-left");
}

}  // namespace

TourScript HeadUnitTour() {
    TourScript tour;
    ShowFm(tour);
    ShowAm(tour);
    ShowPresets(tour);
    ShowStrip(tour);
    ShowSources(tour);
    ShowMenu(tour);
    ShowGauges(tour);
    ShowSourceList(tour);
    ShowMedia(tour);
    ShowFiles(tour);
    ShowSettings(tour);
    return tour;
}

}  // namespace korvane::demo
