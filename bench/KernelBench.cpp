// The pixel kernels alone, on each instruction set of the machine, beside memcpy, pixman and cairo on the
// same work into an 800 by 480 premultiplied ARGB surface.
#include <benchmark/benchmark.h>
#include <cairo.h>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <pixman.h>
#include <random>
#include <string>
#include <vector>

#include "engine/draw/kernels/Kernels.h"
#include "engine/draw/kernels/Targets.h"

namespace kernels = korvane::kernels;

namespace {

constexpr int kScreenWidth = 800;
constexpr int kScreenHeight = 480;
constexpr double kDegree = 3.14159265358979323846 / 180.0;

struct PixmanUnref {
    void operator()(pixman_image_t* image) const { pixman_image_unref(image); }
};
using PixmanImage = std::unique_ptr<pixman_image_t, PixmanUnref>;

struct CairoDestroy {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using CairoSurface = std::unique_ptr<cairo_surface_t, CairoDestroy>;
using CairoContext = std::unique_ptr<cairo_t, CairoDestroy>;

/// Pixels that all three libraries can read, and what the kernels know of them.
struct Picture {
    Picture(int pictureWidth, int pictureHeight)
        : width(pictureWidth),
          height(pictureHeight),
          pixels(static_cast<std::size_t>(pictureWidth) * static_cast<std::size_t>(pictureHeight)) {}

    std::uint32_t* At(int x, int y) { return pixels.data() + std::ptrdiff_t{y} * width + x; }

    void FindRuns() { runs = kernels::BuildRuns(pixels.data(), width, width, height); }

    PixmanImage ForPixman() {
        return PixmanImage(
            pixman_image_create_bits(PIXMAN_a8r8g8b8, width, height, pixels.data(), width * 4));
    }

    CairoSurface ForCairo() {
        return CairoSurface(cairo_image_surface_create_for_data(
            reinterpret_cast<unsigned char*>(pixels.data()), CAIRO_FORMAT_ARGB32, width, height, width * 4));
    }

    int width;
    int height;
    std::vector<std::uint32_t> pixels;
    kernels::RunTable runs;
};

std::uint32_t Gray(std::uint32_t alpha, std::uint32_t level) {
    return alpha << 24 | (alpha * level / 255) * 0x00010101U;
}

Picture Opaque(int width, int height) {
    Picture picture(width, height);
    std::mt19937 random(1);
    for (std::uint32_t& pixel : picture.pixels) {
        pixel = static_cast<std::uint32_t>(random()) | 0xFF000000U;
    }
    picture.FindRuns();
    return picture;
}

/// Alphas of 1..254 everywhere.
Picture Soft(int width, int height) {
    Picture picture(width, height);
    std::mt19937 random(2);
    for (std::uint32_t& pixel : picture.pixels) {
        pixel = Gray(1 + random() % 254, random() % 256);
    }
    picture.FindRuns();
    return picture;
}

/// A rounded shape with a smooth edge of about six pixels: transparent outside, opaque inside.
Picture Rounded(int width, int height, double softness) {
    Picture picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double dx = (x + 0.5) / width * 2 - 1;
            const double dy = (y + 0.5) / height * 2 - 1;
            const double depth = (1 - std::sqrt(dx * dx + dy * dy)) * std::min(width, height) / 2 / softness;
            const double cover = depth < 0 ? 0 : depth > 1 ? 1 : depth;
            *picture.At(x, y) =
                Gray(static_cast<std::uint32_t>(cover * 255), static_cast<std::uint32_t>(x % 256));
        }
    }
    picture.FindRuns();
    return picture;
}

/// A tapering bar with smooth edges, pointing to the right.
Picture Needle() {
    Picture picture(300, 40);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const double reach = 19.0 - 14.0 * x / picture.width - std::abs(y - 19.5);
            const double cover = reach < 0 ? 0 : reach > 1 ? 1 : reach;
            *picture.At(x, y) = Gray(static_cast<std::uint32_t>(cover * 255), 200);
        }
    }
    picture.FindRuns();
    return picture;
}

/// Masks of 24-pixel letters: rings and bars, rows of whole words.
struct Letter {
    int width;
    int height;
    int stride;
    std::vector<std::uint8_t> mask;
};

std::vector<Letter> Letters(int count) {
    std::vector<Letter> letters;
    for (int i = 0; i < count; ++i) {
        const int width = 8 + i * 5 % 9;
        const int height = 14 + i * 3 % 8;
        Letter letter{width, height, (width + 3) / 4 * 4, {}};
        letter.mask.resize(static_cast<std::size_t>(letter.stride * height));
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const double dx = (x - width / 2.0 + 0.5) / (width / 2.0);
                const double dy = (y - height / 2.0 + 0.5) / (height / 2.0);
                const double edge = std::abs(std::sqrt(dx * dx + dy * dy) - 0.75) * width / 2.0;
                const double cover = edge > 1.7 ? 0 : edge < 0.7 ? 1 : 1.7 - edge;
                letter.mask[static_cast<std::size_t>(y * letter.stride + x)] =
                    static_cast<std::uint8_t>(cover * 255);
            }
        }
        letters.push_back(std::move(letter));
    }
    return letters;
}

/// pixman's own glyph cache, filled with the letters.
class PixmanText {
  public:
    explicit PixmanText(std::vector<Letter>& letters) : cache_(pixman_glyph_cache_create()) {
        pixman_glyph_cache_freeze(cache_);
        int x = 0;
        for (std::size_t i = 0; i < letters.size(); ++i) {
            Letter& letter = letters[i];
            const PixmanImage image(pixman_image_create_bits(
                PIXMAN_a8, letter.width, letter.height, reinterpret_cast<std::uint32_t*>(letter.mask.data()),
                letter.stride));
            pixman_glyph_t glyph;
            glyph.x = x;
            glyph.y = 0;
            glyph.glyph =
                pixman_glyph_cache_insert(cache_, this, reinterpret_cast<void*>(i + 1), 0, 0, image.get());
            glyphs_.push_back(glyph);
            x += letter.width + 1;
        }
        const pixman_color_t white = {0xFFFF, 0xFFFF, 0xFFFF, 0xFFFF};
        color_.reset(pixman_image_create_solid_fill(&white));
    }
    ~PixmanText() {
        pixman_glyph_cache_thaw(cache_);
        pixman_glyph_cache_destroy(cache_);
    }
    PixmanText(const PixmanText&) = delete;
    PixmanText& operator=(const PixmanText&) = delete;

    void Draw(pixman_image_t* screen, int x, int y) {
        // A line of text looks each glyph up before it draws them.
        for (std::size_t i = 0; i < glyphs_.size(); ++i) {
            glyphs_[i].glyph = pixman_glyph_cache_lookup(cache_, this, reinterpret_cast<void*>(i + 1));
        }
        pixman_composite_glyphs_no_mask(PIXMAN_OP_OVER, color_.get(), screen, 0, 0, x, y, cache_,
                                        static_cast<int>(glyphs_.size()), glyphs_.data());
    }

  private:
    pixman_glyph_cache_t* cache_;
    std::vector<pixman_glyph_t> glyphs_;
    PixmanImage color_;
};

void DrawLetters(Picture& screen, const std::vector<Letter>& letters, int x, int y) {
    for (const Letter& letter : letters) {
        kernels::MaskOverBlock(screen.At(x, y), screen.width, letter.mask.data(), letter.stride, 0xFFFFFFFFU,
                               letter.width, letter.height);
        x += letter.width + 1;
    }
}

kernels::Rotation NeedleRotation(Picture& needle) {
    kernels::Rotation rotation;
    rotation.source = needle.At(0, 0);
    rotation.sourceStride = rotation.sourceWidth = needle.width;
    rotation.sourceHeight = needle.height;
    rotation.pivotX = 20;
    rotation.pivotY = 20;
    rotation.targetX = 400;
    rotation.targetY = 240;
    return rotation;
}

/// The matrix from screen to needle and the box that the turned needle fills.
struct Turn {
    Turn(const kernels::Rotation& rotation, int degrees) {
        const double c = std::cos(degrees * kDegree);
        const double s = std::sin(degrees * kDegree);
        const double x = rotation.targetX + 0.5;
        const double y = rotation.targetY + 0.5;
        inverse = {{{c, s, rotation.pivotX + 0.5 - c * x - s * y},
                    {-s, c, rotation.pivotY + 0.5 + s * x - c * y},
                    {0, 0, 1}}};
        double left = 1e9;
        double top = 1e9;
        double right = -1e9;
        double bottom = -1e9;
        for (int corner = 0; corner < 4; ++corner) {
            const double u = ((corner & 1) != 0 ? rotation.sourceWidth : 0) - rotation.pivotX;
            const double v = ((corner & 2) != 0 ? rotation.sourceHeight : 0) - rotation.pivotY;
            left = std::min(left, x + c * u - s * v);
            right = std::max(right, x + c * u - s * v);
            top = std::min(top, y + s * u + c * v);
            bottom = std::max(bottom, y + s * u + c * v);
        }
        box.x = std::max(0, static_cast<int>(std::floor(left - 1)));
        box.y = std::max(0, static_cast<int>(std::floor(top - 1)));
        box.width = std::min(kScreenWidth, static_cast<int>(std::ceil(right + 1))) - box.x;
        box.height = std::min(kScreenHeight, static_cast<int>(std::ceil(bottom + 1))) - box.y;
    }
    pixman_f_transform_t inverse;
    kernels::Box box;
};

void DrawNeedleWithPixman(pixman_image_t* needle, pixman_image_t* screen, const Turn& turn) {
    pixman_transform_t transform;
    pixman_transform_from_pixman_f_transform(&transform, &turn.inverse);
    pixman_image_set_transform(needle, &transform);
    pixman_image_set_filter(needle, PIXMAN_FILTER_BILINEAR, nullptr, 0);
    pixman_image_composite32(PIXMAN_OP_OVER, needle, nullptr, screen, turn.box.x, turn.box.y, 0, 0,
                             turn.box.x, turn.box.y, turn.box.width, turn.box.height);
}

void CopyScreen(benchmark::State& state, bool ours) {
    Picture source = Opaque(kScreenWidth, kScreenHeight);
    Picture screen(kScreenWidth, kScreenHeight);
    for (auto _ : state) {
        if (ours) {
            kernels::CopyBlock(screen.At(0, 0), kScreenWidth, source.At(0, 0), kScreenWidth, kScreenWidth,
                               kScreenHeight);
        } else {
            std::memcpy(screen.pixels.data(), source.pixels.data(), source.pixels.size() * 4);
        }
        benchmark::ClobberMemory();
    }
}

void OverPicture(benchmark::State& state, Picture (*make)(), bool ours) {
    Picture source = make();
    Picture screen = Opaque(kScreenWidth, kScreenHeight);
    const PixmanImage sourceImage = source.ForPixman();
    const PixmanImage screenImage = screen.ForPixman();
    for (auto _ : state) {
        if (ours) {
            kernels::OverRuns(screen.At(200, 120), kScreenWidth, source.At(0, 0), source.width, source.runs,
                              0, 0, source.width, source.height);
        } else {
            pixman_image_composite32(PIXMAN_OP_OVER, sourceImage.get(), nullptr, screenImage.get(), 0, 0, 0,
                                     0, 200, 120, source.width, source.height);
        }
        benchmark::ClobberMemory();
    }
}

/// Two hundred icons all over the screen.
void Icons(benchmark::State& state, bool ours) {
    Picture icon = Rounded(32, 32, 2);
    Picture screen = Opaque(kScreenWidth, kScreenHeight);
    const PixmanImage iconImage = icon.ForPixman();
    const PixmanImage screenImage = screen.ForPixman();
    for (auto _ : state) {
        for (int i = 0; i < 200; ++i) {
            const int x = i % 20 * 38 + 3;
            const int y = i / 20 * 44 + 5;
            if (ours) {
                kernels::OverRuns(screen.At(x, y), kScreenWidth, icon.At(0, 0), 32, icon.runs, 0, 0, 32, 32);
            } else {
                pixman_image_composite32(PIXMAN_OP_OVER, iconImage.get(), nullptr, screenImage.get(), 0, 0, 0,
                                         0, x, y, 32, 32);
            }
        }
        benchmark::ClobberMemory();
    }
}

enum class Renderer { Ours, Pixman, Cairo };

/// A needle at every third degree.
void NeedleAllAngles(benchmark::State& state, Renderer renderer) {
    Picture needle = Needle();
    Picture screen = Opaque(kScreenWidth, kScreenHeight);
    kernels::Rotation rotation = NeedleRotation(needle);
    const PixmanImage needleImage = needle.ForPixman();
    const PixmanImage screenImage = screen.ForPixman();
    const CairoSurface needleSurface = needle.ForCairo();
    const CairoSurface screenSurface = screen.ForCairo();
    const CairoContext context(cairo_create(screenSurface.get()));
    std::vector<Turn> turns;
    for (int angle = 0; angle < 360; angle += 3) {
        turns.emplace_back(rotation, angle);
    }
    for (auto _ : state) {
        for (std::size_t i = 0; i < turns.size(); ++i) {
            const int angle = static_cast<int>(i) * 3;
            switch (renderer) {
                case Renderer::Ours:
                    rotation.angle = angle;
                    kernels::RotateOver(screen.At(0, 0), kScreenWidth, {0, 0, kScreenWidth, kScreenHeight},
                                        rotation);
                    break;
                case Renderer::Pixman:
                    DrawNeedleWithPixman(needleImage.get(), screenImage.get(), turns[i]);
                    break;
                case Renderer::Cairo:
                    cairo_save(context.get());
                    cairo_translate(context.get(), rotation.targetX + 0.5, rotation.targetY + 0.5);
                    cairo_rotate(context.get(), angle * kDegree);
                    cairo_set_source_surface(context.get(), needleSurface.get(), -rotation.pivotX - 0.5,
                                             -rotation.pivotY - 0.5);
                    cairo_pattern_set_filter(cairo_get_source(context.get()), CAIRO_FILTER_BILINEAR);
                    cairo_paint(context.get());
                    cairo_restore(context.get());
                    break;
            }
        }
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(turns.size()));
}

void Stretch(benchmark::State& state, int width, int height, bool ours) {
    Picture source = Opaque(width, height);
    Picture screen = Opaque(kScreenWidth, kScreenHeight);
    const PixmanImage sourceImage = source.ForPixman();
    const PixmanImage screenImage = screen.ForPixman();
    pixman_transform_t transform;
    pixman_transform_init_scale(&transform, static_cast<pixman_fixed_t>(width * 65536LL / 240),
                                static_cast<pixman_fixed_t>(height * 65536LL / 144));
    pixman_image_set_transform(sourceImage.get(), &transform);
    pixman_image_set_filter(sourceImage.get(), PIXMAN_FILTER_BILINEAR, nullptr, 0);
    pixman_image_set_repeat(sourceImage.get(), PIXMAN_REPEAT_PAD);
    for (auto _ : state) {
        if (ours) {
            kernels::StretchCopy(screen.At(100, 100), kScreenWidth,
                                 {source.At(0, 0), width, width, height, 240, 144}, {0, 0, 240, 144});
        } else {
            pixman_image_composite32(PIXMAN_OP_SRC, sourceImage.get(), nullptr, screenImage.get(), 0, 0, 0, 0,
                                     100, 100, 240, 144);
        }
        benchmark::ClobberMemory();
    }
}

void StretchSoft(benchmark::State& state, bool ours) {
    Picture source = Rounded(100, 100, 20);
    Picture screen = Opaque(kScreenWidth, kScreenHeight);
    const PixmanImage sourceImage = source.ForPixman();
    const PixmanImage screenImage = screen.ForPixman();
    pixman_transform_t transform;
    pixman_transform_init_scale(&transform, static_cast<pixman_fixed_t>(100 * 65536LL / 240),
                                static_cast<pixman_fixed_t>(100 * 65536LL / 144));
    pixman_image_set_transform(sourceImage.get(), &transform);
    pixman_image_set_filter(sourceImage.get(), PIXMAN_FILTER_BILINEAR, nullptr, 0);
    pixman_image_set_repeat(sourceImage.get(), PIXMAN_REPEAT_PAD);
    for (auto _ : state) {
        if (ours) {
            kernels::StretchOver(screen.At(100, 100), kScreenWidth,
                                 {source.At(0, 0), 100, 100, 100, 240, 144}, {0, 0, 240, 144});
        } else {
            pixman_image_composite32(PIXMAN_OP_OVER, sourceImage.get(), nullptr, screenImage.get(), 0, 0, 0,
                                     0, 100, 100, 240, 144);
        }
        benchmark::ClobberMemory();
    }
}

void TextLine(benchmark::State& state, bool ours) {
    std::vector<Letter> letters = Letters(24);
    PixmanText text(letters);
    Picture screen = Opaque(kScreenWidth, kScreenHeight);
    const PixmanImage screenImage = screen.ForPixman();
    for (auto _ : state) {
        if (ours) {
            DrawLetters(screen, letters, 100, 100);
        } else {
            text.Draw(screenImage.get(), 100, 100);
        }
        benchmark::ClobberMemory();
    }
}

/// Background, twenty fills, five labels, six icons, a needle and two soft shadows.
void TunerFrame(benchmark::State& state, bool ours) {
    Picture background = Opaque(kScreenWidth, kScreenHeight);
    Picture icon = Rounded(32, 32, 2);
    Picture shadow = Soft(400, 60);
    Picture needle = Needle();
    std::vector<Letter> letters = Letters(16);
    PixmanText text(letters);
    Picture screen(kScreenWidth, kScreenHeight);
    kernels::Rotation rotation = NeedleRotation(needle);
    const PixmanImage backgroundImage = background.ForPixman();
    const PixmanImage iconImage = icon.ForPixman();
    const PixmanImage shadowImage = shadow.ForPixman();
    const PixmanImage needleImage = needle.ForPixman();
    const PixmanImage screenImage = screen.ForPixman();
    int angle = 0;
    for (auto _ : state) {
        angle = (angle + 7) % 360;
        if (ours) {
            kernels::CopyBlock(screen.At(0, 0), kScreenWidth, background.At(0, 0), kScreenWidth, kScreenWidth,
                               kScreenHeight);
            for (int i = 0; i < 20; ++i) {
                kernels::FillBlock(screen.At(20 + i * 38, 300), kScreenWidth, 0xFFFFFFFFU, 3, 40);
            }
            for (int i = 0; i < 5; ++i) {
                DrawLetters(screen, letters, 30, 20 + i * 60);
            }
            for (int i = 0; i < 6; ++i) {
                kernels::OverRuns(screen.At(500 + i * 40, 30), kScreenWidth, icon.At(0, 0), 32, icon.runs, 0,
                                  0, 32, 32);
            }
            rotation.angle = angle;
            kernels::RotateOver(screen.At(0, 0), kScreenWidth, {0, 0, kScreenWidth, kScreenHeight}, rotation);
            for (int i = 0; i < 2; ++i) {
                kernels::OverRuns(screen.At(200, 60 + i * 300), kScreenWidth, shadow.At(0, 0), 400,
                                  shadow.runs, 0, 0, 400, 60);
            }
        } else {
            pixman_image_composite32(PIXMAN_OP_SRC, backgroundImage.get(), nullptr, screenImage.get(), 0, 0,
                                     0, 0, 0, 0, kScreenWidth, kScreenHeight);
            const pixman_color_t white = {0xFFFF, 0xFFFF, 0xFFFF, 0xFFFF};
            for (int i = 0; i < 20; ++i) {
                const pixman_box32_t box = {20 + i * 38, 300, 23 + i * 38, 340};
                pixman_image_fill_boxes(PIXMAN_OP_SRC, screenImage.get(), &white, 1, &box);
            }
            for (int i = 0; i < 5; ++i) {
                text.Draw(screenImage.get(), 30, 20 + i * 60);
            }
            for (int i = 0; i < 6; ++i) {
                pixman_image_composite32(PIXMAN_OP_OVER, iconImage.get(), nullptr, screenImage.get(), 0, 0, 0,
                                         0, 500 + i * 40, 30, 32, 32);
            }
            DrawNeedleWithPixman(needleImage.get(), screenImage.get(), Turn(rotation, angle));
            for (int i = 0; i < 2; ++i) {
                pixman_image_composite32(PIXMAN_OP_OVER, shadowImage.get(), nullptr, screenImage.get(), 0, 0,
                                         0, 0, 200, 60 + i * 300, 400, 60);
            }
        }
        benchmark::ClobberMemory();
    }
}

/// Registers a work for each target of the kernels.
template <class Function>
void RegisterOurs(const std::string& work, Function function) {
    for (const std::int64_t target : kernels::AvailableTargets()) {
        const std::string name = work + "/" + kernels::TargetName(target);
        benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
            kernels::ForceTarget(target);
            function(state);
            kernels::ForceTarget(0);
        });
    }
}

/// Registers a work whose last argument says whether the kernels or the other library do it.
template <class Function>
void Register(const std::string& work, const char* other, Function function) {
    RegisterOurs(work, [=](benchmark::State& state) { function(state, true); });
    benchmark::RegisterBenchmark((work + "/" + other).c_str(),
                                 [=](benchmark::State& state) { function(state, false); });
}

}  // namespace

int main(int argc, char** argv) {
    Register("copy_800x480", "memcpy", CopyScreen);
    Register("soft_400x240", "pixman", [](benchmark::State& state, bool ours) {
        OverPicture(
            state, [] { return Soft(400, 240); }, ours);
    });
    Register("mixed_400x240", "pixman", [](benchmark::State& state, bool ours) {
        OverPicture(
            state, [] { return Rounded(400, 240, 6); }, ours);
    });
    Register("icons_32x32", "pixman", Icons);
    RegisterOurs("needle", [](benchmark::State& state) { NeedleAllAngles(state, Renderer::Ours); });
    benchmark::RegisterBenchmark("needle/pixman", NeedleAllAngles, Renderer::Pixman);
    benchmark::RegisterBenchmark("needle/cairo", NeedleAllAngles, Renderer::Cairo);
    Register("stretch_480x288", "pixman",
             [](benchmark::State& state, bool ours) { Stretch(state, 480, 288, ours); });
    Register("stretch_100x100", "pixman",
             [](benchmark::State& state, bool ours) { Stretch(state, 100, 100, ours); });
    Register("stretch_soft", "pixman", StretchSoft);
    Register("text_24", "pixman", TextLine);
    Register("tuner_frame", "pixman", TunerFrame);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
