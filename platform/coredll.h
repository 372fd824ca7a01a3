#pragma once

// The calls of the operating system that this code base uses, under their own names: the system's header on
// Windows, elsewhere the same calls with the same meaning from platform/posix.

#if defined(_WIN32)

#include "platform/windows/System.h"

#ifndef UNDER_CE
#include "platform/windows/coredll.h"
#endif

#else

#include "platform/posix/coredll.h"

#endif
