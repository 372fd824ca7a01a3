#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "KorvaneEx.h"

#include "tests/demo/HeadUnitBench.h"
#include "tests/support/ReferenceImage.h"

namespace korvane::demo {

namespace {

constexpr unsigned kLongPressMs = 2000;
constexpr unsigned kImageMs = 100;

/// The places of the menu from the left, those of the lower row after those of the upper one.
constexpr Place MenuPlace(int number) {
    return {141 + 259 * (number % 3), 168 + 200 * (number / 3)};
}

class MenuOrderTest : public HeadUnitBench {
  protected:
    void PressLong(int place) {
        const Place at = MenuPlace(place);
        scene_.Press(at.x, at.y);
        scene_.Advance(kLongPressMs);
        scene_.Release(at.x, at.y);
    }
    void TouchPlace(int place) { Touch(MenuPlace(place)); }
    /// What the tile of a place leads to, by the title there. Begins and ends in the menu.
    bool LeadsTo(int place, const wchar_t* title) {
        TouchPlace(place);
        const bool leads = scene_.Shows(title) && !scene_.Shows(L"Menu");
        Touch(kBackButton);
        return leads;
    }
    bool ShowsMenu() { return scene_.Shows(L"Menu"); }
    bool AsksForATile() { return scene_.Shows(L"Choose a tile"); }
    bool AsksForAPlace() { return scene_.Shows(L"Choose its new place"); }
    bool PaintsInOneImage() {
        CLQScreen::GetInstance()->ResetCounters();
        scene_.Advance(kImageMs);
        return CLQScreen::GetInstance()->GetCounters().paints > 0;
    }
    void Restart() {
        headUnit_.reset();
        headUnit_.emplace();
        headUnit_->Create(0, 0);
        scene_.Pump();
        Touch(kMenuButton);
    }
    std::filesystem::path OrderFile() {
        return scene_.DeviceFolder() / "NandFlash/Application/Profile/LQ_MenuOrder.ini";
    }
    testing::AssertionResult LooksLike(const char* name) {
        return test::MatchesReference(CLQScreen::GetInstance()->GetScreenSurfHandle(), name);
    }
};

constexpr int kSourcesPlace = 2;
constexpr int kGaugesPlace = 3;

}  // namespace

TEST_F(MenuOrderTest, IsTheFactorysAtFirst) {
    Touch(kMenuButton);
    EXPECT_TRUE(LeadsTo(kSourcesPlace, L"Sources"));
    EXPECT_TRUE(LeadsTo(kGaugesPlace, L"Gauges"));
    EXPECT_FALSE(std::filesystem::exists(OrderFile()));
}

TEST_F(MenuOrderTest, ChangesByALongPressAndATouch) {
    Touch(kMenuButton);
    PressLong(kGaugesPlace);
    EXPECT_TRUE(AsksForAPlace());
    TouchPlace(0);
    EXPECT_TRUE(AsksForATile());
    Touch(kBackButton);
    EXPECT_TRUE(ShowsMenu());
    EXPECT_TRUE(LeadsTo(0, L"Gauges"));
    EXPECT_TRUE(LeadsTo(3, L"Sources")) << "those in between move along";
}

TEST_F(MenuOrderTest, MovesATileBackwardsToo) {
    Touch(kMenuButton);
    PressLong(0);
    TouchPlace(kGaugesPlace);
    Touch(kBackButton);
    EXPECT_TRUE(LeadsTo(1, L"Sources"));
    EXPECT_TRUE(LeadsTo(2, L"Gauges"));
    TouchPlace(3);
    EXPECT_TRUE(scene_.Shows(L"Radio"));
}

TEST_F(MenuOrderTest, MovesFurtherTilesByTwoTouchesEach) {
    Touch(kMenuButton);
    PressLong(kGaugesPlace);
    TouchPlace(0);
    TouchPlace(3);
    EXPECT_TRUE(AsksForAPlace());
    TouchPlace(5);
    EXPECT_TRUE(AsksForATile());
    Touch(kBackButton);
    EXPECT_TRUE(LeadsTo(0, L"Gauges"));
    EXPECT_TRUE(LeadsTo(5, L"Sources"));
}

TEST_F(MenuOrderTest, StaysWhenATileIsPutBackWhereItWas) {
    Touch(kMenuButton);
    PressLong(kGaugesPlace);
    TouchPlace(kGaugesPlace);
    EXPECT_TRUE(AsksForATile());
    Touch(kBackButton);
    EXPECT_TRUE(LeadsTo(kGaugesPlace, L"Gauges"));
}

TEST_F(MenuOrderTest, StaysWhenATileIsNotPutDown) {
    Touch(kMenuButton);
    PressLong(kGaugesPlace);
    Touch(kBackButton);
    EXPECT_TRUE(ShowsMenu());
    TouchPlace(0);
    EXPECT_TRUE(scene_.Shows(L"Radio"));
}

TEST_F(MenuOrderTest, IsSettledByAnotherLongPress) {
    Touch(kMenuButton);
    PressLong(kGaugesPlace);
    TouchPlace(0);
    PressLong(4);
    EXPECT_TRUE(ShowsMenu()) << "the release is no touch";
    EXPECT_TRUE(LeadsTo(0, L"Gauges"));
}

TEST_F(MenuOrderTest, IsSettledWhenTheMenuIsLeft) {
    Touch(kMenuButton);
    PressLong(kGaugesPlace);
    TouchPlace(0);
    TouchPlace(1);
    Set(L"source", 12);
    EXPECT_TRUE(scene_.Shows(L"Phone"));
    Touch(kMenuButton);
    EXPECT_TRUE(ShowsMenu());
    EXPECT_TRUE(LeadsTo(0, L"Gauges"));
}

TEST_F(MenuOrderTest, ChangesAmongStillPictures) {
    Touch(kMenuButton);
    EXPECT_TRUE(PaintsInOneImage());
    PressLong(kGaugesPlace);
    EXPECT_FALSE(PaintsInOneImage());
    TouchPlace(0);
    EXPECT_FALSE(PaintsInOneImage());
    Touch(kBackButton);
    EXPECT_TRUE(PaintsInOneImage());
}

TEST_F(MenuOrderTest, ShowsWhatIsInHandAndWhatCanBeMoved) {
    Touch(kMenuButton);
    PressLong(kGaugesPlace);
    EXPECT_TRUE(LooksLike("demo-menu-tile-in-hand"));
    TouchPlace(1);
    EXPECT_TRUE(LooksLike("demo-menu-tile-moved"));
}

TEST_F(MenuOrderTest, ChangesByTheKeysToo) {
    Touch(kMenuButton);
    PressLong(kGaugesPlace);
    // The first key shows the focus, on the radio's tile.
    scene_.Key(VK_RIGHT);
    scene_.Key(VK_RIGHT);
    scene_.Key(VK_RETURN);
    EXPECT_TRUE(AsksForATile());
    SetCursorState(false);
    Touch(kBackButton);
    EXPECT_TRUE(LeadsTo(1, L"Gauges"));
}

TEST_F(MenuOrderTest, LastsAcrossARestart) {
    Touch(kMenuButton);
    PressLong(kGaugesPlace);
    TouchPlace(0);
    Restart();
    EXPECT_TRUE(LeadsTo(0, L"Gauges"));
    EXPECT_TRUE(LeadsTo(3, L"Sources"));
}

TEST_F(MenuOrderTest, IsTheFactorysWhereTheKeptOneIsDamaged) {
    const std::string good =
        "[Menu]\n1 = gauges\n2 = radio\n3 = media\n4 = sources\n5 = files\n6 = settings\n";
    const auto damaged = [&good](const std::string& part, const std::string& by) {
        std::string text = good;
        return text.replace(text.find(part), part.size(), by);
    };
    for (const std::string& text :
         {damaged("6 = settings\n", ""), damaged("settings", "gauges"), damaged("settings", "setting"),
          damaged("settings", ""), damaged("[Menu]", "[Men"), std::string(4096, '\xFF'), std::string()}) {
        std::ofstream(OrderFile(), std::ios::binary) << text;
        Restart();
        EXPECT_TRUE(LeadsTo(kGaugesPlace, L"Gauges")) << text;
        EXPECT_TRUE(LeadsTo(kSourcesPlace, L"Sources")) << text;
    }
    std::ofstream(OrderFile(), std::ios::binary) << good;
    Restart();
    EXPECT_TRUE(LeadsTo(0, L"Gauges"));
}

TEST_F(MenuOrderTest, ChangesForTheTimeBeingWhereItCannotBeKept) {
    std::filesystem::create_directory(OrderFile());
    Touch(kMenuButton);
    PressLong(kGaugesPlace);
    TouchPlace(0);
    Touch(kBackButton);
    EXPECT_TRUE(LeadsTo(0, L"Gauges"));
    Restart();
    EXPECT_TRUE(LeadsTo(kGaugesPlace, L"Gauges"));
}

}  // namespace korvane::demo
