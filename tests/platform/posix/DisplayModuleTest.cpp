#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "platform/Display.h"

namespace korvane {
namespace {

TEST(DisplayModule, IsNotLoadedForTheMemoryDisplay) {
    const std::unique_ptr<Display> display = CreateDisplay("memory");
    std::ifstream maps("/proc/self/maps");
    const std::string loaded(std::istreambuf_iterator<char>(maps), {});
    ASSERT_FALSE(loaded.empty());
    EXPECT_EQ(loaded.find("SDL"), std::string::npos);
}

TEST(DisplayModule, IsTheOneThatAUserSees) {
    EXPECT_STREQ(DefaultDisplay(), "sdl");
}

}  // namespace
}  // namespace korvane
