#include <cstdlib>
#include <gtest/gtest.h>

#include "sysinfo/MainApplication.h"
#include "sysinfo/SysInfoFields.h"

#include "tests/demo/processes/ProcessBench.h"

namespace korvane::test {

namespace {

/// What the main application says when keys are to beep again and again.
class KeyBeeps : public ProcessBench {
  protected:
    std::string ComplaintsWith(const char* audioDriver) {
        constexpr int kDisc = 4;
        setenv("SDL_AUDIODRIVER", audioDriver, 1);
        const auto mainApplication = StartMainApplication();
        const HWND window = FindWindowW(nullptr, kMainWindowName);
        for (int i = 0; i < 3; ++i)
            PostMessageW(window, kMainKeyBeep, 0, 0);
        // It does this after the beeps.
        ForgetItems();
        EXPECT_TRUE(PostMessageW(window, kMainSourceChosen, 1, kDisc));
        EXPECT_TRUE(AwaitItem(kItemSource));
        mainApplication->Kill();
        mainApplication->Wait();
        return mainApplication->Errors();
    }
};

}  // namespace

TEST_F(KeyBeeps, AreReportedMissingOnceWhereThereIsNoSoundDevice) {
    EXPECT_EQ(ComplaintsWith("no-such-driver"), "main application: no sound device, so keys do not beep\n");
}

TEST_F(KeyBeeps, SoundWithoutAWordWhereThereIsOne) {
    EXPECT_EQ(ComplaintsWith("dummy"), "");
}

}  // namespace korvane::test
