#pragma once

#include <cstddef>

/// The head unit's live state, kept by the system-information service in memory that its processes share.
///
/// Every field is one byte, so that each read and each write is whole; there is no lock, and fields need not
/// fit together. A field that changes is announced by message 1191 with the item number that stands beside
/// it.
struct _LQSysInfo {
    unsigned char btState;  ///< item 1: 0 no Bluetooth, 1 connected and idle, 2 active
    unsigned char reserved1[2];
    unsigned char clock24h;  ///< item 4: non-zero for the 24-hour clock
    unsigned char mute;      ///< item 5
    unsigned char parking;   ///< item 6: the parking brake
    unsigned char gps;       ///< item 13: non-zero with a position fix
    unsigned char reserved7[2];
    unsigned char rdsIconMask;     ///< item 7: RDS icons that are shown at all, a sum of korvane::RdsIcon
    unsigned char regOn;           ///< item 8
    unsigned char ptyOn;           ///< item 9
    unsigned char afState;         ///< item 10: 0 off, 1 on, anything else searching
    unsigned char taOn;            ///< item 11
    unsigned char tpOn;            ///< item 12
    unsigned char taActive;        ///< item 15: non-zero while a traffic announcement plays
    unsigned char frontRearAvail;  ///< item 16: the zones can be switched
    unsigned char guideAvail;      ///< item 14: the guide button is offered
    unsigned char language;        ///< item 17: language id
    unsigned char reserved19[3];
    unsigned char usbPresent;        ///< item 22
    unsigned char discAudioPresent;  ///< item 23
    unsigned char discVideoPresent;  ///< item 24
    unsigned char ipodPresent;       ///< item 25
    unsigned char tvPresent;         ///< item 26
    unsigned char reserved27;
    unsigned char naviPresent;  ///< item 28
    unsigned char aux1Present;  ///< item 27
    unsigned char aux2Present;  ///< item 27
    unsigned char source;    ///< item 31: id of the source that plays; for applications, no control reads it
    unsigned char rearZone;  ///< item 32: non-zero while the rear zone is shown; likewise
};

static_assert(sizeof(_LQSysInfo) == 33, "the record's size is fixed: other processes map it");
static_assert(offsetof(_LQSysInfo, clock24h) == 3 && offsetof(_LQSysInfo, gps) == 6 &&
                  offsetof(_LQSysInfo, rdsIconMask) == 9 && offsetof(_LQSysInfo, taActive) == 15 &&
                  offsetof(_LQSysInfo, language) == 18 && offsetof(_LQSysInfo, usbPresent) == 22 &&
                  offsetof(_LQSysInfo, naviPresent) == 28 && offsetof(_LQSysInfo, aux2Present) == 30,
              "the record's offsets are fixed: other processes map it");

namespace korvane {

/// Bits of _LQSysInfo::rdsIconMask.
enum RdsIcon : unsigned char {
    kRdsIconReg = 1,
    kRdsIconPty = 2,
    kRdsIconAf = 4,
    kRdsIconTa = 8,
    kRdsIconTp = 16,
};

/// Numbers of the items, the parameter of message 1191.
enum SysInfoItem : int {
    kItemBluetooth = 1,
    kItemClockForm = 4,
    kItemMute = 5,
    kItemParking = 6,
    kItemRdsIcons = 7,
    kItemReg = 8,
    kItemPty = 9,
    kItemAf = 10,
    kItemTa = 11,
    kItemTp = 12,
    kItemGps = 13,
    kItemGuide = 14,
    kItemTrafficAnnouncement = 15,
    kItemZones = 16,
    kItemLanguage = 17,
    kItemUsb = 22,
    kItemDiscAudio = 23,
    kItemDiscVideo = 24,
    kItemIpod = 25,
    kItemTv = 26,
    kItemAux = 27,
    kItemNavi = 28,
    kItemSource = 31,
    kItemRearZone = 32,
};

}  // namespace korvane
