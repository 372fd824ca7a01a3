#include "engine/system/IniText.h"

#include <algorithm>
#include <set>
#include <utility>

#include "platform/CaseFold.h"
#include "platform/Unicode.h"

namespace korvane {
namespace {

constexpr std::size_t kMaxNameLength = 255;
constexpr std::size_t kMaxValueLength = 65535;

/// One replacement of bytes; `length` 0 only inserts.
struct Edit {
    std::size_t at = 0;
    std::size_t length = 0;
    std::string bytes;
};

std::string Apply(const std::string& bytes, std::vector<Edit> edits) {
    std::stable_sort(edits.begin(), edits.end(),
                     [](const Edit& left, const Edit& right) { return left.at < right.at; });
    std::string result;
    std::size_t copied = 0;
    for (const Edit& edit : edits) {
        result.append(bytes, copied, edit.at - copied);
        result += edit.bytes;
        copied = edit.at + edit.length;
    }
    return result.append(bytes, copied, std::string::npos);
}

bool IsValidUnicode(std::wstring_view text) {
    return FromUtf8(ToUtf8(text)) == text;
}

std::wstring EntryLine(const IniChange& change, bool spaced) {
    return change.key + (spaced ? L" = " : L"=") + QuoteIniValue(change.value);
}

}  // namespace

std::wstring FoldIniName(std::wstring_view name) {
    std::wstring folded;
    folded.reserve(name.size());
    for (std::size_t at = 0; at < name.size();)
        AppendCodePoint(folded, FoldCase(NextCodePoint(name, at)));
    return folded;
}

bool IsIniName(std::wstring_view name) {
    if (name.empty() || name.size() > kMaxNameLength)
        return false;
    const auto isForbidden = [](wchar_t character) {
        const auto code = static_cast<char32_t>(character);
        return code < U' ' || code == 0x7F || code == '=' || code == '[' || code == ']';
    };
    if (std::any_of(name.begin(), name.end(), isForbidden))
        return false;
    return name.front() != L' ' && name.back() != L' ' && name.front() != L';' && name.front() != L'#' &&
           IsValidUnicode(name);
}

bool IsIniValue(std::wstring_view value) {
    return value.size() <= kMaxValueLength &&
           value.find_first_of(std::wstring_view(L"\r\n\0", 3)) == std::wstring_view::npos &&
           IsValidUnicode(value);
}

IniText::IniText(std::string bytes) : text_(std::move(bytes)) {
    Section* section = nullptr;
    bool firstOccurrence = false;
    bool lineBreakKnown = false;
    bool spacingKnown = false;
    for (std::size_t begin = 0; begin < text_.Size(); begin = lastLine_.next) {
        const IniLine line = ScanIniLine(text_, begin);
        lastLine_ = line;
        if (!lineBreakKnown && line.next > line.end) {
            lineBreak_ = LineBreakOf(line);
            lineBreakKnown = true;
        }
        if (line.kind == IniLine::Kind::Section) {
            const auto [found, added] =
                sections_.try_emplace(FoldIniName(text_.Decode(line.nameBegin, line.nameEnd)));
            section = &found->second;
            firstOccurrence = added;
            if (added) {
                section->addBehind = line;
                section->spaced = spaced_;
            }
        } else if (line.kind == IniLine::Kind::Entry) {
            if (!spacingKnown) {
                spaced_ = IsSpaced(line);
                spacingKnown = true;
            }
            if (!section)
                continue;
            section->entries.try_emplace(FoldIniName(text_.Decode(line.nameBegin, line.nameEnd)),
                                         Entry{line.valueBegin, line.valueEnd});
            if (firstOccurrence) {
                section->addBehind = line;
                section->spaced = IsSpaced(line);
            }
        }
    }
}

const IniText::Entry* IniText::FindEntry(const std::wstring& section, const std::wstring& key) const {
    const auto foundSection = sections_.find(section);
    if (foundSection == sections_.end())
        return nullptr;
    const auto found = foundSection->second.entries.find(key);
    return found == foundSection->second.entries.end() ? nullptr : &found->second;
}

bool IniText::Find(const std::wstring& section, const std::wstring& key, std::wstring* value) const {
    const Entry* entry = FindEntry(section, key);
    if (entry && value)
        *value = UnquoteIniValue(text_.Decode(entry->valueBegin, entry->valueEnd));
    return entry != nullptr;
}

bool IniText::HasSection(const std::wstring& section) const {
    return sections_.count(section) != 0;
}

std::vector<const IniText::Entry*> IniText::Targets(const std::vector<IniChange>& changes) const {
    std::vector<const Entry*> targets;
    std::set<const Entry*> taken;
    for (const IniChange& change : changes) {
        targets.push_back(FindEntry(FoldIniName(change.section), FoldIniName(change.key)));
        taken.insert(targets.back());
    }
    // The other order comes second, lest two changes meet in one entry.
    for (std::size_t i = 0; i < changes.size(); ++i) {
        if (targets[i])
            continue;
        const Entry* swapped = FindEntry(FoldIniName(changes[i].key), FoldIniName(changes[i].section));
        if (swapped && taken.insert(swapped).second)
            targets[i] = swapped;
    }
    return targets;
}

std::wstring IniText::LineBreakOf(const IniLine& line) const {
    return text_.Decode(line.end, line.next);
}

bool IniText::IsSpaced(const IniLine& entry) const {
    return text_.Unit(entry.nameEnd) != '=';
}

std::string IniText::With(const std::vector<IniChange>& changes) const {
    const std::vector<const Entry*> targets = Targets(changes);
    std::vector<Edit> edits;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        if (!targets[i])
            continue;
        const std::size_t at = text_.ByteOffset(targets[i]->valueBegin);
        edits.push_back(
            {at, text_.ByteOffset(targets[i]->valueEnd) - at, text_.Encode(QuoteIniValue(changes[i].value))});
    }

    // Additions follow the edits of values, since both may lie at the end of the text.
    std::vector<std::pair<std::wstring, std::wstring>> newSections;
    std::map<std::wstring, std::size_t> newSectionIndex;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        if (targets[i])
            continue;
        std::wstring folded = FoldIniName(changes[i].section);
        const auto found = sections_.find(folded);
        if (found == sections_.end()) {
            const auto [index, added] = newSectionIndex.try_emplace(std::move(folded), newSections.size());
            if (added)
                newSections.emplace_back(changes[i].section, std::wstring());
            newSections[index->second].second += EntryLine(changes[i], spaced_) + lineBreak_;
            continue;
        }
        const IniLine& line = found->second.addBehind;
        const std::wstring entry = EntryLine(changes[i], found->second.spaced);
        const bool endsFile = line.next == line.end;
        edits.push_back({text_.ByteOffset(line.next), 0,
                         text_.Encode(endsFile ? lineBreak_ + entry : entry + LineBreakOf(line))});
    }

    std::wstring tail;
    const bool open = lastLine_.next == lastLine_.end && text_.Size() > 0;
    if (!newSections.empty() && open)
        tail += lineBreak_;
    bool blankAbove = lastLine_.kind == IniLine::Kind::Blank;
    for (const auto& [name, entries] : newSections) {
        if (!blankAbove)
            tail += lineBreak_;
        tail.append(L"[").append(name).append(L"]").append(lineBreak_).append(entries);
        blankAbove = false;
    }
    edits.push_back({text_.ByteOffset(text_.Size()), 0, text_.Encode(tail)});
    return Apply(text_.Bytes(), std::move(edits));
}

}  // namespace korvane
