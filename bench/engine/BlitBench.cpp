#include <benchmark/benchmark.h>
#include <cstring>

#include "bench/engine/Peers.h"
#include "bench/engine/Register.h"

namespace korvane::bench {

namespace {

void PixmanOver(PeerImage& source, PeerTarget& target, int x, int y) {
    pixman_image_composite32(PIXMAN_OP_OVER, source.pixman, nullptr, target.pixman, 0, 0, 0, 0, x, y,
                             source.picture.width, source.picture.height);
}

void CairoOver(PeerImage& source, PeerTarget& target, int x, int y) {
    cairo_set_source_surface(target.context, source.cairo, x, y);
    cairo_rectangle(target.context, x, y, source.picture.width, source.picture.height);
    cairo_fill(target.context);
}

void RegisterOpaque() {
    const Picture picture = OpaquePicture(800, 480);
    Register("opaque 800x480 BitBlt|ours",
             [source = LoadAsImage(picture, L"opaque"), target = MakeTarget()]() mutable {
                 target.BitBlt(source, 0, 0, 800, 480, 0, 0);
             });
    auto source = std::make_shared<PeerImage>(picture);
    auto target = std::make_shared<PeerTarget>();
    Register("opaque 800x480 BitBlt|memcpy", [source, target] {
        std::memcpy(target->picture.pixels.data(), source->picture.pixels.data(), 800U * 480U * 4U);
        benchmark::ClobberMemory();
    });
    Register("opaque 800x480 BitBlt|pixman", [source, target] {
        pixman_image_composite32(PIXMAN_OP_SRC, source->pixman, nullptr, target->pixman, 0, 0, 0, 0, 0, 0,
                                 800, 480);
    });
    Register("opaque 800x480 BitBlt|cairo", [source, target] {
        cairo_set_operator(target->context, CAIRO_OPERATOR_SOURCE);
        CairoOver(*source, *target, 0, 0);
        cairo_set_operator(target->context, CAIRO_OPERATOR_OVER);
    });
}

void RegisterBlend(const std::string& work, const Picture& picture, const std::wstring& file) {
    Register(work + "|ours", [source = LoadAsImage(picture, file), target = MakeTarget()]() mutable {
        target.BitBlt(source, 200, 120, source.GetWidth(), source.GetHeight(), 0, 0);
    });
    auto source = std::make_shared<PeerImage>(picture);
    auto target = std::make_shared<PeerTarget>();
    Register(work + "|pixman", [source, target] { PixmanOver(*source, *target, 200, 120); });
    Register(work + "|cairo", [source, target] { CairoOver(*source, *target, 200, 120); });
}

/// 200 icons, spread over the screen.
template <class DrawIcon>
void ForEachIcon(DrawIcon draw) {
    for (int i = 0; i < 200; ++i)
        draw((i * 37) % 768, (i * 91) % 448);
}

void RegisterIcons() {
    const Picture picture = IconPicture(32, 32);
    Register("200 icons of 32x32|ours",
             [source = LoadAsImage(picture, L"icon"), target = MakeTarget()]() mutable {
                 ForEachIcon([&](int x, int y) { target.BitBlt(source, x, y, 32, 32, 0, 0); });
             });
    auto source = std::make_shared<PeerImage>(picture);
    auto target = std::make_shared<PeerTarget>();
    Register("200 icons of 32x32|pixman",
             [source, target] { ForEachIcon([&](int x, int y) { PixmanOver(*source, *target, x, y); }); });
    Register("200 icons of 32x32|cairo",
             [source, target] { ForEachIcon([&](int x, int y) { CairoOver(*source, *target, x, y); }); });
}

void RegisterRotation() {
    const Picture picture = NeedlePicture(300, 40);
    Register("300x40 needle RotateBlt, 360 angles|ours",
             [source = LoadAsImage(picture, L"needle"), target = MakeTarget()]() mutable {
                 for (int angle = 0; angle < 360; ++angle)
                     target.RotateBlt(source, 400, 240, 1.0F, 1.0F, 0, 20, angle, 2);
             });
    auto source = std::make_shared<PeerImage>(picture);
    auto target = std::make_shared<PeerTarget>();
    Register("300x40 needle RotateBlt, 360 angles|pixman", [source, target] {
        for (int angle = 0; angle < 360; ++angle)
            PixmanRotate(*source, *target, 400, 240, 0, 20, angle);
    });
    Register("300x40 needle RotateBlt, 360 angles|cairo", [source, target] {
        for (int angle = 0; angle < 360; ++angle)
            CairoRotate(*source, *target, 400, 240, 0, 20, angle);
    });
}

void RegisterStretch(const std::string& work, int width, int height, const std::wstring& file) {
    const Picture picture = OpaquePicture(width, height);
    Register(work + "|ours",
             [source = LoadAsImage(picture, file), target = MakeTarget(), width, height]() mutable {
                 target.StretchBlt(source, 100, 100, 240, 144, 0, 0, width, height, 0);
             });
    auto source = std::make_shared<PeerImage>(picture);
    auto target = std::make_shared<PeerTarget>();
    pixman_transform_t transform;
    pixman_transform_init_scale(&transform, pixman_double_to_fixed(width / 240.0),
                                pixman_double_to_fixed(height / 144.0));
    pixman_image_set_transform(source->pixman, &transform);
    pixman_image_set_filter(source->pixman, PIXMAN_FILTER_BILINEAR, nullptr, 0);
    pixman_image_set_repeat(source->pixman, PIXMAN_REPEAT_PAD);
    Register(work + "|pixman", [source, target] {
        pixman_image_composite32(PIXMAN_OP_SRC, source->pixman, nullptr, target->pixman, 0, 0, 0, 0, 100, 100,
                                 240, 144);
    });
    auto forCairo = std::make_shared<PeerImage>(picture);
    Register(work + "|cairo", [forCairo, target, width, height] {
        cairo_t* context = target->context;
        cairo_save(context);
        cairo_rectangle(context, 100, 100, 240, 144);
        cairo_clip(context);
        cairo_translate(context, 100, 100);
        cairo_scale(context, 240.0 / width, 144.0 / height);
        cairo_set_operator(context, CAIRO_OPERATOR_SOURCE);
        cairo_set_source_surface(context, forCairo->cairo, 0, 0);
        cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_BILINEAR);
        cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
        cairo_paint(context);
        cairo_restore(context);
    });
}

}  // namespace

void RegisterBlits() {
    RegisterOpaque();
    RegisterBlend("400x240 soft alpha BitBlt", SoftPicture(400, 240), L"soft");
    RegisterBlend("400x240 mixed runs BitBlt", MixedPicture(400, 240), L"mixed");
    RegisterIcons();
    RegisterRotation();
    RegisterStretch("480x288 to 240x144 StretchBlt", 480, 288, L"half");
    RegisterStretch("100x100 to 240x144 StretchBlt", 100, 100, L"grow");
}

}  // namespace korvane::bench
