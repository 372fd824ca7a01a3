#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/text/face/Typeface.h"

namespace korvane {

/// Number of a face in the index; stays the same while the program runs.
using FaceId = int;
/// No face has the character, or there is no font at all: an empty box stands in.
constexpr FaceId kNoFace = -1;

/// The faces in the device's font folder. A file is opened when a face in it is needed; the folder is looked
/// through once, when a name or a character asks for more than the default face. Files that are no usable
/// fonts are passed over.
class FontIndex {
  public:
    FontIndex();
    ~FontIndex();
    FontIndex(const FontIndex&) = delete;
    FontIndex& operator=(const FontIndex&) = delete;

    /// The user interface's face; when that is missing, the first of the folder.
    FaceId DefaultFace();

    /// The face of that alias, family ("Noto Sans"), family and style ("Noto Sans Bold") or file name without
    /// its extension, without regard to case.
    FaceId FindFace(std::wstring_view name);

    /// The face for a character with its combining marks: `preferred` if it has them all, else the first
    /// other one that does, else the same for the first character alone.
    FaceId FaceFor(const char32_t* cluster, std::size_t length, FaceId preferred);

    /// Null for kNoFace and for a face whose file has gone.
    Typeface* Open(FaceId id);

  private:
    struct Entry {
        std::wstring file;  ///< without folder
        int faceIndex = 0;
        std::wstring family;
        std::wstring style;
        bool isRegular = true;
        bool isGone = false;
        std::unique_ptr<Typeface> typeface;
    };
    struct DoneLibrary {
        void operator()(FT_LibraryRec_* library) const;
    };

    FT_LibraryRec_* Library();
    FaceId FindFamily(std::wstring_view family);
    FaceId AliasedFace(std::wstring_view family, const wchar_t* file);
    /// Adds the faces of a file unless they are known; the first stays open if `keepOpen`.
    void AddFile(const std::wstring& file, bool keepOpen);
    void Scan();
    bool HasAll(FaceId id, const char32_t* characters, std::size_t length);
    FaceId FirstWithAll(const char32_t* characters, std::size_t length, FaceId preferred);

    std::unique_ptr<FT_LibraryRec_, DoneLibrary> library_;
    std::vector<Entry> entries_;
    std::vector<FaceId> fallbacks_;  ///< all faces, regular ones first
    bool isScanned_ = false;
};

}  // namespace korvane
