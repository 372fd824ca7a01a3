#include <functional>
#include <gtest/gtest.h>
#include <tuple>

#include "tests/draw/Pixels.h"

namespace korvane::test {
namespace {

constexpr int kWidth = 83;
constexpr int kHeight = 61;

using Drawing = std::function<void(CLQSurfHandle& target)>;

struct Operation {
    const char* name;
    Drawing (*make)(CLQSurfHandle source, std::mt19937& random);
};

Drawing MakeBitBlt(CLQSurfHandle source, std::mt19937& random) {
    const int x = RandomInt(random, -20, 60);
    const int y = RandomInt(random, -20, 40);
    const int sourceX = RandomInt(random, -5, 20);
    const int sourceY = RandomInt(random, -5, 20);
    return [=](CLQSurfHandle& target) mutable { target.BitBlt(source, x, y, 45, 38, sourceX, sourceY); };
}

Drawing MakeStretchBlt(CLQSurfHandle source, std::mt19937& random) {
    const int x = RandomInt(random, -40, 60);
    const int y = RandomInt(random, -40, 40);
    const int width = RandomInt(random, 1, 120);
    const int height = RandomInt(random, 1, 90);
    return [=](CLQSurfHandle& target) mutable {
        target.StretchBlt(source, x, y, width, height, 3, 2, 31, 27, 0);
    };
}

Drawing MakeRotateBlt(CLQSurfHandle source, std::mt19937& random) {
    const int x = RandomInt(random, -10, 90);
    const int y = RandomInt(random, -10, 70);
    const int angle = RandomInt(random, 0, 359);
    const auto scaleX = static_cast<float>(RandomInt(random, 30, 250)) / 100.0F;
    const auto scaleY = static_cast<float>(RandomInt(random, 30, 250)) / 100.0F;
    const int mode = RandomInt(random, 0, 1) * 2;
    return [=](CLQSurfHandle& target) mutable {
        target.RotateBlt(source, x, y, scaleX, scaleY, 20, 9, angle, mode);
    };
}

Drawing MakeFillRect(CLQSurfHandle, std::mt19937& random) {
    const int left = RandomInt(random, -10, 40);
    const int top = RandomInt(random, -10, 40);
    const int right = left + RandomInt(random, 1, 70);
    const int bottom = top + RandomInt(random, 1, 50);
    const bool blend = RandomInt(random, 0, 1) == 1;
    _LQColor color{200, 10, 90, static_cast<unsigned char>(RandomInt(random, 0, 255))};
    return [=](CLQSurfHandle& target) mutable { target.FillRect(left, top, right, bottom, color, blend); };
}

constexpr Operation kOperations[] = {{"BitBlt", MakeBitBlt},
                                     {"StretchBlt", MakeStretchBlt},
                                     {"RotateBlt", MakeRotateBlt},
                                     {"FillRect", MakeFillRect}};

class EveryOperation : public ::testing::TestWithParam<std::tuple<Operation, _eSurfaceType, _eSurfaceType>> {
  protected:
    void ForRandomDrawings(const std::function<void(CLQSurfHandle before, const Drawing&)>& check) {
        const auto [operation, targetType, sourceType] = GetParam();
        for (int round = 0; round < 25; ++round) {
            CLQSurfHandle source = MakeRandomSurface(40, 33, sourceType, random_);
            CLQSurfHandle before = MakeRandomSurface(kWidth, kHeight, targetType, random_);
            check(before, operation.make(source, random_));
            if (HasFatalFailure())
                return;
        }
    }

    std::mt19937 random_{11};
};

/// The edges between which a side is cut into random pieces.
std::vector<int> RandomCuts(int size, std::mt19937& random) {
    std::vector<int> cuts{0};
    while (cuts.back() < size)
        cuts.push_back(std::min(size, cuts.back() + RandomInt(random, 1, 30)));
    return cuts;
}

TEST_P(EveryOperation, DrawsInPartsWhatItDrawsAsAWhole) {
    ForRandomDrawings([this](CLQSurfHandle before, const Drawing& draw) {
        CLQSurfHandle whole = CopyOf(before);
        draw(whole);
        CLQSurfHandle parts = CopyOf(before);
        const std::vector<int> columns = RandomCuts(kWidth, random_);
        const std::vector<int> rows = RandomCuts(kHeight, random_);
        for (std::size_t row = 0; row + 1 < rows.size(); ++row) {
            for (std::size_t column = 0; column + 1 < columns.size(); ++column) {
                const _LQRect clip{columns[column], columns[column + 1], rows[row], rows[row + 1]};
                parts.GetSurface()->SetClip(&clip);
                draw(parts);
            }
        }
        ASSERT_EQ(BytesOf(parts), BytesOf(whole));
    });
}

TEST_P(EveryOperation, ChangesNothingOutsideTheClip) {
    ForRandomDrawings([this](CLQSurfHandle before, const Drawing& draw) {
        CLQSurfHandle whole = CopyOf(before);
        draw(whole);
        CLQSurfHandle clipped = CopyOf(before);
        const _LQRect clip{RandomInt(random_, -10, 50), RandomInt(random_, 20, 100),
                           RandomInt(random_, -10, 40), RandomInt(random_, 20, 80)};
        clipped.GetSurface()->SetClip(&clip);
        draw(clipped);
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                const bool inside = x >= clip.left && x < clip.right && y >= clip.top && y < clip.bottom;
                ASSERT_EQ(PixelOf(clipped, x, y), PixelOf(inside ? whole : before, x, y)) << x << ", " << y;
            }
        }
    });
}

TEST_P(EveryOperation, DrawsThePartThatASurfaceWithAnOriginShows) {
    ForRandomDrawings([this](CLQSurfHandle before, const Drawing& draw) {
        CLQSurfHandle whole = CopyOf(before);
        draw(whole);
        const int left = RandomInt(random_, 0, 50);
        const int top = RandomInt(random_, 0, 40);
        CLQSurfHandle part = MakeSurface(30, 20, before.GetSurfType());
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 30; ++x)
                SetPixel(part, x, y, PixelOf(before, left + x, top + y));
        }
        part.GetSurface()->SetOrigin(left, top);
        draw(part);
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 30; ++x)
                ASSERT_EQ(PixelOf(part, x, y), PixelOf(whole, left + x, top + y)) << x << ", " << y;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(PartialDrawing, EveryOperation,
                         ::testing::Combine(::testing::ValuesIn(kOperations),
                                            ::testing::ValuesIn(kSurfaceTypes),
                                            ::testing::Values(eSurface_ARGB8888, eSurface_ARGB4444)),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param).name) + "To" +
                                    std::to_string(std::get<1>(test.param)) + "From" +
                                    std::to_string(std::get<2>(test.param));
                         });

}  // namespace
}  // namespace korvane::test
