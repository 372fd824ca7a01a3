#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/Simulation.h"
#include "platform/posix/files/Descriptor.h"

#include "tests/platform/PeerMessages.h"
#include "tests/platform/PeerProcess.h"
#include "tests/platform/TestWindow.h"
#include "tests/platform/posix/RuntimeFiles.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

// A stranger at the only endpoint there is.
class Stranger {
  public:
    Stranger() : socket_(socket(AF_UNIX, SOCK_SEQPACKET, 0)) {
        const std::vector<fs::path> sockets = RuntimeFiles(".socket");
        if (sockets.size() != 1) {
            ADD_FAILURE() << sockets.size() << " endpoints";
            return;
        }
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, sockets.front().c_str(), sizeof(address.sun_path) - 1);
        EXPECT_EQ(connect(socket_.Number(), reinterpret_cast<sockaddr*>(&address), sizeof(address)), 0);
    }

    bool Say(const std::string& bytes) const {
        return send(socket_.Number(), bytes.data(), bytes.size(), MSG_NOSIGNAL) ==
               static_cast<ssize_t>(bytes.size());
    }

  private:
    Descriptor socket_;
};

TEST(Endpoint, AppearsWithTheFirstTopLevelWindow) {
    PeerProcess peer;
    EXPECT_EQ(peer.Ask("find * nothing"), "none");
    EXPECT_TRUE(RuntimeFiles().empty());
    peer.Ask("window Korvane.Peer first");
    EXPECT_EQ(RuntimeFiles(".socket").size(), 1u);
    EXPECT_EQ(RuntimeFiles(".windows").size(), 1u);
    peer.Ask("window Korvane.Peer second");
    EXPECT_EQ(RuntimeFiles(".socket").size(), 1u);
}

TEST(Endpoint, CanBeEnteredByItsUserOnly) {
    const TestWindow window;
    for (const fs::path& file : RuntimeFiles()) {
        struct stat status {};
        ASSERT_EQ(lstat(file.c_str(), &status), 0);
        if (!S_ISSOCK(status.st_mode)) {
            EXPECT_EQ(status.st_mode & 0077, 0u) << file;
        }
    }
}

TEST(Endpoint, LeavesNothingBehind) {
    {
        PeerProcess peers[3];
        for (PeerProcess& peer : peers)
            peer.Ask("window Korvane.Peer passing");
        EXPECT_EQ(RuntimeFiles(".socket").size(), 3u);
    }
    EXPECT_TRUE(RuntimeFiles().empty());
}

TEST(Endpoint, OfAKilledProcessIsRemovedByTheNextThatLooks) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer killed");
    const HWND window = FindWindowW(nullptr, L"killed");
    ASSERT_NE(window, nullptr);
    peer.Kill();
    EXPECT_EQ(RuntimeFiles(".socket").size(), 1u);
    EXPECT_EQ(FindWindowW(nullptr, L"killed"), nullptr);
    EXPECT_TRUE(RuntimeFiles(".socket").empty());
    EXPECT_TRUE(RuntimeFiles(".windows").empty());
    EXPECT_FALSE(IsWindow(window));
}

TEST(Endpoint, IgnoresGarbage) {
    TestWindow window;
    const Stranger stranger;
    std::mt19937 random(20240229);
    for (int i = 0; i < 20000; ++i) {
        std::string bytes(1 + random() % 200, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        if (i % 3 == 0)
            bytes.replace(0, 8, std::string("KVWM\1\0\1\0", 8)).resize(40);
        ASSERT_TRUE(stranger.Say(bytes));
        if (i % 50 == 0)
            DrainQueue();
    }
    window.Forget();
    PeerProcess peer;
    peer.Ask("find Korvane.Test *");
    peer.Ask("post 1 2 3");
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_APP + 1});
}

TEST(Endpoint, IgnoresPacketsOfOtherSizes) {
    const TestWindow window;
    const Stranger stranger;
    std::string packet("KVWM\1\0\1\0", 8);
    const auto handle = static_cast<std::uint32_t>(reinterpret_cast<UINT_PTR>(window.Handle()));
    packet.append(reinterpret_cast<const char*>(&handle), 4);
    packet.append(std::string("\0\x80\0\0", 4));
    packet.resize(40);
    ASSERT_TRUE(stranger.Say(packet));
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_APP});
    ASSERT_TRUE(stranger.Say(packet + '\0'));
    ASSERT_TRUE(stranger.Say(packet.substr(0, 39)));
    ASSERT_TRUE(stranger.Say(std::string(60000, 'x')));
    packet[12] = 1;  // WM_CREATE, whose parameters are pointers
    packet[13] = 0;
    ASSERT_TRUE(stranger.Say(packet));
    EXPECT_TRUE(DrainQueue().empty());
}

TEST(Endpoint, SurvivesStrangersThatComeAndGo) {
    const TestWindow window;
    for (int i = 0; i < 300; ++i) {
        const Stranger stranger;
        stranger.Say("x");
        if (i % 7 == 0)
            DrainQueue();
    }
    PeerProcess peer;
    EXPECT_EQ(peer.Ask("find Korvane.Test *"), "Korvane.Test ");
    peer.Ask("post 1 2 3");
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_APP + 1});
}

TEST(Endpoint, DoesNotTakeDamagedListsForWindows) {
    PeerProcess peer;
    peer.Ask("window Korvane.Peer healthy");
    const fs::path folder = RuntimeFiles(".windows").front().parent_path();
    const std::string key = RuntimeFiles(".windows").front().filename().string().substr(0, 17);
    const fs::path foreign = folder / (key + "0123456789abcdef.windows");
    std::mt19937 random(20240229);
    for (int i = 0; i < 200; ++i) {
        std::string bytes(random() % 300, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        std::ofstream(foreign, std::ios::binary) << bytes;
        EXPECT_NE(FindWindowW(nullptr, L"healthy"), nullptr);
        EXPECT_EQ(FindWindowW(nullptr, L"sick"), nullptr);
        // Nobody holds its lock, so it is removed.
        EXPECT_FALSE(fs::exists(foreign));
    }
    fs::create_directory(foreign);
    const fs::path link = folder / (key + "1123456789abcdef.windows");
    fs::create_symlink("/dev/zero", link);
    EXPECT_NE(FindWindowW(nullptr, L"healthy"), nullptr);
    fs::remove(foreign);
    fs::remove(link);
}

TEST(Endpoint, IsNotOpenedInAFolderThatOthersMayEnter) {
    const OtherRuntimeFolder folder("open");
    fs::create_directory(folder.Path());
    fs::permissions(folder.Path(), fs::perms::owner_all | fs::perms::group_write);
    PeerProcess first;
    PeerProcess second;
    EXPECT_EQ(first.Ask("window Korvane.Peer first"), "ok");
    EXPECT_EQ(second.Ask("window Korvane.Peer second"), "ok");
    EXPECT_TRUE(fs::is_empty(folder.Path()));
    EXPECT_EQ(first.Ask("find * second"), "none");
    EXPECT_EQ(first.Ask("find * first"), "Korvane.Peer first");
    EXPECT_EQ(first.Ask("post 0 1 2"), "ok");
    EXPECT_EQ(first.Ask("take 1"), "taken 0:1:2");
}

TEST(Endpoint, IsNotOpenedBehindALink) {
    const OtherRuntimeFolder folder("link");
    const fs::path target = folder.Beside() / "target";
    fs::create_directory(target);
    fs::permissions(target, fs::perms::owner_all);
    fs::create_directory_symlink(target, folder.Path());
    PeerProcess peer;
    EXPECT_EQ(peer.Ask("window Korvane.Peer alone"), "ok");
    EXPECT_TRUE(fs::is_empty(target));
}

TEST(Endpoint, IsNotOpenedInTheFolderOfAnotherUser) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser can give a folder away";
    const OtherRuntimeFolder folder("foreign");
    fs::create_directory(folder.Path());
    fs::permissions(folder.Path(), fs::perms::owner_all);
    ASSERT_EQ(chown(folder.Path().c_str(), 12345, 12345), 0);
    PeerProcess peer;
    EXPECT_EQ(peer.Ask("window Korvane.Peer alone"), "ok");
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(Endpoint, IsNotOpenedBeneathAFile) {
    const OtherRuntimeFolder folder("file");
    std::ofstream(folder.Path()) << "no folder";
    PeerProcess peer;
    EXPECT_EQ(peer.Ask("window Korvane.Peer alone"), "ok");
    EXPECT_EQ(peer.Ask("find * alone"), "Korvane.Peer alone");
}

TEST(Endpoint, IsNotOpenedByAProcessThatMayOpenTooFewFiles) {
    // Its folder, list and socket, and two to wait with.
    constexpr int kNeeded = 5;
    for (int spare = 0; spare < kNeeded; ++spare) {
        int ready[2];
        int mayEnd[2];
        ASSERT_EQ(pipe(ready), 0);
        ASSERT_EQ(pipe(mayEnd), 0);
        const pid_t process = fork();
        if (process == 0) {
            close(mayEnd[1]);
            const int next = dup(ready[1]);
            close(next);
            const auto most = static_cast<rlim_t>(next + spare);
            const rlimit limit{most, most};
            setrlimit(RLIMIT_NOFILE, &limit);
            const TestWindow window;
            PostMessageW(window.Handle(), WM_APP, 0, 0);
            const bool works = DrainQueue() == std::vector<UINT>{WM_APP};
            char byte = 0;
            _exit(write(ready[1], &byte, 1) == 1 && read(mayEnd[0], &byte, 1) == 0 && works ? 0 : 1);
        }
        char byte = 0;
        EXPECT_EQ(read(ready[0], &byte, 1), 1);
        EXPECT_EQ(FindWindowW(TestWindow::ClassName(), nullptr), nullptr) << spare;
        EXPECT_TRUE(RuntimeFiles().empty()) << spare;
        for (const int end : {ready[0], ready[1], mayEnd[0], mayEnd[1]})
            close(end);
        int status = 0;
        waitpid(process, &status, 0);
        EXPECT_EQ(status, 0) << spare;
    }
}

TEST(Endpoint, OpensInAFolderWithALongPath) {
    fs::path name;
    for (int i = 0; i < 4; ++i)
        name /= std::string(50, 'a');
    const OtherRuntimeFolder folder(name);
    fs::create_directories(folder.Path().parent_path());
    PeerProcess peer;
    peer.Ask("window Korvane.Peer deep");
    PeerProcess other;
    EXPECT_EQ(other.Ask("find Korvane.Peer deep"), "Korvane.Peer deep");
    EXPECT_EQ(other.Ask("post 0 1 2"), "ok");
    EXPECT_EQ(peer.Ask("take 1"), "taken 0:1:2");
}

TEST(Endpoint, BelongsToTheDeviceRootOfItsFirstWindow) {
    PeerProcess peer;
    peer.Ask("root /tmp/another-device");
    peer.Ask("window Korvane.Peer elsewhere");
    EXPECT_EQ(FindWindowW(nullptr, L"elsewhere"), nullptr);
    SetDeviceRoot("/tmp/another-device/");
    EXPECT_NE(FindWindowW(nullptr, L"elsewhere"), nullptr);
    peer.Ask("root /tmp/third-device");
    peer.Ask("window Korvane.Peer second");
    EXPECT_NE(FindWindowW(nullptr, L"second"), nullptr);
    // Another root counts once all windows have gone.
    peer.Ask("destroy 0");
    peer.Ask("destroy 1");
    peer.Ask("window Korvane.Peer third");
    EXPECT_EQ(FindWindowW(nullptr, L"third"), nullptr);
    SetDeviceRoot("/tmp/third-device");
    EXPECT_NE(FindWindowW(nullptr, L"third"), nullptr);
    SetDeviceRoot("");
}

TEST(Endpoint, EndsWithItsProcessThoughAForkedCopyLives) {
    int lives[2];
    int mayEnd[2];
    ASSERT_EQ(pipe(lives), 0);
    ASSERT_EQ(pipe(mayEnd), 0);
    // The window's process is a copy of this one, and has a copy itself that outlives it.
    const pid_t process = fork();
    if (process == 0) {
        const TestWindow window;
        char byte = 0;
        if (fork() == 0) {
            close(mayEnd[1]);
            _exit(write(lives[1], &byte, 1) == 1 && read(mayEnd[0], &byte, 1) == 0 ? 0 : 1);
        }
        _exit(read(lives[0], &byte, 1) == 1 ? 0 : 1);
    }
    int status = 0;
    waitpid(process, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(RuntimeFiles(".windows").size(), 1u);
    EXPECT_EQ(FindWindowW(TestWindow::ClassName(), nullptr), nullptr);
    EXPECT_TRUE(RuntimeFiles(".windows").empty());
    for (const int end : {lives[0], lives[1], mayEnd[0], mayEnd[1]})
        close(end);
}

TEST(Endpoint, OfAForkedCopyIsItsOwn) {
    const TestWindow window;
    const pid_t copy = fork();
    if (copy == 0) {
        const TestWindow another;
        _exit(RuntimeFiles(".socket").size() == 2 ? 0 : 1);
    }
    int status = 0;
    waitpid(copy, &status, 0);
    EXPECT_EQ(status, 0);
    PeerProcess peer;
    EXPECT_EQ(peer.Ask("find Korvane.Test *"), "Korvane.Test ");
    EXPECT_EQ(RuntimeFiles(".socket").size(), 1u);
    peer.Ask("post 1 2 3");
    EXPECT_EQ(DrainQueue(), std::vector<UINT>{WM_APP + 1});
}

}  // namespace
}  // namespace korvane
