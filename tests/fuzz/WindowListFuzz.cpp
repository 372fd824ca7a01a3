#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#include "platform/posix/remote/RemoteHandle.h"
#include "platform/posix/remote/wire/WindowList.h"

#include "tests/fuzz/Require.h"

namespace {

using namespace korvane;

void Check(const std::vector<std::uint8_t>& bytes) {
    std::vector<ListedWindow> windows{{77, 7, L"kept", L"kept"}};
    if (!DecodeWindowList(bytes, windows)) {
        Require(windows.size() == 1 && windows[0].handle == 77, "what is no list changes nothing");
        return;
    }
    for (const ListedWindow& window : windows) {
        Require(IsOwnHandle(window.handle), "a window's handle may exist");
        Require(window.title.size() <= bytes.size(), "a title is no longer than the list");
    }
    std::vector<ListedWindow> again;
    Require(DecodeWindowList(EncodeWindowList(1, windows), again), "a list can be read back");
    Require(again.size() == windows.size(), "all windows come back");
}

// Makes the checksum right, so that the windows are looked at.
std::vector<std::uint8_t> Repaired(std::vector<std::uint8_t> bytes) {
    WindowListHeader header;
    if (!DecodeWindowListHeader(bytes.data(), bytes.size(), header))
        return bytes;
    header.bytes = static_cast<std::uint32_t>(
        std::min<std::size_t>(bytes.size() - sizeof(header), WindowListHeader::kMostBytes));
    header.checksum = 0;
    std::memcpy(bytes.data(), &header, sizeof(header));
    header.checksum = 0xCBF29CE484222325;
    for (std::size_t i = 0; i < sizeof(header) + header.bytes; ++i)
        header.checksum = (header.checksum ^ bytes[i]) * 0x100000001B3;
    std::memcpy(bytes.data(), &header, sizeof(header));
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::uint8_t> bytes(data, data + size);
    Check(bytes);
    Check(Repaired(bytes));
    return 0;
}
