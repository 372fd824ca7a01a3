#include <ostream>

#include "engine/Korvane.h"
#include "platform/Simulation.h"

#include "tests/title/bench/TestStrip.h"

namespace korvane::test {
namespace {

class TitleClock : public TestStrip {
  protected:
    using TestStrip::TestStrip;

    /// To be called before the strip is made.
    static void SetTime(int hour, int minute, int second = 0) {
        SYSTEMTIME time = {};
        time.wYear = 2024;
        time.wMonth = 3;
        time.wDay = 15;
        time.wHour = static_cast<WORD>(hour);
        time.wMinute = static_cast<WORD>(minute);
        time.wSecond = static_cast<WORD>(second);
        UseManualClock(20000, time);
    }

    void LoadDesignators(const std::string& morning, const std::string& afternoon) {
        WriteDeviceFile("day.lng", "[language]\nname=Test\nam=" + morning + "\npm=" + afternoon + "\n");
        ASSERT_TRUE(CLQLangManager::GetInstance()->LoadLanguage(L"\\day.lng"));
    }

    void StartIn24Hours() {
        Record().clock24h = 1;
        Start();
    }

    std::wstring Text24() { return Find<CLQStatic>(L"St24HR")->GetText(); }
    std::wstring Text12() { return Find<CLQStatic>(L"St12HR")->GetText(); }
    /// "24", "12", or what else is shown.
    std::string Form() {
        const bool is12 = Find(L"Gp12HR")->IsShow();
        const bool is24 = Find(L"St24HR")->IsShow();
        return is12 == is24 ? (is12 ? "both" : "none") : (is12 ? "12" : "24");
    }
    /// "AM", "PM", or what else is shown.
    std::string Half() {
        const bool am = ImageSeenAt(L"IconAM") == "am.lqi";
        const bool pm = ImageSeenAt(L"IconPM") == "pm.lqi";
        return am == pm ? (am ? "both" : "none") : (am ? "AM" : "PM");
    }
    /// Pixels of the strip's clock that are not black.
    bool IsSeen(const wchar_t* name) {
        for (const std::uint32_t pixel : PixelsOfCtrl(*Find(name))) {
            if (pixel != 0xFF000000)
                return true;
        }
        return false;
    }
};

TEST_F(TitleClock, ShowsTwentyFourHours) {
    SetTime(17, 5);
    StartIn24Hours();
    EXPECT_EQ(Form(), "24");
    EXPECT_EQ(Text24(), L"17:05");
    EXPECT_EQ(Half(), "none");
    EXPECT_TRUE(IsSeen(L"St24HR"));
}

TEST_F(TitleClock, ShowsTwelveHoursWithTheHalfOfTheDay) {
    SetTime(17, 5);
    Start();
    EXPECT_EQ(Form(), "12");
    EXPECT_EQ(Text12(), L"05:05");
    EXPECT_EQ(Half(), "PM");
    EXPECT_TRUE(IsSeen(L"St12HR"));
}

TEST_F(TitleClock, TakesAnySettingButZeroForTwentyFourHours) {
    Start();
    for (const int value : {1, 2, 255}) {
        Set(L"clock24h", 0);
        EXPECT_EQ(Form(), "12");
        Set(L"clock24h", value);
        EXPECT_EQ(Form(), "24") << value;
    }
}

struct HourCase {
    int hour;
    int minute;
    const wchar_t* in24;
    const wchar_t* in12;
    const char* half;
};

std::ostream& operator<<(std::ostream& stream, const HourCase& time) {
    return stream << time.hour << "h" << time.minute;
}

class TitleClockHour : public TitleClock, public testing::WithParamInterface<HourCase> {};

TEST_P(TitleClockHour, HasTwoDigitsInBothForms) {
    SetTime(GetParam().hour, GetParam().minute);
    StartIn24Hours();
    EXPECT_EQ(Text24(), GetParam().in24);
    Set(L"clock24h", 0);
    EXPECT_EQ(Text12(), GetParam().in12);
    EXPECT_EQ(Half(), GetParam().half);
}

INSTANTIATE_TEST_SUITE_P(
    OfTheDay, TitleClockHour,
    testing::Values(HourCase{0, 0, L"00:00", L"12:00", "AM"}, HourCase{0, 59, L"00:59", L"12:59", "AM"},
                    HourCase{1, 0, L"01:00", L"01:00", "AM"}, HourCase{9, 9, L"09:09", L"09:09", "AM"},
                    HourCase{11, 59, L"11:59", L"11:59", "AM"}, HourCase{12, 0, L"12:00", L"12:00", "PM"},
                    HourCase{12, 30, L"12:30", L"12:30", "PM"}, HourCase{13, 7, L"13:07", L"01:07", "PM"},
                    HourCase{23, 59, L"23:59", L"11:59", "PM"}),
    [](const auto& time) {
        return std::to_string(time.param.hour) + "_" + std::to_string(time.param.minute);
    });

TEST_F(TitleClock, LooksAtTheTimeEveryFiveSeconds) {
    SetTime(10, 5, 2);
    StartIn24Hours();
    scene.Advance(59999);
    EXPECT_EQ(Text24(), L"10:05") << "10:06:01, the twelfth look is due in a millisecond";
    scene.Advance(1);
    EXPECT_EQ(Text24(), L"10:06");
}

TEST_F(TitleClock, CountsTheFiveSecondsFromItsConstruction) {
    SetTime(10, 5, 56);
    Record().clock24h = 1;
    dialog = std::make_unique<CLQTitleDialog>();
    scene.Advance(3000);
    dialog->Create(0, 0, 800, 480);
    dialog->OnInit();
    EXPECT_EQ(Text24(), L"10:05");
    scene.Advance(1999);
    EXPECT_EQ(Text24(), L"10:05") << "10:06:00.999";
    scene.Advance(1);
    EXPECT_EQ(Text24(), L"10:06");
}

TEST_F(TitleClock, GoesOnThroughTheHalvesOfADay) {
    SetTime(11, 59, 55);
    Start();
    EXPECT_EQ(Text12(), L"11:59");
    EXPECT_EQ(Half(), "AM");
    scene.Advance(5000);
    EXPECT_EQ(Text12(), L"12:00");
    EXPECT_EQ(Half(), "PM");
}

TEST_F(TitleClock, RepaintsNothingUntilTheMinuteChanges) {
    for (const unsigned char form : {0, 1}) {
        SetTime(10, 5);
        Record().clock24h = form;
        Start();
        CLQScreen::GetInstance()->ResetCounters();
        scene.Advance(59999);
        EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 0u);
        scene.Advance(1);
        EXPECT_EQ(CLQScreen::GetInstance()->GetCounters().paints, 1u);
        EXPECT_LE(CLQScreen::GetInstance()->GetCounters().paintedPixels, 60u * 40u);
        dialog.reset();
    }
}

TEST_F(TitleClock, StopsWithTheStrip) {
    Start();
    dialog.reset();
    scene.Advance(10000);
}

TEST_F(TitleClock, RunsBeforeTheStripIsInitialised) {
    dialog = std::make_unique<CLQTitleDialog>();
    scene.Advance(10000);
    dialog->UpdateAllIcon();
}

TEST_F(TitleClock, SharesItsLastTextBetweenBothForms) {
    SetTime(10, 5);
    StartIn24Hours();
    EXPECT_EQ(Text24(), L"10:05");
    EXPECT_EQ(Text12(), L"");
    Record().clock24h = 0;
    scene.Advance(5000);
    EXPECT_EQ(Form(), "12");
    EXPECT_EQ(Text12(), L"") << "the digits are those that the other form shows already";
    EXPECT_EQ(Half(), "AM");
    scene.Advance(50000);
    EXPECT_EQ(Text12(), L"");
    scene.Advance(5000);
    EXPECT_EQ(Text12(), L"10:06");
}

TEST_F(TitleClock, ForgetsItsLastTextWhenTheFormIsSaidToHaveChanged) {
    SetTime(10, 5);
    StartIn24Hours();
    Record().clock24h = 0;
    Notify(4);
    EXPECT_EQ(Text12(), L"10:05");
    Record().clock24h = 1;
    scene.Advance(5000);
    EXPECT_EQ(Form(), "24");
    Find<CLQStatic>(L"St24HR")->SetText(L"other");
    scene.Advance(5000);
    EXPECT_EQ(Text24(), L"other") << "written only when it changes";
    Notify(4);
    EXPECT_EQ(Text24(), L"10:05");
}

TEST_F(TitleClock, WritesTheOtherFormAtOnceWhenItsDigitsDiffer) {
    SetTime(17, 5);
    StartIn24Hours();
    Record().clock24h = 0;
    scene.Advance(5000);
    EXPECT_EQ(Text12(), L"05:05");
    Record().clock24h = 1;
    scene.Advance(5000);
    EXPECT_EQ(Text24(), L"17:05");
}

struct Designators {
    const char* language;
    const char* morning;
    const char* afternoon;
};

std::ostream& operator<<(std::ostream& stream, const Designators& designators) {
    return stream << designators.language;
}

class TitleClockDesignators : public TitleClock, public testing::WithParamInterface<Designators> {};

TEST_P(TitleClockDesignators, ChooseTheIcon) {
    LoadDesignators(GetParam().morning, GetParam().afternoon);
    SetTime(9, 30);
    Start();
    EXPECT_EQ(Text12(), L"09:30");
    EXPECT_EQ(Half(), "AM");
    scene.Advance(12 * 3600 * 1000);
    EXPECT_EQ(Text12(), L"09:30");
    EXPECT_EQ(Half(), "PM");
}

INSTANTIATE_TEST_SUITE_P(
    AllSix, TitleClockDesignators,
    testing::Values(Designators{"English", "AM", "PM"},
                    Designators{"Chinese", "\xE4\xB8\x8A\xE5\x8D\x88", "\xE4\xB8\x8B\xE5\x8D\x88"},
                    Designators{"Japanese", "\xE5\x8D\x88\xE5\x89\x8D", "\xE5\x8D\x88\xE5\xBE\x8C"}),
    [](const auto& halves) { return std::string(halves.param.language); });

TEST_F(TitleClock, KeepsDigitsAndIconsAtADesignatorThatNobodyKnows) {
    for (const std::string strange : {"ma", "am", "Am", "A", "pm", "M", "MA"}) {
        SetTime(9, 30);
        LoadDesignators("AM", "PM");
        Start();
        LoadDesignators(strange, "PM");
        scene.Advance(120000);
        EXPECT_EQ(Form(), "12") << strange;
        EXPECT_EQ(Text12(), L"09:30") << strange;
        EXPECT_EQ(Half(), "AM") << strange;
        LoadDesignators("PM", "PM");
        scene.Advance(5000);
        EXPECT_EQ(Text12(), L"09:32") << strange;
        EXPECT_EQ(Half(), "PM") << strange;
        dialog.reset();
    }
}

TEST_F(TitleClock, ShowsTheTwelveHourFormAlsoWithADesignatorThatNobodyKnows) {
    LoadDesignators("ma", "ma");
    StartIn24Hours();
    EXPECT_EQ(Form(), "24");
    EXPECT_EQ(Text24(), L"10:05") << "the designator is none of this form's business";
    Set(L"clock24h", 0);
    EXPECT_EQ(Form(), "12");
    EXPECT_EQ(Text12(), L"");
}

TEST_F(TitleClock, ReadsTheLastTwoCharactersAsDesignator) {
    LoadDesignators("in the AM", "PM");
    Start();
    EXPECT_EQ(Text12(), L"10:05in the ");
    EXPECT_EQ(Half(), "AM");
}

TEST_F(TitleClock, NeedsAllItsParts) {
    for (const char* missing : {"St24HR", "Gp12HR", "St12HR", "IconAM", "IconPM"}) {
        TitleLayout layout;
        layout.without = {missing};
        WriteTitleLayout(layout);
        Record().clock24h = 1;
        Start();
        Notify(4);
        scene.Advance(60000);
        for (const wchar_t* label : {L"St24HR", L"St12HR"}) {
            auto* const text = Find<CLQStatic>(label);
            EXPECT_TRUE(!text || text->GetText().empty()) << missing;
        }
        CLQBaseCtrl* const group = Find(L"Gp12HR");
        EXPECT_TRUE(!group || group->IsShow()) << missing;
        dialog.reset();
    }
}

TEST_F(TitleClock, ShowsAndHidesIconsOfAnyClass) {
    TitleLayout layout;
    layout.kinds["IconAM"] = "image";
    layout.kinds["IconPM"] = "button";
    WriteTitleLayout(layout);
    SetTime(17, 5);
    Start();
    EXPECT_EQ(Text12(), L"05:05");
    EXPECT_FALSE(Find(L"IconAM")->IsShow());
    EXPECT_TRUE(Find(L"IconPM")->IsShow());
}

TEST_F(TitleClock, StopsWhenTheApplicationDeletesAPart) {
    SetTime(10, 5);
    StartIn24Hours();
    auto* group = Find<CLQGroupCtrl>(L"Gp12HR");
    ASSERT_TRUE(group->DelChild(Find(L"IconPM"), true));
    scene.Advance(60000);
    EXPECT_EQ(Text24(), L"10:05");
}

class TitleClockWithoutService : public TitleClock {
  protected:
    TitleClockWithoutService() : TitleClock(TestService::Missing) {}
};

TEST_F(TitleClockWithoutService, ShowsTwelveHours) {
    Start();
    EXPECT_EQ(Form(), "12");
    EXPECT_EQ(Text12(), L"10:05");
    EXPECT_EQ(Half(), "AM");
}

class TitleClockWithoutRecord : public TitleClock {
  protected:
    TitleClockWithoutRecord() : TitleClock(TestService::WithoutRecord) {}
};

TEST_F(TitleClockWithoutRecord, ShowsTwelveHours) {
    Start();
    EXPECT_EQ(Form(), "12");
    EXPECT_EQ(Text12(), L"10:05");
    EXPECT_EQ(Half(), "AM");
    scene.Advance(60000);
    EXPECT_EQ(Text12(), L"10:06");
}

}  // namespace
}  // namespace korvane::test
