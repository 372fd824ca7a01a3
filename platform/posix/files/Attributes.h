#pragma once

#include <sys/stat.h>

#include "platform/coredll.h"

namespace korvane {

DWORD AttributesOf(const struct stat& status);
FILETIME FileTimeOf(const timespec& time);

}  // namespace korvane
