#pragma once

#include "sysinfo/SysInfo.h"

namespace korvane {

/// A field of the record as programs name it.
struct SysInfoField {
    const wchar_t* name;
    std::size_t offset;  ///< of its one byte in _LQSysInfo
    int item;            ///< its number in message 1191
};

/// All fields, in the order of the record. Bytes without a meaning are not among them.
constexpr SysInfoField kSysInfoFields[] = {
    {L"btState", offsetof(_LQSysInfo, btState), 1},
    {L"clock24h", offsetof(_LQSysInfo, clock24h), 4},
    {L"mute", offsetof(_LQSysInfo, mute), 5},
    {L"parking", offsetof(_LQSysInfo, parking), 6},
    {L"gps", offsetof(_LQSysInfo, gps), 13},
    {L"rdsIconMask", offsetof(_LQSysInfo, rdsIconMask), 7},
    {L"regOn", offsetof(_LQSysInfo, regOn), 8},
    {L"ptyOn", offsetof(_LQSysInfo, ptyOn), 9},
    {L"afState", offsetof(_LQSysInfo, afState), 10},
    {L"taOn", offsetof(_LQSysInfo, taOn), 11},
    {L"tpOn", offsetof(_LQSysInfo, tpOn), 12},
    {L"taActive", offsetof(_LQSysInfo, taActive), 15},
    {L"frontRearAvail", offsetof(_LQSysInfo, frontRearAvail), 16},
    {L"guideAvail", offsetof(_LQSysInfo, guideAvail), 14},
    {L"language", offsetof(_LQSysInfo, language), 17},
    {L"usbPresent", offsetof(_LQSysInfo, usbPresent), 22},
    {L"discAudioPresent", offsetof(_LQSysInfo, discAudioPresent), 23},
    {L"discVideoPresent", offsetof(_LQSysInfo, discVideoPresent), 24},
    {L"ipodPresent", offsetof(_LQSysInfo, ipodPresent), 25},
    {L"tvPresent", offsetof(_LQSysInfo, tvPresent), 26},
    {L"naviPresent", offsetof(_LQSysInfo, naviPresent), 28},
    {L"aux1Present", offsetof(_LQSysInfo, aux1Present), 27},
    {L"aux2Present", offsetof(_LQSysInfo, aux2Present), 27},
    {L"source", offsetof(_LQSysInfo, source), 31},
    {L"rearZone", offsetof(_LQSysInfo, rearZone), 32},
};

}  // namespace korvane
