#pragma once

#include <array>
#include <cstdio>
#include <memory>

struct FT_StreamRec_;

namespace korvane {

/// A font file that FreeType reads piece by piece: a large font costs only the memory of what is used of it,
/// and a file that shrinks while it is open gives short reads instead of a crash.
class FontStream {
  public:
    /// Null when there is no such file, or it is empty or larger than 256 MB.
    static std::unique_ptr<FontStream> Open(const wchar_t* path);
    ~FontStream();
    FontStream(const FontStream&) = delete;
    FontStream& operator=(const FontStream&) = delete;

    /// Lives as long as this object.
    FT_StreamRec_* Handle() { return record_.get(); }

    /// Copies up to `count` bytes from `offset`; fewer when the file ends before.
    unsigned long Read(unsigned long offset, unsigned char* bytes, unsigned long count);

  private:
    static constexpr unsigned long kPageSize = 4096;

    struct Page {
        unsigned long number = ~0UL;
        unsigned long length = 0;
        std::array<unsigned char, kPageSize> bytes;
    };
    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    FontStream(std::FILE* file, unsigned long size);
    unsigned long ReadFile(unsigned long offset, unsigned char* bytes, unsigned long count);
    const Page& LoadPage(unsigned long number);

    std::unique_ptr<std::FILE, CloseFile> file_;
    std::unique_ptr<FT_StreamRec_> record_;
    std::array<Page, 4> pages_;
    std::size_t nextPage_ = 0;
};

}  // namespace korvane
