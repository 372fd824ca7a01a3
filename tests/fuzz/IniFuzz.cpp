#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/system/IniText.h"

#include "tests/fuzz/Require.h"

namespace {

using korvane::EncodedText;
using korvane::IniChange;
using korvane::IniLine;
using korvane::IniText;

/// A line as it is in the file; an entry without its value.
struct RawLine {
    std::string whole;
    std::string head;
    std::string foot;
};

std::vector<RawLine> RawLines(const EncodedText& text) {
    const auto bytes = [&](std::size_t begin, std::size_t end) {
        const std::size_t offset = text.ByteOffset(begin);
        return text.Bytes().substr(offset, text.ByteOffset(end) - offset);
    };
    std::vector<RawLine> lines;
    for (std::size_t begin = 0; begin < text.Size();) {
        const IniLine line = korvane::ScanIniLine(text, begin);
        Require(line.next > begin, "every line moves on");
        RawLine raw{bytes(line.begin, line.end), {}, {}};
        if (line.kind == IniLine::Kind::Entry) {
            raw.head = bytes(line.begin, line.valueBegin);
            raw.foot = bytes(line.valueEnd, line.end);
        }
        lines.push_back(raw);
        begin = line.next;
    }
    return lines;
}

bool StartsAndEnds(const std::string& text, const std::string& head, const std::string& foot) {
    return text.size() >= head.size() + foot.size() && text.compare(0, head.size(), head) == 0 &&
           text.compare(text.size() - foot.size(), foot.size(), foot) == 0;
}

/// Every line is still there, in order, at most `changes` of them with another value.
void RequireLinesKept(const EncodedText& before, const EncodedText& after, std::size_t changes) {
    const std::vector<RawLine> newLines = RawLines(after);
    std::size_t at = 0;
    std::size_t changed = 0;
    for (const RawLine& line : RawLines(before)) {
        const auto isChanged = [&](const RawLine& candidate) {
            return !line.head.empty() && StartsAndEnds(candidate.whole, line.head, line.foot);
        };
        while (at < newLines.size() && newLines[at].whole != line.whole && !isChanged(newLines[at]))
            ++at;
        Require(at < newLines.size(), "a rewrite keeps every line");
        changed += newLines[at].whole != line.whole;
        ++at;
    }
    Require(changed <= changes, "a rewrite changes no other value");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const IniText text(bytes);
    Require(text.With({}) == bytes, "no change changes nothing");

    static const std::wstring values[] = {L"", L"1", L" x", L"\" \"", L"\"q\"", L"\u4E0A\U0001F697"};
    const std::wstring& value = values[size % (sizeof values / sizeof values[0])];
    const std::vector<IniChange> changes = {
        {L"a", L"x", value}, {L"x", L"a", L"swapped"}, {L"a", L"added", value}, {L"\u00DCber", L"neu", L"1"}};
    const std::string changed = text.With(changes);
    const IniText after(changed);
    for (const IniChange& change : changes) {
        const std::wstring section = korvane::FoldIniName(change.section);
        const std::wstring key = korvane::FoldIniName(change.key);
        std::wstring found;
        Require(after.Find(section, key, &found) || after.Find(key, section, &found),
                "a value is found again");
        Require(found == change.value, "a value is found as it was set");
    }
    Require(after.With(changes) == changed, "the same changes again change nothing");
    RequireLinesKept(text.Text(), after.Text(), changes.size());
    return 0;
}
