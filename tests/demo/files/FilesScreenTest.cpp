#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "KorvaneEx.h"
#include "platform/Simulation.h"

#include "tests/demo/HeadUnitBench.h"
#include "tests/demo/files/Stick.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::demo {

namespace {

constexpr unsigned kSecondMs = 1000;
constexpr Place kFilesTile = {400, 368};
constexpr Place kDownArrow = {400, 446};
constexpr Place kUpArrow = {400, 94};
constexpr int kIconX = 400;
constexpr int kIconY = 234;
/// Left of the icon, where a swipe to the right begins.
constexpr int kOpenX = 220;

class FilesScreenTest : public HeadUnitBench {
  protected:
    void OpenFiles() {
        Touch(kMenuButton);
        Touch(kFilesTile);
    }
    void OpenEntry() { Swipe({kOpenX, kIconY}, {kOpenX + 60, kIconY}); }
    void Swipe(Place from, Place to) {
        scene_.Press(from.x, from.y);
        scene_.Release(to.x, to.y);
    }
    void SwipeUp() { Swipe({kIconX, kIconY + 40}, {kIconX, kIconY - 40}); }
    void SwipeDown() { Swipe({kIconX, kIconY - 40}, {kIconX, kIconY + 40}); }
    std::vector<std::wstring> ShortenedNames() {
        std::vector<std::wstring> names;
        for (const std::wstring& text : scene_.Labels()) {
            if (!text.empty() && text.back() == L'\u2026')
                names.push_back(text);
        }
        return names;
    }
    testing::AssertionResult LooksLike(const char* name) {
        return test::MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name);
    }

    test::Stick stick_{scene_.DeviceFolder()};
};

}  // namespace

TEST_F(FilesScreenTest, ComesFromTheMenuAndGoesBackToIt) {
    stick_.Write("Song.mp3");
    OpenFiles();
    EXPECT_TRUE(scene_.Shows(L"Files"));
    EXPECT_TRUE(scene_.Shows(L"Song.mp3"));
    Touch(kBackButton);
    EXPECT_FALSE(scene_.Shows(L"Song.mp3"));
    EXPECT_TRUE(scene_.Shows(L"Menu"));
}

TEST_F(FilesScreenTest, ShowsAnEntryBetweenItsNeighbours) {
    for (const char* const name : {"Μουσική/x", "日本の歌/x", "Żółw/x", "a.jpg"})
        stick_.Write(name);
    stick_.Write("Holiday.jpg", 48213);
    OpenFiles();
    EXPECT_TRUE(scene_.Shows(L"MY USB"));
    EXPECT_TRUE(scene_.Shows(L"1/5"));
    for (const wchar_t* const name : {L"a.jpg", L"Żółw", L"Μουσική"})
        EXPECT_TRUE(scene_.Shows(name)) << "the entries are a ring";
    EXPECT_TRUE(scene_.Shows(L"Swipe right to open"));
    EXPECT_TRUE(LooksLike("demo-files-opened"));
    Touch(kUpArrow);
    Touch(kUpArrow);
    EXPECT_TRUE(scene_.Shows(L"4/5"));
    EXPECT_TRUE(scene_.Shows(L"48.2 kB"));
}

TEST_F(FilesScreenTest, EndsLongNamesInAnEllipsis) {
    const std::wstring name =
        L"A name that is longer than the view is wide, whatever the size of its text is";
    stick_.Write(std::string(name.begin(), name.end()) + ".txt");
    stick_.Write("B.txt");
    OpenFiles();
    std::vector<std::wstring> shown = ShortenedNames();
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(name.compare(0, shown[0].size() - 1, shown[0], 0, shown[0].size() - 1), 0);
    CLQFont* const font = CLQFontManager::GetInstance()->GetFont(L"msyh");
    font->SetFontSize(22, 22);
    EXPECT_LE(font->GetStringWidth(shown[0].c_str(), false), 450);
    EXPECT_GT(font->GetStringWidth(shown[0].c_str(), false), 420);
    // The neighbours' text is smaller.
    Touch(kDownArrow);
    ASSERT_EQ(ShortenedNames().size(), 2u) << "above and below, in a ring of two";
    EXPECT_GT(ShortenedNames()[0].size(), shown[0].size());
}

TEST_F(FilesScreenTest, StepsWithArrowsAndSwipes) {
    for (const char* const name : {"1.txt", "2.txt", "3.txt"})
        stick_.Write(name);
    OpenFiles();
    Touch(kDownArrow);
    EXPECT_TRUE(scene_.Shows(L"2/3"));
    SwipeUp();
    EXPECT_TRUE(scene_.Shows(L"3/3"));
    SwipeUp();
    EXPECT_TRUE(scene_.Shows(L"1/3"));
    SwipeDown();
    EXPECT_TRUE(scene_.Shows(L"3/3"));
    Touch(kUpArrow);
    EXPECT_TRUE(scene_.Shows(L"2/3"));
}

TEST_F(FilesScreenTest, EntersAndLeavesFoldersByTheGesture) {
    stick_.Write("Concerts/1998/Encore.txt");
    stick_.Write("Photos/x");
    OpenFiles();
    OpenEntry();
    EXPECT_TRUE(scene_.Shows(L"Concerts"));
    EXPECT_TRUE(scene_.Shows(L"1998"));
    EXPECT_TRUE(scene_.Shows(L"1/1"));
    EXPECT_TRUE(scene_.Shows(L"Folder above"));
    Touch(kUpArrow);
    EXPECT_TRUE(scene_.Shows(L"1")) << "the way back has no number";
    OpenEntry();
    EXPECT_TRUE(scene_.Shows(L"MY USB"));
    EXPECT_TRUE(scene_.Shows(L"1/2"));
}

TEST_F(FilesScreenTest, LeavesFoldersWithTheBackButton) {
    stick_.Write("A/x");
    stick_.Write("B/Deep/x");
    OpenFiles();
    Touch(kDownArrow);
    OpenEntry();
    OpenEntry();
    EXPECT_TRUE(scene_.Shows(L"Deep"));
    Touch(kBackButton);
    EXPECT_TRUE(scene_.Shows(L"B"));
    Touch(kBackButton);
    EXPECT_TRUE(scene_.Shows(L"MY USB"));
    EXPECT_TRUE(scene_.Shows(L"2/2"));
    Touch(kBackButton);
    EXPECT_TRUE(scene_.Shows(L"Menu"));
}

TEST_F(FilesScreenTest, PlaysTheMusicOfAFolderFromTheOneThatWasOpened) {
    stick_.Write("Read me.txt");
    for (const char* const name :
         {"Songs/01 Eins.mp3", "Songs/02 Zwei.mp3", "Songs/cover.jpg", "Songs/x.ogg"})
        stick_.Write(name);
    OpenFiles();
    OpenEntry();
    EXPECT_TRUE(scene_.Shows(L"Swipe right to play"));
    Touch(kDownArrow);
    OpenEntry();
    EXPECT_EQ(Get(L"source"), 6);
    EXPECT_TRUE(scene_.Shows(L"USB music"));
    EXPECT_TRUE(scene_.Shows(L"02 Zwei"));
    EXPECT_TRUE(scene_.Shows(L"Track 2/3"));
    scene_.Advance(60 * kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"Track 3/3"));
    // While the stick plays, another song follows at once.
    OpenFiles();
    EXPECT_TRUE(scene_.Shows(L"02 Zwei.mp3")) << "where it was left";
    Touch(kUpArrow);
    OpenEntry();
    EXPECT_TRUE(scene_.Shows(L"01 Eins"));
    EXPECT_TRUE(scene_.Shows(L"Track 1/3"));
}

TEST_F(FilesScreenTest, OpensNoFileThatIsNoMusic) {
    stick_.Write("Read me.txt");
    OpenFiles();
    const std::vector<std::uint32_t> before = scene_.Pixels();
    OpenEntry();
    EXPECT_TRUE(scene_.Pixels() == before);
}

TEST_F(FilesScreenTest, SaysThatThereIsNoStick) {
    OpenFiles();
    EXPECT_TRUE(scene_.Shows(L"MY USB"));
    EXPECT_TRUE(scene_.Shows(L"No medium inserted"));
    OpenEntry();
    SwipeUp();
    Touch(kDownArrow);
    EXPECT_TRUE(LooksLike("demo-files-no-stick"));
    Touch(kBackButton);
    EXPECT_TRUE(scene_.Shows(L"Menu"));
}

TEST_F(FilesScreenTest, SaysThatAFolderIsEmpty) {
    stick_.Write("");
    OpenFiles();
    EXPECT_TRUE(scene_.Shows(L"This folder is empty"));
    stick_.Write("Empty/");
    Touch(kBackButton);
    Touch(kFilesTile);
    OpenEntry();
    EXPECT_TRUE(scene_.Shows(L"Empty"));
    EXPECT_TRUE(scene_.Shows(L"Folder above"));
    EXPECT_TRUE(scene_.Shows(L"This folder is empty"));
    OpenEntry();
    EXPECT_TRUE(scene_.Shows(L"1/1"));
}

TEST_F(FilesScreenTest, FollowsTheStickThatTheRecordTellsOf) {
    stick_.Write("A/x");
    OpenFiles();
    OpenEntry();
    Set(L"usbPresent", 0);
    EXPECT_TRUE(scene_.Shows(L"No medium inserted"));
    EXPECT_FALSE(scene_.Shows(L"x"));
    Set(L"usbPresent", 1);
    EXPECT_TRUE(scene_.Shows(L"A"));
    EXPECT_TRUE(scene_.Shows(L"1/1")) << "from its beginning";
}

TEST_F(FilesScreenTest, SeesWithinASecondThatItsFolderCameOrWent) {
    stick_.Write("A/Deep/x");
    OpenFiles();
    OpenEntry();
    OpenEntry();
    stick_.Remove("A/Deep");
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"A"));
    EXPECT_TRUE(scene_.Shows(L"This folder is empty"));
    stick_.Remove();
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"No medium inserted"));
    stick_.Write("B/x");
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"B"));
}

TEST_F(FilesScreenTest, SaysThatAFolderCannotBeOpened) {
    stick_.Write("A/x");
    stick_.Write("B/x");
    OpenFiles();
    stick_.Remove("A");
    OpenEntry();
    EXPECT_TRUE(scene_.Shows(L"This folder cannot be opened"));
    EXPECT_TRUE(scene_.Shows(L"1/1"));
    EXPECT_TRUE(scene_.Shows(L"B"));
    // The folder that is shown vanishes under the finger.
    scene_.Advance(4 * kSecondMs);
    OpenEntry();
    stick_.Remove("B");
    scene_.Press(kOpenX, kIconY);
    scene_.Release(kOpenX + 60, kIconY);
    EXPECT_TRUE(scene_.Shows(L"This folder cannot be opened"));
    EXPECT_TRUE(scene_.Shows(L"This folder is empty"));
}

TEST_F(FilesScreenTest, ShowsAFolderThatIsPluggedIn) {
    stick_.Write("A/on the device");
    const test::Stick other(scene_.DeviceFolder() / "elsewhere");
    other.Write("B/on the stick");
    PlugMedium(L"USB", other.Folder().u8string());
    OpenFiles();
    EXPECT_TRUE(scene_.Shows(L"B"));
    OpenEntry();
    EXPECT_TRUE(scene_.Shows(L"on the stick"));
    other.Remove();
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"No medium inserted"));
    PlugMedium(L"USB", "");
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"A"));
}

TEST_F(FilesScreenTest, StepsThroughAHugeFolder) {
    stick_.Write("");
    for (int i = 0; i < 10000; ++i)
        stick_.Write(std::to_string(100000 + i) + ".txt");
    OpenFiles();
    EXPECT_TRUE(scene_.Shows(L"1/10000"));
    Touch(kUpArrow);
    EXPECT_TRUE(scene_.Shows(L"10000/10000"));
    EXPECT_TRUE(scene_.Shows(L"109999.txt"));
}

TEST_F(FilesScreenTest, SpeaksTheLanguageOfTheRecord) {
    stick_.Write("A/x");
    OpenFiles();
    OpenEntry();
    Set(L"language", 5);
    EXPECT_TRUE(scene_.Shows(L"Ordner darüber"));
    Touch(kUpArrow);
    EXPECT_TRUE(scene_.Shows(L"Zum Öffnen nach rechts wischen"));
    stick_.Remove();
    scene_.Advance(kSecondMs);
    EXPECT_TRUE(scene_.Shows(L"Kein Medium eingelegt"));
    Set(L"language", 0);
    EXPECT_TRUE(scene_.Shows(L"No medium inserted"));
}

TEST_F(FilesScreenTest, PaintsNothingWhileNothingHappens) {
    stick_.Write("A/x");
    OpenFiles();
    CLQScreen::GetInstance()->ResetCounters();
    scene_.Advance(10 * kSecondMs);
    EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0u);
}

TEST(FilesScreenOnALargeScreen, LooksAsItDoesOnItsOwn) {
    const auto open = [](test::DemoScene& scene, Place corner) {
        HeadUnit headUnit;
        headUnit.Create(corner.x, corner.y);
        for (const Place& place : {kMenuButton, kFilesTile, kDownArrow})
            scene.Touch(corner.x + place.x, corner.y + place.y);
        EXPECT_TRUE(scene.Shows(L"2/3"));
        return PixelsIn(scene, corner);
    };
    test::DemoScene scene;
    for (const char* const name : {"A/x", "B/x", "C/x"})
        test::Stick(scene.DeviceFolder()).Write(name);
    tools::SystemService service;
    ASSERT_TRUE(service.SetValue(L"usbPresent", 1));
    const std::vector<std::uint32_t> alone = open(scene, {0, 0});
    CLQScreen* const screen = CLQScreen::GetInstance();
    screen->Close();
    ASSERT_TRUE(screen->Open("memory", 1000, 700, L"large"));
    EXPECT_TRUE(open(scene, {130, 110}) == alone);
}

}  // namespace korvane::demo
