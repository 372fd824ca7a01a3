#pragma once

#include "platform/posix/coredll/Clock.h"
#include "platform/posix/coredll/Files.h"
#include "platform/posix/coredll/Library.h"
#include "platform/posix/coredll/Messages.h"
#include "platform/posix/coredll/Numbers.h"
#include "platform/posix/coredll/Sound.h"
#include "platform/posix/coredll/Timers.h"
#include "platform/posix/coredll/Types.h"
#include "platform/posix/coredll/Windows.h"
