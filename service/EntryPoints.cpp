#include <string>

#include "service/FieldNames.h"
#include "service/Record.h"
#include "service/SetupStore.h"
#include "service/SysInfoService.h"
#include "service/ThumbnailBuffer.h"

using namespace korvane;

_LQSysInfo* LQ_GetSysInfo() {
    return SharedRecord();
}

int LQ_ReleaseSysInfo() {
    return 1;
}

int LQ_InitSetupInfo() {
    return PrepareSetupStore();
}

int LQ_GetSetupValue(const wchar_t* name, int fallback) {
    const SysInfoField* const field = FindField(name);
    if (!field)
        return ReadSetupNumber(name, fallback);
    _LQSysInfo* const record = SharedRecord();
    return record ? ReadField(*record, *field) : fallback;
}

int LQ_SetSetupValue(const wchar_t* name, int value) {
    const SysInfoField* const field = FindField(name);
    return field ? SetField(*field, value) : WriteSetupNumber(name, value, nullptr);
}

int LQ_GetSetupValueStr(const wchar_t* name, wchar_t* buffer, int capacity) {
    std::wstring text;
    const bool kept = !FindField(name) && ReadSetupText(name, text);
    if (buffer && capacity > 0) {
        const std::size_t copied = text.copy(buffer, static_cast<std::size_t>(capacity) - 1);
        buffer[copied] = L'\0';
    }
    return kept ? static_cast<int>(text.size()) : -1;
}

int LQ_SetSetupValueStr(const wchar_t* name, const wchar_t* value) {
    return !FindField(name) && WriteSetupText(name, value);
}

int LQ_ReleaseSetupInfo() {
    return 1;
}

int LQ_GetThumbNail(unsigned int size, unsigned char** buffer) {
    unsigned char* const shared = buffer ? SharedThumbnailBuffer(size) : nullptr;
    if (!shared)
        return 0;
    *buffer = shared;
    return 1;
}

int LQ_ReleaseThumbNail() {
    return 1;
}
