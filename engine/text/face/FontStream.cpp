#include "engine/text/face/FontStream.h"

#include <algorithm>
#include <cstring>
#include <freetype/freetype.h>
#include <freetype/ftsystem.h>

#include "platform/coredll.h"

namespace korvane {

namespace {

constexpr long kLargestFile = 256L * 1024 * 1024;

/// FreeType's contract: a count of 0 asks whether the position exists, and 0 says that it does.
unsigned long ReadForFreeType(FT_Stream stream, unsigned long offset, unsigned char* bytes,
                              unsigned long count) {
    if (count == 0)
        return offset <= stream->size ? 0 : 1;
    return static_cast<FontStream*>(stream->descriptor.pointer)->Read(offset, bytes, count);
}

}  // namespace

std::unique_ptr<FontStream> FontStream::Open(const wchar_t* path) {
    std::unique_ptr<std::FILE, CloseFile> file(_wfopen(path, L"rb"));
    if (!file || std::fseek(file.get(), 0, SEEK_END) != 0)
        return nullptr;
    const long size = std::ftell(file.get());
    if (size <= 0 || size > kLargestFile)
        return nullptr;
    return std::unique_ptr<FontStream>(new FontStream(file.release(), static_cast<unsigned long>(size)));
}

FontStream::FontStream(std::FILE* file, unsigned long size)
    : file_(file), record_(std::make_unique<FT_StreamRec_>()) {
    std::setvbuf(file, nullptr, _IONBF, 0);  // the pages are the buffer
    record_->size = size;
    record_->descriptor.pointer = this;
    record_->read = &ReadForFreeType;
}

FontStream::~FontStream() = default;

unsigned long FontStream::Read(unsigned long offset, unsigned char* bytes, unsigned long count) {
    if (offset >= record_->size)
        return 0;
    count = std::min(count, record_->size - offset);
    if (count >= kPageSize)
        return ReadFile(offset, bytes, count);
    unsigned long done = 0;
    while (done < count) {
        const Page& page = LoadPage((offset + done) / kPageSize);
        const unsigned long start = (offset + done) % kPageSize;
        if (start >= page.length)
            break;
        const unsigned long piece = std::min(count - done, page.length - start);
        std::memcpy(bytes + done, page.bytes.data() + start, piece);
        done += piece;
    }
    return done;
}

unsigned long FontStream::ReadFile(unsigned long offset, unsigned char* bytes, unsigned long count) {
    if (std::fseek(file_.get(), static_cast<long>(offset), SEEK_SET) != 0)
        return 0;
    return static_cast<unsigned long>(std::fread(bytes, 1, count, file_.get()));
}

const FontStream::Page& FontStream::LoadPage(unsigned long number) {
    for (const Page& page : pages_)
        if (page.number == number)
            return page;
    Page& page = pages_[nextPage_];
    nextPage_ = (nextPage_ + 1) % pages_.size();
    page.number = number;
    page.length = ReadFile(number * kPageSize, page.bytes.data(), kPageSize);
    return page;
}

}  // namespace korvane
