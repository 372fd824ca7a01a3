#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "engine/core/Types.h"
#include "platform/Export.h"

class CLQFont;

namespace korvane {
struct SurfaceState;
}

/// A drawing surface: an image in memory. Reached through CLQSurfHandle, which shares it.
///
/// Coordinates of all drawing are screen coordinates: the surface's origin (0, 0 unless it was set) says
/// which of them its top-left pixel shows, and its clip bounds what drawing may change.
class KORVANE_API CLQSurface {
  public:
    /// A surface without pixels. CLQSurfManager makes the others.
    CLQSurface();
    ~CLQSurface();
    CLQSurface(const CLQSurface&) = delete;
    CLQSurface& operator=(const CLQSurface&) = delete;

    int GetWidth();
    int GetHeight();
    _eSurfaceType GetSurfType() const;

    /// Replaces size, type and pixels by what `SaveSurface` wrote into the buffer (or by any other ".lqi"
    /// content). `name` is the format's name, "lqi". The last argument is reserved; callers pass false.
    /// On failure the surface keeps what it had.
    _eErrorInfo CreateSurfaceFromBuffer(unsigned char* buffer, const wchar_t* name, int size, bool);

    /// First pixel of row 0, null for a surface without pixels. Whoever writes through it calls `Touch`.
    void* GetPixels();
    const void* GetPixels() const;
    /// Bytes from one row to the next.
    int GetPitch() const;
    /// Forgets what was known about the pixels (opaque, runs) and sets the unused bytes of XRGB8888 to 255.
    /// Call it after writing through `GetPixels`.
    void Touch();

    /// True when every pixel is known to be opaque.
    bool IsOpaque() const;

    /// Bounds what drawing into this surface may change, in screen coordinates; null: the whole surface.
    void SetClip(const _LQRect* clip);
    /// The part of the surface that drawing may change, in screen coordinates.
    _LQRect GetClip() const;
    /// The screen position that the surface's top-left pixel stands for.
    void SetOrigin(int x, int y);
    void GetOrigin(int& x, int& y) const;

    /// The surface's inner state, for the engine's own drawing code.
    korvane::SurfaceState& State() { return *m_pState; }
    const korvane::SurfaceState& State() const { return *m_pState; }

  private:
    std::unique_ptr<korvane::SurfaceState> m_pState;
};

/// A value handle to a surface. Copies refer to the same surface; an empty handle has none, is 0 by 0 and
/// takes every operation without effect.
class KORVANE_API CLQSurfHandle {
  public:
    CLQSurfHandle();
    explicit CLQSurfHandle(std::shared_ptr<CLQSurface> surface);
    CLQSurfHandle(const CLQSurfHandle& other);
    CLQSurfHandle& operator=(const CLQSurfHandle& other);
    ~CLQSurfHandle();

    int GetWidth();
    int GetHeight();
    _eSurfaceType GetSurfType();
    /// The surface, null for an empty handle. Owned by its handles.
    CLQSurface* GetSurface();
    /// Gives up the surface, whose memory returns with its last handle, and leaves this handle empty.
    void Release();

    /// Blends a width by height block of the source over this surface, such that the source's pixel (sourceX,
    /// sourceY), counted from the source's corner, comes to (x, y). Pixels of the block that the source, this
    /// surface or its clip does not have are left out; the others keep their places. A surface may be its own
    /// source: it is then as if the source had been copied before.
    void BitBlt(CLQSurfHandle& source, int x, int y, int width, int height, int sourceX, int sourceY);

    /// Blends the source block, scaled to width by height with bilinear filtering, over this surface. A
    /// source block that reaches outside the source, or a side below 1 or above 16384, draws nothing. A
    /// surface may be its own source. `mode` is reserved; callers pass 0.
    void StretchBlt(CLQSurfHandle& source, int x, int y, int width, int height, int sourceX, int sourceY,
                    int sourceWidth, int sourceHeight, int mode);

    /// Blends the whole source over this surface, scaled by the two factors and turned by `angle` degrees
    /// clockwise, such that its pixel (pivotX, pivotY) comes to (x, y). Mode 2 filters bilinearly, other
    /// modes take the nearest pixel. Factors outside 1/1024 to 1024 (NaN among them) draw nothing. A surface
    /// may be its own source.
    void RotateBlt(CLQSurfHandle& source, int x, int y, float scaleX, float scaleY, int pivotX, int pivotY,
                   int angle, int mode);

    /// Fills a rectangle given by its edges. `blend` false stores the colour with its alpha (in formats
    /// without alpha: as it looks over black), true blends it over.
    void FillRect(int left, int top, int right, int bottom, _LQColor& color, bool blend);

    /// Draws one line of text in the font's current size; y is the top of the line. Style 0 starts the text
    /// at x, 1 ends it there. `clip`, when given, bounds the drawing further. A `width` above 0 cuts the text
    /// that many pixels after its start. Returns false for a null text or font or an empty handle.
    bool DrawTextW(const wchar_t* text, CLQFont* font, int x, int y, int style, _LQColor& color,
                   _LQRect* clip, int width);

    /// Bytes that `SaveSurface` writes: depends on size and type alone. 0 for an empty handle.
    int CalcStoreMemSize();
    /// Writes the surface as a raw ".lqi" into the caller's buffer of `CalcStoreMemSize` bytes.
    /// The buffer is written to; that its type says const is a quirk of the frozen signature.
    _eErrorInfo SaveSurface(const unsigned char* buffer, int size);

  private:
    std::shared_ptr<CLQSurface> m_pSurface;
};
