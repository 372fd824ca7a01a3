#pragma once

// The calls that take a path of the device or follow the clock come from this library: they honour a device
// root and the manual clock, and are the system's own otherwise. All others are the system's own at once.
//
// The headers that declare the system's calls come before, since the names are macros from here on. Where
// KORVANE_SYSTEM_CALLS is defined, as it is for the sources in platform/, they stay the system's own.

#include <stdio.h>
#include <stdlib.h>
#include <wchar.h>

#include "platform/windows/coredll/Clock.h"
#include "platform/windows/coredll/Files.h"
#include "platform/windows/coredll/Library.h"
#include "platform/windows/coredll/Messages.h"
