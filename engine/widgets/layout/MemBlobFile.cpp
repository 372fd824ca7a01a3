#include <cstring>
#include <limits>
#include <string>
#include <utility>
#include <zlib.h>

#include "engine/core/LittleEndian.h"
#include "engine/widgets/layout/MemBlob.h"
#include "platform/Files.h"
#include "platform/Unicode.h"

namespace {

constexpr unsigned char kMagic[4] = {'K', 'V', 'L', 'Y'};
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kHeaderSize = 32;
constexpr std::size_t kSizeAt = 8;
constexpr std::size_t kChecksumAt = 12;
/// The checksum covers everything behind itself.
constexpr std::size_t kCheckedFrom = 16;
constexpr std::size_t kRecordSize = 12;
constexpr std::size_t kPropertySize = 8;
constexpr std::uint32_t kNoParent = 0xFFFFFFFF;

void Put16(std::vector<unsigned char>& bytes, std::uint32_t value) {
    bytes.resize(bytes.size() + 2);
    korvane::PutLittle16(bytes.data() + bytes.size() - 2, value);
}

void Put32(std::vector<unsigned char>& bytes, std::uint32_t value) {
    bytes.resize(bytes.size() + 4);
    korvane::PutLittle32(bytes.data() + bytes.size() - 4, value);
}

std::uint32_t Checksum(const unsigned char* bytes, std::size_t size) {
    return static_cast<std::uint32_t>(crc32(0, bytes + kCheckedFrom, static_cast<uInt>(size - kCheckedFrom)));
}

/// Reads little-endian numbers. A read beyond the end gives 0 and is remembered.
class Reader {
  public:
    Reader(const unsigned char* bytes, std::size_t size) : bytes_(bytes), size_(size) {}

    std::uint32_t Get16() {
        const unsigned char* at = Take(2);
        return at ? korvane::GetLittle16(at) : 0;
    }
    std::uint32_t Get32() {
        const unsigned char* at = Take(4);
        return at ? korvane::GetLittle32(at) : 0;
    }
    std::string GetString(std::size_t length) {
        const unsigned char* at = Take(length);
        return at ? std::string(reinterpret_cast<const char*>(at), length) : std::string();
    }
    std::size_t Left() const { return size_; }
    bool Failed() const { return failed_; }

  private:
    const unsigned char* Take(std::size_t count) {
        if (count > size_) {
            failed_ = true;
            size_ = 0;
            return nullptr;
        }
        const unsigned char* at = bytes_;
        bytes_ += count;
        size_ -= count;
        return at;
    }

    const unsigned char* bytes_;
    std::size_t size_;
    bool failed_ = false;
};

}  // namespace

bool CLQMemBlob::IsTextBounded(const std::vector<std::size_t>& textSizes) const {
    std::size_t sum = 0;
    for (const Record& record : m_vecRecords) {
        for (const Property& property : record.properties) {
            if (property.type == Type::Text)
                sum += textSizes[property.value];
            if (sum > kMaxNamedText)
                return false;
        }
    }
    return true;
}

std::vector<unsigned char> CLQMemBlob::ToBytes() const {
    std::vector<unsigned char> bytes(kMagic, kMagic + sizeof(kMagic));
    Put32(bytes, kVersion);
    Put32(bytes, 0);
    Put32(bytes, 0);
    Put32(bytes, static_cast<std::uint32_t>(m_vecStrings.size()));
    Put32(bytes, static_cast<std::uint32_t>(m_vecRecords.size()));
    std::uint32_t propertyCount = 0;
    for (const Record& record : m_vecRecords)
        propertyCount += static_cast<std::uint32_t>(record.properties.size());
    Put32(bytes, propertyCount);
    Put32(bytes, 0);

    std::vector<std::size_t> textSizes;
    for (const std::wstring& text : m_vecStrings) {
        const std::string utf8 = korvane::ToUtf8(text);
        textSizes.push_back(utf8.size());
        if (bytes.size() + utf8.size() > kMaxFileSize)
            return {};
        Put16(bytes, static_cast<std::uint32_t>(utf8.size()));
        bytes.insert(bytes.end(), utf8.begin(), utf8.end());
    }
    for (const Record& record : m_vecRecords) {
        Put32(bytes, static_cast<std::uint32_t>(record.kind));
        Put32(bytes, static_cast<std::uint32_t>(record.parent));
        Put32(bytes, static_cast<std::uint32_t>(record.properties.size()));
    }
    if (bytes.size() + propertyCount * kPropertySize > kMaxFileSize || !IsTextBounded(textSizes))
        return {};
    for (const Record& record : m_vecRecords) {
        for (const Property& property : record.properties) {
            Put16(bytes, property.key);
            Put16(bytes, static_cast<std::uint32_t>(property.type));
            Put32(bytes, property.value);
        }
    }
    korvane::PutLittle32(bytes.data() + kSizeAt, static_cast<std::uint32_t>(bytes.size()));
    korvane::PutLittle32(bytes.data() + kChecksumAt, Checksum(bytes.data(), bytes.size()));
    return bytes;
}

bool CLQMemBlob::FromBytes(const unsigned char* bytes, std::size_t size) {
    if (!bytes || size < kHeaderSize || size > kMaxFileSize ||
        std::memcmp(bytes, kMagic, sizeof(kMagic)) != 0)
        return false;
    Reader reader(bytes + sizeof(kMagic), size - sizeof(kMagic));
    const std::uint32_t version = reader.Get32();
    const std::uint32_t fileSize = reader.Get32();
    const std::uint32_t checksum = reader.Get32();
    const std::uint32_t stringCount = reader.Get32();
    const std::uint32_t recordCount = reader.Get32();
    const std::uint32_t propertyCount = reader.Get32();
    const std::uint32_t reserved = reader.Get32();
    if (version != kVersion || fileSize != size || checksum != Checksum(bytes, size) || reserved != 0 ||
        stringCount > kMaxStrings || recordCount > kMaxRecords)
        return false;

    CLQMemBlob loaded;
    std::vector<std::size_t> textSizes;
    for (std::uint32_t i = 0; i < stringCount; ++i) {
        const std::size_t length = reader.Get16();
        const std::string utf8 = reader.GetString(length);
        textSizes.push_back(length);
        // Each string stands there once, and as it would be written.
        const std::wstring text = korvane::FromUtf8(utf8);
        if (reader.Failed() || korvane::ToUtf8(text) != utf8 || loaded.Intern(text) != static_cast<int>(i))
            return false;
    }
    const std::uint64_t rest =
        std::uint64_t{recordCount} * kRecordSize + std::uint64_t{propertyCount} * kPropertySize;
    if (reader.Left() != rest)
        return false;

    std::uint64_t propertySum = 0;
    for (std::uint32_t i = 0; i < recordCount; ++i) {
        const std::uint32_t kind = reader.Get32();
        const std::uint32_t parent = reader.Get32();
        const std::uint32_t count = reader.Get32();
        propertySum += count;
        if (kind > static_cast<std::uint32_t>(std::numeric_limits<int>::max()) || count > kMaxProperties ||
            (parent != kNoParent && parent >= i) ||
            !loaded.AppendRecord(static_cast<int>(kind), parent == kNoParent ? -1 : static_cast<int>(parent)))
            return false;
        loaded.m_vecRecords.back().written = true;
        loaded.m_vecRecords.back().properties.resize(count);
    }
    if (propertySum != propertyCount)
        return false;
    for (Record& record : loaded.m_vecRecords) {
        for (Property& property : record.properties) {
            property.key = static_cast<std::uint16_t>(reader.Get16());
            property.type = static_cast<Type>(reader.Get16());
            property.value = reader.Get32();
            const bool known = property.type == Type::Number || property.type == Type::Color ||
                               (property.type == Type::Text && property.value < stringCount);
            if (!known || property.key >= stringCount)
                return false;
        }
    }
    if (!loaded.IsTextBounded(textSizes))
        return false;
    *this = std::move(loaded);
    return true;
}

bool CLQMemBlob::LoadFile(const wchar_t* file) {
    std::vector<unsigned char> bytes;
    return korvane::ReadWholeFile(file, kMaxFileSize, bytes) && FromBytes(bytes.data(), bytes.size());
}

bool CLQMemBlob::SaveFile(const wchar_t* file) const {
    const std::vector<unsigned char> bytes = ToBytes();
    return !bytes.empty() && korvane::ReplaceFileAtomically(file, bytes.data(), bytes.size());
}
