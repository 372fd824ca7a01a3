#include "tools/lqimage/PixelType.h"

namespace korvane::tools {

const char* NameOfPixelType(_eSurfaceType type) {
    switch (type) {
        case eSurface_RGB565:
            return "rgb565";
        case eSurface_XRGB8888:
            return "xrgb8888";
        case eSurface_ARGB8888:
            return "argb8888";
        case eSurface_ARGB4444:
            return "argb4444";
        case eSurface_None:
            break;
    }
    return "none";
}

const std::vector<std::string>& PixelTypeNames() {
    static const std::vector<std::string> names = {
        NameOfPixelType(eSurface_ARGB8888), NameOfPixelType(eSurface_XRGB8888),
        NameOfPixelType(eSurface_RGB565), NameOfPixelType(eSurface_ARGB4444)};
    return names;
}

_eSurfaceType PixelTypeByName(const std::string& name) {
    for (const _eSurfaceType type :
         {eSurface_RGB565, eSurface_XRGB8888, eSurface_ARGB8888, eSurface_ARGB4444}) {
        if (name == NameOfPixelType(type))
            return type;
    }
    return eSurface_None;
}

}  // namespace korvane::tools
