#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/Export.h"

/// The controls of a layout as records: what a ".bin" layout file holds (see docs/file-formats.md).
///
/// A record has the kind of its control, its place in the tree and its properties. Record numbers count from
/// 0, a parent before its children. What is loaded has been checked as a whole: a blob never holds half a
/// file.
class KORVANE_API CLQMemBlob {
  public:
    static constexpr int kMaxRecords = 4096;
    static constexpr int kMaxDepth = 16;
    static constexpr int kMaxProperties = 512;      ///< of one record
    static constexpr int kMaxStrings = 65535;       ///< different keys and texts
    static constexpr std::size_t kMaxText = 65535;  ///< bytes of one in UTF-8
    static constexpr std::size_t kMaxFileSize = std::size_t{4} * 1024 * 1024;
    /// Bytes of the texts of all properties in UTF-8. A text that many properties name is stored once, but
    /// each control that is loaded has its own.
    static constexpr std::size_t kMaxNamedText = kMaxFileSize;

    int GetRecordCount() const { return static_cast<int>(m_vecRecords.size()); }
    /// The kind of a record; -1 outside 0 to count - 1.
    int GetKind(int index) const;
    /// Numbers of the records directly below this one, in order.
    std::vector<int> GetChildren(int index) const;

    /// A new, blank record below another. Returns its number, -1 when there is no such parent or a bound is
    /// reached.
    int AddRecord(int parent);
    /// Opens the record of that number for writing: a blank one, or the next after the last, which becomes a
    /// root. False for every other number and for a kind below 0.
    bool BeginRecord(int index, int kind);

    /// Stores a property in place of an earlier one of that name. False when there is no such record, a bound
    /// is reached or a text is not valid Unicode.
    bool SetNumber(int index, const std::wstring& key, int value);
    bool SetText(int index, const std::wstring& key, const std::wstring& value);
    /// `value` is red, green, blue, alpha from the highest byte down.
    bool SetColor(int index, const std::wstring& key, std::uint32_t value);

    /// False, leaving `value` alone, when the record has no such property of that type.
    bool GetNumber(int index, const std::wstring& key, int& value) const;
    bool GetText(int index, const std::wstring& key, std::wstring& value) const;
    bool GetColor(int index, const std::wstring& key, std::uint32_t& value) const;

    /// The contents of a layout file; empty when they would exceed kMaxFileSize or kMaxNamedText.
    std::vector<unsigned char> ToBytes() const;
    /// Takes such contents over. False, leaving the blob as it is, when they are damaged in any way.
    bool FromBytes(const unsigned char* bytes, std::size_t size);

    /// Reads a file of the device; false, leaving the blob as it is, when it is missing or damaged.
    bool LoadFile(const wchar_t* file);
    /// Replaces the file in one step.
    bool SaveFile(const wchar_t* file) const;

  private:
    enum class Type : std::uint16_t { Number = 1, Text = 2, Color = 3 };
    struct Property {
        std::uint16_t key = 0;  ///< number of a string
        Type type = Type::Number;
        std::uint32_t value = 0;  ///< the number, the colour, or the number of a string
    };
    struct Record {
        int kind = 0;
        int parent = -1;
        int depth = 1;
        bool written = false;
        std::vector<Property> properties;
    };

    bool HasRecord(int index) const { return index >= 0 && index < GetRecordCount(); }
    bool AppendRecord(int kind, int parent);
    int Intern(const std::wstring& text);
    /// Whether the texts, whose sizes are given, keep to kMaxNamedText.
    bool IsTextBounded(const std::vector<std::size_t>& textSizes) const;
    bool Store(int index, const std::wstring& key, Type type, std::uint32_t value);
    const Property* Find(int index, const std::wstring& key, Type type) const;

    std::vector<Record> m_vecRecords;
    std::vector<std::wstring> m_vecStrings;
    std::map<std::wstring, int> m_mapStringToNumber;
};
