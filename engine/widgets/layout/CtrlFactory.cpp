#include "engine/widgets/layout/CtrlFactory.h"

#include <vector>

#include "engine/widgets/Button.h"
#include "engine/widgets/ImageView.h"
#include "engine/widgets/SliderCtrl.h"
#include "engine/widgets/Static.h"
#include "engine/window/GroupCtrl.h"

namespace korvane {

namespace {

struct CtrlKind {
    int kind;
    std::wstring name;
    CtrlMaker make;
};

template <class Ctrl>
CLQBaseCtrl* Make() {
    return new Ctrl;
}

std::vector<CtrlKind>& Kinds() {
    static std::vector<CtrlKind> kinds = {
        {kKindGroup, L"group", &Make<CLQGroupCtrl>},    {kKindButton, L"button", &Make<CLQButton>},
        {kKindStatic, L"static", &Make<CLQStatic>},     {kKindImageView, L"image", &Make<CLQImageView>},
        {kKindSlider, L"slider", &Make<CLQSliderCtrl>},
    };
    return kinds;
}

bool IsDigit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

}  // namespace

bool RegisterCtrlKind(int kind, const wchar_t* name, CtrlMaker make) {
    if (kind < 1 || !name || !*name || IsDigit(*name) || !make)
        return false;
    for (const CtrlKind& known : Kinds()) {
        if (known.kind == kind || known.name == name)
            return false;
    }
    Kinds().push_back({kind, name, make});
    return true;
}

std::unique_ptr<CLQBaseCtrl> MakeCtrl(int kind) {
    for (const CtrlKind& known : Kinds()) {
        if (known.kind == kind)
            return std::unique_ptr<CLQBaseCtrl>(known.make());
    }
    return nullptr;
}

int CtrlKindFromName(const std::wstring& name) {
    for (const CtrlKind& known : Kinds()) {
        if (known.name == name)
            return known.kind;
    }
    constexpr std::size_t kMaxDigits = 9;
    if (name.empty() || name.size() > kMaxDigits)
        return -1;
    int kind = 0;
    for (const wchar_t character : name) {
        if (!IsDigit(character))
            return -1;
        kind = kind * 10 + (character - L'0');
    }
    return kind;
}

std::wstring CtrlKindName(int kind) {
    for (const CtrlKind& known : Kinds()) {
        if (known.kind == kind)
            return known.name;
    }
    return std::to_wstring(kind);
}

}  // namespace korvane
