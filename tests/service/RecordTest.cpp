#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "platform/DeviceKey.h"
#include "sysinfo/SysInfoFields.h"

#include "tests/service/ServiceDevice.h"
#include "tests/support/ForkedProcess.h"

namespace korvane::test {
namespace {

class Record : public ServiceDevice {
  protected:
    static unsigned char ByteOf(const _LQSysInfo* record, const SysInfoField& field) {
        return *(reinterpret_cast<const unsigned char*>(record) + field.offset);
    }

    /// Sets a field in another process; its exit code tells whether that succeeded.
    bool SetElsewhere(const wchar_t* name, int value) const {
        ForkedProcess process([&] { return setSetupValue(name, value); });
        return process.Wait() == 1;
    }

    /// The field's value as a process finds it that starts then.
    int ValueElsewhere(const wchar_t* name) const {
        ForkedProcess process([&] { return getSetupValue(name, 254); });
        return process.Wait();
    }
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
    for (const SysInfoField& field : kSysInfoFields) {
        const int value = 1 + static_cast<int>(field.offset) * 7;
        EXPECT_TRUE(SetElsewhere(field.name, value));
        EXPECT_EQ(ByteOf(record, field), value) << field.offset;
        EXPECT_EQ(getSetupValue(field.name, -5), value) << field.offset;
    }
    for (const SysInfoField& field : kSysInfoFields)
        EXPECT_EQ(ByteOf(record, field), 1 + static_cast<int>(field.offset) * 7) << "no other field changed";
    EXPECT_EQ(record->reserved1[0] + record->reserved7[0] + record->reserved19[0] + record->reserved27, 0);
}

TEST_F(Record, OutlivesTheProcessThatMadeIt) {
    EXPECT_TRUE(SetElsewhere(L"gps", 3));
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
    EXPECT_TRUE(SetElsewhere(L"language", 5));
    EXPECT_TRUE(SetElsewhere(L"clock24h", 1));
    EXPECT_TRUE(SetElsewhere(L"mute", 1));
    EXPECT_EQ(ValueElsewhere(L"mute"), 1);
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
    const Gate start;
    const Gate written;
    std::vector<std::unique_ptr<ForkedProcess>> processes;
    for (int i = 0; i < kProcesses; ++i) {
        processes.push_back(std::make_unique<ForkedProcess>([&, i] {
            if (!start.Wait())
                return 1;
            const bool set = setSetupValue(kSysInfoFields[i].name, getSysInfo()->language + i) == 1;
            return set ? 0 : 2;
        }));
    }
    start.Open(kProcesses);
    for (const auto& process : processes)
        EXPECT_EQ(process->Wait(), 0);
    for (int i = 0; i < kProcesses; ++i) {
        const SysInfoField& field = kSysInfoFields[i];
        // A process that came after the language's writer saw that value.
        const int seen = ByteOf(getSysInfo(), field) - i;
        EXPECT_TRUE(seen == 9 || seen == getSysInfo()->language) << i << ": " << seen;
    }
}

TEST_F(Record, IsNoneWhereItsMemoryIsNone) {
    const std::string object = "/dev/shm/korvane-" + DeviceKey() + "-memory-sysinfo";
    FILE* const file = std::fopen(object.c_str(), "w");
    ASSERT_NE(file, nullptr);
    std::fputs("something else", file);
    std::fclose(file);
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
        const Gate started;
        ForkedProcess writer([&] {
            started.Open();
            for (int i = 0;; ++i) {
                setSetupValue(L"mute", i % 2);
                setSetupValue(L"afState", i % 3);
                setSetupValue(L"language", 4 + i % 2);
            }
            return 0;
        });
        ASSERT_TRUE(started.Wait());
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
