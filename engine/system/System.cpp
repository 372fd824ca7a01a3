#include "engine/system/System.h"

#include "engine/window/Screen.h"
#include "engine/window/Window.h"
#include "platform/coredll.h"

namespace {

bool cursorState = false;

bool IsDirectory(const wchar_t* path) {
    const DWORD attributes = GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace

bool CreateDir(const wchar_t* path) {
    const std::wstring folder(path ? path : L"");
    // The limit of the device's own calls.
    if (folder.empty() || folder.size() >= MAX_PATH)
        return false;
    for (std::size_t end = 1; end <= folder.size(); ++end) {
        const bool complete = end == folder.size() || folder[end] == L'\\' || folder[end] == L'/';
        if (complete)
            CreateDirectoryW(folder.substr(0, end).c_str(), nullptr);
    }
    return IsDirectory(folder.c_str());
}

bool IsFileExist(const wchar_t* path) {
    return path && GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES && !IsDirectory(path);
}

unsigned int GetCurrentMS() {
    return GetTickCount();
}

bool IsCursorState() {
    return cursorState;
}

namespace korvane {

void SetCursorState(bool cursor) {
    if (cursor == cursorState)
        return;
    cursorState = cursor;
    CLQScreen* const screen = CLQScreen::GetInstance();
    for (int i = 0; i < screen->GetWindowCount(); ++i) {
        if (CLQBaseCtrl* focus = screen->GetWindow(i)->GetFocusCtrl())
            focus->Invalidate();
    }
}

}  // namespace korvane
