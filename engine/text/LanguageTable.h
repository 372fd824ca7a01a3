#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// The texts of one language, as docs/file-formats.md describes them.
class LanguageTable {
  public:
    static constexpr std::size_t kMaxFileBytes = std::size_t{4} << 20;

    /// An empty table: no texts, "AM" and "PM".
    LanguageTable() = default;
    /// Nothing when the bytes are not a language table.
    static std::optional<LanguageTable> Parse(std::string bytes);

    /// Null when the table has no such text.
    const std::wstring* Find(int id) const;
    const std::wstring* Find(std::wstring_view key) const;

    const std::wstring& Morning() const { return morning_; }
    const std::wstring& Afternoon() const { return afternoon_; }

  private:
    bool AddText(std::wstring_view names, std::wstring text);
    void SetProperty(const std::wstring& foldedName, const std::wstring& value);

    std::wstring name_;
    std::wstring morning_ = L"AM";
    std::wstring afternoon_ = L"PM";
    std::vector<std::wstring> texts_;
    std::map<int, std::size_t> indexOfId_;
    std::map<std::wstring, std::size_t> indexOfKey_;  ///< keys are folded
};

}  // namespace korvane
