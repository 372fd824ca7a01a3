#pragma once

#include <memory>
#include <string>

#include "platform/Export.h"

class CLQBaseCtrl;

namespace korvane {

/// Makes a control with `new`.
using CtrlMaker = CLQBaseCtrl* (*)();

/// Lets layouts contain a further kind of control; `name` is its word in text layouts. False for a kind below
/// 1, a null maker, a null or empty name and one that starts with a digit, and when the kind or the name is
/// taken.
KORVANE_API bool RegisterCtrlKind(int kind, const wchar_t* name, CtrlMaker make);

/// A new control of the kind; null for a kind that nobody registered.
KORVANE_API std::unique_ptr<CLQBaseCtrl> MakeCtrl(int kind);

/// The kind of that name, or written as a decimal number; -1 when it is neither.
KORVANE_API int CtrlKindFromName(const std::wstring& name);
/// The name of a kind; its decimal number when it has none.
KORVANE_API std::wstring CtrlKindName(int kind);

}  // namespace korvane
