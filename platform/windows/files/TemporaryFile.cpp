#include "platform/windows/files/TemporaryFile.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstring>
#include <utility>
#include <vector>

#include "platform/windows/files/FullPath.h"
#include "platform/windows/files/TryWhileInUse.h"

namespace korvane {
namespace {

// Open for the writer alone: a file that another process has left behind opens, one that it still writes does
// not. Readers may come as soon as it is renamed.
Handle OpenToWrite(const std::wstring& path, DWORD attributes) {
    return Handle(CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                              nullptr, CREATE_ALWAYS, attributes, nullptr));
}

std::wstring NameOfItsOwn() {
    static std::atomic<unsigned> count{0};
    return std::to_wstring(GetCurrentProcessId()) + L'-' + std::to_wstring(++count);
}

// FILE_RENAME_INFO and FileRenameInfoEx as Windows 10 has them, which MinGW's headers hide.
struct RenameRequest {
    DWORD flags;
    HANDLE rootFolder;
    DWORD nameBytes;
    wchar_t name[1];
};
static_assert(offsetof(RenameRequest, name) == offsetof(FILE_RENAME_INFO, FileName));
constexpr DWORD kReplaceIfExists = 1;
constexpr DWORD kPosixSemantics = 2;
constexpr auto kFileRenameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);

// Renames the open file over the target, if it can be whoever has that open. Older systems and some volumes
// know no such rename.
bool RenameOver(HANDLE file, std::vector<unsigned char>& bytes) {
    auto* const request = reinterpret_cast<RenameRequest*>(bytes.data());
    const auto size = static_cast<DWORD>(bytes.size());
    request->flags = kReplaceIfExists | kPosixSemantics;
    if (SetFileInformationByHandle(file, kFileRenameInfoEx, request, size))
        return true;
    request->flags = kReplaceIfExists;
    return SetFileInformationByHandle(file, FileRenameInfo, request, size) != 0;
}

}  // namespace

std::unique_ptr<TemporaryFile> TemporaryFile::Create(const std::wstring& target, DWORD attributes) {
    const std::size_t name = target.find_last_of(L"\\/") + 1;
    const std::wstring prefix = target.substr(0, name) + L".korvane-";
    Handle file = OpenToWrite(prefix + target.substr(name), attributes);
    if (!file.IsOpen())
        file = OpenToWrite(prefix + NameOfItsOwn(), attributes);
    if (!file.IsOpen())
        return nullptr;
    return std::unique_ptr<TemporaryFile>(new TemporaryFile(target, std::move(file)));
}

TemporaryFile::TemporaryFile(std::wstring target, Handle file)
    : target_(std::move(target)), file_(std::move(file)) {}

TemporaryFile::~TemporaryFile() {
    if (renamed_)
        return;
    const DWORD error = GetLastError();
    FILE_DISPOSITION_INFO disposition = {TRUE};
    SetFileInformationByHandle(file_.Get(), FileDispositionInfo, &disposition, sizeof(disposition));
    SetLastError(error);
}

bool TemporaryFile::Write(const void* bytes, std::size_t size) {
    constexpr std::size_t kBlock = std::size_t{1} << 20;
    const auto* at = static_cast<const unsigned char*>(bytes);
    while (size > 0) {
        DWORD written = 0;
        if (!WriteFile(file_.Get(), at, static_cast<DWORD>(std::min(size, kBlock)), &written, nullptr))
            return false;
        at += written;
        size -= written;
    }
    return FlushFileBuffers(file_.Get()) != 0;
}

bool TemporaryFile::Rename() {
    const std::wstring full = FullPath(target_);
    const std::size_t nameBytes = full.size() * sizeof(wchar_t);
    // With room for the terminator.
    std::vector<unsigned char> bytes(sizeof(RenameRequest) + nameBytes);
    auto* const request = reinterpret_cast<RenameRequest*>(bytes.data());
    request->nameBytes = static_cast<DWORD>(nameBytes);
    std::memcpy(request->name, full.data(), nameBytes);
    // Who may make files in the folder may most likely replace this one: somebody has it open.
    renamed_ = TryWhileInUse(kInUseMs, [this, &bytes] { return RenameOver(file_.Get(), bytes); });
    return renamed_;
}

}  // namespace korvane
