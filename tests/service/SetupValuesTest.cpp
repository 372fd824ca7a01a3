#include <algorithm>
#include <filesystem>
#include <iterator>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "platform/Unicode.h"

#include "tests/service/ServiceDevice.h"
#include "tests/support/OtherProcess.h"

namespace korvane::test {
namespace {

class SetupValues : public ServiceDevice {};

constexpr int kValuesOfEach = 25;

std::wstring NameOf(int writer, int value) {
    return std::to_wstring(writer) + L" of " + std::to_wstring(value);
}

/// Its exit status says whether the volume is the number that the word gives.
const Role findNumber("FindNumber", [](const Role::Words& words) {
    return LoadedService().getSetupValue(L"volume", 7) == std::stoi(words.at(0)) ? 0 : 1;
});

/// Its exit status says whether the station is the word.
const Role findText("FindText", [](const Role::Words& words) {
    return LoadedService().Text(L"station") == FromUtf8(words.at(0)) ? 0 : 1;
});

/// Sets the values of the writer that the word names.
const Role setMany("SetMany", [](const Role::Words& words) {
    const LoadedService service;
    const int writer = std::stoi(words.at(0));
    for (int value = 0; value < kValuesOfEach; ++value) {
        if (service.setSetupValue(NameOf(writer, value).c_str(), writer * 1000 + value) != 1)
            return 1;
    }
    return 0;
});

const Role setTexts("SetTexts", [](const Role::Words&) {
    const LoadedService service;
    TellTest("setting");
    for (std::size_t i = 0;; ++i)
        service.setSetupValueStr(L"text", std::wstring(i % 500, L'x').c_str());
    return 0;
});

TEST_F(SetupValues, AreTheFallbackUntilTheyAreSet) {
    EXPECT_EQ(getSetupValue(L"volume", 12), 12);
    EXPECT_EQ(getSetupValue(L"volume", -1), -1);
    EXPECT_EQ(Text(L"volume"), L"(none)");
}

TEST_F(SetupValues, KeepNumbersAcrossRestarts) {
    for (const int value :
         {0, -1, 255, 256, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(setSetupValue(L"volume", value), 1);
        EXPECT_EQ(getSetupValue(L"volume", 7), value);
        Restart();
        EXPECT_EQ(OtherProcess(findNumber, {std::to_string(value)}).Wait(), 0) << value;
    }
}

TEST_F(SetupValues, KeepTextsAcrossRestarts) {
    for (const wchar_t* const text :
         {L"Radio Eins", L"", L"  blanks at the ends ", L"\"quoted\"", L"a = b ; c",
          L"\u00DCber \u65E5\u672C\u8A9E", L"\U0001F697", L"[x]", L"\t"}) {
        EXPECT_EQ(setSetupValueStr(L"station", text), 1);
        EXPECT_EQ(Text(L"station"), text);
        Restart();
        EXPECT_EQ(OtherProcess(findText, {ToUtf8(text)}).Wait(), 0) << ToUtf8(text);
    }
}

TEST_F(SetupValues, KeepOneValueForAName) {
    EXPECT_EQ(setSetupValue(L"station", 5), 1);
    EXPECT_EQ(Text(L"station"), L"5");
    EXPECT_EQ(setSetupValueStr(L"STATION", L"seven"), 1);
    EXPECT_EQ(getSetupValue(L"station", -1), -1) << "no number";
    EXPECT_EQ(setSetupValueStr(L"Station", L"7"), 1);
    EXPECT_EQ(getSetupValue(L"station", -1), 7);
}

TEST_F(SetupValues, StandInTheFileOfTheDevice) {
    EXPECT_EQ(setSetupValue(L"volume", 12), 1);
    EXPECT_EQ(setSetupValueStr(L"station", L"Radio Eins"), 1);
    EXPECT_EQ(ReadSetupFile(), "[Setup]\r\nvolume=12\r\nstation=Radio Eins\r\n");
    WriteSetupFile("; by hand\n[Setup]\nvolume=0x10\n");
    EXPECT_EQ(getSetupValue(L"volume", 0), 16);
    EXPECT_EQ(setSetupValue(L"bass", 3), 1);
    EXPECT_EQ(ReadSetupFile(), "; by hand\n[Setup]\nvolume=0x10\nbass=3\n");
}

TEST_F(SetupValues, TakeOnlyNamesThatTheFileCanHave) {
    const std::wstring longest(255, L'n');
    for (const wchar_t* const name :
         {L"a", L"two words", L"\u00FC\u65E5", L"a;b", L"Setup", longest.c_str()}) {
        EXPECT_EQ(setSetupValue(name, 4), 1);
        EXPECT_EQ(getSetupValue(name, 0), 4);
        EXPECT_EQ(setSetupValueStr(name, L"x"), 1);
        EXPECT_EQ(Text(name), L"x");
    }
    const std::string before = ReadSetupFile();
    const std::wstring tooLong(256, L'n');
    const wchar_t loneSurrogate[] = {static_cast<wchar_t>(0xD800), 0};
    for (const wchar_t* const name : {L"", L"a=b", L"[a", L"a]", L" a", L"a ", L";a", L"#a", L"a\nb", L"\x01",
                                      tooLong.c_str(), loneSurrogate}) {
        EXPECT_EQ(setSetupValue(name, 4), 0);
        EXPECT_EQ(setSetupValueStr(name, L"x"), 0);
        EXPECT_EQ(getSetupValue(name, 9), 9);
        EXPECT_EQ(Text(name), L"(none)");
    }
    EXPECT_EQ(setSetupValue(nullptr, 4), 0);
    EXPECT_EQ(setSetupValueStr(nullptr, L"x"), 0);
    EXPECT_EQ(getSetupValue(nullptr, 9), 9);
    EXPECT_EQ(Text(nullptr), L"(none)");
    EXPECT_EQ(ReadSetupFile(), before);
}

TEST_F(SetupValues, TakeOnlyTextsThatTheFileCanHave) {
    const std::wstring longest(65535, L't');
    EXPECT_EQ(setSetupValueStr(L"text", longest.c_str()), 1);
    EXPECT_EQ(Text(L"text"), longest);
    EXPECT_EQ(setSetupValueStr(L"text", (longest + L"t").c_str()), 0);
    EXPECT_EQ(setSetupValueStr(L"text", L"two\nlines"), 0);
    EXPECT_EQ(setSetupValueStr(L"text", L"two\rlines"), 0);
    EXPECT_EQ(setSetupValueStr(L"text", nullptr), 0);
    EXPECT_EQ(Text(L"text"), longest);
}

TEST_F(SetupValues, AreCutToTheBufferOfWhoAsks) {
    ASSERT_EQ(setSetupValueStr(L"text", L"seven"), 1);
    wchar_t buffer[8] = L"~~~~~~~";
    EXPECT_EQ(getSetupValueStr(L"text", buffer, 4), 5);
    EXPECT_EQ(std::wstring(buffer, 8), std::wstring(L"sev\0~~~", 8));
    EXPECT_EQ(getSetupValueStr(L"text", buffer, 6), 5);
    EXPECT_STREQ(buffer, L"seven");
    EXPECT_EQ(getSetupValueStr(L"text", buffer, 1), 5);
    EXPECT_STREQ(buffer, L"");
    buffer[0] = L'~';
    EXPECT_EQ(getSetupValueStr(L"text", buffer, 0), 5);
    EXPECT_EQ(getSetupValueStr(L"text", buffer, -3), 5);
    EXPECT_EQ(buffer[0], L'~') << "no room, not even for a terminator";
    EXPECT_EQ(getSetupValueStr(L"text", nullptr, 8), 5);
    EXPECT_EQ(getSetupValueStr(L"nothing", buffer, 8), -1);
    EXPECT_STREQ(buffer, L"");
}

TEST_F(SetupValues, ArePreparedByMakingTheirFolder) {
    EXPECT_EQ(initSetupInfo(), 1);
    EXPECT_TRUE(std::filesystem::is_directory(SetupFile().parent_path()));
    EXPECT_EQ(initSetupInfo(), 1);
    EXPECT_EQ(setSetupValue(L"volume", 1), 1);
    EXPECT_EQ(initSetupInfo(), 1);
    EXPECT_EQ(releaseSetupInfo(), 1);
    EXPECT_EQ(getSetupValue(L"volume", 0), 1) << "released or not";
}

TEST_F(SetupValues, NeedNoPreparation) {
    EXPECT_EQ(setSetupValue(L"volume", 1), 1);
    EXPECT_EQ(getSetupValue(L"volume", 0), 1);
}

TEST_F(SetupValues, AreRefusedWhereTheFileCannotBe) {
    std::filesystem::create_directories(SetupFile());
    EXPECT_EQ(initSetupInfo(), 0);
    EXPECT_EQ(setSetupValue(L"volume", 1), 0);
    EXPECT_EQ(setSetupValueStr(L"station", L"x"), 0);
    EXPECT_EQ(getSetupValue(L"volume", 7), 7);
    std::filesystem::remove_all(SetupFile().parent_path());
    device.Write("NandFlash/Application/Profile", "a file in the folder's place");
    EXPECT_EQ(initSetupInfo(), 0);
    EXPECT_EQ(setSetupValue(L"volume", 1), 0);
    EXPECT_EQ(getSetupValue(L"volume", 7), 7);
}

TEST_F(SetupValues, LeaveAFileThatIsTooLongAsItIs) {
    const std::string contents = "[Setup]\nvolume = 3\n" + std::string(std::size_t{1} << 20, '#');
    WriteSetupFile(contents);
    EXPECT_EQ(initSetupInfo(), 0);
    EXPECT_EQ(getSetupValue(L"volume", 7), 7);
    EXPECT_EQ(setSetupValue(L"volume", 1), 0);
    EXPECT_TRUE(ReadSetupFile() == contents);
}

TEST_F(SetupValues, AreReadFromWhatIsLeftOfADamagedFile) {
    const std::string whole = "[Setup]\r\nvolume = 12\r\nstation = Radio\r\nbass = -4\r\n";
    std::mt19937 random(7);
    for (int round = 0; round < 60; ++round) {
        std::string damaged = whole.substr(0, random() % whole.size());
        for (int i = 0; i < round % 7 && !damaged.empty(); ++i)
            damaged[random() % damaged.size()] = static_cast<char>(random() % 256);
        WriteSetupFile(damaged);
        getSetupValue(L"volume", 0);
        Text(L"station");
        ASSERT_EQ(setSetupValue(L"bass", round), 1) << damaged;
        ASSERT_EQ(getSetupValue(L"bass", -1), round) << damaged;
    }
}

TEST_F(SetupValues, OfManyWritersAtOnceAreAllKept) {
    constexpr int kProcesses = 6;
    std::vector<std::unique_ptr<OtherProcess>> processes;
    for (int i = 0; i < kProcesses; ++i)
        processes.push_back(std::make_unique<OtherProcess>(setMany, Role::Words{std::to_string(i)}));
    for (const auto& process : processes)
        EXPECT_EQ(process->Wait(), 0);
    for (int i = 0; i < kProcesses; ++i) {
        for (int value = 0; value < kValuesOfEach; ++value)
            EXPECT_EQ(getSetupValue(NameOf(i, value).c_str(), -1), i * 1000 + value);
    }
}

TEST_F(SetupValues, AreWholeWhenTheirWriterIsKilled) {
    ASSERT_EQ(setSetupValueStr(L"kept", L"since the start"), 1);
    for (int round = 0; round < 20; ++round) {
        OtherProcess writer(setTexts);
        ASSERT_EQ(writer.Hear(), "setting");
        for (int i = 0; i < 5 + round; ++i) {
            ASSERT_EQ(Text(L"kept"), L"since the start");
            wchar_t text[600] = L"";
            const int length = getSetupValueStr(L"text", text, 600);
            ASSERT_EQ(std::wstring(text), std::wstring(static_cast<std::size_t>(std::max(length, 0)), L'x'));
        }
        writer.Kill();
        ASSERT_EQ(setSetupValue(L"round", round), 1);
    }
    EXPECT_EQ(getSetupValue(L"round", -1), 19);
    const std::filesystem::directory_iterator folder(SetupFile().parent_path());
    EXPECT_EQ(std::distance(begin(folder), end(folder)), 1) << "nothing else is left of the killed ones";
}

}  // namespace
}  // namespace korvane::test
