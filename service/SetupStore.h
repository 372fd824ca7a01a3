#pragma once

#include <functional>
#include <string>

namespace korvane {

// The setup values: numbers and texts by name, in an ini file of the device that several processes read and
// write at once. A name is one that an ini file can have as a key; its case does not matter.

/// Makes the folder of the file where it is missing. False when it cannot be made and when something stands
/// in the file's place that cannot be read.
bool PrepareSetupStore();

/// `fallback` when nothing is kept under the name or what is kept is no number.
int ReadSetupNumber(const wchar_t* name, int fallback);

/// False when nothing is kept under the name.
bool ReadSetupText(const wchar_t* name, std::wstring& text);

/// True once the file has the value. `whenKept` runs right after that, before another process can write; it
/// may be empty. False, with the file as it was, for a name or text that cannot be kept, a file that cannot
/// be written, and while another process blocks it for two seconds.
bool WriteSetupNumber(const wchar_t* name, int value, const std::function<void()>& whenKept);
bool WriteSetupText(const wchar_t* name, const wchar_t* text);

}  // namespace korvane
