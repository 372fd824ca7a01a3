#include "tools/headunitctl/RecordCommands.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

#include "sysinfo/SysInfoFields.h"

#include "tools/systemservice/SystemService.h"

namespace korvane::tools {

namespace {

constexpr char kNoService[] = "the device has no system-information service";

/// Names of fields are plain letters and digits.
std::string Narrow(const wchar_t* name) {
    return std::string(name, name + std::wcslen(name));
}

const SysInfoField* FindField(const std::string& name) {
    const auto* const found =
        std::find_if(std::begin(kSysInfoFields), std::end(kSysInfoFields),
                     [&name](const SysInfoField& field) { return Narrow(field.name) == name; });
    return found == std::end(kSysInfoFields) ? nullptr : found;
}

Outcome NoSuchField(const std::string& name) {
    return Outcome::WrongUsage("'" + name + "' is no field of the record; 'headunitctl get' lists them");
}

/// The number that the text is, -1 for anything but the digits of 0 to 255.
int ByteOf(const std::string& text) {
    const bool isNumber = !text.empty() && text.size() <= 3 &&
                          std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    const int number = isNumber ? std::stoi(text) : -1;
    return number <= 255 ? number : -1;
}

void Print(const SysInfoField& field, const _LQSysInfo& record) {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(&record);
    std::printf("%-16s %d\n", Narrow(field.name).c_str(), bytes[field.offset]);
}

}  // namespace

Outcome PrintFields(const std::vector<std::string>& names) {
    std::vector<const SysInfoField*> fields;
    for (const std::string& name : names) {
        fields.push_back(FindField(name));
        if (!fields.back())
            return NoSuchField(name);
    }
    if (names.empty()) {
        for (const SysInfoField& field : kSysInfoFields)
            fields.push_back(&field);
    }
    SystemService service;
    const _LQSysInfo* const record = service.Record();
    if (!record)
        return Outcome::Failure(kNoService);
    for (const SysInfoField* const field : fields)
        Print(*field, *record);
    return {};
}

Outcome SetField(const std::string& name, const std::string& value) {
    const SysInfoField* const field = FindField(name);
    if (!field)
        return NoSuchField(name);
    const int number = ByteOf(value);
    if (number < 0)
        return Outcome::WrongUsage("'" + value + "' is no value for " + name +
                                   ": give a whole number from 0 to 255");
    SystemService service;
    if (!service.IsComplete())
        return Outcome::Failure(kNoService);
    if (!service.SetValue(field->name, number))
        return Outcome::Failure("the service does not take " + value + " for " + name);
    return {};
}

}  // namespace korvane::tools
