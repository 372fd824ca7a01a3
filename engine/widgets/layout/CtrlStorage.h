#pragma once

#include "engine/widgets/layout/BlobArchive.h"
#include "engine/widgets/layout/IniArchive.h"

/// The four load and save operations of a control without children, given what it exchanges with a layout.
/// Loading does nothing unless the section or record is there and is of the control's kind.
namespace korvane {

template <class Exchange>
bool LoadFromIni(CLQIniReadWrite& ini, const wchar_t* section, int kind, Exchange exchange) {
    IniArchive archive(ini, section, true);
    if (archive.Kind() != kind)
        return false;
    exchange(archive);
    return true;
}

template <class Exchange>
bool SaveToIni(CLQIniReadWrite& ini, const wchar_t* section, int kind, Exchange exchange) {
    IniArchive archive(ini, section, false);
    archive.WriteKind(kind);
    exchange(archive);
    return archive.IsComplete();
}

template <class Exchange>
bool LoadFromBlob(CLQMemBlob& blob, int index, int kind, Exchange exchange) {
    if (blob.GetKind(index) != kind)
        return false;
    BlobArchive archive(blob, index, true);
    exchange(archive);
    return true;
}

template <class Exchange>
bool SaveToBlob(CLQMemBlob& blob, int index, int kind, Exchange exchange) {
    if (!blob.BeginRecord(index, kind))
        return false;
    BlobArchive archive(blob, index, false);
    exchange(archive);
    return archive.IsComplete();
}

}  // namespace korvane
