#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <pixman.h>

#include "engine/draw/kernels/Kernels.h"

#include "tests/kernels/EveryTarget.h"
#include "tests/kernels/Picture.h"

namespace kernels = korvane::kernels;

namespace {

/// Largest difference of one channel between two roundings of the same exact result.
constexpr int kOneRounding = 1;
/// pixman mixes with weights of seven bits and truncates once; the kernels take eight bits and round twice. A
/// weight that is off by 1/128 moves a channel by 2, in each of two directions.
constexpr int kFilterBound = 5;

struct Unref {
    void operator()(pixman_image_t* image) const { pixman_image_unref(image); }
};
using PixmanImage = std::unique_ptr<pixman_image_t, Unref>;

PixmanImage Wrap(Picture& picture) {
    return PixmanImage(pixman_image_create_bits(PIXMAN_a8r8g8b8, picture.width, picture.height,
                                                picture.pixels.data(), picture.width * 4));
}

int LargestDifference(const Picture& a, const Picture& b) {
    int largest = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i) {
        for (int shift = 0; shift < 32; shift += 8) {
            const int left = static_cast<int>((a.pixels[i] >> shift) & 255U);
            const int right = static_cast<int>((b.pixels[i] >> shift) & 255U);
            largest = std::max(largest, std::abs(left - right));
        }
    }
    return largest;
}

/// A picture whose neighbours differ little, so that a small shift of position stays a small difference.
Picture Gradient(int width, int height) {
    Picture picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto alpha = static_cast<std::uint32_t>(128 + 127 * x / width);
            const std::uint32_t red =
                alpha * static_cast<std::uint32_t>(y) / static_cast<std::uint32_t>(height);
            *picture.At(x, y) = alpha << 24 | red << 16 | (alpha / 2) << 8 | (alpha - red);
        }
    }
    return picture;
}

class BesidePixman : public EveryTarget {};

}  // namespace

TEST_P(BesidePixman, OverDiffersByOneRoundingAtMost) {
    Dice dice(20);
    for (int round = 0; round < 300; ++round) {
        Picture source(dice.Between(1, 130), dice.Between(1, 40));
        dice.Paint(source, 30);
        Picture ours(source.width, source.height);
        dice.Paint(ours, 9);
        Picture theirs = ours;
        kernels::OverBlock(ours.At(0, 0), ours.width, source.At(0, 0), source.width, source.width,
                           source.height);
        pixman_image_composite32(PIXMAN_OP_OVER, Wrap(source).get(), nullptr, Wrap(theirs).get(), 0, 0, 0, 0,
                                 0, 0, source.width, source.height);
        ASSERT_LE(LargestDifference(ours, theirs), kOneRounding);
    }
}

TEST_P(BesidePixman, AMaskedColorDiffersByOneRoundingAtMost) {
    Dice dice(21);
    for (int round = 0; round < 300; ++round) {
        Picture ours(dice.Between(1, 60), dice.Between(1, 30));
        dice.Paint(ours, 9);
        Picture theirs = ours;
        const std::uint32_t color = round % 2 == 0 ? dice.Bits() | 0xFF000000U : dice.Color();
        // pixman wants rows of whole 32-bit words.
        Picture mask((ours.width + 3) / 4, ours.height);
        for (std::uint32_t& covers : mask.pixels) {
            covers = dice.Bits();
        }
        kernels::MaskOverBlock(ours.At(0, 0), ours.width,
                               reinterpret_cast<const std::uint8_t*>(mask.pixels.data()), mask.width * 4,
                               color, ours.width, ours.height);
        Picture solid(1, 1);
        solid.pixels[0] = color;
        const PixmanImage source = Wrap(solid);
        pixman_image_set_repeat(source.get(), PIXMAN_REPEAT_NORMAL);
        const PixmanImage maskImage(
            pixman_image_create_bits(PIXMAN_a8, ours.width, ours.height, mask.pixels.data(), mask.width * 4));
        pixman_image_composite32(PIXMAN_OP_OVER, source.get(), maskImage.get(), Wrap(theirs).get(), 0, 0, 0,
                                 0, 0, 0, ours.width, ours.height);
        ASSERT_LE(LargestDifference(ours, theirs), kOneRounding);
    }
}

TEST_P(BesidePixman, AScaledPictureStaysWithinTheFilterBound) {
    Dice dice(22);
    for (int round = 0; round < 200; ++round) {
        Picture source = Gradient(dice.Between(2, 90), dice.Between(2, 60));
        Picture ours(dice.Between(1, 120), dice.Between(1, 90));
        Picture theirs = ours;
        kernels::StretchCopy(
            ours.At(0, 0), ours.width,
            {source.At(0, 0), source.width, source.width, source.height, ours.width, ours.height},
            {0, 0, ours.width, ours.height});
        const PixmanImage image = Wrap(source);
        pixman_transform_t transform;
        pixman_transform_init_scale(&transform,
                                    static_cast<pixman_fixed_t>(source.width * 65536LL / ours.width),
                                    static_cast<pixman_fixed_t>(source.height * 65536LL / ours.height));
        pixman_image_set_transform(image.get(), &transform);
        pixman_image_set_filter(image.get(), PIXMAN_FILTER_BILINEAR, nullptr, 0);
        pixman_image_set_repeat(image.get(), PIXMAN_REPEAT_PAD);
        pixman_image_composite32(PIXMAN_OP_SRC, image.get(), nullptr, Wrap(theirs).get(), 0, 0, 0, 0, 0, 0,
                                 ours.width, ours.height);
        ASSERT_LE(LargestDifference(ours, theirs), kFilterBound)
            << source.width << "x" << source.height << " to " << ours.width << "x" << ours.height;
    }
}

TEST_P(BesidePixman, ATurnedPictureStaysWithinTheFilterBound) {
    Picture source = Gradient(120, 31);
    Dice dice(23);
    Picture under(260, 260);
    dice.Paint(under, 20);
    for (int angle = 0; angle < 360; angle += 3) {
        Picture ours = under;
        Picture theirs = under;
        kernels::Rotation rotation;
        rotation.source = source.At(0, 0);
        rotation.sourceStride = rotation.sourceWidth = source.width;
        rotation.sourceHeight = source.height;
        rotation.pivotX = 12;
        rotation.pivotY = 15;
        rotation.targetX = 130;
        rotation.targetY = 128;
        rotation.angle = angle;
        kernels::RotateOver(ours.At(0, 0), ours.width, {0, 0, ours.width, ours.height}, rotation);

        const double radians = angle * std::acos(-1.0) / 180.0;
        const double cosine = std::cos(radians);
        const double sine = std::sin(radians);
        const double centreX = rotation.targetX + 0.5;
        const double centreY = rotation.targetY + 0.5;
        const pixman_f_transform_t exact = {
            {{cosine, sine, rotation.pivotX + 0.5 - cosine * centreX - sine * centreY},
             {-sine, cosine, rotation.pivotY + 0.5 + sine * centreX - cosine * centreY},
             {0, 0, 1}}};
        pixman_transform_t transform;
        pixman_transform_from_pixman_f_transform(&transform, &exact);
        const PixmanImage image = Wrap(source);
        pixman_image_set_transform(image.get(), &transform);
        pixman_image_set_filter(image.get(), PIXMAN_FILTER_BILINEAR, nullptr, 0);
        pixman_image_composite32(PIXMAN_OP_OVER, image.get(), nullptr, Wrap(theirs).get(), 0, 0, 0, 0, 0, 0,
                                 theirs.width, theirs.height);
        ASSERT_LE(LargestDifference(ours, theirs), kFilterBound) << angle;
    }
}

KORVANE_ON_EVERY_TARGET(BesidePixman);
