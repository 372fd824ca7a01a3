#pragma once

#include <cstdint>
#include <vector>

#include "engine/draw/SurfManager.h"

/// Image files put together byte by byte, apart from the engine.
namespace korvane::test {

struct LqiFields {
    std::uint8_t version = 1;
    std::uint8_t type = 3;
    std::uint8_t encoding = 0;
    std::uint32_t width = 2;
    std::uint32_t height = 1;
    std::vector<std::uint8_t> payload = std::vector<std::uint8_t>(8, 0);
    /// What the header says of the payload's size; -1: the truth.
    std::int64_t statedSize = -1;
};

/// The file with a valid checksum.
std::vector<std::uint8_t> LqiBytes(const LqiFields& fields);

/// Writes the right checksum into a file whose bytes were changed.
void Sign(std::vector<std::uint8_t>& file);

/// The bytes as one LZ4 block.
std::vector<std::uint8_t> Lz4Block(const std::vector<std::uint8_t>& bytes);

/// Hands the file to CLQSurface::CreateSurfaceFromBuffer in a block of memory of exactly its size.
_eErrorInfo Load(CLQSurfHandle& surface, const std::vector<std::uint8_t>& file);

}  // namespace korvane::test
