#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "demo/headunit/files/Folder.h"

namespace korvane::demo {

/// Where a user is in the folders of a medium: in one of them, at one of its entries. The entries form a
/// ring: the last is followed by the first.
///
/// In a folder of the medium, the first entry leads to the folder above. The medium may change or vanish at
/// any time: whoever finds its folder gone is in the nearest one above that is still there.
class FolderBrowser {
  public:
    /// `root` is the medium's folder, such as "\USB".
    explicit FolderBrowser(std::wstring root) : root_(std::move(root)) {}

    /// What opening an entry has led to.
    enum class Opened { Nothing, Folder, File };

    /// Reads the folder. The entry stays the current one, if it is still there.
    void Refresh();
    /// Whether the folder that was read is there.
    bool IsFolderThere() const;
    /// Whether the medium was there when it was looked for last.
    bool HasMedium() const { return hasMedium_; }

    bool IsAtRoot() const { return names_.empty(); }
    /// The folder's own name; empty for the medium's.
    std::wstring FolderName() const { return names_.empty() ? std::wstring() : names_.back(); }
    /// What the folder holds, without the way to the folder above.
    const std::vector<FolderEntry>& Contents() const { return contents_; }

    std::size_t EntryCount() const { return contents_.size() + FirstOfContents(); }
    /// The entry `offset` places on, on either side. Null for the way to the folder above, and where there is
    /// none.
    const FolderEntry* EntryAt(int offset) const;

    void Step(int offset);
    /// Enters the current entry if it is a folder, and leaves the folder if it is the way to the one above.
    Opened Open();
    /// Goes to the folder above, at the folder that was left. False at the medium's own.
    bool Leave();
    void GoToRoot();

  private:
    std::size_t FirstOfContents() const { return IsAtRoot() ? 0 : 1; }
    std::size_t IndexAt(int offset) const;
    std::wstring Path() const;
    void Choose(const std::wstring& name);

    std::wstring root_;
    std::vector<std::wstring> names_;  // from the medium to the folder
    std::vector<FolderEntry> contents_;
    std::size_t current_ = 0;
    bool hasMedium_ = false;
};

}  // namespace korvane::demo
