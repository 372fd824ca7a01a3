#pragma once

#include <string>
#include <string_view>

namespace korvane {

// An endpoint is two files in the runtime folder: the list of its windows, locked by its process for as long
// as that lives, and the socket that takes messages. The list comes first and goes last.

/// The key of the device and 16 hexadecimal digits, which no other endpoint has, now or later.
std::string NewEndpointName(const std::string& deviceKey);

std::string ListFileOf(std::string_view endpoint);
std::string SocketOf(std::string_view endpoint);

/// The endpoint of the device whose list the file is, empty for any other file.
std::string_view EndpointOfListFile(std::string_view file, std::string_view deviceKey);

}  // namespace korvane
