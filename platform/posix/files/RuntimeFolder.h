#pragma once

#include "platform/posix/files/Descriptor.h"

namespace korvane {

enum class IfMissing { Make, Fail };

/// Opens the folder in which the processes of the user meet: that of the environment variable
/// KORVANE_RUNTIME_DIR, else "korvane" in that of XDG_RUNTIME_DIR, else "/tmp/korvane-<user id>".
///
/// It belongs to the user, and nobody else may enter it; what is found otherwise, such as a link, is not
/// used. Not open when there is no such folder.
Descriptor OpenRuntimeFolder(IfMissing ifMissing);

}  // namespace korvane
