#include <algorithm>
#include <memory>
#include <string>

#include "platform/Files.h"
#include "platform/windows/Handle.h"
#include "platform/windows/LastError.h"
#include "platform/windows/files/HostPath.h"
#include "platform/windows/files/TemporaryFile.h"
#include "platform/windows/files/TryWhileInUse.h"

namespace korvane {
namespace {

// Neither a folder nor a file that nobody may write to can be replaced.
constexpr DWORD kNotReplaced = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
constexpr DWORD kKept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;

Handle OpenToRead(const std::wstring& host) {
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    Handle file;
    // A file that is just being removed is denied for a moment.
    constexpr ULONGLONG kRemovalMs = 50;
    TryWhileInUse(kRemovalMs, [&file, &host] {
        file = Handle(CreateFileW(host.c_str(), GENERIC_READ, kShared, nullptr, OPEN_EXISTING,
                                  FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
        return file.IsOpen();
    });
    return file;
}

}  // namespace

bool ReplaceFileAtomically(const wchar_t* devicePath, const void* bytes, std::size_t size) {
    const std::wstring target = RequireHostPath(devicePath);
    if (target.empty())
        return false;
    if (!bytes && size > 0)
        return Refuse(ERROR_INVALID_PARAMETER);
    const DWORD found = GetFileAttributesW(target.c_str());
    const DWORD attributes = found == INVALID_FILE_ATTRIBUTES ? FILE_ATTRIBUTE_ARCHIVE : found;
    if ((attributes & kNotReplaced) != 0)
        return Refuse(ERROR_ACCESS_DENIED);
    const std::unique_ptr<TemporaryFile> next = TemporaryFile::Create(target, attributes & kKept);
    return next && next->Write(bytes, size) && next->Rename();
}

bool ReadWholeFile(const wchar_t* devicePath, std::size_t limit, std::vector<unsigned char>& bytes) {
    bytes.clear();
    const std::wstring host = RequireHostPath(devicePath);
    const DWORD attributes = host.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(host.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return false;
    const Handle file = (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0 ? OpenToRead(host) : Handle();
    LARGE_INTEGER size = {};
    if (!file.IsOpen() || GetFileType(file.Get()) != FILE_TYPE_DISK || !GetFileSizeEx(file.Get(), &size) ||
        static_cast<unsigned long long>(size.QuadPart) > limit)
        return Refuse(ERROR_ACCESS_DENIED);
    bytes.resize(static_cast<std::size_t>(size.QuadPart));
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        constexpr std::size_t kBlock = std::size_t{1} << 20;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size() - filled, kBlock));
        DWORD got = 0;
        if (!ReadFile(file.Get(), bytes.data() + filled, wanted, &got, nullptr)) {
            bytes.clear();
            return false;
        }
        if (got == 0)
            break;
        filled += got;
    }
    bytes.resize(filled);
    return true;
}

}  // namespace korvane
