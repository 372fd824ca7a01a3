#pragma once

#include "sysinfo/SysInfoFields.h"

namespace korvane {

/// The field that a setup name stands for, null for any other name and for null. As for all setup names, case
/// does not matter.
const SysInfoField* FindField(const wchar_t* name);

/// Whether the field's value is kept across restarts.
bool IsLasting(const SysInfoField& field);

}  // namespace korvane
