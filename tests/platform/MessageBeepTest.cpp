#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <thread>
#include <vector>

#include "tests/platform/StoppedClock.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

// What SDL's driver that writes into a file has written so far.
std::vector<std::int16_t> Written(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    std::vector<std::int16_t> samples(bytes.size() / 2);
    std::copy_n(bytes.begin(), samples.size() * 2, reinterpret_cast<char*>(samples.data()));
    return samples;
}

bool IsSound(std::int16_t sample) {
    return sample != 0;
}

// The sound from its first sample to its last, once silence has followed it.
std::vector<std::int16_t> WholeSound(const fs::path& file) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (std::chrono::steady_clock::now() < deadline) {
        const std::vector<std::int16_t> samples = Written(file);
        const auto first = std::find_if(samples.begin(), samples.end(), IsSound);
        const auto last = std::find_if(samples.rbegin(), samples.rend(), IsSound).base();
        if (first != samples.end() && samples.end() - last > 1000)
            return {first, last};
        std::this_thread::yield();
    }
    return {};
}

// Opening a device may take longer than the first call waits for it.
bool IsSilentInTheEnd() {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (MessageBeep(0)) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::yield();
    }
    return true;
}

TEST(MessageBeep, SoundsForEightyMilliseconds) {
    const fs::path file = fs::path(testing::TempDir()) / "korvane-beep.raw";
    fs::remove(file);
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", file.c_str(), 1);
    ASSERT_TRUE(MessageBeep(0));
    const std::vector<std::int16_t> sound = WholeSound(file);
    // The very first and last samples round to silence.
    EXPECT_NEAR(static_cast<double>(sound.size()), 3840.0, 60.0);
    ASSERT_GT(sound.size(), 3000u);
    EXPECT_NEAR(*std::max_element(sound.begin(), sound.end()), 8191, 2);
    EXPECT_NEAR(*std::min_element(sound.begin(), sound.end()), -8191, 2);
    // A thousand periods a second cross zero twice each.
    int crossings = 0;
    int steepest = 0;
    for (std::size_t i = 1; i < sound.size(); ++i) {
        crossings += (sound[i] < 0) != (sound[i - 1] < 0) ? 1 : 0;
        steepest = std::max(steepest, std::abs(sound[i] - sound[i - 1]));
    }
    EXPECT_NEAR(crossings, 160, 4);
    // No step is steeper than the sine itself, so that nothing clicks.
    EXPECT_LE(steepest, 1080);
    fs::remove(file);
}

TEST(MessageBeep, ReturnsBeforeTheSoundHasEnded) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    ASSERT_TRUE(MessageBeep(0));
    const auto before = std::chrono::steady_clock::now();
    for (int i = 0; i < 1000; ++i)
        ASSERT_TRUE(MessageBeep(0));
    // A thousand tones would last eighty seconds.
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(5));
}

TEST(MessageBeep, FailsQuietlyWithoutADevice) {
    setenv("SDL_AUDIODRIVER", "no such driver", 1);
    testing::internal::CaptureStderr();
    EXPECT_TRUE(IsSilentInTheEnd());
    EXPECT_FALSE(MessageBeep(0));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(MessageBeep, FailsQuietlyWithoutASoundCard) {
    if (fs::exists("/dev/snd"))
        GTEST_SKIP() << "there may be one";
    setenv("SDL_AUDIODRIVER", "alsa", 1);
    testing::internal::CaptureStderr();
    EXPECT_TRUE(IsSilentInTheEnd());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(MessageBeep, IsNotHeardUnderTheManualClock) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    const StoppedClock clock;
    EXPECT_FALSE(MessageBeep(0));
}

}  // namespace
}  // namespace korvane
