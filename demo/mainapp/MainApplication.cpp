#include "demo/mainapp/MainApplication.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

#include "platform/InterprocessLock.h"

#include "demo/mainapp/SettingMessage.h"

namespace korvane::demo {

namespace {

constexpr wchar_t kStarting[] = L"mainApplication";
constexpr unsigned kPatienceMs = 2000;

constexpr int kNavigation = 17;
/// The record has one byte for a source.
constexpr LPARAM kLastSource = 255;
/// Kept by the service across restarts once the settings that it keeps have got their first values.
constexpr wchar_t kSettingsAreMade[] = L"mainSettingsMade";

struct FirstValue {
    const wchar_t* field;
    int value;
};

/// A car at rest with the phone in it: radio with traffic programme, a disc, a stick and a player, but
/// nothing at the second auxiliary input.
constexpr FirstValue kFirstValues[] = {
    {L"btState", 1},
    {L"parking", 1},
    {L"gps", 1},
    {L"rdsIconMask", kRdsIconReg | kRdsIconPty | kRdsIconAf | kRdsIconTa | kRdsIconTp},
    {L"afState", 1},
    {L"taOn", 1},
    {L"tpOn", 1},
    {L"frontRearAvail", 1},
    {L"guideAvail", 1},
    {L"usbPresent", 1},
    {L"discAudioPresent", 1},
    {L"ipodPresent", 1},
    {L"tvPresent", 1},
    {L"naviPresent", 1},
    {L"aux1Present", 1},
};

/// A setting that the user may change, with its greatest value.
struct Setting {
    SysInfoItem item;
    const wchar_t* field;
    LPARAM most;
};
constexpr Setting kSettings[] = {
    {kItemClockForm, L"clock24h", 1}, {kItemMute, L"mute", 1},           {kItemTa, L"taOn", 1},
    {kItemAf, L"afState", 1},         {kItemLanguage, L"language", 255},
};

/// Nothing in it but what the service keeps across restarts.
bool IsFresh(const _LQSysInfo& record) {
    _LQSysInfo fresh = {};
    fresh.language = record.language;
    fresh.clock24h = record.clock24h;
    return std::memcmp(&record, &fresh, sizeof fresh) == 0;
}

bool RegisterMainClass(WNDPROC procedure) {
    static const bool registered = [procedure] {
        WNDCLASSW description = {};
        description.lpfnWndProc = procedure;
        description.lpszClassName = kMainWindowName;
        return RegisterClassW(&description) != 0;
    }();
    return registered;
}

}  // namespace

MainApplication::MainApplication(KeyBeep beep) : beep_(beep) {}

MainApplication::~MainApplication() {
    if (window_)
        DestroyWindow(window_);
}

bool MainApplication::Start() {
    // Of two that start at once, one finds the other's window.
    const InterprocessLock starting(kStarting, kPatienceMs);
    if (window_ || FindWindowW(nullptr, kMainWindowName) || !RegisterMainClass(&WindowProc))
        return false;
    FillFreshRecord();
    window_ = CreateWindowExW(0, kMainWindowName, kMainWindowName, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                              nullptr, nullptr);
    if (!window_)
        return false;
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    return true;
}

LRESULT CALLBACK MainApplication::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const self = reinterpret_cast<MainApplication*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self)
        self->OnMessage(message, wParam, lParam);
    return DefWindowProcW(window, message, wParam, lParam);
}

void MainApplication::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case kMainKeyBeep:
            SoundBeep();
            break;
        case kMainSourceChosen:
            if (lParam >= 0 && lParam <= kLastSource)
                service_.SetValue(L"source", static_cast<int>(lParam));
            break;
        case kMainTitleButton:
            OnTitleButton(static_cast<TitleButton>(wParam));
            break;
        case kMainSettingChosen:
            OnSetting(wParam, lParam);
            break;
        default:
            break;
    }
}

void MainApplication::OnTitleButton(TitleButton button) {
    switch (button) {
        case TitleButton::TrafficCancel:
            service_.SetValue(L"taActive", 0);
            break;
        case TitleButton::SwitchZone:
            service_.SetValue(L"rearZone", service_.Value(L"rearZone", 0) == 0);
            break;
        case TitleButton::Guide:
            service_.SetValue(L"source", kNavigation);
            break;
    }
}

void MainApplication::OnSetting(WPARAM item, LPARAM value) {
    const Setting* const setting =
        std::find_if(std::begin(kSettings), std::end(kSettings),
                     [item](const Setting& known) { return static_cast<WPARAM>(known.item) == item; });
    if (setting != std::end(kSettings) && value >= 0 && value <= setting->most)
        service_.SetValue(setting->field, static_cast<int>(value));
}

void MainApplication::SoundBeep() {
    if (beep_ == KeyBeep::Silent || MessageBeep(0))
        return;
    std::fputs("main application: no sound device, so keys do not beep\n", stderr);
    beep_ = KeyBeep::Silent;
}

void MainApplication::FillFreshRecord() {
    const _LQSysInfo* const record = service_.Record();
    if (!record || !IsFresh(*record))
        return;
    for (const FirstValue& first : kFirstValues)
        service_.SetValue(first.field, first.value);
    if (service_.Value(kSettingsAreMade, 0) == 0) {
        service_.SetValue(L"clock24h", 1);
        service_.SetValue(kSettingsAreMade, 1);
    }
}

}  // namespace korvane::demo
