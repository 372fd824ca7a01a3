#pragma once

#include <memory>
#include <string>

#include "platform/Export.h"

/// Reads and writes a text file of sections, keys and values (UTF-8, or UTF-16 with a byte order mark).
///
/// Comments, blank lines and unknown keys survive a rewrite. A pair of names that is not found as (section,
/// key) is looked up as (key, section), since callers use both orders on the same file.
class KORVANE_API CLQIniReadWrite {
  public:
    CLQIniReadWrite();
    ~CLQIniReadWrite();
    CLQIniReadWrite(const CLQIniReadWrite&) = delete;
    CLQIniReadWrite& operator=(const CLQIniReadWrite&) = delete;

    /// The file to work on; read at once. A missing file is an empty one. Values that were set and not yet
    /// written are dropped.
    void SetFileName(const wchar_t* file);
    void SetFileName(const std::wstring& file);

    /// A decimal or 0x-hexadecimal integer; `fallback` when the key is missing or its value is not a number.
    int GetInt(const wchar_t* section, const wchar_t* key, int fallback);
    std::wstring GetString(const wchar_t* section, const wchar_t* key, const wchar_t* fallback);

    /// Changes a value in memory; `Update` writes it. With `create` false a missing key is not added.
    /// Returns false when a name is null, empty or not a name, or nothing was changed for lack of the key.
    bool SetValue(const wchar_t* section, const wchar_t* key, int value, bool create);
    bool SetValue(const wchar_t* section, const wchar_t* key, const wchar_t* value, bool create);

    /// Writes pending changes: the file is replaced in one step, so that a crash leaves the old or the new
    /// one.
    void Update();

    struct Impl;
    Impl& State() { return *m_pImpl; }

  private:
    std::unique_ptr<Impl> m_pImpl;
};
