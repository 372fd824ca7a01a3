#include "tests/draw/LqiBytes.h"

#include <algorithm>
#include <lz4.h>
#include <memory>
#include <zlib.h>

namespace korvane::test {
namespace {

constexpr std::size_t kHeaderSize = 32;
constexpr std::size_t kChecksumAt = 28;

void Append32(std::vector<std::uint8_t>& bytes, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

}  // namespace

std::vector<std::uint8_t> LqiBytes(const LqiFields& fields) {
    std::vector<std::uint8_t> file{'L', 'Q', 'I', 0x1A, fields.version, fields.type, fields.encoding, 0};
    Append32(file, fields.width);
    Append32(file, fields.height);
    Append32(file, static_cast<std::uint32_t>(fields.statedSize < 0
                                                  ? static_cast<std::int64_t>(fields.payload.size())
                                                  : fields.statedSize));
    file.resize(kHeaderSize);
    file.insert(file.end(), fields.payload.begin(), fields.payload.end());
    Sign(file);
    return file;
}

void Sign(std::vector<std::uint8_t>& file) {
    uLong sum = crc32(0, file.data(), kChecksumAt);
    sum = crc32(sum, file.data() + kHeaderSize, static_cast<uInt>(file.size() - kHeaderSize));
    for (std::size_t i = 0; i < 4; ++i)
        file[kChecksumAt + i] = static_cast<std::uint8_t>(sum >> (8 * i));
}

std::vector<std::uint8_t> Lz4Block(const std::vector<std::uint8_t>& bytes) {
    const int size = static_cast<int>(bytes.size());
    std::vector<std::uint8_t> block(static_cast<std::size_t>(LZ4_compressBound(size)));
    const int packed =
        LZ4_compress_default(reinterpret_cast<const char*>(bytes.data()),
                             reinterpret_cast<char*>(block.data()), size, static_cast<int>(block.size()));
    block.resize(static_cast<std::size_t>(packed));
    return block;
}

_eErrorInfo Load(CLQSurfHandle& surface, const std::vector<std::uint8_t>& file) {
    // A vector may own more than its size; here the first byte behind the file is out of bounds.
    const auto buffer = std::make_unique<unsigned char[]>(file.size());
    std::copy(file.begin(), file.end(), buffer.get());
    return surface.GetSurface()->CreateSurfaceFromBuffer(buffer.get(), L"lqi", static_cast<int>(file.size()),
                                                         false);
}

}  // namespace korvane::test
