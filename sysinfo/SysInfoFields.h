#pragma once

#include "sysinfo/SysInfo.h"

namespace korvane {

/// A field of the record as programs name it.
struct SysInfoField {
    const wchar_t* name;
    std::size_t offset;  ///< of its one byte in _LQSysInfo
    SysInfoItem item;    ///< what message 1191 calls it
};

/// All fields, in the order of the record. Bytes without a meaning are not among them.
constexpr SysInfoField kSysInfoFields[] = {
    {L"btState", offsetof(_LQSysInfo, btState), kItemBluetooth},
    {L"clock24h", offsetof(_LQSysInfo, clock24h), kItemClockForm},
    {L"mute", offsetof(_LQSysInfo, mute), kItemMute},
    {L"parking", offsetof(_LQSysInfo, parking), kItemParking},
    {L"gps", offsetof(_LQSysInfo, gps), kItemGps},
    {L"rdsIconMask", offsetof(_LQSysInfo, rdsIconMask), kItemRdsIcons},
    {L"regOn", offsetof(_LQSysInfo, regOn), kItemReg},
    {L"ptyOn", offsetof(_LQSysInfo, ptyOn), kItemPty},
    {L"afState", offsetof(_LQSysInfo, afState), kItemAf},
    {L"taOn", offsetof(_LQSysInfo, taOn), kItemTa},
    {L"tpOn", offsetof(_LQSysInfo, tpOn), kItemTp},
    {L"taActive", offsetof(_LQSysInfo, taActive), kItemTrafficAnnouncement},
    {L"frontRearAvail", offsetof(_LQSysInfo, frontRearAvail), kItemZones},
    {L"guideAvail", offsetof(_LQSysInfo, guideAvail), kItemGuide},
    {L"language", offsetof(_LQSysInfo, language), kItemLanguage},
    {L"usbPresent", offsetof(_LQSysInfo, usbPresent), kItemUsb},
    {L"discAudioPresent", offsetof(_LQSysInfo, discAudioPresent), kItemDiscAudio},
    {L"discVideoPresent", offsetof(_LQSysInfo, discVideoPresent), kItemDiscVideo},
    {L"ipodPresent", offsetof(_LQSysInfo, ipodPresent), kItemIpod},
    {L"tvPresent", offsetof(_LQSysInfo, tvPresent), kItemTv},
    {L"naviPresent", offsetof(_LQSysInfo, naviPresent), kItemNavi},
    {L"aux1Present", offsetof(_LQSysInfo, aux1Present), kItemAux},
    {L"aux2Present", offsetof(_LQSysInfo, aux2Present), kItemAux},
    {L"source", offsetof(_LQSysInfo, source), kItemSource},
    {L"rearZone", offsetof(_LQSysInfo, rearZone), kItemRearZone},
};

}  // namespace korvane
