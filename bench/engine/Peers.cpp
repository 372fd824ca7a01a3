#include "bench/engine/Peers.h"

#include <algorithm>
#include <cmath>

namespace korvane::bench {

namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 480;
constexpr double kPi = 3.14159265358979323846;

}  // namespace

PeerImage::PeerImage(const Picture& source) : picture(source) {
    auto* bytes = reinterpret_cast<unsigned char*>(picture.pixels.data());
    const int stride = picture.width * 4;
    pixman = pixman_image_create_bits(PIXMAN_a8r8g8b8, picture.width, picture.height, picture.pixels.data(),
                                      stride);
    cairo = cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_ARGB32, picture.width, picture.height,
                                                stride);
}

PeerImage::~PeerImage() {
    pixman_image_unref(pixman);
    cairo_surface_destroy(cairo);
}

PeerTarget::PeerTarget() : PeerImage(OpaquePicture(kWidth, kHeight)), context(cairo_create(cairo)) {}

PeerTarget::~PeerTarget() {
    cairo_destroy(context);
}

CLQSurfHandle MakeTarget() {
    CLQSurfHandle target =
        CLQSurfManager::GetInstance()->CreateSurface(kWidth, kHeight, eSurface_ARGB8888, true);
    _LQColor gray{60, 70, 80, 255};
    target.FillRect(0, 0, kWidth, kHeight, gray, false);
    return target;
}

void PixmanRotate(PeerImage& source, PeerTarget& target, int x, int y, double pivotX, double pivotY,
                  int degrees) {
    const double angle = degrees * kPi / 180.0;
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    // Only the turned picture's bounding box is composited.
    double left = 1e9;
    double top = 1e9;
    double right = -1e9;
    double bottom = -1e9;
    for (const double cornerX : {0.0, static_cast<double>(source.picture.width)}) {
        for (const double cornerY : {0.0, static_cast<double>(source.picture.height)}) {
            const double turnedX = x + (cornerX - pivotX) * cosine - (cornerY - pivotY) * sine;
            const double turnedY = y + (cornerX - pivotX) * sine + (cornerY - pivotY) * cosine;
            left = std::min(left, turnedX);
            right = std::max(right, turnedX);
            top = std::min(top, turnedY);
            bottom = std::max(bottom, turnedY);
        }
    }
    const int boxX = static_cast<int>(std::floor(left)) - 1;
    const int boxY = static_cast<int>(std::floor(top)) - 1;
    const int boxWidth = static_cast<int>(std::ceil(right)) + 1 - boxX;
    const int boxHeight = static_cast<int>(std::ceil(bottom)) + 1 - boxY;

    pixman_f_transform_t inverse = {{{cosine, sine, pivotX - x * cosine - y * sine},
                                     {-sine, cosine, pivotY + x * sine - y * cosine},
                                     {0, 0, 1}}};
    pixman_transform_t fixed;
    pixman_transform_from_pixman_f_transform(&fixed, &inverse);
    pixman_image_set_transform(source.pixman, &fixed);
    pixman_image_set_filter(source.pixman, PIXMAN_FILTER_BILINEAR, nullptr, 0);
    pixman_image_composite32(PIXMAN_OP_OVER, source.pixman, nullptr, target.pixman, boxX, boxY, 0, 0, boxX,
                             boxY, boxWidth, boxHeight);
}

void CairoRotate(PeerImage& source, PeerTarget& target, int x, int y, double pivotX, double pivotY,
                 int degrees) {
    cairo_save(target.context);
    cairo_translate(target.context, x, y);
    cairo_rotate(target.context, degrees * kPi / 180.0);
    cairo_set_source_surface(target.context, source.cairo, -pivotX, -pivotY);
    cairo_pattern_set_filter(cairo_get_source(target.context), CAIRO_FILTER_BILINEAR);
    cairo_paint(target.context);
    cairo_restore(target.context);
}

}  // namespace korvane::bench
