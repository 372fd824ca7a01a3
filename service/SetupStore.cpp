#include "service/SetupStore.h"

#include <vector>

#include "engine/system/IniReadWrite.h"
#include "engine/system/System.h"
#include "platform/Files.h"
#include "platform/InterprocessLock.h"
#include "platform/coredll.h"

namespace korvane {
namespace {

constexpr wchar_t kFolder[] = L"\\NandFlash\\Application\\Profile";
constexpr wchar_t kFile[] = L"\\NandFlash\\Application\\Profile\\LQ_SetupInfo.ini";
constexpr wchar_t kSection[] = L"Setup";
constexpr wchar_t kLock[] = L"setup";
constexpr unsigned kPatienceMs = 2000;
/// What an ini file can be in size at most.
constexpr std::size_t kMaxFileBytes = std::size_t{1} << 20;
/// No value of the file can have a line break.
constexpr wchar_t kNothing[] = L"\n";

template <class Value>
bool Write(const wchar_t* name, Value value, const std::wstring& asText,
           const std::function<void()>& whenKept) {
    const InterprocessLock lock(kLock, kPatienceMs);
    if (!lock.IsHeld())
        return false;
    CLQIniReadWrite file;
    file.SetFileName(kFile);
    if (!file.SetValue(kSection, name, value, true))
        return false;
    file.Update();
    // The file itself tells whether it could be written.
    std::wstring kept;
    if (!ReadSetupText(name, kept) || kept != asText)
        return false;
    if (whenKept)
        whenKept();
    return true;
}

}  // namespace

bool PrepareSetupStore() {
    if (!CreateDir(kFolder))
        return false;
    std::vector<unsigned char> contents;
    return GetFileAttributesW(kFile) == INVALID_FILE_ATTRIBUTES ||
           ReadWholeFile(kFile, kMaxFileBytes, contents);
}

int ReadSetupNumber(const wchar_t* name, int fallback) {
    CLQIniReadWrite file;
    file.SetFileName(kFile);
    return file.GetInt(kSection, name, fallback);
}

bool ReadSetupText(const wchar_t* name, std::wstring& text) {
    CLQIniReadWrite file;
    file.SetFileName(kFile);
    text = file.GetString(kSection, name, kNothing);
    if (text != kNothing)
        return true;
    text.clear();
    return false;
}

bool WriteSetupNumber(const wchar_t* name, int value, const std::function<void()>& whenKept) {
    return Write(name, value, std::to_wstring(value), whenKept);
}

bool WriteSetupText(const wchar_t* name, const wchar_t* text) {
    return Write(name, text, text ? text : L"", nullptr);
}

}  // namespace korvane
