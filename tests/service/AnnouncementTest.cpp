#include <string>
#include <vector>

#include "platform/Unicode.h"
#include "sysinfo/SysInfoFields.h"

#include "tests/service/ServiceDevice.h"
#include "tests/support/OtherProcess.h"

namespace korvane::test {
namespace {

constexpr UINT kSysInfoChanged = 1191;

/// A device with a screen and the main application, both in this process.
class Announcement : public ServiceDevice {
  protected:
    Announcement()
        : screen(Open(L"KorvaneScreen", L"Head unit")), main(Open(L"NavigRecive", L"NavigRecive")) {}
    ~Announcement() override {
        DestroyWindow(screen);
        DestroyWindow(main);
    }

    static HWND Open(const wchar_t* windowClass, const wchar_t* title) {
        WNDCLASSW description = {};
        description.lpfnWndProc = &DefWindowProcW;
        description.lpszClassName = windowClass;
        RegisterClassW(&description);
        return CreateWindowExW(0, windowClass, title, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr,
                               nullptr);
    }

    /// The items that a window was told of since the last call.
    static std::vector<int> ItemsAt(HWND window) {
        std::vector<int> items;
        MSG msg = {};
        while (PeekMessageW(&msg, window, kSysInfoChanged, kSysInfoChanged, PM_REMOVE)) {
            EXPECT_EQ(msg.lParam, 0);
            items.push_back(static_cast<int>(msg.wParam));
        }
        return items;
    }

    using Items = std::vector<int>;

    HWND screen;
    HWND main;
};

TEST_F(Announcement, TellsTheScreenAndTheMainApplicationOfEachItem) {
    for (const SysInfoField& field : kSysInfoFields) {
        ASSERT_EQ(setSetupValue(field.name, 1), 1);
        EXPECT_EQ(ItemsAt(screen), Items{field.item});
        EXPECT_EQ(ItemsAt(main), Items{field.item});
    }
}

TEST_F(Announcement, ComesAfterTheChange) {
    EXPECT_EQ(setSetupValue(L"afState", 1), 1);
    EXPECT_EQ(setSetupValue(L"afState", 2), 1);
    EXPECT_EQ(getSysInfo()->afState, 2);
    EXPECT_EQ(ItemsAt(screen), (Items{10, 10}));
}

TEST_F(Announcement, IsNotMadeOfAValueThatIsThereAlready) {
    ASSERT_EQ(setSetupValue(L"mute", 1), 1);
    ASSERT_EQ(setSetupValue(L"language", 5), 1);
    EXPECT_EQ(ItemsAt(screen), (Items{5, 17}));
    EXPECT_EQ(setSetupValue(L"mute", 1), 1);
    EXPECT_EQ(setSetupValue(L"language", 5), 1);
    EXPECT_EQ(setSetupValue(L"gps", 0), 1);
    EXPECT_EQ(ItemsAt(screen), Items());
}

TEST_F(Announcement, IsNotMadeOfWhatWasRefused) {
    EXPECT_EQ(setSetupValue(L"mute", 256), 0);
    std::filesystem::create_directories(SetupFile());
    EXPECT_EQ(setSetupValue(L"language", 5), 0);
    EXPECT_EQ(ItemsAt(screen), Items());
    EXPECT_EQ(ItemsAt(main), Items());
}

TEST_F(Announcement, IsNotMadeOfSetupValues) {
    EXPECT_EQ(setSetupValue(L"volume", 5), 1);
    EXPECT_EQ(setSetupValueStr(L"station", L"Radio"), 1);
    EXPECT_EQ(ItemsAt(screen), Items());
}

TEST_F(Announcement, LeavesOtherWindowsAlone) {
    const HWND other = Open(L"Other", L"NavigRecive");
    EXPECT_EQ(setSetupValue(L"mute", 1), 1);
    EXPECT_EQ(ItemsAt(other), Items());
    EXPECT_EQ(ItemsAt(screen), Items{5});
    DestroyWindow(other);
}

TEST_F(Announcement, ReachesEveryScreen) {
    const HWND second = Open(L"KorvaneScreen", L"Another");
    EXPECT_EQ(setSetupValue(L"mute", 1), 1);
    EXPECT_EQ(ItemsAt(screen), Items{5});
    EXPECT_EQ(ItemsAt(second), Items{5});
    DestroyWindow(second);
}

TEST_F(Announcement, NeedsNobodyToListen) {
    DestroyWindow(screen);
    DestroyWindow(main);
    EXPECT_EQ(setSetupValue(L"mute", 1), 1);
    EXPECT_EQ(getSysInfo()->mute, 1);
}

/// Opens a window of the class that the word names; its exit status is the item that it is told of first.
const Role listenTo("Listen", [](const Role::Words& words) {
    const std::wstring windowClass = FromUtf8(words.at(0));
    WNDCLASSW description = {};
    description.lpfnWndProc = &DefWindowProcW;
    description.lpszClassName = windowClass.c_str();
    RegisterClassW(&description);
    const HWND window = CreateWindowExW(0, windowClass.c_str(), windowClass.c_str(), WS_POPUP, 0, 0, 10, 10,
                                        nullptr, nullptr, nullptr, nullptr);
    if (!window)
        return 255;
    TellTest("listening");
    MSG msg = {};
    while (GetMessageW(&msg, window, 0, 0) > 0) {
        if (msg.message == kSysInfoChanged)
            return static_cast<int>(msg.wParam);
    }
    return 254;
});

/// A device on which the windows are those of other processes.
class AnnouncementElsewhere : public ServiceDevice {
  protected:
    struct Listener : OtherProcess {
        explicit Listener(const char* windowClass) : OtherProcess(listenTo, {windowClass}) {
            EXPECT_EQ(Hear(), "listening");
        }
    };
};

TEST_F(AnnouncementElsewhere, ReachesScreensAndTheMainApplicationInTheirProcesses) {
    Listener screen("KorvaneScreen");
    Listener second("KorvaneScreen");
    Listener main("NavigRecive");
    Listener other("Other");
    EXPECT_EQ(setSetupValue(L"taActive", 1), 1);
    EXPECT_EQ(screen.Wait(), 15);
    EXPECT_EQ(second.Wait(), 15);
    EXPECT_EQ(main.Wait(), 15);
    other.Kill();
    EXPECT_EQ(other.Wait(), OtherProcess::kKilled) << "it was told nothing";
}

TEST_F(AnnouncementElsewhere, IsNotHeldUpByAProcessThatWasKilled) {
    Listener dead("KorvaneScreen");
    dead.Kill();
    Listener screen("KorvaneScreen");
    EXPECT_EQ(setSetupValue(L"mute", 1), 1);
    EXPECT_EQ(screen.Wait(), 5);
}

}  // namespace
}  // namespace korvane::test
