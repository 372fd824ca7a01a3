#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "controls/SliderExCtrl.h"

#include "tests/controls/dials/Surfaces.h"
#include "tests/support/Scene.h"

namespace korvane::test {

constexpr int kBarX = 20;
constexpr int kBarY = 10;
constexpr int kBarWidth = 340;
constexpr int kBarHeight = 100;
constexpr int kBarLeftInset = 8;
constexpr int kBarTopInset = 40;
constexpr int kBarTrackOffset = 6;
constexpr int kBarThumbOffset = 56;
constexpr int kThumbSize = 20;
/// The range, and the way of the thumb: a second is a pixel.
constexpr int kBarSeconds = 300;
/// The left edge of the images, and position 0 of the track, on the screen.
constexpr int kBarImageLeft = kBarX + kBarLeftInset;
constexpr int kBarTrackLeft = kBarImageLeft + kBarTrackOffset;
constexpr int kIconTop = 22;

/// A progress bar that lets tests read what a derived class can read.
class TestProgress : public CLQSliderExCtrl {
  public:
    int A() const { return m_nReapetA; }
    int B() const { return m_nReapetB; }
    int APos() const { return m_nReapetAPos; }
    int BPos() const { return m_nReapetBPos; }
    bool IsAShown() const { return m_bReapetAShow; }
    bool IsBShown() const { return m_bReapetBShow; }
    int IconOffset() const { return m_nReapetIconOffset; }
    CLQSurfHandle& Band() { return m_surfReapetBkg; }
    CLQSurfHandle& ActiveBand() { return m_surfReapetBkgActive; }
    CLQSurfHandle& AIcon() { return m_surfReapetA; }
    CLQSurfHandle& BIcon() { return m_surfReapetB; }
    const std::wstring& BandFile() const { return m_strReapetBkg; }
    const std::wstring& ActiveBandFile() const { return m_strReapetBkgActive; }
    const std::wstring& AFile() const { return m_strReapetA; }
    const std::wstring& BFile() const { return m_strReapetB; }

    /// Sets the slider up as an application does; the images are those of `WriteProgressImages`.
    void Prepare() {
        Create(kBarX, kBarY, kBarWidth, kBarHeight);
        SetInset(kBarLeftInset, kBarTopInset);
        SetTrackOffset(kBarTrackOffset);
        SetThumbOffset(kBarThumbOffset);
        SetRange(0, kBarSeconds);
        SetBkgSurf(L"Track.lqi");
        SetFillSurf(L"Fill.lqi");
        SetThumbSurf(L"Thumb.lqi");
        SetThumbPressedSurf(L"ThumbPressed.lqi");
        SetReapetBkgSurf(L"Band.lqi");
        SetReapetASurf(L"A.lqi");
        SetReapetBSurf(L"B.lqi");
        SetReapetIconOffset(kIconTop);
    }
};

inline CLQSurfHandle TrackImage() {
    CLQSurfHandle image = NewSurface(400, 80);
    _LQColor rail = {70, 86, 110, 255};
    image.FillRect(6, 22, 326, 30, rail, false);
    return image;
}

inline CLQSurfHandle FillImage() {
    CLQSurfHandle image = NewSurface(400, 80);
    _LQColor light = {57, 208, 242, 255};
    image.FillRect(6, 24, 400, 28, light, false);
    return image;
}

/// No two columns next to each other are alike.
inline CLQSurfHandle BandImage(unsigned char red) {
    CLQSurfHandle image = NewSurface(400, 80);
    for (int x = 0; x < 400; ++x) {
        _LQColor column = {red, static_cast<unsigned char>(80 + x % 160), 40, 255};
        image.FillRect(x, 18, x + 1, 34, column, false);
    }
    return image;
}

inline CLQSurfHandle ThumbImage() {
    return Filled(kThumbSize, kThumbSize, {233, 248, 253, 255});
}

inline CLQSurfHandle PressedThumbImage() {
    return Filled(kThumbSize, kThumbSize + 4, {255, 200, 90, 255});
}

/// The icons are of even and of odd width.
inline CLQSurfHandle AImage() {
    return Filled(14, 24, {90, 220, 120, 255});
}

inline CLQSurfHandle BImage() {
    return Filled(15, 24, {250, 110, 90, 255});
}

inline void WriteProgressImages(const std::filesystem::path& folder) {
    const auto write = [&folder](const char* name, CLQSurfHandle image) { WriteImage(folder / name, image); };
    write("Track.lqi", TrackImage());
    write("Fill.lqi", FillImage());
    write("Thumb.lqi", ThumbImage());
    write("ThumbPressed.lqi", PressedThumbImage());
    write("Band.lqi", BandImage(200));
    write("OtherBand.lqi", BandImage(20));
    write("A.lqi", AImage());
    write("B.lqi", BImage());
}

inline CLQSurfHandle ProgressCanvas() {
    return Filled(420, 460, {20, 30, 48, 255});
}

/// What the slider paints without a window.
inline std::vector<std::uint32_t> LooksOf(CLQSliderExCtrl& slider) {
    CLQSurfHandle canvas = ProgressCanvas();
    slider.Draw(canvas);
    return PixelsOf(canvas);
}

}  // namespace korvane::test
