#include "demo/headunit/menu/MenuTile.h"

#include <cwchar>
#include <iterator>
#include <string>

namespace korvane::demo {

namespace {

constexpr int kImageWidth = 228;
constexpr int kImageHeight = 132;
constexpr int kImageEdge = 4;
constexpr int kImageMs = 100;
constexpr int kCaptionTop = 136;
constexpr int kCaptionHeight = 44;

/// The sides of the frame, in the order of eBorderDirection.
struct Side {
    const wchar_t* name;
    int x;
    int y;
};
constexpr Side kSides[] = {{L"MenuFrameLeft", 0, 20},
                           {L"MenuFrameTop", 0, 0},
                           {L"MenuFrameRight", 232, 20},
                           {L"MenuFrameBottom", 0, 164}};

CLQSurfHandle FirstImage(const wchar_t* pattern) {
    wchar_t file[64] = L"";
    std::swprintf(file, std::size(file), pattern, 1);
    return CLQSurfManager::GetInstance()->CreateSurface(file, true);
}

}  // namespace

void MenuTile::SetUp(int x, int y, const Picture& picture, int caption) {
    Create(x, y, kWidth, kHeight);
    moves_ = picture.images > 1;
    SetImagePos(kImageEdge, kImageEdge);
    SetImage(picture.pattern, picture.images, kImageWidth, kImageHeight, kImageMs);
    Play(false);
    SetPressedShaderSurf(L"MenuShade.lqi");
    SetRectAshSurf(L"MenuVeil.lqi");
    SetCurSourceSurf(L"MenuPlaying.lqi");
    AddFrame();
    AddCaption(caption);
    EnableFocus(true);
    if (moves_) {
        firstImage_ = FirstImage(picture.pattern);
        AddCallBack(kEventLongPress, this, &MenuTile::OnLongPress);
    }
}

void MenuTile::AddFrame() {
    for (int i = 0; i < static_cast<int>(std::size(kSides)); ++i) {
        const Side& side = kSides[i];
        const std::wstring name = side.name;
        SetBorderSurf((name + L"_f.lqi").c_str(), side.x, side.y,
                      static_cast<eBorderDirection>(eBorder_FocusLeft + i));
        SetBorderSurf((name + L"_n.lqi").c_str(), side.x, side.y,
                      static_cast<eBorderDirection>(eBorder_Left + i));
    }
}

void MenuTile::AddCaption(int caption) {
    SetTextShaderSurf(L"MenuCaption.lqi");
    SetTextPos(kWidth / 2, kCaptionTop + kCaptionHeight / 2);
    // The tile owns it.
    auto* const text = new CLQTextElement;
    text->SetRect(0, kCaptionTop, kWidth, kCaptionHeight);
    // The veil dims it further.
    _LQColor dimmed = {190, 200, 216, 255};
    text->SetTextColor(eImage_Disabled, dimmed);
    text->SetLangID(caption);
    BindTextElement(text);
}

void MenuTile::DimOut() {
    EnableDesableState(true);
    EnableRectAshSurf(true);
}

void MenuTile::OnLongPress() {
    if (IsDesableState())
        return;
    isStill_ = !isStill_;
    CLQSurfHandle none;
    SetThumbNail(isStill_ ? firstImage_ : none);
}

}  // namespace korvane::demo
