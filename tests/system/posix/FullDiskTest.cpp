#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "engine/system/IniReadWrite.h"

#include "tests/system/ScratchDevice.h"

namespace {

/// While it lives, nothing can be written to any file, whoever runs the test.
class FullDisk {
  public:
    FullDisk() : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &oldLimit_);
        rlimit none = oldLimit_;
        none.rlim_cur = 0;
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &oldLimit_);
        std::signal(SIGXFSZ, oldHandler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    void (*oldHandler_)(int);
    rlimit oldLimit_ = {};
};

}  // namespace

TEST(IniOnAFullDisk, KeepsTheOldFileAndThePendingValues) {
    const ScratchDevice device;
    device.Write("folder/x.ini", "[a]\nx=1\n");
    CLQIniReadWrite ini;
    ini.SetFileName(L"folder\\x.ini");
    ASSERT_TRUE(ini.SetValue(L"a", L"x", 2, true));
    {
        const FullDisk fullDisk;
        ini.Update();
    }
    EXPECT_EQ(device.Read("folder/x.ini"), "[a]\nx=1\n");
    EXPECT_EQ(device.CountEntries("folder"), 1);
    EXPECT_EQ(ini.GetInt(L"a", L"x", 0), 2);
    ini.Update();
    EXPECT_EQ(device.Read("folder/x.ini"), "[a]\nx=2\n");
}
