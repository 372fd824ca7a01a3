#include "platform/files/DeviceIdentity.h"

#include "platform/CaseFold.h"
#include "platform/Simulation.h"
#include "platform/Unicode.h"
#include "platform/windows/Handle.h"
#include "platform/windows/files/FullPath.h"

namespace korvane {
namespace {

// The user's identifier, byte by byte.
std::wstring UserName() {
    HANDLE opened = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened))
        return {};
    const Handle token(opened);
    alignas(TOKEN_USER) unsigned char user[sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof(user);
    if (!GetTokenInformation(token.Get(), TokenUser, user, size, &size))
        return {};
    const PSID identifier = reinterpret_cast<TOKEN_USER*>(user)->User.Sid;
    const auto* const bytes = static_cast<const unsigned char*>(identifier);
    return std::wstring(bytes, bytes + GetLengthSid(identifier));
}

// The one path of a folder that exists, whatever links led to it; else empty.
std::wstring FinalPath(const std::wstring& folder) {
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle opened(
        CreateFileW(folder.c_str(), 0, kShared, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!opened.IsOpen())
        return {};
    std::wstring path(GetFinalPathNameByHandleW(opened.Get(), nullptr, 0, VOLUME_NAME_DOS), L'\0');
    path.resize(GetFinalPathNameByHandleW(opened.Get(), path.data(), static_cast<DWORD>(path.size()),
                                          VOLUME_NAME_DOS));
    return path;
}

void TrimSeparators(std::wstring& path) {
    while (!path.empty() && path.back() == L'\\')
        path.pop_back();
}

// What exists of the path is looked up, the rest stays as it is.
std::wstring CanonicalPath(const std::wstring& path) {
    std::wstring existing = FullPath(path);
    TrimSeparators(existing);
    std::wstring rest;
    std::wstring canonical;
    while (canonical.empty() && !existing.empty()) {
        canonical = FinalPath(existing + L'\\');
        if (!canonical.empty())
            break;
        const std::size_t separator = existing.rfind(L'\\');
        const std::size_t cut = separator == std::wstring::npos ? 0 : separator;
        rest.insert(0, existing, cut, std::wstring::npos);
        existing.erase(cut);
    }
    TrimSeparators(canonical);
    return canonical + rest;
}

}  // namespace

std::string DeviceIdentity() {
    const std::string root = DeviceRoot();
    const std::wstring path = CanonicalPath(root.empty() ? L"\\" : FromUtf8(root));
    std::wstring identity = UserName();
    for (std::size_t at = 0; at < path.size();)
        AppendCodePoint(identity, FoldCase(NextCodePoint(path, at)));
    return ToUtf8(identity);
}

}  // namespace korvane
