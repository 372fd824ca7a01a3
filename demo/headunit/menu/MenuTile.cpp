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
    const wchar_t* nameWithHandle;
    int x;
    int y;
};
constexpr Side kSides[] = {{L"MenuFrameLeft", L"MenuFrameLeft", 0, 20},
                           {L"MenuFrameTop", L"MenuHandle", 0, 0},
                           {L"MenuFrameRight", L"MenuFrameRight", 232, 20},
                           {L"MenuFrameBottom", L"MenuFrameBottom", 0, 164}};

CLQSurfHandle LoadImageOf(const std::wstring& file) {
    return CLQSurfManager::GetInstance()->CreateSurface(file.c_str(), true);
}

CLQSurfHandle FirstImage(const wchar_t* pattern) {
    wchar_t file[64] = L"";
    std::swprintf(file, std::size(file), pattern, 1);
    return LoadImageOf(file);
}

}  // namespace

void MenuTile::SetUp(const Picture& picture, int caption) {
    Create(0, 0, kWidth, kHeight);
    moves_ = picture.images > 1;
    if (moves_)
        firstImage_ = FirstImage(picture.pattern);
    SetImagePos(kImageEdge, kImageEdge);
    SetImage(picture.pattern, picture.images, kImageWidth, kImageHeight, kImageMs);
    Play(false);
    SetPressedShaderSurf(L"MenuShade.lqi");
    SetCurSourceSurf(L"MenuPlaying.lqi");
    UpdateFrame();
    AddCaption(caption);
    EnableFocus(true);
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

void MenuTile::Play(bool play) {
    plays_ = play;
    EnableImagePlay(plays_ && moves_ && !IsDesableState());
}

void MenuTile::ShowDimmed(bool dimmed) {
    if (IsDesableState() == dimmed)
        return;
    EnableDesableState(dimmed);
    Play(plays_);
    UpdateVeil();
}

void MenuTile::ShowHandle(bool show) {
    hasHandle_ = show;
    if (moves_) {
        CLQSurfHandle none;
        SetThumbNail(show ? firstImage_ : none);
    }
    UpdateFrame();
}

void MenuTile::ShowInHand(bool show) {
    isInHand_ = show;
    UpdateFrame();
    UpdateVeil();
}

void MenuTile::UpdateFrame() {
    const std::wstring normal = isInHand_ ? L"_p.lqi" : L"_n.lqi";
    for (int i = 0; i < static_cast<int>(std::size(kSides)); ++i) {
        const Side& side = kSides[i];
        const std::wstring name = hasHandle_ ? side.nameWithHandle : side.name;
        CLQSurfHandle plain = LoadImageOf(name + normal);
        CLQSurfHandle focused = LoadImageOf(name + L"_f.lqi");
        SetBorderSurf(plain, side.x, side.y, static_cast<eBorderDirection>(eBorder_Left + i));
        SetBorderSurf(focused, side.x, side.y, static_cast<eBorderDirection>(eBorder_FocusLeft + i));
    }
    Invalidate();
}

/// A tile in hand stays shaded as if it were pressed.
void MenuTile::UpdateVeil() {
    SetRectAshSurf(isInHand_ ? L"MenuShade.lqi" : L"MenuVeil.lqi");
    EnableRectAshSurf(isInHand_ || IsDesableState());
    Invalidate();
}

}  // namespace korvane::demo
