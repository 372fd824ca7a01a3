#include "demo/headunit/ButtonLooks.h"

namespace korvane::demo {

namespace {

struct StateImage {
    _eImageType state;
    const wchar_t* ending;
};
constexpr StateImage kStates[] = {{eImage_Normal, L"_n.lqi"},
                                  {eImage_Pressed, L"_p.lqi"},
                                  {eImage_Focus, L"_f.lqi"},
                                  {eImage_Disabled, L"_d.lqi"}};

}  // namespace

void SetButtonLooks(CLQButton& button, int element, const std::wstring& name) {
    for (const StateImage& image : kStates)
        button.SetImagePath(element, image.state, (name + image.ending).c_str());
}

}  // namespace korvane::demo
