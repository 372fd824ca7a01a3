#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "KorvaneEx.h"
#include "platform/Simulation.h"
#include "platform/Unicode.h"

#include "demo/headunit/Captions.h"
#include "tests/text/TextCanvas.h"

namespace korvane::demo {

namespace {

namespace fs = std::filesystem;

struct Text {
    int id = 0;
    std::string key;
    std::string value;
};

fs::path LanguageFolder() {
    return fs::path(KORVANE_TEST_DEVICE_DIR) / "NandFlash/Application/Resource/Language";
}

std::string Trimmed(const std::string& text) {
    const std::size_t begin = text.find_first_not_of(' ');
    return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

/// The lines "id key = text" of a table.
std::vector<Text> ReadTexts(const fs::path& file) {
    std::ifstream stream(file);
    std::vector<Text> texts;
    bool isText = false;
    for (std::string line; std::getline(stream, line);) {
        if (line.rfind('[', 0) == 0)
            isText = line == "[text]";
        const std::size_t equals = line.find('=');
        if (!isText || equals == std::string::npos)
            continue;
        const std::string names = Trimmed(line.substr(0, equals));
        const std::size_t blank = names.find(' ');
        Text text;
        text.id = std::stoi(names);
        text.key = blank == std::string::npos ? "" : names.substr(blank + 1);
        text.value = Trimmed(line.substr(equals + 1));
        texts.push_back(text);
    }
    return texts;
}

class LanguageTables : public testing::TestWithParam<const char*> {
  protected:
    LanguageTables() : texts_(ReadTexts(LanguageFolder() / (std::string(GetParam()) + ".lng"))) {
        SetDeviceRoot(KORVANE_TEST_DEVICE_DIR);
        loaded_ = languages_.LoadLanguage(FromUtf8(std::string(GetParam()) + ".lng").c_str());
    }
    ~LanguageTables() override { SetDeviceRoot(""); }

    /// Width of a text of the table in the default font.
    int Width(int id, int size) {
        return test::Width(test::DefaultFont(size), languages_.GetString(id).c_str());
    }

    CLQLangManager& languages_ = *CLQLangManager::GetInstance();
    std::vector<Text> texts_;
    bool loaded_ = false;
};

}  // namespace

TEST_P(LanguageTables, AreReadByTheEngineAsTheyAreWritten) {
    ASSERT_TRUE(loaded_);
    ASSERT_FALSE(texts_.empty());
    for (const Text& text : texts_) {
        EXPECT_EQ(ToUtf8(languages_.GetString(text.id)), text.value) << text.id;
        EXPECT_EQ(ToUtf8(languages_.GetString(FromUtf8(text.key).c_str())), text.value) << text.key;
    }
}

TEST_P(LanguageTables, HaveTheSameIdentifiersAndKeys) {
    const std::vector<Text> english = ReadTexts(LanguageFolder() / "English.lng");
    ASSERT_EQ(texts_.size(), english.size());
    for (std::size_t i = 0; i < texts_.size(); ++i) {
        EXPECT_EQ(texts_[i].id, english[i].id);
        EXPECT_EQ(texts_[i].key, english[i].key);
    }
}

TEST_P(LanguageTables, NameEachTextOnce) {
    std::set<int> ids;
    std::set<std::string> keys;
    for (const Text& text : texts_) {
        EXPECT_TRUE(ids.insert(text.id).second) << text.id;
        EXPECT_TRUE(keys.insert(text.key).second) << text.key;
    }
}

TEST_P(LanguageTables, HaveNoEmptyText) {
    for (const Text& text : texts_)
        EXPECT_FALSE(text.value.empty()) << text.id;
}

TEST_P(LanguageTables, NameTheDayHalvesInAWayThatTheClockKnows) {
    const std::map<std::wstring, std::wstring> known = {
        {L"AM", L"PM"}, {L"\u4e0a\u5348", L"\u4e0b\u5348"}, {L"\u5348\u524d", L"\u5348\u5f8c"}};
    const auto morning = known.find(languages_.GetMorning());
    ASSERT_NE(morning, known.end()) << ToUtf8(languages_.GetMorning());
    EXPECT_EQ(languages_.GetAfternoon(), morning->second);
}

TEST_P(LanguageTables, HaveAGlyphForEveryCharacter) {
    CLQFont* const font = test::DefaultFont(24);
    // Private characters, which no font has.
    const std::vector<std::uint32_t> missing = test::PixelsOf(font, L"\uE000");
    ASSERT_EQ(test::PixelsOf(font, L"\uE001"), missing);
    std::set<std::wstring> seen = {L" "};
    for (const Text& text : texts_) {
        const std::wstring value = FromUtf8(text.value);
        for (std::size_t at = 0; at < value.size();) {
            std::wstring character;
            AppendCodePoint(character, NextCodePoint(value, at));
            if (seen.insert(character).second) {
                EXPECT_NE(test::PixelsOf(font, character.c_str()), missing) << ToUtf8(character);
            }
        }
    }
}

TEST_P(LanguageTables, NameTheSixteenSourcesOfTheShortcutPanel) {
    for (const wchar_t* const source : {L"tuner", L"dab", L"disc_audio", L"disc_video", L"bt_audio",
                                        L"usb_audio", L"usb_video", L"ipod_audio", L"ipod_video", L"aux1",
                                        L"aux2", L"tv", L"telephone", L"navi", L"usb_camera", L"audio_off"}) {
        const std::wstring key = std::wstring(L"settings_shortcut_menu_") + source;
        EXPECT_NE(languages_.GetString(key.c_str()), key);
    }
}

TEST_P(LanguageTables, NameEachLanguageInItsOwnWords) {
    const std::vector<Text> english = ReadTexts(LanguageFolder() / "English.lng");
    ASSERT_EQ(texts_.size(), english.size());
    for (std::size_t i = 0; i < texts_.size(); ++i) {
        if (texts_[i].id >= kCaptionGerman && texts_[i].id <= kCaptionJapanese) {
            EXPECT_EQ(texts_[i].value, english[i].value);
        }
    }
}

TEST_P(LanguageTables, FitTheControlsThatShowThem) {
    for (int id = kCaptionTuner; id <= kCaptionAudioOff; ++id)
        EXPECT_LE(Width(id, 18), 128) << "shortcut button: " << id;
    for (const int id : {kCaptionBack, kCaptionDone})
        EXPECT_LE(Width(id, 24), 136) << "back button: " << id;
    for (const int id : {kCaptionMenu, kCaptionSources, kCaptionGauges, kCaptionFiles, kCaptionSettings,
                         kCaptionChooseTile, kCaptionChoosePlace, kCaptionNotConnected, kCaptionRearSeats})
        EXPECT_LE(Width(id, 20), 226) << "title beside the play time: " << id;
    EXPECT_LE(Width(kCaptionSources, 22), 124) << "sources button";
    EXPECT_LE(Width(kCaptionPresets, 22), 118) << "presets button";
    for (const int id : {kCaptionMore, kCaptionBack})
        EXPECT_LT(Width(id, 17), 240) << "cell that switches pages: " << id;
    for (const int id :
         {kCaptionClock24h, kCaptionTrafficAnnouncements, kCaptionAlternativeFrequencies, kCaptionMute})
        EXPECT_LE(Width(id, 24), 292) << "switch of the settings: " << id;
    for (int id = kCaptionGerman; id <= kCaptionJapanese; ++id)
        EXPECT_LE(Width(id, 22), 150) << "list of languages: " << id;
    for (const int id : {kCaptionSwipeToSeek, kCaptionSeekingUp, kCaptionSeekingDown, kCaptionHoldToStore})
        EXPECT_LE(Width(id, 22), 400) << "line below the band: " << id;
    for (const int id : {kCaptionNowPlaying, kCaptionPause, kCaptionRepeat, kCaptionParkedOnly})
        EXPECT_LE(Width(id, 20), 432) << "state of a player: " << id;
    EXPECT_LE(Width(kCaptionParkedOnly, 22), 440) << "line beside the list of sources";
    for (const int id : {kCaptionFolderEmpty, kCaptionNoMedium, kCaptionSwipeToOpen, kCaptionSwipeToPlay})
        EXPECT_LE(Width(id, 18), 500) << "line below a file: " << id;
    EXPECT_LE(Width(kCaptionFolderAbove, 22), 450) << "way to the folder above";
}

INSTANTIATE_TEST_SUITE_P(Every, LanguageTables,
                         testing::Values("Chinese", "Dutch", "English", "French", "German", "Greek",
                                         "Italian", "Japanese", "Polish", "Portuguese", "Spanish", "Swedish"),
                         [](const auto& table) { return std::string(table.param); });

TEST(LanguageFolder, HoldsTheTwelveTables) {
    const auto isTable = [](const fs::directory_entry& entry) { return entry.path().extension() == ".lng"; };
    EXPECT_EQ(std::count_if(fs::directory_iterator(LanguageFolder()), fs::directory_iterator(), isTable), 12);
}

}  // namespace korvane::demo
