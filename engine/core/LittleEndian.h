#pragma once

#include <cstdint>

/// Numbers of file formats, the lowest byte first whatever the processor.
namespace korvane {

constexpr std::uint32_t GetLittle16(const std::uint8_t* bytes) {
    return bytes[0] | static_cast<std::uint32_t>(bytes[1]) << 8;
}

constexpr std::uint32_t GetLittle32(const std::uint8_t* bytes) {
    return GetLittle16(bytes) | GetLittle16(bytes + 2) << 16;
}

constexpr void PutLittle16(std::uint8_t* bytes, std::uint32_t value) {
    bytes[0] = static_cast<std::uint8_t>(value);
    bytes[1] = static_cast<std::uint8_t>(value >> 8);
}

constexpr void PutLittle32(std::uint8_t* bytes, std::uint32_t value) {
    PutLittle16(bytes, value);
    PutLittle16(bytes + 2, value >> 16);
}

}  // namespace korvane
