#pragma once

// The calls of the operating system that this code base uses, under their own names: the system's header on
// Windows, elsewhere the same calls with the same meaning from platform/posix.

#if defined(_WIN32)

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE
#endif
#include <windows.h>

#ifndef UNDER_CE
#include "platform/windows/coredll.h"
#endif

#else

#include "platform/posix/coredll.h"

#endif
