#include <map>

#include "engine/draw/SurfManager.h"
#include "engine/system/System.h"
#include "engine/window/BaseCtrl.h"
#include "platform/Unicode.h"

#include "tools/lqlayout/Checks.h"

namespace korvane::tools {
namespace {

struct Extent {
    int width = 0;
    int height = 0;
};

/// `area` null: not bound to the control's own size.
class PictureCheck {
  public:
    PictureCheck(const Layout& layout, Findings& findings) : layout_(layout), findings_(findings) {}

    void Check(const LayoutCtrl& ctrl, const std::wstring& key, const Extent* area) {
        const std::wstring file = layout_.TextOf(ctrl, key);
        if (file.empty())
            return;
        const int line = layout_.LineOf(ctrl, key);
        const Extent size = SizeOf(file);
        if (size.width == 0) {
            const bool exists = IsFileExist(ResourcePath(ResourceKind::Image, file));
            findings_.AddError(line, "the image " + ToUtf8(file) + " of the " + layout_.Describe(ctrl) +
                                         (exists ? " is damaged" : " is missing"));
        } else if (area && (size.width > area->width || size.height > area->height)) {
            findings_.AddWarning(line, "the image " + ToUtf8(file) + " of the " + layout_.Describe(ctrl) +
                                           " is " + Text(size) + ", its place only " + Text(*area));
        }
    }

  private:
    static std::string Text(const Extent& extent) {
        return std::to_string(extent.width) + "x" + std::to_string(extent.height);
    }

    /// 0 by 0 for one that cannot be loaded.
    Extent SizeOf(const std::wstring& file) {
        const auto known = sizes_.find(file);
        if (known != sizes_.end())
            return known->second;
        CLQSurfHandle surface = CLQSurfManager::GetInstance()->CreateSurface(file.c_str(), false);
        Extent size;
        if (surface.GetSurface())
            size = {surface.GetWidth(), surface.GetHeight()};
        sizes_.emplace(file, size);
        return size;
    }

    const Layout& layout_;
    Findings& findings_;
    std::map<std::wstring, Extent> sizes_;
};

}  // namespace

void CheckPictures(const Layout& layout, Findings& findings) {
    PictureCheck check(layout, findings);
    for (const LayoutCtrl& ctrl : layout.Ctrls()) {
        const Extent own = {ctrl.place.right - ctrl.place.left, ctrl.place.bottom - ctrl.place.top};
        switch (ctrl.kind) {
            case kKindGroup:
            case kKindStatic:
                check.Check(ctrl, L"background", &own);
                break;
            case kKindImageView:
                check.Check(ctrl, L"image", &own);
                break;
            case kKindSlider:
                // Their places depend on the value and the insets.
                for (const wchar_t* key : {L"background", L"fill", L"thumb", L"thumbpressed"})
                    check.Check(ctrl, key, nullptr);
                break;
            case kKindButton:
                for (const LayoutElement& element : layout.ElementsOf(ctrl)) {
                    const Extent area = {element.width, element.height};
                    for (const wchar_t* look : {L"normal", L"pressed", L"focus", L"disabled"})
                        check.Check(ctrl, element.prefix + look, &area);
                }
                break;
            default:
                break;
        }
    }
}

}  // namespace korvane::tools
