#include "tools/hostfile/HostFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <random>

namespace korvane::tools {
namespace {

struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Close>;

std::string LastError() {
    return std::strerror(errno);
}

/// A file beside `target` that did not exist before. Not every C library has a mode of fopen for that.
File MakeBeside(const std::filesystem::path& target, std::filesystem::path& made) {
    std::random_device random;
    for (int attempt = 0; attempt < 16; ++attempt) {
        made = target;
        made += "." + std::to_string(random()) + ".part";
        std::error_code unknown;
        if (!std::filesystem::exists(std::filesystem::symlink_status(made, unknown)))
            return File(std::fopen(made.string().c_str(), "wb"));
    }
    errno = EEXIST;
    return nullptr;
}

}  // namespace

bool ReadHostFile(const std::filesystem::path& file, std::size_t limit, std::vector<std::uint8_t>& bytes,
                  std::string& error) {
    std::error_code failure;
    if (std::filesystem::is_directory(file, failure)) {
        error = "is a folder";
        return false;
    }
    const File stream(std::fopen(file.string().c_str(), "rb"));
    if (!stream) {
        error = LastError();
        return false;
    }
    std::vector<std::uint8_t> found;
    std::uint8_t block[64 * 1024];
    while (const std::size_t count = std::fread(block, 1, sizeof block, stream.get())) {
        if (count > limit - found.size()) {
            error = "is too large";
            return false;
        }
        found.insert(found.end(), block, block + count);
    }
    if (std::ferror(stream.get()) != 0) {
        error = LastError();
        return false;
    }
    bytes = std::move(found);
    return true;
}

bool ReplaceHostFile(const std::filesystem::path& file, const void* bytes, std::size_t size,
                     std::string& error) {
    std::filesystem::path part;
    File stream = MakeBeside(file, part);
    if (!stream) {
        error = LastError();
        return false;
    }
    bool written = std::fwrite(bytes, 1, size, stream.get()) == size;
    written = std::fclose(stream.release()) == 0 && written;
    if (!written)
        error = LastError();
    std::error_code failure;
    if (written) {
        std::filesystem::rename(part, file, failure);
        if (!failure)
            return true;
        error = failure.message();
    }
    std::filesystem::remove(part, failure);
    return false;
}

}  // namespace korvane::tools
