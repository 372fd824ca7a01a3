#include "engine/system/System.h"

namespace korvane {
namespace {

constexpr wchar_t kDefaultFolder[] = L"\\NandFlash\\Application\\Resource";
constexpr wchar_t kSeparators[] = L"\\/";

std::wstring& ResourceFolder() {
    static std::wstring folder = kDefaultFolder;
    return folder;
}

const wchar_t* FolderName(ResourceKind kind) {
    switch (kind) {
        case ResourceKind::Image:
            return L"Image";
        case ResourceKind::Layout:
            return L"Layout";
        case ResourceKind::Language:
            return L"Language";
        case ResourceKind::Font:
            return L"Font";
    }
    return L"";
}

}  // namespace

void SetResourceFolder(const std::wstring& folder) {
    ResourceFolder() = folder.empty() ? kDefaultFolder : folder;
}

std::wstring ResourcePath(ResourceKind kind, const std::wstring& name) {
    if (name.empty() || name.find_first_of(kSeparators) != std::wstring::npos)
        return name;
    std::wstring path = ResourceFolder();
    if (path.find_last_of(kSeparators) != path.size() - 1)
        path += L'\\';
    return path + FolderName(kind) + L'\\' + name;
}

}  // namespace korvane
