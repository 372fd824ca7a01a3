#include "module/ThumbNail.h"

#include "engine/draw/SurfManager.h"
#include "sysinfo/ShareMemLink.h"

namespace {

constexpr int kWidth = 240;
constexpr int kHeight = 144;
constexpr _eSurfaceType kType = eSurface_ARGB8888;

/// The module's own link. It stays loaded until the process ends.
const CLQShareMemLink& Link() {
    static const CLQShareMemLink& link = *[] {
        auto* const created = new CLQShareMemLink;
        created->Load();
        return created;
    }();
    return link;
}

/// False, leaving the buffer alone, when the service has none of that size.
bool FindBuffer(const CLQShareMemLink& link, int size, unsigned char*& buffer) {
    return link.pfnGetThumbNail && link.pfnGetThumbNail(static_cast<unsigned int>(size), &buffer) != 0;
}

CLQSurfHandle CreateBlank() {
    return CLQSurfManager::GetInstance()->CreateSurface(kWidth, kHeight, kType, true);
}

CLQSurfHandle ThumbNailOf(CLQSurfHandle& source) {
    if (source.GetWidth() == kWidth && source.GetHeight() == kHeight && source.GetSurfType() == kType)
        return source;
    CLQSurfHandle scaled = CreateBlank();
    scaled.StretchBlt(source, 0, 0, kWidth, kHeight, 0, 0, source.GetWidth(), source.GetHeight(), 0);
    return scaled;
}

}  // namespace

int SetThumbNail(CLQSurfHandle& source) {
    const CLQShareMemLink& link = Link();
    if (!source.GetSurface())
        return 0;
    CLQSurfHandle picture = ThumbNailOf(source);
    const int size = picture.CalcStoreMemSize();
    unsigned char* buffer = nullptr;
    return FindBuffer(link, size, buffer) && picture.SaveSurface(buffer, size) == eError_None;
}

int GetThumbNail(CLQSurfHandle& out) {
    const CLQShareMemLink& link = Link();
    out = CreateBlank();
    const int size = out.CalcStoreMemSize();
    unsigned char* buffer = nullptr;
    if (!out.GetSurface() || !FindBuffer(link, size, buffer))
        return 0;
    out.GetSurface()->CreateSurfaceFromBuffer(buffer, L"lqi", size, false);
    return 1;
}
