#include "engine/widgets/elements/NamedImage.h"

#include "engine/draw/SurfManager.h"

namespace korvane {

bool NamedImage::SetFile(const wchar_t* file) {
    if (!file)
        file = L"";
    const bool handedOver = file_.empty() && surface_.GetSurface();
    if (file_ == file && !handedOver)
        return false;
    file_ = file;
    surface_.Release();
    return true;
}

void NamedImage::SetSurface(const CLQSurfHandle& surface) {
    file_.clear();
    surface_ = surface;
}

CLQSurfHandle& NamedImage::Surface() {
    if (!surface_.GetSurface() && !file_.empty())
        surface_ = CLQSurfManager::GetInstance()->CreateSurface(file_.c_str(), true);
    return surface_;
}

}  // namespace korvane
