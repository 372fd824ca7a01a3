#pragma once

#include <memory>
#include <string>

#include "platform/Export.h"

/// Reads and writes a text file of sections, keys and values (UTF-8, or UTF-16 with a byte order mark).
///
/// Names of sections and keys are compared without regard to case, and the first of several entries of the
/// same names counts. A pair of names that is not found as (section, key) is looked up as (key, section),
/// since callers use both orders on the same file.
///
/// Lines that begin with ; or # are comments. Spaces and tabs around names and values do not count, those at
/// the ends of a value only inside double quotes; quotes that are not needed for that are part of the value.
/// A rewrite keeps everything but the changed values byte for byte: comments, order, spacing, encoding, line
/// breaks, and lines that are none of the format.
class KORVANE_API CLQIniReadWrite {
  public:
    CLQIniReadWrite();
    /// Drops values that `Update` has not written.
    ~CLQIniReadWrite();
    CLQIniReadWrite(const CLQIniReadWrite&) = delete;
    CLQIniReadWrite& operator=(const CLQIniReadWrite&) = delete;

    /// The file to work on; read at once. A missing file is an empty one. One that cannot be read or is
    /// longer than 1 MB reads as an empty one and is never written. Values that were set and not yet written
    /// are dropped. Without a name (null or empty) everything happens in memory.
    void SetFileName(const wchar_t* file);
    void SetFileName(const std::wstring& file);
    /// Works in memory on the given bytes of a file, as without a name. False, changing nothing, for more
    /// than 1 MB.
    bool SetContents(std::string bytes);
    /// The bytes of the file as it was read, with the changes that are pending.
    std::string GetContents() const;

    /// `fallback` when the key is missing or its value is not a number as a whole: decimal with or without a
    /// sign, stopping at the limits of int, or 0x and a hexadecimal pattern of 32 bits (0xFFFFFFFF is -1).
    int GetInt(const wchar_t* section, const wchar_t* key, int fallback);
    /// `fallback`, of which null is an empty text, when the key is missing.
    std::wstring GetString(const wchar_t* section, const wchar_t* key, const wchar_t* fallback);

    /// Changes a value in memory; `Update` writes it. With `create` false a missing key is not added.
    ///
    /// Returns false, changing nothing, for lack of the key, and when a name or the value is null or cannot
    /// stand in the file, or the file would exceed 1 MB. A name has 1 to 255 characters, no control
    /// characters and none of = [ ], no blanks at its ends and no ; or # at its start. A value has at most
    /// 65535 characters and no line break.
    bool SetValue(const wchar_t* section, const wchar_t* key, int value, bool create);
    bool SetValue(const wchar_t* section, const wchar_t* key, const wchar_t* value, bool create);

    /// Writes pending changes into the file as it is at that moment, so that what others have written since
    /// stays, and replaces it in one step, so that a crash leaves the old or the new one. Changes that cannot
    /// be written remain pending. A file that has all the values already is not touched; missing folders
    /// above a new one are made.
    void Update();

  private:
    struct Impl;
    std::unique_ptr<Impl> m_pImpl;
};
