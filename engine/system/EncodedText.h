#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korvane {

/// The bytes of a text file, seen as the code units of its encoding: UTF-16 of either byte order when the
/// file starts with the byte order mark, else UTF-8, whose mark may be there or not.
///
/// Positions count code units behind the mark. The bytes are never altered, valid or not; what is not valid
/// decodes as U+FFFD.
class EncodedText {
  public:
    EncodedText() = default;
    explicit EncodedText(std::string bytes);

    std::size_t Size() const { return size_; }
    /// The code unit at a position below `Size`.
    unsigned Unit(std::size_t at) const;

    std::wstring Decode(std::size_t begin, std::size_t end) const;
    /// Bytes of a text in this file's encoding, without a mark.
    std::string Encode(std::wstring_view text) const;

    /// Where the code unit lies in `Bytes`. `Size` gives the end of the text, which lies one byte before the
    /// end of the file when UTF-16 was cut in the middle of a unit.
    std::size_t ByteOffset(std::size_t at) const { return markBytes_ + at * UnitBytes(); }
    const std::string& Bytes() const { return bytes_; }

    bool IsUtf8() const { return encoding_ == Encoding::Utf8; }

  private:
    enum class Encoding { Utf8, Utf16LittleEndian, Utf16BigEndian };

    std::size_t UnitBytes() const { return IsUtf8() ? 1 : 2; }

    std::string bytes_;
    Encoding encoding_ = Encoding::Utf8;
    std::size_t markBytes_ = 0;
    std::size_t size_ = 0;
};

}  // namespace korvane
