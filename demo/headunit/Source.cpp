#include "demo/headunit/Source.h"

#include <algorithm>
#include <iterator>

namespace korvane::demo {

namespace {

constexpr Source kSources[] = {
    {kRadioSource, kCaptionTuner, kCaptionNowPlaying, L"source_tuner.lqi", SourceScreenKind::Radio, nullptr},
    {4, kCaptionDiscAudio, kCaptionNowPlaying, L"source_disc_audio.lqi", SourceScreenKind::Media,
     &_LQSysInfo::discAudioPresent},
    {5, kCaptionDiscVideo, kCaptionParkedOnly, L"source_disc_video.lqi", SourceScreenKind::Media,
     &_LQSysInfo::discVideoPresent},
    {kUsbMusicSource, kCaptionUsbAudio, kCaptionNowPlaying, L"source_usb_audio.lqi", SourceScreenKind::Media,
     &_LQSysInfo::usbPresent},
    {7, kCaptionUsbVideo, kCaptionParkedOnly, L"source_usb_video.lqi", SourceScreenKind::Media,
     &_LQSysInfo::usbPresent},
    {8, kCaptionIpodAudio, kCaptionNowPlaying, L"source_ipod_audio.lqi", SourceScreenKind::Media,
     &_LQSysInfo::ipodPresent},
    {9, kCaptionIpodVideo, kCaptionParkedOnly, L"source_ipod_video.lqi", SourceScreenKind::Media,
     &_LQSysInfo::ipodPresent},
    {11, kCaptionBtAudio, kCaptionNowPlaying, L"source_bt_audio.lqi", SourceScreenKind::Media,
     &_LQSysInfo::btState},
    {12, kCaptionTelephone, kCaptionReadyForCalls, L"source_telephone.lqi", SourceScreenKind::Other,
     &_LQSysInfo::btState},
    {13, kCaptionAux1, kCaptionNowPlaying, L"source_aux1.lqi", SourceScreenKind::Other,
     &_LQSysInfo::aux1Present},
    {14, kCaptionAux2, kCaptionNowPlaying, L"source_aux2.lqi", SourceScreenKind::Other,
     &_LQSysInfo::aux2Present},
    {15, kCaptionUsbCamera, kCaptionNoPicture, L"source_usb_camera.lqi", SourceScreenKind::Other, nullptr},
    {17, kCaptionNavi, kCaptionNoNavigation, L"source_navi.lqi", SourceScreenKind::Other,
     &_LQSysInfo::naviPresent},
    {18, kCaptionTv, kCaptionNoPicture, L"source_tv.lqi", SourceScreenKind::Other, &_LQSysInfo::tvPresent},
    {35, kCaptionAudioOff, kCaptionAudioIsOff, L"source_audio_off.lqi", SourceScreenKind::Other, nullptr},
    {37, kCaptionDab, kCaptionNowPlaying, L"source_dab.lqi", SourceScreenKind::Radio, nullptr},
};

}  // namespace

const Source* FindSource(int id) {
    const auto* const found = std::find_if(std::begin(kSources), std::end(kSources),
                                           [id](const Source& source) { return source.id == id; });
    return found == std::end(kSources) ? nullptr : found;
}

}  // namespace korvane::demo
