#include "demo/headunit/files/Music.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace korvane::demo {

namespace {

constexpr std::uint64_t kBytesPerSecond = 128000 / 8;
constexpr std::uint64_t kShortest = 60;
constexpr const wchar_t* kEndings[] = {L".aac", L".flac", L".m4a", L".mp3", L".oga",
                                       L".ogg", L".opus", L".wav", L".wma"};

std::size_t EndingAt(const std::wstring& name) {
    const std::size_t dot = name.rfind(L'.');
    return dot == std::wstring::npos ? name.size() : dot;
}

/// ASCII alone, whatever the locale.
wchar_t Lower(wchar_t character) {
    return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character - L'A' + L'a') : character;
}

int SecondsOf(std::uint64_t bytes) {
    constexpr std::uint64_t kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(bytes / kBytesPerSecond, kShortest, kMost));
}

}  // namespace

bool IsMusic(const FolderEntry& entry) {
    if (entry.isFolder)
        return false;
    std::wstring ending = entry.name.substr(EndingAt(entry.name));
    std::transform(ending.begin(), ending.end(), ending.begin(), Lower);
    return std::find(std::begin(kEndings), std::end(kEndings), ending) != std::end(kEndings);
}

Tracks MusicIn(const std::vector<FolderEntry>& entries) {
    Tracks tracks;
    for (const FolderEntry& entry : entries) {
        if (IsMusic(entry))
            tracks.push_back({entry.name.substr(0, EndingAt(entry.name)), L"", SecondsOf(entry.bytes)});
    }
    return tracks;
}

}  // namespace korvane::demo
