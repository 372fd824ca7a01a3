#include "engine/text/shape/TextItems.h"

#include <algorithm>
#include <fribidi.h>
#include <hb.h>
#include <iterator>

#include "platform/Unicode.h"

namespace korvane {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

/// Unicode's Default_Ignorable_Code_Point, as far as text on a screen contains them.
constexpr Range kInvisible[] = {
    {0x00AD, 0x00AD}, {0x034F, 0x034F}, {0x061C, 0x061C}, {0x115F, 0x1160},
    {0x17B4, 0x17B5}, {0x180B, 0x180F}, {0x200B, 0x200F}, {0x202A, 0x202E},
    {0x2060, 0x206F}, {0xFE00, 0xFE0F}, {0xFEFF, 0xFEFF}, {0xE0000, 0xE0FFF},
};

/// Below it lie no characters that run from right to left and none that embed text which does.
constexpr char32_t kFirstRightToLeft = 0x0590;

bool IsControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0x2028 ||
           character == 0x2029;
}

/// Belongs to the character before it, and is best shown in the same face.
bool ExtendsCharacter(char32_t character) {
    switch (hb_unicode_general_category(hb_unicode_funcs_get_default(), character)) {
        case HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK:
        case HB_UNICODE_GENERAL_CATEGORY_SPACING_MARK:
        case HB_UNICODE_GENERAL_CATEGORY_ENCLOSING_MARK:
            return true;
        default:
            return IsInvisible(character);
    }
}

std::vector<std::uint8_t> BidiLevels(const std::vector<char32_t>& line) {
    std::vector<std::uint8_t> levels(line.size(), 0);
    if (std::all_of(line.begin(), line.end(), [](char32_t c) { return c < kFirstRightToLeft; }))
        return levels;
    const auto length = static_cast<FriBidiStrIndex>(line.size());
    const std::vector<FriBidiChar> characters(line.begin(), line.end());
    std::vector<FriBidiCharType> types(line.size());
    std::vector<FriBidiBracketType> brackets(line.size());
    std::vector<FriBidiLevel> found(line.size());
    fribidi_get_bidi_types(characters.data(), length, types.data());
    fribidi_get_bracket_types(characters.data(), length, types.data(), brackets.data());
    FriBidiParType direction = FRIBIDI_PAR_ON;  // the first strong character decides
    if (fribidi_get_par_embedding_levels_ex(types.data(), brackets.data(), length, &direction,
                                            found.data()) != 0) {
        std::transform(found.begin(), found.end(), levels.begin(),
                       [](FriBidiLevel level) { return static_cast<std::uint8_t>(std::max<int>(level, 0)); });
    }
    return levels;
}

/// Characters that any script may use take the script of what stands before them, at the start of what
/// follows.
std::vector<hb_script_t> Scripts(const std::vector<char32_t>& line) {
    std::vector<hb_script_t> scripts(line.size());
    hb_script_t last = HB_SCRIPT_INVALID;
    std::size_t undecided = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const hb_script_t script = hb_unicode_script(hb_unicode_funcs_get_default(), line[i]);
        const bool isOwn =
            script != HB_SCRIPT_COMMON && script != HB_SCRIPT_INHERITED && script != HB_SCRIPT_UNKNOWN;
        if (isOwn) {
            if (last == HB_SCRIPT_INVALID)
                std::fill_n(scripts.begin(), undecided, script);
            last = script;
        }
        if (last == HB_SCRIPT_INVALID)
            ++undecided;
        scripts[i] = last;
    }
    if (last == HB_SCRIPT_INVALID)
        std::fill(scripts.begin(), scripts.end(), HB_SCRIPT_LATIN);
    return scripts;
}

std::vector<FaceId> Faces(const std::vector<char32_t>& line, FaceId primary, FontIndex& index) {
    std::vector<FaceId> faces(line.size(), primary);
    std::vector<char32_t> cluster;
    for (std::size_t start = 0; start < line.size();) {
        std::size_t end = start + 1;
        while (end < line.size() && ExtendsCharacter(line[end]))
            ++end;
        cluster.clear();
        std::copy_if(line.begin() + static_cast<std::ptrdiff_t>(start),
                     line.begin() + static_cast<std::ptrdiff_t>(end), std::back_inserter(cluster),
                     [](char32_t c) { return !IsInvisible(c); });
        if (!cluster.empty()) {
            const FaceId face = index.FaceFor(cluster.data(), cluster.size(), primary);
            std::fill(faces.begin() + static_cast<std::ptrdiff_t>(start),
                      faces.begin() + static_cast<std::ptrdiff_t>(end), face);
        }
        start = end;
    }
    return faces;
}

/// Rule L2 of the bidirectional algorithm, on items: from the highest level down to 1, turns every stretch of
/// items of that level or a higher one.
void PutIntoVisualOrder(std::vector<TextItem>& items) {
    std::uint8_t highest = 0;
    for (const TextItem& item : items)
        highest = std::max(highest, item.level);
    for (std::uint8_t level = highest; level > 0; --level) {
        const auto isInside = [level](const TextItem& item) { return item.level >= level; };
        for (auto first = items.begin(); first != items.end();) {
            first = std::find_if(first, items.end(), isInside);
            const auto last = std::find_if_not(first, items.end(), isInside);
            std::reverse(first, last);
            first = last;
        }
    }
}

}  // namespace

std::vector<char32_t> LineCharacters(std::wstring_view text) {
    std::vector<char32_t> line;
    line.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = NextCodePoint(text, at);
        line.push_back(IsControl(character) ? U' ' : character);
    }
    return line;
}

bool IsInvisible(char32_t character) {
    return std::any_of(std::begin(kInvisible), std::end(kInvisible), [character](const Range& range) {
        return character >= range.first && character <= range.last;
    });
}

std::vector<TextItem> SplitIntoItems(const std::vector<char32_t>& line, FaceId primary, FontIndex& index) {
    const std::vector<std::uint8_t> levels = BidiLevels(line);
    const std::vector<hb_script_t> scripts = Scripts(line);
    const std::vector<FaceId> faces = Faces(line, primary, index);
    std::vector<TextItem> items;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool continues =
            i > 0 && levels[i] == levels[i - 1] && scripts[i] == scripts[i - 1] && faces[i] == faces[i - 1];
        if (continues)
            ++items.back().length;
        else
            items.push_back({i, 1, faces[i], static_cast<std::uint32_t>(scripts[i]), levels[i]});
    }
    PutIntoVisualOrder(items);
    return items;
}

}  // namespace korvane
