#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "platform/SharedMemory.h"
#include "platform/Unicode.h"
#include "sysinfo/SysInfoFields.h"

#include "tests/service/ServiceDevice.h"
#include "tests/support/OtherProcess.h"

namespace korvane::test {
namespace {

/// A value that no other field gets.
int ValueOf(const SysInfoField& field) {
    return 1 + static_cast<int>(field.offset) * 7;
}

/// Sets the field that the first word names to the second; its exit status is what the service says.
const Role setField("SetField", [](const Role::Words& words) {
    return LoadedService().setSetupValue(FromUtf8(words.at(0)).c_str(), std::stoi(words.at(1)));
});

/// Sets each field to a value of its own; its exit status says whether that succeeded.
const Role setAllFields("SetAllFields", [](const Role::Words&) {
    const LoadedService service;
    for (const SysInfoField& field : kSysInfoFields) {
        if (service.setSetupValue(field.name, ValueOf(field)) != 1)
            return 1;
    }
    return 0;
});

/// Its exit status is the value of the field that the word names.
const Role getField("GetField", [](const Role::Words& words) {
    return LoadedService().getSetupValue(FromUtf8(words.at(0)).c_str(), 254);
});

/// Has the record until the test ends it.
const Role keepRecord("KeepRecord", [](const Role::Words&) {
    TellTest(LoadedService().getSysInfo() ? "on" : "failed");
    AwaitTest();
    return 0;
});

/// Sets the field of the word's number to the language that it finds, plus the number.
const Role setFromLanguage("SetFromLanguage", [](const Role::Words& words) {
    const LoadedService service;
    const int number = std::stoi(words.at(0));
    TellTest("ready");
    AwaitTest();
    const int value = service.getSysInfo()->language + number;
    TellTest(service.setSetupValue(kSysInfoFields[number].name, value) == 1 ? "set" : "failed");
    AwaitTest();
    return 0;
});

const Role setForEver("SetForEver", [](const Role::Words&) {
    const LoadedService service;
    TellTest("setting");
    for (int i = 0;; ++i) {
        service.setSetupValue(L"mute", i % 2);
        service.setSetupValue(L"afState", i % 3);
        service.setSetupValue(L"language", 4 + i % 2);
    }
    return 0;
});

class Record : public ServiceDevice {
  protected:
    static unsigned char ByteOf(const _LQSysInfo* record, const SysInfoField& field) {
        return *(reinterpret_cast<const unsigned char*>(record) + field.offset);
    }

    /// Sets a field in another process; its exit code tells whether that succeeded.
    bool SetElsewhere(const wchar_t* name, int value) const {
        return OtherProcess(setField, {ToUtf8(name), std::to_string(value)}).Wait() == 1;
    }

    /// The field's value as a process finds it that starts then.
    int ValueElsewhere(const wchar_t* name) const { return OtherProcess(getField, {ToUtf8(name)}).Wait(); }

    /// A process that is there as long as the device runs, and has the record.
    struct Running : OtherProcess {
        Running() : OtherProcess(keepRecord) { EXPECT_EQ(Hear(), "on"); }
    };
};

TEST_F(Record, OfANewDeviceIsZero) {
    const _LQSysInfo* const record = getSysInfo();
    ASSERT_NE(record, nullptr);
    const _LQSysInfo zero = {};
    EXPECT_EQ(std::memcmp(record, &zero, sizeof(zero)), 0);
}

TEST_F(Record, StaysAtItsAddressWhateverIsReleased) {
    _LQSysInfo* const record = getSysInfo();
    EXPECT_EQ(getSysInfo(), record);
    EXPECT_EQ(releaseSysInfo(), 1);
    record->mute = 1;
    EXPECT_EQ(getSysInfo(), record);
    EXPECT_EQ(record->mute, 1);
}

TEST_F(Record, IsTheSameInAllProcesses) {
    const _LQSysInfo* const record = getSysInfo();
    ASSERT_NE(record, nullptr);
    ASSERT_EQ(OtherProcess(setAllFields).Wait(), 0);
    for (const SysInfoField& field : kSysInfoFields) {
        EXPECT_EQ(ByteOf(record, field), ValueOf(field)) << field.offset;
        EXPECT_EQ(getSetupValue(field.name, -5), ValueOf(field)) << field.offset;
    }
    EXPECT_EQ(record->reserved1[0] + record->reserved7[0] + record->reserved19[0] + record->reserved27, 0);
}

TEST_F(Record, OutlivesTheProcessThatMadeIt) {
    auto maker = std::make_unique<Running>();
    const Running other;
    EXPECT_TRUE(SetElsewhere(L"gps", 3));
    maker.reset();
    EXPECT_EQ(getSysInfo()->gps, 3);
}

TEST_F(Record, TakesEveryByteAndNothingBeyond) {
    for (const int value : {0, 1, 128, 255}) {
        EXPECT_EQ(setSetupValue(L"rdsIconMask", value), 1);
        EXPECT_EQ(getSysInfo()->rdsIconMask, value);
    }
    for (const int value : {-1, 256, 65536 + 7, -2147483647 - 1, 2147483647}) {
        EXPECT_EQ(setSetupValue(L"rdsIconMask", value), 0);
        EXPECT_EQ(setSetupValue(L"language", value), 0);
    }
    EXPECT_EQ(getSysInfo()->rdsIconMask, 255);
    EXPECT_EQ(getSysInfo()->language, 0);
    EXPECT_FALSE(std::filesystem::exists(SetupFile()));
}

TEST_F(Record, NamesItsFieldsWithoutRegardToCase) {
    EXPECT_EQ(setSetupValue(L"MUTE", 1), 1);
    EXPECT_EQ(getSysInfo()->mute, 1);
    EXPECT_EQ(getSetupValue(L"Mute", 0), 1);
}

TEST_F(Record, HasNoFieldForItsUnusedBytes) {
    for (const wchar_t* const name : {L"reserved1", L"reserved7", L"reserved27"}) {
        EXPECT_EQ(getSetupValue(name, -7), -7);
        EXPECT_EQ(setSetupValue(name, 9), 1) << "any name can be a setup value";
    }
    const _LQSysInfo zero = {};
    EXPECT_EQ(std::memcmp(getSysInfo(), &zero, sizeof(zero)), 0);
}

TEST_F(Record, FieldsHaveNoText) {
    ASSERT_EQ(setSetupValue(L"language", 5), 1);
    EXPECT_EQ(Text(L"language"), L"(none)");
    EXPECT_EQ(setSetupValueStr(L"language", L"7"), 0);
    EXPECT_EQ(setSetupValueStr(L"mute", L"on"), 0);
    EXPECT_EQ(getSysInfo()->language, 5);
}

TEST_F(Record, KeepsLanguageAndClockAcrossRestarts) {
    auto running = std::make_unique<Running>();
    EXPECT_TRUE(SetElsewhere(L"language", 5));
    EXPECT_TRUE(SetElsewhere(L"clock24h", 1));
    EXPECT_TRUE(SetElsewhere(L"mute", 1));
    EXPECT_EQ(ValueElsewhere(L"mute"), 1);
    running.reset();
    Restart();
    EXPECT_EQ(ValueElsewhere(L"language"), 5);
    EXPECT_EQ(ValueElsewhere(L"clock24h"), 1);
    EXPECT_EQ(ValueElsewhere(L"mute"), 0);
    EXPECT_TRUE(SetElsewhere(L"clock24h", 0));
    Restart();
    EXPECT_EQ(getSysInfo()->clock24h, 0);
    EXPECT_EQ(getSysInfo()->language, 5);
}

TEST_F(Record, StartsWithoutKeptValuesThatAreNone) {
    for (const char* const kept : {"256", "-1", "five", "", "99999999999"}) {
        WriteSetupFile(std::string("[Setup]\r\nlanguage = ") + kept + "\r\nclock24h = 1\r\n");
        Restart();
        EXPECT_EQ(ValueElsewhere(L"language"), 0) << kept;
        EXPECT_EQ(ValueElsewhere(L"clock24h"), 1) << kept;
    }
}

TEST_F(Record, DoesNotChangeWhenALastingFieldCannotBeKept) {
    std::filesystem::create_directories(SetupFile());
    EXPECT_EQ(setSetupValue(L"language", 5), 0);
    EXPECT_EQ(getSysInfo()->language, 0);
    EXPECT_EQ(setSetupValue(L"mute", 1), 1) << "which needs no file";
}

TEST_F(Record, IsAgreedOnByManyProcessesThatStartAtOnce) {
    constexpr int kProcesses = 20;
    WriteSetupFile("[Setup]\r\nlanguage = 9\r\n");
    std::vector<std::unique_ptr<OtherProcess>> processes;
    for (int i = 0; i < kProcesses; ++i)
        processes.push_back(std::make_unique<OtherProcess>(setFromLanguage, Role::Words{std::to_string(i)}));
    for (const auto& process : processes)
        ASSERT_EQ(process->Hear(), "ready");
    for (const auto& process : processes)
        process->Say("go");
    for (const auto& process : processes)
        EXPECT_EQ(process->Hear(), "set");
    for (int i = 0; i < kProcesses; ++i) {
        const SysInfoField& field = kSysInfoFields[i];
        // A process that came after the language's writer saw that value.
        const int seen = ByteOf(getSysInfo(), field) - i;
        EXPECT_TRUE(seen == 9 || seen == getSysInfo()->language) << i << ": " << seen;
    }
}

TEST_F(Record, IsNoneWhereItsMemoryIsNone) {
    ASSERT_NE(MapSharedMemory(L"sysinfo", 1, nullptr), nullptr) << "too short for the record";
    EXPECT_EQ(getSysInfo(), nullptr);
    EXPECT_EQ(getSetupValue(L"mute", 77), 77);
    EXPECT_EQ(setSetupValue(L"mute", 1), 0);
    EXPECT_EQ(setSetupValue(L"language", 1), 0);
    EXPECT_FALSE(std::filesystem::exists(SetupFile()));
    EXPECT_EQ(setSetupValue(L"volume", 1), 1) << "setup values do without";
}

TEST_F(Record, GoesOnWhenItsWritersAreKilledAtAnyMoment) {
    const _LQSysInfo* const record = getSysInfo();
    ASSERT_EQ(setSetupValue(L"guideAvail", 33), 1);
    for (int round = 0; round < 30; ++round) {
        OtherProcess writer(setForEver);
        ASSERT_EQ(writer.Hear(), "setting");
        for (int i = 0; i < 100 + 50 * round; ++i) {
            ASSERT_LE(record->mute, 1);
            ASSERT_LE(record->afState, 2);
            ASSERT_EQ(record->guideAvail, 33);
        }
        writer.Kill();
        // What it held is free at once.
        ASSERT_EQ(setSetupValue(L"language", round % 200), 1);
        ASSERT_EQ(record->language, round % 200);
        ASSERT_EQ(ReadSetupFile(), "[Setup]\r\nlanguage=" + std::to_string(round % 200) + "\r\n");
    }
}

}  // namespace
}  // namespace korvane::test
