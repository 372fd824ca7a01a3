#pragma once

#include <cairo.h>
#include <pixman.h>

#include "bench/engine/Pictures.h"

namespace korvane::bench {

/// The same picture for pixman and for cairo, over memory of its own.
class PeerImage {
  public:
    explicit PeerImage(const Picture& picture);
    PeerImage(const PeerImage&) = delete;
    PeerImage& operator=(const PeerImage&) = delete;
    ~PeerImage();

    Picture picture;
    pixman_image_t* pixman;
    cairo_surface_t* cairo;
};

/// An 800 by 480 target for pixman and for cairo.
class PeerTarget : public PeerImage {
  public:
    PeerTarget();
    ~PeerTarget();
    cairo_t* context;
};

/// The target of ours.
CLQSurfHandle MakeTarget();

/// Turns a source about its pivot onto (x, y) of the target, clockwise by `degrees`, bilinear.
void PixmanRotate(PeerImage& source, PeerTarget& target, int x, int y, double pivotX, double pivotY,
                  int degrees);
void CairoRotate(PeerImage& source, PeerTarget& target, int x, int y, double pivotX, double pivotY,
                 int degrees);

}  // namespace korvane::bench
