#include "service/Record.h"

#include "platform/SharedMemory.h"

#include "service/Announcement.h"
#include "service/FieldNames.h"
#include "service/SetupStore.h"

namespace korvane {
namespace {

constexpr wchar_t kRegion[] = L"sysinfo";

bool IsFieldValue(int value) {
    return value >= 0 && value <= kMaxFieldValue;
}

// Volatile, since other processes read and write the same bytes at any time.
volatile unsigned char& ByteOf(_LQSysInfo& record, const SysInfoField& field) {
    return *(reinterpret_cast<volatile unsigned char*>(&record) + field.offset);
}

void RestoreLastingFields(void* fresh) {
    auto& record = *static_cast<_LQSysInfo*>(fresh);
    for (const SysInfoField& field : kSysInfoFields) {
        const int kept = IsLasting(field) ? ReadSetupNumber(field.name, 0) : 0;
        ByteOf(record, field) = static_cast<unsigned char>(IsFieldValue(kept) ? kept : 0);
    }
}

// False when the value was there already.
bool Store(_LQSysInfo& record, const SysInfoField& field, int value) {
    volatile unsigned char& byte = ByteOf(record, field);
    if (byte == value)
        return false;
    byte = static_cast<unsigned char>(value);
    return true;
}

}  // namespace

_LQSysInfo* SharedRecord() {
    return static_cast<_LQSysInfo*>(MapSharedMemory(kRegion, sizeof(_LQSysInfo), &RestoreLastingFields));
}

int ReadField(_LQSysInfo& record, const SysInfoField& field) {
    return ByteOf(record, field);
}

bool SetField(const SysInfoField& field, int value) {
    _LQSysInfo* const record = IsFieldValue(value) ? SharedRecord() : nullptr;
    if (!record)
        return false;
    bool changed = false;
    if (IsLasting(field)) {
        // Within the store's lock, so that of two writers the same one wins in the file and in the record.
        const bool kept =
            WriteSetupNumber(field.name, value, [&] { changed = Store(*record, field, value); });
        if (!kept)
            return false;
    } else {
        changed = Store(*record, field, value);
    }
    if (changed)
        AnnounceChange(field.item);
    return true;
}

}  // namespace korvane
