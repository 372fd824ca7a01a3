#include "platform/posix/files/TemporaryFile.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <utility>

namespace korvane {
namespace {

int CreateNew(const std::string& path) {
    return open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
}

// True when the lock is taken and the name still stands for this file: who holds the lock of a file may
// remove it.
bool LockByName(int file, const std::string& path) {
    struct stat opened {};
    struct stat named {};
    return flock(file, LOCK_EX | LOCK_NB) == 0 && fstat(file, &opened) == 0 &&
           lstat(path.c_str(), &named) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino && S_ISREG(named.st_mode);
}

// Removes what a writer left that is no more.
void RemoveAbandoned(const std::string& path) {
    const Descriptor left(open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    if (left.IsOpen() && LockByName(left.Number(), path))
        unlink(path.c_str());
}

// -1 when another writer is at work, or the file system has no locks.
int CreateLocked(const std::string& path) {
    int file = CreateNew(path);
    if (file < 0 && errno == EEXIST) {
        RemoveAbandoned(path);
        file = CreateNew(path);
    }
    if (file < 0 || LockByName(file, path))
        return file;
    close(file);
    return -1;
}

std::string NameOfItsOwn() {
    static std::atomic<unsigned> count{0};
    return std::to_string(getpid()) + '-' + std::to_string(++count);
}

}  // namespace

std::unique_ptr<TemporaryFile> TemporaryFile::Create(const std::string& target) {
    const std::size_t name = target.rfind('/') + 1;
    const std::string prefix = target.substr(0, name) + ".korvane-";
    std::string path = prefix + target.substr(name);
    int file = CreateLocked(path);
    if (file < 0) {
        path = prefix + NameOfItsOwn();
        file = CreateNew(path);
    }
    if (file < 0)
        return nullptr;
    return std::unique_ptr<TemporaryFile>(new TemporaryFile(target, std::move(path), file));
}

TemporaryFile::TemporaryFile(const std::string& target, std::string path, int number)
    : target_(target), path_(std::move(path)), file_(number) {}

TemporaryFile::~TemporaryFile() {
    const int error = errno;
    if (!renamed_)
        unlink(path_.c_str());
    errno = error;
}

bool TemporaryFile::Rename() {
    renamed_ = std::rename(path_.c_str(), target_.c_str()) == 0;
    return renamed_;
}

}  // namespace korvane
