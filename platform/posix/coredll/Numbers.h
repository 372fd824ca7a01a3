#pragma once

#include "platform/posix/coredll/Types.h"

extern "C" {

/// Writes `value` in radix 2 to 36 and returns `text`. Only radix 10 shows a sign; the others show the 32-bit
/// pattern. `text` must hold 33 characters. Another radix gives an empty text.
KORVANE_API wchar_t* _itow(int value, wchar_t* text, int radix);

/// The decimal number at the start of the text after white space, 0 when there is none. Stops at the limits
/// of 32 bits.
KORVANE_API LONG _wtol(const wchar_t* text);
}
