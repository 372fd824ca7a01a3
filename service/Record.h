#pragma once

#include "sysinfo/SysInfoFields.h"

namespace korvane {

constexpr int kMaxFieldValue = 255;

/// The record that all processes share. A fresh one takes its lasting fields from the setup store and is zero
/// otherwise. Null when there is no memory for it.
_LQSysInfo* SharedRecord();

int ReadField(_LQSysInfo& record, const SysInfoField& field);

/// Sets a field, keeps it when it is a lasting one, and announces it when its value changed. False, changing
/// nothing, for a value that is none, without a record, and when a lasting value cannot be kept.
bool SetField(const SysInfoField& field, int value);

}  // namespace korvane
