#pragma once

#include "platform/Export.h"
#include "sysinfo/SysInfo.h"

// The ten entry points of the system-information service, "LQ_ShareMem.dll". Programs load the library at run
// time and look them up by these names.
//
// What the service keeps lies in memory that all processes of the device map, and outlives each of them.
extern "C" {

/// The record, at the same address for as long as the process lives. Null when there is no memory for it.
/// Readers read it live. Writers go through LQ_SetSetupValue, which announces the change.
LQ_SERVICE_API _LQSysInfo* LQ_GetSysInfo();

/// Ends the use of the record, whose address stays valid all the same. Returns 1.
LQ_SERVICE_API int LQ_ReleaseSysInfo();

/// Makes the folder of the setup values where it is missing. 1 when they can be read, else 0. The other calls
/// need no such preparation.
LQ_SERVICE_API int LQ_InitSetupInfo();

/// The number stored under a name, or the value of the record's field of that name. `fallback` when there is
/// none.
LQ_SERVICE_API int LQ_GetSetupValue(const wchar_t* name, int fallback);

/// Sets a field of the record (0 to 255), or stores a number under a name that is no field's, and keeps it
/// across restarts; so it does with the fields "language" and "clock24h". A field whose value changes is
/// announced with message 1191 to every screen and to the main application. 1 on success; 0, changing
/// nothing, for a name that cannot be one, a value outside the field's range or a file that cannot be
/// written.
LQ_SERVICE_API int LQ_SetSetupValue(const wchar_t* name, int value);

/// Copies the text stored under a name, cut to `capacity` - 1 characters and a terminator, and returns its
/// whole length; -1, with an empty buffer, when there is none. `buffer` may be null when `capacity` is 0.
LQ_SERVICE_API int LQ_GetSetupValueStr(const wchar_t* name, wchar_t* buffer, int capacity);

/// Stores a text under a name and keeps it across restarts. 1 on success; 0, changing nothing, for a name or
/// text that cannot be stored and for the name of a field.
LQ_SERVICE_API int LQ_SetSetupValueStr(const wchar_t* name, const wchar_t* value);

/// Ends the use of the setup values. Returns 1.
LQ_SERVICE_API int LQ_ReleaseSetupInfo();

/// Gives the address of the picture buffer that all processes share, the same for as long as the process
/// lives. 1 on success; 0, leaving `buffer` alone, when the buffer has fewer than `size` bytes.
LQ_SERVICE_API int LQ_GetThumbNail(unsigned int size, unsigned char** buffer);

/// Ends the use of the picture buffer, whose address stays valid all the same. Returns 1.
LQ_SERVICE_API int LQ_ReleaseThumbNail();
}
