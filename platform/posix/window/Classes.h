#pragma once

#include "platform/posix/queue/Session.h"

namespace korvane {

bool IsAtom(LPCWSTR nameOrAtom);

/// The class of that name, or of that atom when the pointer is one; null when there is none. Needs the
/// session's mutex.
const WindowClass* FindClass(const Session& session, LPCWSTR nameOrAtom);

}  // namespace korvane
