#pragma once

#include "engine/draw/Surface.h"
#include "platform/Export.h"

/// Hand one picture, 240 by 144 pixels of type eSurface_ARGB8888, from process to process through the
/// system-information service. Nothing is locked: a picture that is read while it is written comes out as
/// none or as parts of two. To be called on one thread.
///
/// The service is loaded at the first call of either function in this process, once and for all: where it was
/// missing then, it stays missing.
extern "C" {

/// Stores a picture, scaled to that size without regard to its proportions; the source stays as it is. 1 on
/// success, 0 for an empty handle, without the service, and when the service or the storage fails.
KORVANEEX_API int SetThumbNail(CLQSurfHandle& source);

/// Makes `out` a new surface of that size, transparent at first, and reads the stored picture into it. 1 when
/// there was a buffer to read from, whether or not it held a picture; 0 without the service and when it
/// fails.
KORVANEEX_API int GetThumbNail(CLQSurfHandle& out);
}
