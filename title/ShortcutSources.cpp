#include "title/ShortcutSources.h"

#include "sysinfo/SysInfo.h"

namespace korvane {

namespace {

struct Source {
    SourceId id;
    const wchar_t* name;
};

constexpr Source kSources[] = {
    {kSourceTuner, L"settings_shortcut_menu_tuner"},
    {kSourceDab, L"settings_shortcut_menu_dab"},
    {kSourceDiscAudio, L"settings_shortcut_menu_disc_audio"},
    {kSourceDiscVideo, L"settings_shortcut_menu_disc_video"},
    {kSourceBtAudio, L"settings_shortcut_menu_bt_audio"},
    {kSourceUsbAudio, L"settings_shortcut_menu_usb_audio"},
    {kSourceUsbVideo, L"settings_shortcut_menu_usb_video"},
    {kSourceIpodAudio, L"settings_shortcut_menu_ipod_audio"},
    {kSourceIpodVideo, L"settings_shortcut_menu_ipod_video"},
    {kSourceAux1, L"settings_shortcut_menu_aux1"},
    {kSourceAux2, L"settings_shortcut_menu_aux2"},
    {kSourceTv, L"settings_shortcut_menu_tv"},
    {kSourceTelephone, L"settings_shortcut_menu_telephone"},
    {kSourceNavi, L"settings_shortcut_menu_navi"},
    {kSourceUsbCamera, L"settings_shortcut_menu_usb_camera"},
    {kSourceAudioOff, L"settings_shortcut_menu_audio_off"},
};

/// The field of the record that tells whether the source is there; null for one that always is.
const unsigned char _LQSysInfo::*PresenceOf(int id) {
    switch (id) {
        case kSourceDiscAudio:
            return &_LQSysInfo::discAudioPresent;
        case kSourceDiscVideo:
            return &_LQSysInfo::discVideoPresent;
        case kSourceUsbAudio:
        case kSourceUsbVideo:
            return &_LQSysInfo::usbPresent;
        case kSourceIpodAudio:
        case kSourceIpodVideo:
        case kSourceIpod:
            return &_LQSysInfo::ipodPresent;
        case kSourceBtAudio:
        case kSourceTelephone:
            return &_LQSysInfo::btState;
        case kSourceAux1:
            return &_LQSysInfo::aux1Present;
        case kSourceAux2:
            return &_LQSysInfo::aux2Present;
        case kSourceNavi:
            return &_LQSysInfo::naviPresent;
        case kSourceTv:
            return &_LQSysInfo::tvPresent;
        default:
            return nullptr;
    }
}

}  // namespace

const wchar_t* SourceName(int id) {
    for (const Source& source : kSources) {
        if (source.id == id)
            return source.name;
    }
    return nullptr;
}

bool IsSourcePresent(int id, const _LQSysInfo* info) {
    const auto presence = PresenceOf(id);
    return !presence || (info && info->*presence != 0);
}

}  // namespace korvane
