#pragma once

#include "engine/widgets/layout/IniTree.h"
#include "platform/Export.h"

class CLQMemBlob;

namespace korvane {

/// Section of the outermost group in a text layout.
constexpr wchar_t kLayoutRoot[] = L"Layout";

/// Turns a text layout into the records of a ".bin" layout. False, saying why, when a control is missing or
/// of a kind that is not registered, or a bound of the format is reached; the blob is then as it was.
KORVANE_API bool CompileLayout(CLQIniReadWrite& ini, CLQMemBlob& blob, LayoutProblem& problem);

/// The way back; `ini` is changed in memory. Comments and section names of the first text are not in a blob.
KORVANE_API bool DecompileLayout(CLQMemBlob& blob, CLQIniReadWrite& ini);

}  // namespace korvane
