#include "engine/widgets/elements/TextLine.h"

#include <algorithm>

#include "engine/text/FontManager.h"
#include "engine/widgets/layout/LayoutArchive.h"

namespace korvane {

namespace {

constexpr int kMaxFontSize = 512;

template <class Value>
bool Store(Value& stored, const Value& value) {
    if (stored == value)
        return false;
    stored = value;
    return true;
}

}  // namespace

void PlaceText(const _LQRect& area, const TextExtent& extent, int style, int& x, int& y) {
    const int spareWidth = area.right - area.left - extent.width;
    x = area.left;
    if (spareWidth > 0) {
        if (style & eText_HCenter)
            x += spareWidth / 2;
        else if (style & eText_Right)
            x += spareWidth;
    }
    const int spareHeight = area.bottom - area.top - extent.height;
    y = area.top;
    if (style & eText_VCenter)
        y += spareHeight / 2;
    else if (style & eText_Bottom)
        y += spareHeight;
}

bool TextLine::SetText(const wchar_t* text) {
    if (!text)
        text = L"";
    if (text_ == text)
        return false;
    // By way of a copy: the new text may lie inside the old one.
    text_ = std::wstring(text);
    return true;
}

bool TextLine::SetFont(CLQFont* font) {
    if (font_ == font && face_.empty())
        return false;
    font_ = font;
    face_.clear();
    return true;
}

bool TextLine::SetFontName(const wchar_t* face) {
    if (!face || !*face)
        return SetFont(nullptr);
    if (face_ == face)
        return false;
    face_ = std::wstring(face);
    font_ = nullptr;
    return true;
}

bool TextLine::SetFontSize(int width, int height) {
    const bool widthChanged = Store(fontWidth_, std::clamp(width, 1, kMaxFontSize));
    const bool heightChanged = Store(fontHeight_, std::clamp(height, 1, kMaxFontSize));
    return widthChanged || heightChanged;
}

bool TextLine::SetStyle(int style) {
    return Store(style_, style);
}

CLQFont* TextLine::SizedFont() {
    if (!font_) {
        CLQFontManager* fonts = CLQFontManager::GetInstance();
        font_ = face_.empty() ? fonts->GetDefaultFont() : fonts->GetFont(face_.c_str());
    }
    font_->SetFontSize(fontWidth_, fontHeight_);
    return font_;
}

TextExtent TextLine::Measure() {
    TextExtent extent;
    if (!text_.empty())
        SizedFont()->GetStringSize(text_.c_str(), extent.width, extent.height, false);
    return extent;
}

void TextLine::Draw(CLQSurfHandle& target, const _LQRect& area, const TextExtent& extent, int shift,
                    const _LQColor& color) {
    if (text_.empty())
        return;
    int x = 0;
    int y = 0;
    PlaceText(area, extent, style_, x, y);
    _LQRect clip = area;
    _LQColor ink = color;
    target.DrawTextW(text_.c_str(), SizedFont(), x + shift, y, 0, ink, &clip, 0);
}

void TextLine::ExchangeLooks(LayoutArchive& archive) {
    archive.Text(L"font", face_, [this](const std::wstring& face) { SetFontName(face.c_str()); });
    archive.Number(L"fontwidth", fontWidth_, [this](int width) { SetFontSize(width, fontHeight_); });
    archive.Number(L"fontheight", fontHeight_, [this](int height) { SetFontSize(fontWidth_, height); });
    archive.Number(L"style", style_, [this](int style) { SetStyle(style); });
}

}  // namespace korvane
