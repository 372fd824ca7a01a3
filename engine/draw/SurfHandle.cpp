#include <utility>

#include "engine/draw/LqiFormat.h"
#include "engine/draw/Surface.h"
#include "engine/draw/SurfaceState.h"

CLQSurfHandle::CLQSurfHandle() = default;
CLQSurfHandle::CLQSurfHandle(std::shared_ptr<CLQSurface> surface) : m_pSurface(std::move(surface)) {}
CLQSurfHandle::CLQSurfHandle(const CLQSurfHandle& other) = default;
CLQSurfHandle& CLQSurfHandle::operator=(const CLQSurfHandle& other) = default;
CLQSurfHandle::~CLQSurfHandle() = default;

int CLQSurfHandle::GetWidth() {
    return m_pSurface ? m_pSurface->GetWidth() : 0;
}

int CLQSurfHandle::GetHeight() {
    return m_pSurface ? m_pSurface->GetHeight() : 0;
}

_eSurfaceType CLQSurfHandle::GetSurfType() {
    return m_pSurface ? m_pSurface->GetSurfType() : eSurface_None;
}

CLQSurface* CLQSurfHandle::GetSurface() {
    return m_pSurface.get();
}

void CLQSurfHandle::Release() {
    m_pSurface.reset();
}

int CLQSurfHandle::CalcStoreMemSize() {
    const std::size_t size = m_pSurface ? m_pSurface->State().pixels.Size() : 0;
    return size == 0 ? 0 : static_cast<int>(korvane::kLqiHeaderSize + size);
}

_eErrorInfo CLQSurfHandle::SaveSurface(const unsigned char* buffer, int size) {
    const int needed = CalcStoreMemSize();
    if (needed == 0)
        return eError_Failed;
    if (buffer == nullptr || size < 0)
        return eError_InvalidParam;
    if (size < needed)
        return eError_BufferTooSmall;
    korvane::WriteRawLqi(m_pSurface->State(), const_cast<unsigned char*>(buffer));
    return eError_None;
}
