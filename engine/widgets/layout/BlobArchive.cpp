#include "engine/widgets/layout/BlobArchive.h"

namespace korvane {

BlobArchive::BlobArchive(CLQMemBlob& blob, int index, bool loading)
    : LayoutArchive(loading), blob_(blob), index_(index) {}

bool BlobArchive::ReadNumber(const std::wstring& key, int& value) {
    return blob_.GetNumber(index_, key, value);
}

bool BlobArchive::ReadText(const std::wstring& key, std::wstring& value) {
    return blob_.GetText(index_, key, value);
}

bool BlobArchive::ReadColor(const std::wstring& key, _LQColor& value) {
    std::uint32_t packed = 0;
    if (!blob_.GetColor(index_, key, packed))
        return false;
    value.r = static_cast<unsigned char>(packed >> 24);
    value.g = static_cast<unsigned char>(packed >> 16);
    value.b = static_cast<unsigned char>(packed >> 8);
    value.a = static_cast<unsigned char>(packed);
    return true;
}

bool BlobArchive::WriteNumber(const std::wstring& key, int value) {
    return blob_.SetNumber(index_, key, value);
}

bool BlobArchive::WriteText(const std::wstring& key, const std::wstring& value) {
    return blob_.SetText(index_, key, value);
}

bool BlobArchive::WriteColor(const std::wstring& key, const _LQColor& value) {
    const std::uint32_t red = value.r;
    const std::uint32_t green = value.g;
    const std::uint32_t blue = value.b;
    return blob_.SetColor(index_, key, red << 24 | green << 16 | blue << 8 | value.a);
}

}  // namespace korvane
