#pragma once

#include <string>

namespace korvane {

/// What the names of all shared objects of the device begin with. They belong to the session.
std::wstring ObjectPrefix();

/// The name of a shared object. `kind` parts objects of one name. Empty when the name is none.
std::wstring ObjectName(const wchar_t* kind, const wchar_t* name);

}  // namespace korvane
