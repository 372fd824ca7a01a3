#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korvane {

class EncodedText;

/// One line of a text of sections, keys and values. Positions are those of the text.
struct IniLine {
    enum class Kind {
        Blank,
        Comment,  ///< starts with ; or #
        Section,  ///< [name], and whatever follows the bracket
        Entry,    ///< name = value; the name is not empty
        Other,
    };

    Kind kind = Kind::Blank;
    std::size_t begin = 0;
    std::size_t end = 0;   ///< where the line break starts
    std::size_t next = 0;  ///< where the next line starts; equal to `end` for a last line without a break
    /// Name and value without the blanks (spaces and tabs) around them.
    std::size_t nameBegin = 0;
    std::size_t nameEnd = 0;
    std::size_t valueBegin = 0;
    std::size_t valueEnd = 0;
};

/// The line that starts at `begin`. A line ends with CR, LF or both, or with the text.
IniLine ScanIniLine(const EncodedText& text, std::size_t begin);

/// Blanks at the ends of a value count only when the value stands in double quotes; all other quotes are part
/// of the value. `QuoteIniValue` adds the pair where it is needed, `UnquoteIniValue` takes it off.
std::wstring QuoteIniValue(std::wstring_view value);
std::wstring UnquoteIniValue(std::wstring_view written);

}  // namespace korvane
