#pragma once

namespace korvane::demo {

/// The language table of a language id of the system record; English for an id without one.
const wchar_t* LanguageFile(unsigned char id);

}  // namespace korvane::demo
