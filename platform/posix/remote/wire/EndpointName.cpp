#include "platform/posix/remote/wire/EndpointName.h"

#include <cstdio>
#include <random>

namespace korvane {
namespace {

constexpr std::size_t kDigits = 16;
constexpr std::string_view kListSuffix = ".windows";

}  // namespace

std::string NewEndpointName(const std::string& deviceKey) {
    std::random_device random;
    char digits[kDigits + 1];
    std::snprintf(digits, sizeof(digits), "%08x%08x", random(), random());
    return deviceKey + '-' + digits;
}

std::string ListFileOf(std::string_view endpoint) {
    return std::string(endpoint) += kListSuffix;
}

std::string SocketOf(std::string_view endpoint) {
    return std::string(endpoint) += ".socket";
}

std::string_view EndpointOfListFile(std::string_view file, std::string_view deviceKey) {
    const std::size_t length = deviceKey.size() + 1 + kDigits;
    if (file.size() != length + kListSuffix.size() || file.substr(length) != kListSuffix ||
        file.substr(0, deviceKey.size()) != deviceKey || file[deviceKey.size()] != '-')
        return {};
    const std::string_view digits = file.substr(deviceKey.size() + 1, kDigits);
    return digits.find_first_not_of("0123456789abcdef") == digits.npos ? file.substr(0, length)
                                                                       : std::string_view();
}

}  // namespace korvane
