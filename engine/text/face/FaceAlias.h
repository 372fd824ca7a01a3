#pragma once

#include <string_view>

namespace korvane {

/// A face that is asked for by one name and kept under another.
struct FaceAlias {
    std::wstring_view name;
    std::wstring_view family;
    /// The file that holds the family, looked at before all others.
    const wchar_t* file;
};

/// The alias of that name, without regard to case; null when the name is none.
const FaceAlias* FindFaceAlias(std::wstring_view name);

/// The user interface's face.
const FaceAlias& DefaultFaceAlias();

}  // namespace korvane
