#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "tests/platform/PeerProcess.h"
#include "tests/platform/TestWindow.h"
#include "tests/platform/posix/RuntimeFiles.h"

namespace korvane {
namespace {

TEST(EndpointCrash, MayComeWhileManyStart) {
    constexpr int kProcesses = 100;
    std::vector<std::unique_ptr<PeerProcess>> peers;
    for (int i = 0; i < kProcesses; ++i) {
        peers.push_back(std::make_unique<PeerProcess>());
        peers.back()->Say("window Korvane.Peer title" + std::to_string(i));
        if (i % 10 == 9)
            peers[static_cast<std::size_t>(i) - 5]->Kill();
    }
    for (int i = 0; i < kProcesses; ++i) {
        if (i % 10 != 4) {
            EXPECT_EQ(peers[static_cast<std::size_t>(i)]->Hear(), "ok");
        }
    }
    for (int i = 0; i < kProcesses; ++i) {
        const std::wstring title = L"title" + std::to_wstring(i);
        EXPECT_EQ(FindWindowW(nullptr, title.c_str()) != nullptr, i % 10 != 4) << i;
    }
    EXPECT_EQ(RuntimeFiles(".socket").size(), 90u);
    peers.clear();
    EXPECT_TRUE(RuntimeFiles().empty());
}

}  // namespace
}  // namespace korvane
