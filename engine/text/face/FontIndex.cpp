#include "engine/text/face/FontIndex.h"

#include <algorithm>
#include <freetype/freetype.h>
#include <utility>

#include "engine/system/System.h"
#include "engine/text/face/FaceAlias.h"
#include "platform/CaseFold.h"
#include "platform/coredll.h"

namespace korvane {

namespace {

constexpr std::size_t kMaxFiles = 64;
constexpr int kMaxFacesOfFile = 8;

std::wstring_view Extension(std::wstring_view file) {
    const std::size_t dot = file.rfind(L'.');
    return dot == std::wstring_view::npos ? std::wstring_view() : file.substr(dot + 1);
}

std::wstring_view Stem(std::wstring_view file) {
    return file.substr(0, file.rfind(L'.'));
}

bool IsFontFile(std::wstring_view file) {
    const std::wstring_view extension = Extension(file);
    return EqualFolded(extension, L"ttf") || EqualFolded(extension, L"otf") || EqualFolded(extension, L"ttc");
}

std::vector<std::wstring> FontFiles() {
    std::vector<std::wstring> files;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(ResourcePath(ResourceKind::Font, L"*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return files;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 && IsFontFile(found.cFileName))
            files.emplace_back(found.cFileName);
    } while (FindNextFileW(search, &found) != 0);
    FindClose(search);
    // The folder lists its files in any order; which font wins must not depend on it.
    std::sort(files.begin(), files.end());
    files.resize(std::min(files.size(), kMaxFiles));
    return files;
}

}  // namespace

FontIndex::FontIndex() = default;

FontIndex::~FontIndex() = default;

void FontIndex::DoneLibrary::operator()(FT_LibraryRec_* library) const {
    FT_Done_FreeType(library);
}

FT_LibraryRec_* FontIndex::Library() {
    if (!library_) {
        FT_Library library = nullptr;
        if (FT_Init_FreeType(&library) == 0)
            library_.reset(library);
    }
    return library_.get();
}

FaceId FontIndex::DefaultFace() {
    const FaceAlias& alias = DefaultFaceAlias();
    const FaceId id = AliasedFace(alias.family, alias.file);
    if (id != kNoFace)
        return id;
    return fallbacks_.empty() ? kNoFace : fallbacks_.front();
}

FaceId FontIndex::FindFace(std::wstring_view name) {
    if (const FaceAlias* alias = FindFaceAlias(name))
        return AliasedFace(alias->family, alias->file);
    Scan();
    const FaceId family = FindFamily(name);
    if (family != kNoFace)
        return family;
    const auto found = std::find_if(entries_.begin(), entries_.end(), [name](const Entry& entry) {
        return EqualFolded(entry.family + L" " + entry.style, name) || EqualFolded(Stem(entry.file), name);
    });
    return found == entries_.end() ? kNoFace : static_cast<FaceId>(found - entries_.begin());
}

FaceId FontIndex::FaceFor(const char32_t* cluster, std::size_t length, FaceId preferred) {
    const FaceId whole = FirstWithAll(cluster, length, preferred);
    return whole != kNoFace || length < 2 ? whole : FirstWithAll(cluster, 1, preferred);
}

Typeface* FontIndex::Open(FaceId id) {
    if (id < 0 || static_cast<std::size_t>(id) >= entries_.size())
        return nullptr;
    Entry& entry = entries_[static_cast<std::size_t>(id)];
    if (!entry.typeface && !entry.isGone) {
        entry.typeface =
            Typeface::Open(Library(), ResourcePath(ResourceKind::Font, entry.file).c_str(), entry.faceIndex);
        entry.isGone = !entry.typeface;
    }
    return entry.typeface.get();
}

FaceId FontIndex::FindFamily(std::wstring_view family) {
    FaceId match = kNoFace;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (EqualFolded(entries_[i].family, family)) {
            if (entries_[i].isRegular)
                return static_cast<FaceId>(i);
            match = match == kNoFace ? static_cast<FaceId>(i) : match;
        }
    }
    return match;
}

FaceId FontIndex::AliasedFace(std::wstring_view family, const wchar_t* file) {
    FaceId id = FindFamily(family);
    if (id == kNoFace && !isScanned_) {
        AddFile(file, true);
        id = FindFamily(family);
        if (id == kNoFace) {
            Scan();
            id = FindFamily(family);
        }
    }
    return id;
}

void FontIndex::AddFile(const std::wstring& file, bool keepOpen) {
    const bool isKnown = std::any_of(entries_.begin(), entries_.end(),
                                     [&file](const Entry& entry) { return EqualFolded(entry.file, file); });
    if (isKnown)
        return;
    const std::wstring path = ResourcePath(ResourceKind::Font, file);
    int faceCount = 1;
    for (int i = 0; i < faceCount; ++i) {
        std::unique_ptr<Typeface> typeface = Typeface::Open(Library(), path.c_str(), i);
        if (!typeface)
            continue;
        faceCount = std::min(typeface->FaceCount(), kMaxFacesOfFile);
        Entry entry;
        entry.file = file;
        entry.faceIndex = i;
        entry.family = typeface->Family();
        entry.style = typeface->Style();
        entry.isRegular = typeface->IsRegular();
        if (keepOpen && i == 0)
            entry.typeface = std::move(typeface);
        entries_.push_back(std::move(entry));
    }
}

void FontIndex::Scan() {
    if (isScanned_)
        return;
    isScanned_ = true;
    for (const std::wstring& file : FontFiles())
        AddFile(file, false);
    for (const bool regular : {true, false}) {
        for (std::size_t i = 0; i < entries_.size(); ++i)
            if (entries_[i].isRegular == regular)
                fallbacks_.push_back(static_cast<FaceId>(i));
    }
}

bool FontIndex::HasAll(FaceId id, const char32_t* characters, std::size_t length) {
    const Typeface* typeface = Open(id);
    return typeface != nullptr &&
           std::all_of(characters, characters + length,
                       [typeface](char32_t character) { return typeface->HasGlyph(character); });
}

FaceId FontIndex::FirstWithAll(const char32_t* characters, std::size_t length, FaceId preferred) {
    if (HasAll(preferred, characters, length))
        return preferred;
    Scan();
    const auto found = std::find_if(fallbacks_.begin(), fallbacks_.end(), [&](FaceId id) {
        return id != preferred && HasAll(id, characters, length);
    });
    return found == fallbacks_.end() ? kNoFace : *found;
}

}  // namespace korvane
