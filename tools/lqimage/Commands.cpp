#include "tools/lqimage/Commands.h"

#include <vector>

#include "engine/draw/SurfManager.h"

#include "tools/hostfile/FilePairs.h"
#include "tools/hostfile/HostFile.h"
#include "tools/lqimage/PixelType.h"
#include "tools/png/Png.h"
#include "tools/png/SurfacePicture.h"

namespace korvane::tools {
namespace {

namespace fs = std::filesystem;

std::string About(const fs::path& file, const std::string& what) {
    return file.string() + ": " + what;
}

CLQSurfHandle MakeSurface(int width, int height, _eSurfaceType type) {
    return CLQSurfManager::GetInstance()->CreateSurface(width, height, type, true);
}

/// The same picture in another type. The engine's own blit converts, so that an image converted here and one
/// drawn at run time come out alike.
CLQSurfHandle Convert(CLQSurfHandle& source, _eSurfaceType type) {
    CLQSurfHandle target = MakeSurface(source.GetWidth(), source.GetHeight(), type);
    target.BitBlt(source, 0, 0, source.GetWidth(), source.GetHeight(), 0, 0);
    return target;
}

struct ImageFile {
    LqiHeader header;
    CLQSurfHandle surface;
    std::size_t size = 0;
};

bool ReadImage(const fs::path& file, ImageFile& image, std::string& error) {
    std::vector<std::uint8_t> bytes;
    std::string what;
    if (!ReadHostFile(file, kLqiMaxSize, bytes, what)) {
        error = About(file, what);
        return false;
    }
    image.size = bytes.size();
    // A surface whose contents are replaced below.
    image.surface = MakeSurface(1, 1, eSurface_ARGB8888);
    if (bytes.empty() || ReadLqiHeader(bytes.data(), bytes.size(), image.header) != eError_None) {
        error = About(file, "is not an .lqi image, or is cut short");
        return false;
    }
    if (image.surface.GetSurface() == nullptr ||
        image.surface.GetSurface()->CreateSurfaceFromBuffer(
            bytes.data(), L"lqi", static_cast<int>(bytes.size()), false) != eError_None) {
        error = About(file, "is damaged");
        return false;
    }
    return true;
}

}  // namespace

bool EncodeFile(const fs::path& from, const fs::path& to, const EncodeOptions& options, std::string& error) {
    if (IsOneFile({from, to}, error))
        return false;
    png::Picture picture;
    std::string what;
    if (!png::ReadPng(from, picture, what)) {
        error = About(from, what);
        return false;
    }
    _eSurfaceType type = options.type;
    if (type == eSurface_None)
        type = picture.IsOpaque() ? eSurface_XRGB8888 : eSurface_ARGB8888;
    CLQSurfHandle whole = png::ToSurface(picture);
    CLQSurfHandle surface = Convert(whole, type);
    if (surface.GetSurface() == nullptr) {
        error = About(from, "there is not enough memory");
        return false;
    }
    const std::vector<std::uint8_t> bytes = EncodeLqi(*surface.GetSurface(), options.encoding);
    if (!ReplaceHostFile(to, bytes.data(), bytes.size(), what)) {
        error = About(to, what);
        return false;
    }
    return true;
}

bool DecodeFile(const fs::path& from, const fs::path& to, std::string& error) {
    if (IsOneFile({from, to}, error))
        return false;
    ImageFile image;
    if (!ReadImage(from, image, error))
        return false;
    const png::Picture picture = png::FromSurface(Convert(image.surface, eSurface_ARGB8888));
    if (picture.pixels.empty()) {
        error = About(from, "there is not enough memory");
        return false;
    }
    std::string what;
    if (!png::WritePng(to, picture, what)) {
        error = About(to, what);
        return false;
    }
    return true;
}

bool DescribeFile(const fs::path& file, std::string& description, std::string& error) {
    ImageFile image;
    if (!ReadImage(file, image, error))
        return false;
    const char* const encoding = image.header.encoding == LqiEncoding::Raw ? "raw" : "lz4";
    description = About(file, std::to_string(image.header.width) + "x" + std::to_string(image.header.height) +
                                  " " + NameOfPixelType(image.header.type) + " " + encoding + ", " +
                                  std::to_string(image.size) + " bytes" +
                                  (image.surface.GetSurface()->IsOpaque() ? ", opaque" : ""));
    return true;
}

}  // namespace korvane::tools
