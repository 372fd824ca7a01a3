#include "controls/parts/SharedImage.h"

#include "engine/draw/SurfManager.h"

namespace korvane {

std::shared_ptr<CLQSurfHandle> LoadSharedImage(const wchar_t* file) {
    return std::make_shared<CLQSurfHandle>(CLQSurfManager::GetInstance()->CreateSurface(file, true));
}

void BlitWhole(CLQSurfHandle& target, const std::shared_ptr<CLQSurfHandle>& image, int x, int y) {
    if (image)
        target.BitBlt(*image, x, y, image->GetWidth(), image->GetHeight(), 0, 0);
}

}  // namespace korvane
