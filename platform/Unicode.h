#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Export.h"

/// Conversions that treat a wchar_t of 2 bytes (UTF-16) and of 4 bytes alike: surrogate pairs are joined in
/// both. Whatever is not valid becomes U+FFFD.
namespace korvane {

KORVANE_API std::string ToUtf8(std::wstring_view text);
KORVANE_API std::wstring FromUtf8(std::string_view text);

/// The code point that starts at `at` (which must lie before the end); moves `at` behind it.
KORVANE_API char32_t NextCodePoint(std::wstring_view text, std::size_t& at);

/// Appends one code point: two surrogates where wchar_t has 2 bytes and it needs them.
KORVANE_API void AppendCodePoint(std::wstring& text, char32_t codePoint);

}  // namespace korvane
