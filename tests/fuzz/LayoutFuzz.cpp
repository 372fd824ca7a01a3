#include <cstdint>
#include <vector>
#include <zlib.h>

#include "engine/draw/SurfManager.h"
#include "engine/widgets/layout/MemBlob.h"
#include "engine/window/GroupCtrl.h"

#include "tests/fuzz/Require.h"

namespace {

constexpr std::size_t kHeaderSize = 32;

void Put32(std::vector<std::uint8_t>& bytes, std::size_t at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i)
        bytes[at + i] = static_cast<std::uint8_t>(value >> 8 * i);
}

/// Makes size and checksum right, past which a mutation alone hardly ever comes.
void Seal(std::vector<std::uint8_t>& bytes) {
    Put32(bytes, 8, static_cast<std::uint32_t>(bytes.size()));
    Put32(bytes, 12,
          static_cast<std::uint32_t>(crc32(0, bytes.data() + 16, static_cast<uInt>(bytes.size() - 16))));
}

void Load(const std::vector<std::uint8_t>& bytes) {
    CLQMemBlob blob;
    if (!blob.FromBytes(bytes.data(), bytes.size()))
        return;
    Require(blob.ToBytes() == bytes, "what was loaded is written as it was");

    CLQGroupCtrl group;
    if (!group.LoadCtrlFromBin(blob, 0))
        return;
    CLQSurfHandle target = CLQSurfManager::GetInstance()->CreateSurface(64, 48, eSurface_ARGB8888, true);
    group.Draw(target);

    CLQMemBlob saved;
    if (!group.SaveCtrlToBin(saved, 0))
        return;
    CLQGroupCtrl again;
    Require(again.LoadCtrlFromBin(saved, 0), "what was saved can be loaded");
    CLQMemBlob savedAgain;
    Require(again.SaveCtrlToBin(savedAgain, 0), "what was loaded can be saved");
    Require(savedAgain.ToBytes() == saved.ToBytes(), "loading and saving changes nothing");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::uint8_t> bytes(data, data + size);
    Load(bytes);
    if (size >= kHeaderSize) {
        Seal(bytes);
        Load(bytes);
    }
    return 0;
}
