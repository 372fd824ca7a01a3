#include "platform/posix/remote/wire/EndpointName.h"

#include <cstdio>
#include <random>

namespace korvane {
namespace {

constexpr std::size_t kDigits = 16;
constexpr std::string_view kListSuffix = ".windows";

}  // namespace

std::string NewEndpointName() {
    std::random_device random;
    char digits[kDigits + 1];
    std::snprintf(digits, sizeof(digits), "%08x%08x", random(), random());
    return digits;
}

std::string ListFileOf(std::string_view endpoint) {
    return std::string(endpoint) += kListSuffix;
}

std::string SocketOf(std::string_view endpoint) {
    return std::string(endpoint) += ".socket";
}

std::string_view EndpointOfListFile(std::string_view file) {
    const bool fits = file.size() == kDigits + kListSuffix.size() && file.substr(kDigits) == kListSuffix &&
                      file.find_first_not_of("0123456789abcdef") == kDigits;
    return fits ? file.substr(0, kDigits) : std::string_view();
}

}  // namespace korvane
