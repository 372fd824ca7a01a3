#include "platform/posix/remote/wire/WindowList.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "platform/Unicode.h"
#include "platform/posix/remote/RemoteHandle.h"

namespace korvane {
namespace {

constexpr std::size_t kLongestClassName = 256;
constexpr std::size_t kLongestTitle = 1024;

// FNV-1a.
std::uint64_t Checksum(const std::uint8_t* bytes, std::size_t size, std::uint64_t start) {
    for (std::size_t i = 0; i < size; ++i)
        start = (start ^ bytes[i]) * 0x100000001B3;
    return start;
}

std::uint64_t ChecksumOf(WindowListHeader header, const std::uint8_t* windows) {
    header.checksum = 0;
    std::uint8_t start[sizeof(header)];
    std::memcpy(start, &header, sizeof(header));
    return Checksum(windows, header.bytes, Checksum(start, sizeof(start), 0xCBF29CE484222325));
}

class Writer {
  public:
    template <typename Number>
    void Put(Number number) {
        const auto* const raw = reinterpret_cast<const std::uint8_t*>(&number);
        bytes.insert(bytes.end(), raw, raw + sizeof(number));
    }
    void Put(std::wstring_view text) {
        const std::string utf8 = ToUtf8(text);
        Put(static_cast<std::uint16_t>(utf8.size()));
        bytes.insert(bytes.end(), utf8.begin(), utf8.end());
    }

    std::vector<std::uint8_t> bytes;
};

class Reader {
  public:
    Reader(const std::uint8_t* bytes, std::size_t size) : at_(bytes), left_(size) {}

    template <typename Number>
    bool Get(Number& number) {
        if (left_ < sizeof(number))
            return false;
        std::memcpy(&number, at_, sizeof(number));
        Skip(sizeof(number));
        return true;
    }
    bool Get(std::wstring& text) {
        std::uint16_t size = 0;
        if (!Get(size) || left_ < size)
            return false;
        text = FromUtf8({reinterpret_cast<const char*>(at_), size});
        Skip(size);
        return true;
    }
    bool IsAtEnd() const { return left_ == 0; }

  private:
    void Skip(std::size_t size) {
        at_ += size;
        left_ -= size;
    }

    const std::uint8_t* at_;
    std::size_t left_;
};

void PutWindow(Writer& writer, const ListedWindow& window) {
    writer.Put(window.handle);
    writer.Put(window.born);
    writer.Put(std::wstring_view(window.className).substr(0, kLongestClassName));
    writer.Put(std::wstring_view(window.title).substr(0, kLongestTitle));
}

bool GetWindow(Reader& reader, ListedWindow& window) {
    return reader.Get(window.handle) && IsOwnHandle(window.handle) && reader.Get(window.born) &&
           reader.Get(window.className) && reader.Get(window.title);
}

}  // namespace

std::vector<std::uint8_t> EncodeWindowList(std::uint64_t generation,
                                           const std::vector<ListedWindow>& windows) {
    WindowListHeader header;
    header.generation = generation;
    Writer writer;
    writer.bytes.resize(sizeof(header));
    for (const ListedWindow& window : windows) {
        const std::size_t before = writer.bytes.size();
        PutWindow(writer, window);
        if (writer.bytes.size() > sizeof(header) + WindowListHeader::kMostBytes) {
            writer.bytes.resize(before);
            break;
        }
        ++header.count;
    }
    header.bytes = static_cast<std::uint32_t>(writer.bytes.size() - sizeof(header));
    header.checksum = ChecksumOf(header, writer.bytes.data() + sizeof(header));
    std::memcpy(writer.bytes.data(), &header, sizeof(header));
    return std::move(writer.bytes);
}

bool DecodeWindowListHeader(const void* bytes, std::size_t size, WindowListHeader& header) {
    if (size < sizeof(header))
        return false;
    std::memcpy(&header, bytes, sizeof(header));
    return header.magic == WindowListHeader::kMagic && header.version == WindowListHeader::kVersion &&
           header.reserved == 0 && header.bytes <= WindowListHeader::kMostBytes;
}

bool DecodeWindowList(const std::vector<std::uint8_t>& bytes, std::vector<ListedWindow>& windows) {
    WindowListHeader header;
    if (!DecodeWindowListHeader(bytes.data(), bytes.size(), header))
        return false;
    const std::uint8_t* const first = bytes.data() + sizeof(header);
    if (bytes.size() - sizeof(header) < header.bytes || ChecksumOf(header, first) != header.checksum)
        return false;
    Reader reader(first, header.bytes);
    std::vector<ListedWindow> read;
    for (std::uint32_t i = 0; i < header.count; ++i) {
        if (!GetWindow(reader, read.emplace_back()))
            return false;
    }
    if (!reader.IsAtEnd())
        return false;
    windows = std::move(read);
    return true;
}

}  // namespace korvane
