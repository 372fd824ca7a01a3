#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/Display.h"

#include "tests/platform/TestWindow.h"

namespace korvane {
namespace {

// A picture in which every pixel differs.
std::vector<std::uint32_t> Picture(int width, int height) {
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = 0xFF000000 | static_cast<std::uint32_t>(i);
    return pixels;
}

TEST(MemoryDisplay, ShowsWhatWasPresentedAndNothingElse) {
    const std::unique_ptr<Display> display = CreateDisplay("memory");
    ASSERT_NE(display, nullptr);
    EXPECT_EQ(display->Shown(), nullptr);
    ASSERT_TRUE(display->Open(8, 4, L"", nullptr));
    const std::vector<std::uint32_t> picture = Picture(10, 4);
    display->Present(picture.data(), 10, 2, 1, 5, 3);
    const std::uint32_t* shown = display->Shown();
    ASSERT_NE(shown, nullptr);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 8; ++x) {
            const bool presented = x >= 2 && x < 5 && y >= 1 && y < 3;
            EXPECT_EQ(shown[y * 8 + x],
                      presented ? picture[static_cast<std::size_t>(y * 10 + x)] : 0xFF000000)
                << x << ", " << y;
        }
    }
}

TEST(MemoryDisplay, CutsWhatLiesOffTheScreen) {
    const std::unique_ptr<Display> display = CreateDisplay("memory");
    ASSERT_TRUE(display->Open(8, 4, nullptr, nullptr));
    const std::vector<std::uint32_t> picture = Picture(8, 4);
    display->Present(picture.data(), 8, -1000, -1000, 1000, 1000);
    EXPECT_EQ(std::vector<std::uint32_t>(display->Shown(), display->Shown() + 32), picture);
    display->Present(picture.data(), 8, 5, 3, 2, 1);
    display->Present(nullptr, 8, 0, 0, 8, 4);
}

TEST(MemoryDisplay, RefusesASizeThatNoScreenHas) {
    const std::unique_ptr<Display> display = CreateDisplay("memory");
    EXPECT_FALSE(display->Open(0, 4, L"", nullptr));
    EXPECT_FALSE(display->Open(4, -1, L"", nullptr));
    EXPECT_FALSE(display->Open(16385, 1, L"", nullptr));
    EXPECT_STRNE(DisplayFailure(), "");
}

TEST(MemoryDisplay, HasItsOwnerPaintedAllTheSame) {
    TestWindow::Options unseen;
    unseen.style = WS_POPUP;
    const TestWindow owner(unseen);
    const std::unique_ptr<Display> display = CreateDisplay("memory");
    ASSERT_TRUE(display->Open(320, 200, L"", owner.Handle()));
    EXPECT_TRUE(IsWindowVisible(owner.Handle()));
    DrainQueue();
    ValidateRect(owner.Handle(), nullptr);
    InvalidateRect(owner.Handle(), nullptr, FALSE);
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_PAINT});
}

TEST(Display, OfAnUnknownNameDoesNotExist) {
    EXPECT_EQ(CreateDisplay("unheardof"), nullptr);
    EXPECT_NE(std::string(DisplayFailure()).find("unheardof"), std::string::npos);
    EXPECT_EQ(CreateDisplay("../sdl"), nullptr);
    EXPECT_EQ(CreateDisplay(""), nullptr);
    EXPECT_EQ(CreateDisplay(nullptr), nullptr);
}

}  // namespace
}  // namespace korvane
