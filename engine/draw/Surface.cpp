#include "engine/draw/Surface.h"

#include <algorithm>
#include <limits>

#include "engine/draw/LqiFormat.h"
#include "engine/draw/PixelFormat.h"
#include "engine/draw/SurfaceState.h"
#include "platform/CaseFold.h"

namespace {

int ToInt(std::int64_t value) {
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

}  // namespace

CLQSurface::CLQSurface() : m_pState(std::make_unique<korvane::SurfaceState>()) {}

CLQSurface::~CLQSurface() = default;

int CLQSurface::GetWidth() {
    return m_pState->width;
}

int CLQSurface::GetHeight() {
    return m_pState->height;
}

_eSurfaceType CLQSurface::GetSurfType() const {
    return m_pState->type;
}

_eErrorInfo CLQSurface::CreateSurfaceFromBuffer(unsigned char* buffer, const wchar_t* name, int size, bool) {
    if (buffer == nullptr || name == nullptr || size <= 0 || !korvane::EqualFolded(name, L"lqi"))
        return eError_InvalidParam;
    korvane::LqiImage image;
    const _eErrorInfo result = korvane::DecodeLqi(buffer, static_cast<std::size_t>(size), image);
    if (result == eError_None)
        m_pState->Adopt(std::move(image));
    return result;
}

void* CLQSurface::GetPixels() {
    return m_pState->pixels.Data();
}

const void* CLQSurface::GetPixels() const {
    return m_pState->pixels.Data();
}

int CLQSurface::GetPitch() const {
    return static_cast<int>(m_pState->pitch);
}

void CLQSurface::Touch() {
    m_pState->ForgetPixels();
    if (m_pState->type == eSurface_XRGB8888) {
        // The unused byte is the writer's to leave as it likes, but drawing takes it for an alpha.
        korvane::RepairPixels(m_pState->pixels.Data(),
                              static_cast<std::size_t>(m_pState->width) * m_pState->height, m_pState->type);
    }
}

bool CLQSurface::IsOpaque() const {
    return m_pState->IsOpaque();
}

void CLQSurface::SetClip(const _LQRect* clip) {
    m_pState->hasClip = clip != nullptr;
    if (clip != nullptr)
        m_pState->clip = *clip;
}

_LQRect CLQSurface::GetClip() const {
    const korvane::SurfaceState& state = *m_pState;
    const korvane::PixelBox box = state.DrawableAll();
    _LQRect result;
    result.left = ToInt(std::int64_t{state.originX} + box.x);
    result.right = ToInt(std::int64_t{state.originX} + box.x + box.width);
    result.top = ToInt(std::int64_t{state.originY} + box.y);
    result.bottom = ToInt(std::int64_t{state.originY} + box.y + box.height);
    return result;
}

void CLQSurface::SetOrigin(int x, int y) {
    m_pState->originX = x;
    m_pState->originY = y;
}

void CLQSurface::GetOrigin(int& x, int& y) const {
    x = m_pState->originX;
    y = m_pState->originY;
}
