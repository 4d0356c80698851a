#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/FileCopy.h>
#include <TambleCore/Platform/FileDescriptor.h>
#include <TambleCore/Platform/MoveItem.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/UUID.h>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tamble {
namespace {

enum class Rename { done, needsCopy };

bool isFolder(const std::filesystem::path& path) {
    struct stat properties {};
    return ::lstat(path.c_str(), &properties) == 0 && S_ISDIR(properties.st_mode);
}

/// For file systems that cannot refuse to overwrite: an empty item of ours holds the name until the rename
/// puts the real one in its place. Nobody else's item can be there, and an empty folder only gives way to a
/// folder.
Rename renameOverPlaceholder(const std::filesystem::path& from, const std::filesystem::path& to) {
    const bool folder = isFolder(from);
    if (folder) {
        if (::mkdir(to.c_str(), 0700) != 0) throwLastError("cannot move", from, to);
    } else {
        const FileDescriptor placeholder(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        if (!placeholder) throwLastError("cannot move", from, to);
    }
    if (::rename(from.c_str(), to.c_str()) == 0) return Rename::done;
    const std::error_code error = lastSystemError();
    static_cast<void>(folder ? ::rmdir(to.c_str()) : ::unlink(to.c_str()));
    if (error == std::errc::cross_device_link) return Rename::needsCopy;
    throw std::filesystem::filesystem_error("cannot move", from, to, error);
}

Rename renameExclusively(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return Rename::done;
    switch (errno) {
        case EXDEV:
            return Rename::needsCopy;
        case EINVAL:
        case ENOSYS:
        case EOPNOTSUPP:
            return renameOverPlaceholder(from, to);
        default:
            throwLastError("cannot move", from, to);
    }
}

std::filesystem::path hiddenSibling(const std::filesystem::path& path) {
    return path.parent_path() / (".TambleMoving-" + newUUID());
}

void removeQuietly(const std::filesystem::path& path) {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

/// Takes the moved item away from its old place. A folder leaves by one rename first, so that it is gone
/// whole or not at all.
void removeSource(const std::filesystem::path& from) {
    if (!isFolder(from)) {
        if (::unlink(from.c_str()) != 0) throwLastError("cannot remove", from);
        return;
    }
    const std::filesystem::path leaving = hiddenSibling(from);
    if (::rename(from.c_str(), leaving.c_str()) != 0) throwLastError("cannot remove", from);
    removeQuietly(leaving);
}

void moveByCopying(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (std::filesystem::exists(std::filesystem::symlink_status(to))) {
        errno = EEXIST;
        throwLastError("cannot move", from, to);
    }
    const std::filesystem::path copy = hiddenSibling(to);
    copyItem(from, copy);
    try {
        if (renameExclusively(copy, to) != Rename::done) throwLastError("cannot move", from, to);
    } catch (...) {
        removeQuietly(copy);
        throw;
    }
    syncFolder(to.parent_path());
    try {
        removeSource(from);
    } catch (...) {
        removeQuietly(to);
        throw;
    }
}

}  // namespace

void moveItem(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (renameExclusively(from, to) == Rename::needsCopy) moveByCopying(from, to);
}

}  // namespace tamble
