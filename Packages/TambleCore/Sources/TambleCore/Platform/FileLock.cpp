#include <TambleCore/Platform/FileLock.h>
#include <TambleCore/Platform/SystemError.h>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace tamble {
namespace {

FileDescriptor openedLockFile(const std::filesystem::path& lockFile) {
    FileDescriptor file(::open(lockFile.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!file) throwLastError("cannot open", lockFile);
    return file;
}

}  // namespace

FileLock FileLock::waitFor(const std::filesystem::path& lockFile) {
    FileDescriptor file = openedLockFile(lockFile);
    while (::flock(file.number(), LOCK_EX) != 0) {
        if (errno != EINTR) throwLastError("cannot lock", lockFile);
    }
    return FileLock(std::move(file));
}

std::optional<FileLock> FileLock::tryTake(const std::filesystem::path& lockFile) {
    FileDescriptor file = openedLockFile(lockFile);
    while (::flock(file.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) return std::nullopt;
        if (errno != EINTR) throwLastError("cannot lock", lockFile);
    }
    return FileLock(std::move(file));
}

bool FileLock::isStillAt(const std::filesystem::path& lockFile) const {
    struct stat held {};
    struct stat there {};
    return ::fstat(file_.number(), &held) == 0 && ::lstat(lockFile.c_str(), &there) == 0 &&
           held.st_dev == there.st_dev && held.st_ino == there.st_ino;
}

}  // namespace tamble
