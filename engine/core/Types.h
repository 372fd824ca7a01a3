#pragma once

/// Plain value types and enumerations of the engine.

/// A colour with straight (not premultiplied) alpha; 255 is opaque.
struct _LQColor {
    unsigned char r = 0;
    unsigned char g = 0;
    unsigned char b = 0;
    unsigned char a = 255;
};

/// A rectangle in screen pixels; right and bottom lie outside it.
/// The order of the fields is left, right, top, bottom, and is meant.
struct _LQRect {
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
};

/// Pixel formats of surfaces. Formats with alpha hold premultiplied colours.
/// Values from files and callers may be any int, so the type must be able to hold it.
enum _eSurfaceType : int {
    eSurface_None = 0,
    eSurface_RGB565 = 1,    ///< 16 bits, opaque
    eSurface_XRGB8888 = 2,  ///< 32 bits, opaque
    eSurface_ARGB8888 = 3,  ///< 32 bits with alpha: the screen, compositing surfaces, thumbnails
    eSurface_ARGB4444 = 5,  ///< 16 bits with alpha: small text surfaces
};

/// Results of the surface storage operations; only eError_None (1) is success.
enum _eErrorInfo {
    eError_Failed = 0,
    eError_None = 1,
    eError_InvalidParam = 2,
    eError_BufferTooSmall = 3,
    eError_BadData = 4,
};

/// The look of a button or of one of its elements.
enum _eImageType {
    eImage_Normal = 0,
    eImage_Pressed = 1,
    eImage_Focus = 2,
    eImage_Disabled = 3,
};

enum _eGUIElementType {
    eGUIElement_Image = 0,
    eGUIElement_Text = 1,
};

/// How a label's text scrolls.
enum eScrollType {
    eScroll_None = 0,
    eScroll_Right = 1,  ///< the text runs to the right
    eScroll_Left = 2,   ///< the text runs to the left
};

/// The eight border pieces of a tile: four of its focus frame, four of its normal frame.
enum eBorderDirection : int {
    eBorder_FocusLeft = 0,
    eBorder_FocusTop = 1,
    eBorder_FocusRight = 2,
    eBorder_FocusBottom = 3,
    eBorder_Left = 4,
    eBorder_Top = 5,
    eBorder_Right = 6,
    eBorder_Bottom = 7,
};

/// Text style of a label: a sum of flags. 0 is top left; 18 is centred both ways.
enum _eTextStyle {
    eText_Left = 0,
    eText_Right = 1,
    eText_HCenter = 2,
    eText_VCenter = 16,
    eText_Bottom = 32,
};
