#include "platform/CaseFold.h"

#include "platform/Unicode.h"

namespace korvane {
namespace {

bool Within(char32_t c, char32_t first, char32_t last) {
    return c >= first && c <= last;
}

// Blocks in which each capital is followed by its small letter.
char32_t FoldEvenCapital(char32_t c) {
    return c | 1;
}
char32_t FoldOddCapital(char32_t c) {
    return c % 2 == 1 ? c + 1 : c;
}

char32_t FoldLatin(char32_t c) {
    if (Within(c, 0xC0, 0xDE))
        return c == 0xD7 ? c : c + 0x20;  // U+00D7 is the multiplication sign.
    if (Within(c, 0x100, 0x12F) || Within(c, 0x132, 0x137) || Within(c, 0x14A, 0x177))
        return FoldEvenCapital(c);
    if (Within(c, 0x139, 0x148) || Within(c, 0x179, 0x17E))
        return FoldOddCapital(c);
    return c == 0x178 ? 0xFF : c;
}

char32_t FoldGreek(char32_t c) {
    switch (c) {
        case 0x386:
            return 0x3AC;
        case 0x388:
        case 0x389:
        case 0x38A:
            return c + 0x25;
        case 0x38C:
            return 0x3CC;
        case 0x38E:
        case 0x38F:
            return c + 0x3F;
        case 0x3C2:
            return 0x3C3;  // A final sigma is a sigma.
        default:
            return Within(c, 0x391, 0x3AB) && c != 0x3A2 ? c + 0x20 : c;
    }
}

char32_t FoldCyrillic(char32_t c) {
    if (c <= 0x40F)
        return c + 0x50;
    if (c <= 0x42F)
        return c + 0x20;
    if (Within(c, 0x460, 0x481) || Within(c, 0x48A, 0x4BF) || Within(c, 0x4D0, 0x52F))
        return FoldEvenCapital(c);
    if (c == 0x4C0)
        return 0x4CF;
    return Within(c, 0x4C1, 0x4CE) ? FoldOddCapital(c) : c;
}

}  // namespace

char32_t FoldCase(char32_t codePoint) {
    if (codePoint < 0x80)
        return Within(codePoint, U'A', U'Z') ? codePoint + 0x20 : codePoint;
    if (codePoint < 0x180)
        return FoldLatin(codePoint);
    if (Within(codePoint, 0x386, 0x3CF))
        return FoldGreek(codePoint);
    if (Within(codePoint, 0x400, 0x52F))
        return FoldCyrillic(codePoint);
    return Within(codePoint, 0xFF21, 0xFF3A) ? codePoint + 0x20 : codePoint;
}

bool EqualFolded(std::wstring_view left, std::wstring_view right) {
    std::size_t l = 0;
    std::size_t r = 0;
    while (l < left.size() && r < right.size()) {
        if (FoldCase(NextCodePoint(left, l)) != FoldCase(NextCodePoint(right, r)))
            return false;
    }
    return l == left.size() && r == right.size();
}

}  // namespace korvane
