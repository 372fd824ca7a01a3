#include "engine/system/EncodedText.h"

#include <utility>

#include "platform/Unicode.h"

namespace korvane {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(unsigned unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(unsigned unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

bool StartsWith(std::string_view bytes, std::string_view mark) {
    return bytes.substr(0, mark.size()) == mark;
}

}  // namespace

EncodedText::EncodedText(std::string bytes) : bytes_(std::move(bytes)) {
    if (StartsWith(bytes_, "\xEF\xBB\xBF")) {
        markBytes_ = 3;
    } else if (StartsWith(bytes_, "\xFF\xFE")) {
        encoding_ = Encoding::Utf16LittleEndian;
        markBytes_ = 2;
    } else if (StartsWith(bytes_, "\xFE\xFF")) {
        encoding_ = Encoding::Utf16BigEndian;
        markBytes_ = 2;
    }
    size_ = (bytes_.size() - markBytes_) / UnitBytes();
}

unsigned EncodedText::Unit(std::size_t at) const {
    const std::size_t offset = ByteOffset(at);
    const unsigned first = static_cast<unsigned char>(bytes_[offset]);
    if (IsUtf8())
        return first;
    const unsigned second = static_cast<unsigned char>(bytes_[offset + 1]);
    return encoding_ == Encoding::Utf16LittleEndian ? first | second << 8 : first << 8 | second;
}

std::wstring EncodedText::Decode(std::size_t begin, std::size_t end) const {
    if (IsUtf8())
        return FromUtf8(std::string_view(bytes_).substr(ByteOffset(begin), end - begin));

    std::wstring text;
    text.reserve(end - begin);
    for (std::size_t at = begin; at < end; ++at) {
        const unsigned unit = Unit(at);
        if (IsHighSurrogate(unit) && at + 1 < end && IsLowSurrogate(Unit(at + 1))) {
            AppendCodePoint(text, 0x10000 + ((unit - 0xD800) << 10) + (Unit(at + 1) - 0xDC00));
            ++at;
        } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
            AppendCodePoint(text, kReplacement);
        } else {
            AppendCodePoint(text, unit);
        }
    }
    return text;
}

std::string EncodedText::Encode(std::wstring_view text) const {
    if (IsUtf8())
        return ToUtf8(text);

    std::string bytes;
    bytes.reserve(text.size() * 2);
    const auto append = [&](char32_t unit) {
        const char low = static_cast<char>(unit & 0xFF);
        const char high = static_cast<char>(unit >> 8 & 0xFF);
        bytes += encoding_ == Encoding::Utf16LittleEndian ? low : high;
        bytes += encoding_ == Encoding::Utf16LittleEndian ? high : low;
    };
    for (std::size_t at = 0; at < text.size();) {
        const char32_t codePoint = NextCodePoint(text, at);
        if (codePoint >= 0x10000) {
            append(0xD800 + ((codePoint - 0x10000) >> 10));
            append(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
        } else {
            append(codePoint);
        }
    }
    return bytes;
}

}  // namespace korvane
