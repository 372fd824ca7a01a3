#include "engine/window/parts/Background.h"

#include "engine/core/Rect.h"
#include "engine/draw/SurfManager.h"

namespace korvane {

void Background::SetImage(const wchar_t* file) {
    file_ = file ? file : L"";
    image_.Release();
    if (!file_.empty())
        image_ = CLQSurfManager::GetInstance()->CreateSurface(file_.c_str(), true);
}

void Background::EnableColor(bool enable, const _LQColor* color) {
    fills_ = enable;
    if (color)
        color_ = *color;
}

bool Background::IsVisible() {
    return fills_ || image_.GetSurface();
}

bool Background::IsOpaqueIn(const _LQRect& place, const _LQRect& rect) {
    if (!Covers(place, rect))
        return false;
    if (fills_ && color_.a == 255)
        return true;
    CLQSurface* picture = image_.GetSurface();
    return picture && picture->IsOpaque() &&
           Covers(RectOfSize(place.left, place.top, picture->GetWidth(), picture->GetHeight()), rect);
}

void Background::Draw(CLQSurfHandle& target, const _LQRect& place) {
    if (fills_)
        target.FillRect(place.left, place.top, place.right, place.bottom, color_, color_.a != 255);
    target.BitBlt(image_, place.left, place.top, place.right - place.left, place.bottom - place.top, 0, 0);
}

}  // namespace korvane
