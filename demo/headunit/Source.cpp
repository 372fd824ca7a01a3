#include "demo/headunit/Source.h"

#include <algorithm>
#include <iterator>

#include "demo/headunit/Captions.h"

namespace korvane::demo {

namespace {

constexpr bool kTimed = true;
constexpr bool kUntimed = false;

constexpr Source kSources[] = {
    {kRadioSource, kCaptionTuner, kCaptionNowPlaying, L"source_tuner.lqi", SourceScreenKind::Radio, kUntimed,
     nullptr},
    {4, kCaptionDiscAudio, kCaptionNowPlaying, L"source_disc_audio.lqi", SourceScreenKind::Other, kTimed,
     &_LQSysInfo::discAudioPresent},
    {5, kCaptionDiscVideo, kCaptionNowPlaying, L"source_disc_video.lqi", SourceScreenKind::Other, kTimed,
     &_LQSysInfo::discVideoPresent},
    {kUsbMusicSource, kCaptionUsbAudio, kCaptionNowPlaying, L"source_usb_audio.lqi", SourceScreenKind::Other,
     kTimed, &_LQSysInfo::usbPresent},
    {7, kCaptionUsbVideo, kCaptionNowPlaying, L"source_usb_video.lqi", SourceScreenKind::Other, kTimed,
     &_LQSysInfo::usbPresent},
    {8, kCaptionIpodAudio, kCaptionNowPlaying, L"source_ipod_audio.lqi", SourceScreenKind::Other, kTimed,
     &_LQSysInfo::ipodPresent},
    {9, kCaptionIpodVideo, kCaptionNowPlaying, L"source_ipod_video.lqi", SourceScreenKind::Other, kTimed,
     &_LQSysInfo::ipodPresent},
    {11, kCaptionBtAudio, kCaptionNowPlaying, L"source_bt_audio.lqi", SourceScreenKind::Other, kTimed,
     &_LQSysInfo::btState},
    {12, kCaptionTelephone, kCaptionReadyForCalls, L"source_telephone.lqi", SourceScreenKind::Other, kUntimed,
     &_LQSysInfo::btState},
    {13, kCaptionAux1, kCaptionNowPlaying, L"source_aux1.lqi", SourceScreenKind::Other, kUntimed,
     &_LQSysInfo::aux1Present},
    {14, kCaptionAux2, kCaptionNowPlaying, L"source_aux2.lqi", SourceScreenKind::Other, kUntimed,
     &_LQSysInfo::aux2Present},
    {15, kCaptionUsbCamera, kCaptionNoPicture, L"source_usb_camera.lqi", SourceScreenKind::Other, kUntimed,
     nullptr},
    {17, kCaptionNavi, kCaptionNoNavigation, L"source_navi.lqi", SourceScreenKind::Other, kUntimed,
     &_LQSysInfo::naviPresent},
    {18, kCaptionTv, kCaptionNoPicture, L"source_tv.lqi", SourceScreenKind::Other, kUntimed,
     &_LQSysInfo::tvPresent},
    {35, kCaptionAudioOff, kCaptionAudioIsOff, L"source_audio_off.lqi", SourceScreenKind::Other, kUntimed,
     nullptr},
    {37, kCaptionDab, kCaptionNowPlaying, L"source_dab.lqi", SourceScreenKind::Radio, kUntimed, nullptr},
};

}  // namespace

const Source* FindSource(int id) {
    const auto* const found = std::find_if(std::begin(kSources), std::end(kSources),
                                           [id](const Source& source) { return source.id == id; });
    return found == std::end(kSources) ? nullptr : found;
}

}  // namespace korvane::demo
