#include "engine/system/IniReadWrite.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/system/IniText.h"
#include "engine/system/System.h"
#include "platform/Files.h"
#include "platform/coredll.h"

namespace {

using korvane::FoldIniName;
using korvane::IniChange;
using korvane::IniText;

constexpr std::size_t kMaxFileBytes = std::size_t{1} << 20;

/// False when there is something of that name that cannot be read; a missing file gives no bytes.
bool ReadIniFile(const std::wstring& path, std::string& bytes) {
    bytes.clear();
    std::vector<unsigned char> contents;
    if (korvane::ReadWholeFile(path.c_str(), kMaxFileBytes, contents)) {
        bytes.assign(contents.begin(), contents.end());
        return true;
    }
    if (GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES)
        return false;
    const DWORD error = GetLastError();
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

bool ParseDigits(std::wstring_view digits, unsigned radix, std::uint64_t limit, std::uint64_t& value) {
    if (digits.empty())
        return false;
    value = 0;
    for (const wchar_t character : digits) {
        unsigned digit = 0;
        if (character >= L'0' && character <= L'9')
            digit = static_cast<unsigned>(character - L'0');
        else if (character >= L'a' && character <= L'f')
            digit = static_cast<unsigned>(character - L'a') + 10;
        else if (character >= L'A' && character <= L'F')
            digit = static_cast<unsigned>(character - L'A') + 10;
        else
            return false;
        if (digit >= radix)
            return false;
        value = std::min(value * radix + digit, limit);
    }
    return true;
}

bool ParseInt(std::wstring_view text, int& number) {
    std::uint64_t value = 0;
    if (text.substr(0, 2) == L"0x" || text.substr(0, 2) == L"0X") {
        constexpr std::uint64_t kPatternMax = 0xFFFFFFFF;
        if (!ParseDigits(text.substr(2), 16, kPatternMax + 1, value) || value > kPatternMax)
            return false;
        number = static_cast<int>(static_cast<std::uint32_t>(value));
        return true;
    }

    const bool negative = text.substr(0, 1) == L"-";
    if (negative || text.substr(0, 1) == L"+")
        text.remove_prefix(1);
    constexpr std::int64_t kIntMax = std::numeric_limits<int>::max();
    if (!ParseDigits(text, 10, kIntMax + (negative ? 1 : 0), value))
        return false;
    const std::int64_t magnitude = static_cast<std::int64_t>(value);
    number = static_cast<int>(negative ? -magnitude : magnitude);
    return true;
}

std::wstring_view ViewOf(const wchar_t* text) {
    return text ? std::wstring_view(text) : std::wstring_view();
}

}  // namespace

struct CLQIniReadWrite::Impl {
    using Names = std::pair<std::wstring, std::wstring>;  ///< section and key, folded

    const IniChange* Pending(const Names& names) const {
        const auto found = pendingIndex.find(names);
        return found == pendingIndex.end() ? nullptr : &pending[found->second];
    }

    bool FindInOrder(const Names& names, std::wstring* value) const {
        const IniChange* change = Pending(names);
        if (!change)
            return text.Find(names.first, names.second, value);
        if (value)
            *value = change->value;
        return true;
    }

    bool Find(const wchar_t* section, const wchar_t* key, std::wstring* value) const {
        const Names names(FoldIniName(ViewOf(section)), FoldIniName(ViewOf(key)));
        if (names.first.empty() || names.second.empty())
            return false;
        return FindInOrder(names, value) || FindInOrder({names.second, names.first}, value);
    }

    std::size_t EncodedBytes(const std::wstring& part) const { return text.Text().Encode(part).size(); }

    /// What an added entry takes in the file, or a little more.
    std::size_t BytesOf(const Names& names, const IniChange& change) const {
        static const std::wstring punctuation(L" = \"\"\r\n");
        static const std::wstring header(L"\r\n\r\n[]\r\n");
        std::size_t bytes = EncodedBytes(change.key + change.value + punctuation);
        const auto sibling = pendingIndex.lower_bound({names.first, std::wstring()});
        const bool hasSibling = sibling != pendingIndex.end() && sibling->first.first == names.first;
        if (!hasSibling && !text.HasSection(names.first))
            bytes += EncodedBytes(change.section + header);
        return bytes;
    }

    void DropPending() {
        pending.clear();
        pendingIndex.clear();
        pendingBytes = 0;
    }

    std::wstring path;
    IniText text;
    std::vector<IniChange> pending;
    std::map<Names, std::size_t> pendingIndex;
    std::size_t pendingBytes = 0;
};

CLQIniReadWrite::CLQIniReadWrite() : m_pImpl(std::make_unique<Impl>()) {}

CLQIniReadWrite::~CLQIniReadWrite() = default;

void CLQIniReadWrite::SetFileName(const wchar_t* file) {
    SetFileName(std::wstring(ViewOf(file)));
}

void CLQIniReadWrite::SetFileName(const std::wstring& file) {
    m_pImpl->DropPending();
    m_pImpl->path = file;
    std::string bytes;
    m_pImpl->text = !file.empty() && ReadIniFile(file, bytes) ? IniText(std::move(bytes)) : IniText();
}

bool CLQIniReadWrite::SetContents(std::string bytes) {
    if (bytes.size() > kMaxFileBytes)
        return false;
    m_pImpl->DropPending();
    m_pImpl->path.clear();
    m_pImpl->text = IniText(std::move(bytes));
    return true;
}

std::string CLQIniReadWrite::GetContents() const {
    return m_pImpl->text.With(m_pImpl->pending);
}

int CLQIniReadWrite::GetInt(const wchar_t* section, const wchar_t* key, int fallback) {
    std::wstring value;
    int number = 0;
    return m_pImpl->Find(section, key, &value) && ParseInt(value, number) ? number : fallback;
}

std::wstring CLQIniReadWrite::GetString(const wchar_t* section, const wchar_t* key, const wchar_t* fallback) {
    std::wstring value;
    return m_pImpl->Find(section, key, &value) ? value : std::wstring(ViewOf(fallback));
}

bool CLQIniReadWrite::SetValue(const wchar_t* section, const wchar_t* key, int value, bool create) {
    return SetValue(section, key, std::to_wstring(value).c_str(), create);
}

bool CLQIniReadWrite::SetValue(const wchar_t* section, const wchar_t* key, const wchar_t* value,
                               bool create) {
    if (!value || !korvane::IsIniName(ViewOf(section)) || !korvane::IsIniName(ViewOf(key)) ||
        !korvane::IsIniValue(value))
        return false;

    Impl& impl = *m_pImpl;
    IniChange change{section, key, value};
    Impl::Names names(FoldIniName(change.section), FoldIniName(change.key));
    if (!impl.FindInOrder(names, nullptr)) {
        const Impl::Names swapped(names.second, names.first);
        if (impl.FindInOrder(swapped, nullptr)) {
            std::swap(change.section, change.key);
            names = swapped;
        } else if (!create) {
            return false;
        }
    }

    const auto found = impl.pendingIndex.find(names);
    const bool isNew = found == impl.pendingIndex.end();
    const std::size_t bytes = isNew ? impl.pendingBytes + impl.BytesOf(names, change)
                                    : impl.pendingBytes + impl.EncodedBytes(change.value) -
                                          impl.EncodedBytes(impl.pending[found->second].value);
    if (impl.text.Text().Bytes().size() + bytes > kMaxFileBytes)
        return false;
    impl.pendingBytes = bytes;
    if (isNew) {
        impl.pendingIndex.emplace(std::move(names), impl.pending.size());
        impl.pending.push_back(std::move(change));
    } else {
        impl.pending[found->second].value = std::move(change.value);
    }
    return true;
}

void CLQIniReadWrite::Update() {
    Impl& impl = *m_pImpl;
    std::string bytes;
    if (impl.pending.empty() || impl.path.empty() || !ReadIniFile(impl.path, bytes))
        return;

    std::string changed = IniText(bytes).With(impl.pending);
    if (changed.size() > kMaxFileBytes)
        return;
    if (changed != bytes) {
        const std::size_t separator = impl.path.find_last_of(L"\\/");
        if (separator != std::wstring::npos)
            CreateDir(impl.path.substr(0, separator));
        if (!korvane::ReplaceFileAtomically(impl.path.c_str(), changed.data(), changed.size()))
            return;
    }
    impl.text = IniText(std::move(changed));
    impl.DropPending();
}
