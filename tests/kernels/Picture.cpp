#include "tests/kernels/Picture.h"

std::uint32_t Dice::Color() {
    const std::uint32_t bits = Bits();
    const std::uint32_t alpha = bits >> 24;
    std::uint32_t color = alpha << 24;
    for (int shift = 0; shift < 24; shift += 8) {
        // Both ends of the range turn up often: that is where rounding goes wrong.
        const std::uint32_t channel = (bits >> shift) & 255U;
        color |= (channel < 16 ? 0 : channel > 240 ? alpha : channel * alpha / 255) << shift;
    }
    return color;
}

void Dice::Paint(Picture& picture, int longest) {
    int left = 0;
    int kind = 0;
    for (std::uint32_t& pixel : picture.pixels) {
        if (left == 0) {
            left = Between(1, longest);
            kind = Between(0, 3);
        }
        --left;
        if (kind == 0) {
            pixel = 0;
        } else if (kind == 1) {
            pixel = Bits() | 0xFF000000U;
        } else {
            pixel = Color();
        }
    }
}
