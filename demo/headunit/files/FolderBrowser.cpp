#include "demo/headunit/files/FolderBrowser.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace korvane::demo {

void FolderBrowser::Refresh() {
    const FolderEntry* const entry = EntryAt(0);
    std::wstring wanted = entry ? entry->name : L"";
    std::optional<std::vector<FolderEntry>> contents = ReadFolder(Path());
    while (!contents && !IsAtRoot()) {
        wanted = names_.back();
        names_.pop_back();
        contents = ReadFolder(Path());
    }
    hasMedium_ = contents.has_value();
    contents_ = contents ? std::move(*contents) : std::vector<FolderEntry>();
    Choose(wanted);
}

bool FolderBrowser::IsFolderThere() const {
    return IsFolder(Path());
}

std::wstring FolderBrowser::Path() const {
    std::wstring path = root_;
    for (const std::wstring& name : names_)
        path += L"\\" + name;
    return path;
}

/// Makes the entry of that name the current one, or, where there is none, the one in its place.
void FolderBrowser::Choose(const std::wstring& name) {
    const auto found = std::find_if(contents_.begin(), contents_.end(),
                                    [&name](const FolderEntry& entry) { return entry.name == name; });
    if (found != contents_.end())
        current_ = FirstOfContents() + static_cast<std::size_t>(found - contents_.begin());
    else
        current_ = std::min(current_, EntryCount() == 0 ? 0 : EntryCount() - 1);
}

std::size_t FolderBrowser::IndexAt(int offset) const {
    const auto count = static_cast<std::int64_t>(EntryCount());
    const std::int64_t index = (static_cast<std::int64_t>(current_) + offset) % count;
    return static_cast<std::size_t>(index < 0 ? index + count : index);
}

const FolderEntry* FolderBrowser::EntryAt(int offset) const {
    if (EntryCount() == 0)
        return nullptr;
    const std::size_t index = IndexAt(offset);
    return index < FirstOfContents() ? nullptr : &contents_[index - FirstOfContents()];
}

void FolderBrowser::Step(int offset) {
    if (EntryCount() > 0)
        current_ = IndexAt(offset);
}

FolderBrowser::Opened FolderBrowser::Open() {
    if (EntryCount() == 0)
        return Opened::Nothing;
    const FolderEntry* const entry = EntryAt(0);
    if (!entry)
        return Leave() ? Opened::Folder : Opened::Nothing;
    if (!entry->isFolder)
        return Opened::File;
    names_.push_back(entry->name);
    const std::size_t depth = names_.size();
    const std::size_t before = current_;
    current_ = 0;
    contents_.clear();
    Refresh();
    if (names_.size() < depth) {
        if (names_.size() == depth - 1 && EntryCount() > 0)
            current_ = std::min(before, EntryCount() - 1);
        return Opened::Nothing;
    }
    // Past the way back, unless there is nothing else.
    current_ = contents_.empty() ? 0 : 1;
    return Opened::Folder;
}

bool FolderBrowser::Leave() {
    if (IsAtRoot())
        return false;
    const std::wstring left = names_.back();
    names_.pop_back();
    contents_.clear();
    current_ = 0;
    Refresh();
    Choose(left);
    return true;
}

void FolderBrowser::GoToRoot() {
    names_.clear();
    contents_.clear();
    current_ = 0;
    Refresh();
}

}  // namespace korvane::demo
