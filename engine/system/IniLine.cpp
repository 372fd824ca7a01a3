#include "engine/system/IniLine.h"

#include "engine/system/EncodedText.h"

namespace korvane {
namespace {

bool IsBlank(unsigned unit) {
    return unit == ' ' || unit == '\t';
}
bool IsBreak(unsigned unit) {
    return unit == '\r' || unit == '\n';
}

std::size_t SkipBlanks(const EncodedText& text, std::size_t begin, std::size_t end) {
    while (begin < end && IsBlank(text.Unit(begin)))
        ++begin;
    return begin;
}

std::size_t DropBlanks(const EncodedText& text, std::size_t begin, std::size_t end) {
    while (end > begin && IsBlank(text.Unit(end - 1)))
        --end;
    return end;
}

std::size_t Find(const EncodedText& text, std::size_t begin, std::size_t end, unsigned unit) {
    while (begin < end && text.Unit(begin) != unit)
        ++begin;
    return begin;
}

/// True when the value would read differently without a pair of quotes around it: it has a blank at an end,
/// or is itself such a value in quotes.
bool NeedsQuotes(std::wstring_view value) {
    while (value.size() >= 2 && value.front() == L'"' && value.back() == L'"')
        value = value.substr(1, value.size() - 2);
    const auto isBlank = [](wchar_t character) { return character == L' ' || character == L'\t'; };
    return !value.empty() && (isBlank(value.front()) || isBlank(value.back()));
}

}  // namespace

IniLine ScanIniLine(const EncodedText& text, std::size_t begin) {
    IniLine line;
    line.begin = begin;
    line.end = begin;
    while (line.end < text.Size() && !IsBreak(text.Unit(line.end)))
        ++line.end;
    line.next = line.end;
    if (line.next < text.Size()) {
        const bool carriageReturn = text.Unit(line.next) == '\r';
        ++line.next;
        if (carriageReturn && line.next < text.Size() && text.Unit(line.next) == '\n')
            ++line.next;
    }

    const std::size_t start = SkipBlanks(text, line.begin, line.end);
    if (start == line.end)
        return line;
    const unsigned first = text.Unit(start);
    if (first == ';' || first == '#') {
        line.kind = IniLine::Kind::Comment;
        return line;
    }

    line.kind = IniLine::Kind::Other;
    if (first == '[') {
        const std::size_t bracket = Find(text, start, line.end, ']');
        if (bracket == line.end)
            return line;
        line.kind = IniLine::Kind::Section;
        line.nameBegin = SkipBlanks(text, start + 1, bracket);
        line.nameEnd = DropBlanks(text, line.nameBegin, bracket);
        return line;
    }

    const std::size_t equals = Find(text, start, line.end, '=');
    if (equals == line.end || equals == start)
        return line;
    line.kind = IniLine::Kind::Entry;
    line.nameBegin = start;
    line.nameEnd = DropBlanks(text, start, equals);
    line.valueBegin = SkipBlanks(text, equals + 1, line.end);
    line.valueEnd = DropBlanks(text, line.valueBegin, line.end);
    return line;
}

std::wstring QuoteIniValue(std::wstring_view value) {
    std::wstring written(value);
    return NeedsQuotes(value) ? L'"' + written + L'"' : written;
}

std::wstring UnquoteIniValue(std::wstring_view written) {
    // A trimmed text whose blanks matter can only be one that stands in quotes.
    return std::wstring(NeedsQuotes(written) ? written.substr(1, written.size() - 2) : written);
}

}  // namespace korvane
