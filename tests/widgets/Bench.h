#pragma once

#include <gtest/gtest.h>
#include <string>

#include "engine/Korvane.h"

#include "tests/support/Scene.h"

namespace korvane::test {

constexpr std::uint32_t kBlack = 0xFF000000;
constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kGreen = 0xFF00FF00;
constexpr std::uint32_t kBlue = 0xFF0000FF;
constexpr std::uint32_t kYellow = 0xFFFFFF00;

inline _LQColor ColorOf(std::uint32_t pixel) {
    return {static_cast<unsigned char>(pixel >> 16), static_cast<unsigned char>(pixel >> 8),
            static_cast<unsigned char>(pixel), static_cast<unsigned char>(pixel >> 24)};
}

/// A surface of one colour.
inline CLQSurfHandle Plain(int width, int height, std::uint32_t pixel) {
    CLQSurfHandle surface =
        CLQSurfManager::GetInstance()->CreateSurface(width, height, eSurface_ARGB8888, true);
    _LQColor color = ColorOf(pixel);
    surface.FillRect(0, 0, width, height, color, false);
    return surface;
}

/// A screen of 200 by 100 with a black window over all of it.
class WidgetsTest : public ::testing::Test {
  protected:
    WidgetsTest() : scene(200, 100) {
        window.Create(0, 0, 200, 100);
        _LQColor black;
        window.EnableBkgColor(true, &black);
        scene.Pump();
    }

    /// Puts an image of one colour into the image folder.
    void MakeImage(const std::string& name, int width, int height, std::uint32_t pixel) {
        CLQSurfHandle surface = Plain(width, height, pixel);
        WriteImage(scene.ImageFolder() / name, surface);
    }

    /// Number of pixels on the screen, inside the edges, that are not black.
    int Marks(int left, int top, int right, int bottom) const {
        int marks = 0;
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x)
                marks += scene.PixelAt(x, y) != kBlack;
        }
        return marks;
    }
    /// Column of the leftmost such pixel, -1 when there is none.
    int FirstColumn(int left, int top, int right, int bottom) const {
        for (int x = left; x < right; ++x) {
            if (Marks(x, top, x + 1, bottom) > 0)
                return x;
        }
        return -1;
    }
    int LastColumn(int left, int top, int right, int bottom) const {
        for (int x = right - 1; x >= left; --x) {
            if (Marks(x, top, x + 1, bottom) > 0)
                return x;
        }
        return -1;
    }

    Scene scene;
    CLQWindow window;
};

inline _LQMessage Pointer(MessageCode code, int x, int y) {
    _LQMessage msg;
    msg.code = code;
    msg.x = x;
    msg.y = y;
    return msg;
}

}  // namespace korvane::test
