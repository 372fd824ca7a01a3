#include "engine/text/shape/NumberLayout.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <hb.h>
#include <memory>
#include <string>

#include "engine/text/shape/InkJoiner.h"

namespace korvane {

namespace {

constexpr char32_t kNumberCharacters[] = U"0123456789 .,:+-/%";
static_assert(std::size(kNumberCharacters) - 1 == NumberLayout::kCharacters);

constexpr std::uint8_t kNoSlot = 0xFF;

constexpr std::array<std::uint8_t, 128> MakeSlots() {
    std::array<std::uint8_t, 128> slots = {};
    for (std::uint8_t& slot : slots)
        slot = kNoSlot;
    for (std::size_t i = 0; i < NumberLayout::kCharacters; ++i)
        slots[kNumberCharacters[i]] = static_cast<std::uint8_t>(i);
    return slots;
}

constexpr std::array<std::uint8_t, 128> kSlots = MakeSlots();

std::uint8_t SlotOf(wchar_t unit) {
    const auto character = static_cast<std::uint32_t>(unit);
    return character < kSlots.size() ? kSlots[character] : kNoSlot;
}

struct DestroyBuffer {
    void operator()(hb_buffer_t* buffer) const { hb_buffer_destroy(buffer); }
};
using Buffer = std::unique_ptr<hb_buffer_t, DestroyBuffer>;

/// Cells of larger sizes would take too much memory.
constexpr int kLargestSize = 128;

/// In 1/64 pixel; two ems at the largest size. No honest digit is wider.
constexpr int kLargestAdvance = 2 * kMaxFontSize * 64;

/// Writes up to GlyphMask::kRowUnit - 1 zeros behind each row: numbers are put together from left to right.
void CopyRows(const GlyphMask& ink, std::uint8_t* to, int stride) {
    const std::uint8_t* from = ink.coverage.data();
    for (int row = 0; row < ink.height; ++row) {
        for (int done = 0; done < ink.stride; done += GlyphMask::kRowUnit)
            std::memcpy(to + done, from + done, GlyphMask::kRowUnit);
        from += ink.stride;
        to += stride;
    }
}

struct ShapedGlyph {
    std::uint32_t glyph = 0;
    int advance = 0;  ///< in 1/64 pixel
    bool isInPlace = false;

    bool IsLike(const ShapedGlyph& other) const {
        return glyph == other.glyph && advance == other.advance && isInPlace && other.isInPlace;
    }
};

std::vector<ShapedGlyph> ShapeNumber(hb_buffer_t* buffer, hb_font_t* font, const std::u32string& text) {
    hb_buffer_clear_contents(buffer);
    hb_buffer_add_codepoints(buffer, reinterpret_cast<const hb_codepoint_t*>(text.data()),
                             static_cast<int>(text.size()), 0, static_cast<int>(text.size()));
    hb_buffer_set_direction(buffer, HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer, HB_SCRIPT_LATIN);
    hb_shape(font, buffer, nullptr, 0);
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer, &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer, &count);
    std::vector<ShapedGlyph> shaped(count);
    for (unsigned i = 0; i < count; ++i) {
        shaped[i].glyph = infos[i].codepoint;
        shaped[i].advance = positions[i].x_advance;
        shaped[i].isInPlace = infos[i].cluster == i && positions[i].x_offset == 0 &&
                              positions[i].y_offset == 0 && positions[i].x_advance > 0 &&
                              positions[i].x_advance <= kLargestAdvance;
    }
    return shaped;
}

/// Each character shaped by itself; one that is missing or is not one glyph comes out not in place.
std::array<ShapedGlyph, NumberLayout::kCharacters> ShapeEach(hb_font_t* font) {
    std::array<ShapedGlyph, NumberLayout::kCharacters> each;
    const Buffer buffer(hb_buffer_create());
    for (std::size_t i = 0; i < each.size(); ++i) {
        const std::vector<ShapedGlyph> shaped =
            ShapeNumber(buffer.get(), font, std::u32string(1, kNumberCharacters[i]));
        if (shaped.size() == 1 && shaped.front().glyph != 0)
            each[i] = shaped.front();
    }
    return each;
}

}  // namespace

NumberLayout::NumberLayout(FontIndex& index) : index_(index) {}

bool NumberLayout::Measure(const wchar_t* text, FaceId face, PixelSize size, int& width) {
    Number number;
    if (!Read(text, face, number))
        return false;
    const SizeTable& table = TableOfSize(face, size);
    width = 0;
    for (std::size_t i = 0; i < number.length; ++i)
        width += table.advances[number.slots[i]];
    return true;
}

const GlyphMask* NumberLayout::Join(const wchar_t* text, FaceId face, PixelSize size, int& width) {
    Number number;
    if (std::max(size.width, size.height) > kLargestSize || !Read(text, face, number))
        return nullptr;
    SizeTable& table = TableOfSize(face, size);
    int total = 0;
    int top = INT_MAX;
    int bottom = INT_MIN;
    for (std::size_t i = 0; i < number.length; ++i) {
        const Cell& cell = CellOf(table, number.slots[i]);
        if (cell.overhangs)
            return nullptr;
        total += cell.ink.width;
        top = std::min(top, cell.ink.top);
        bottom = std::max(bottom, cell.ink.top + cell.ink.height);
    }
    if (total * (bottom - top) > kLargestJoinedMask)
        return nullptr;
    joined_.top = top;
    joined_.Clear(total, bottom - top, GlyphMask::kRowUnit);
    int x = 0;
    for (std::size_t i = 0; i < number.length; ++i) {
        const GlyphMask& ink = table.cells[number.slots[i]].ink;
        CopyRows(ink, joined_.Row(ink.top - top) + x, joined_.stride);
        x += ink.width;
    }
    width = total;
    return &joined_;
}

bool NumberLayout::Read(const wchar_t* text, FaceId face, Number& number) {
    std::size_t length = 0;
    for (; text[length] != L'\0'; ++length) {
        const std::uint8_t slot = SlotOf(text[length]);
        if (slot == kNoSlot || length == Number::kMaxLength)
            return false;
        number.slots[length] = slot;
    }
    number.length = length;
    if (length == 0 || index_.Open(face) == nullptr)
        return false;
    const FaceTable& table = TableOfFace(face);
    bool isSimple = table.simplePairs[number.slots[length - 1] * kCharacters + number.slots[length - 1]];
    for (std::size_t i = 0; i + 1 < length; ++i)
        isSimple = isSimple && table.simplePairs[number.slots[i] * kCharacters + number.slots[i + 1]];
    return isSimple;
}

const NumberLayout::FaceTable& NumberLayout::TableOfFace(FaceId face) {
    const auto known = std::find_if(faces_.begin(), faces_.end(),
                                    [face](const FaceTable& table) { return table.face == face; });
    if (known != faces_.end())
        return *known;
    FaceTable table;
    table.face = face;
    // At the largest size no kerning is rounded away.
    hb_font_t* font = index_.Open(face)->ShapingFont({kMaxFontSize, kMaxFontSize});
    const std::array<ShapedGlyph, kCharacters> each = ShapeEach(font);
    std::vector<std::size_t> order;
    std::u32string pairs;
    for (std::size_t first = 0; first < kCharacters; ++first) {
        table.glyphs[first] = each[first].glyph;
        for (std::size_t second = 0; second < kCharacters; ++second) {
            for (const std::size_t slot : {first, second}) {
                order.push_back(slot);
                pairs.push_back(kNumberCharacters[slot]);
            }
        }
    }
    const Buffer buffer(hb_buffer_create());
    const std::vector<ShapedGlyph> shaped = ShapeNumber(buffer.get(), font, pairs);
    if (shaped.size() == pairs.size()) {
        table.simplePairs.set();
        for (std::size_t i = 0; i + 1 < shaped.size(); ++i) {
            const bool isSimple =
                shaped[i].IsLike(each[order[i]]) && shaped[i + 1].IsLike(each[order[i + 1]]);
            if (!isSimple)
                table.simplePairs.reset(order[i] * kCharacters + order[i + 1]);
        }
    }
    faces_.push_back(table);
    return faces_.back();
}

NumberLayout::SizeTable& NumberLayout::TableOfSize(FaceId face, PixelSize size) {
    const auto fits = [face, size](const SizeTable& table) {
        return table.face == face && table.size == size;
    };
    if (fits(sizes_[lastSize_]))
        return sizes_[lastSize_];
    const auto known = std::find_if(sizes_.begin(), sizes_.end(), fits);
    if (known != sizes_.end()) {
        lastSize_ = static_cast<std::size_t>(known - sizes_.begin());
        return *known;
    }
    lastSize_ = nextSize_;
    nextSize_ = (nextSize_ + 1) % sizes_.size();
    SizeTable& table = sizes_[lastSize_];
    table = SizeTable();
    table.face = face;
    table.size = size;
    const std::array<ShapedGlyph, kCharacters> each = ShapeEach(index_.Open(face)->ShapingFont(size));
    std::transform(each.begin(), each.end(), table.advances.begin(),
                   [](const ShapedGlyph& glyph) { return (glyph.advance + 32) >> 6; });
    return table;
}

const NumberLayout::Cell& NumberLayout::CellOf(SizeTable& table, std::uint8_t slot) {
    Cell& cell = table.cells[slot];
    if (cell.isKnown)
        return cell;
    const GlyphMask ink =
        index_.Open(table.face)->Rasterise(TableOfFace(table.face).glyphs[slot], table.size, 0);
    cell.isKnown = true;
    cell.overhangs = ink.left < 0 || ink.left + ink.width > table.advances[slot];
    if (!cell.overhangs) {
        cell.ink.top = ink.top;
        cell.ink.Clear(table.advances[slot], ink.height);
        for (int row = 0; row < ink.height; ++row)
            std::copy_n(ink.Row(row), ink.width, cell.ink.Row(row) + ink.left);
    }
    return cell;
}

}  // namespace korvane
