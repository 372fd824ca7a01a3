#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

#include "demo/headunit/HeadUnit.h"
#include "demo/mainapp/MainApplication.h"
#include "tests/demo/DemoScene.h"
#include "tools/systemservice/SystemService.h"

namespace korvane::demo {

/// Where on the screen something is.
struct Place {
    int x;
    int y;
};
constexpr Place kBackButton = {100, 30};
constexpr Place kMenuButton = {88, 453};

/// What a head unit shows whose top-left corner is there on the screen, row by row.
inline std::vector<std::uint32_t> PixelsIn(const test::Scene& scene, Place corner) {
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < HeadUnit::kHeight; ++y) {
        for (int x = 0; x < HeadUnit::kWidth; ++x)
            pixels.push_back(scene.PixelAt(corner.x + x, corner.y + y));
    }
    return pixels;
}

/// The head unit with the main application in its own process.
class HeadUnitBench : public testing::Test {
  protected:
    HeadUnitBench() : mainApplication_(MainApplication::KeyBeep::Silent) {
        mainApplication_.Start();
        headUnit_.emplace();
        headUnit_->Create(0, 0);
        scene_.Pump();
    }

    void Touch(Place place) { scene_.Touch(place.x, place.y); }
    void Set(const wchar_t* field, int value) {
        ASSERT_TRUE(service_.SetValue(field, value));
        scene_.Pump();
    }
    int Get(const wchar_t* field) { return service_.Value(field, -1); }

    test::DemoScene scene_;
    tools::SystemService service_;
    MainApplication mainApplication_;
    std::optional<HeadUnit> headUnit_;
};

}  // namespace korvane::demo
