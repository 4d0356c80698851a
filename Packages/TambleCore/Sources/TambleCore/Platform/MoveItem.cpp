#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/FileCopy.h>
#include <TambleCore/Platform/FileDescriptor.h>
#include <TambleCore/Platform/FileProperties.h>
#include <TambleCore/Platform/FileState.h>
#include <TambleCore/Platform/MoveItem.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Platform/Volume.h>
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

/// Network file systems answer with an error what happened all the same, when an answer was lost and the
/// request sent again: what is gone from its place then is what was asked for.
class SentAgain {
  public:
    explicit SentAgain(const std::filesystem::path& leaving)
        : leaving_(leaving), wasThere_(isThere(leaving)) {}
    bool happened(int error) const { return error != EEXIST && wasThere_ && !isThere(leaving_); }

  private:
    const std::filesystem::path& leaving_;
    bool wasThere_;
};

/// As renameat2(2).
bool renamed(const std::filesystem::path& from, const std::filesystem::path& to, unsigned int flags) {
    const SentAgain request(from);
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags) == 0) return true;
    const int error = errno;
    if (request.happened(error) && isThere(to)) return true;
    errno = error;
    return false;
}

/// For file systems that cannot refuse to overwrite: an empty item of ours holds the name until the rename
/// puts the real one in its place. Nobody else's item can be there, and an empty folder only gives way to a
/// folder.
Rename renameOverPlaceholder(const std::filesystem::path& from, const std::filesystem::path& to) {
    // So that no name is held for nothing.
    if (Volume::of(from.parent_path()) != Volume::of(to.parent_path())) return Rename::needsCopy;
    const bool folder = isFolder(from);
    if (folder) {
        if (::mkdir(to.c_str(), 0700) != 0) {
            const std::error_code error = lastSystemError();
            // Made all the same, it would stay in the way.
            if (error != std::errc::file_exists) ::rmdir(to.c_str());
            throw std::filesystem::filesystem_error("cannot move", from, to, error);
        }
    } else {
        const FileDescriptor placeholder(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        if (!placeholder) throwLastError("cannot move", from, to);
    }
    if (renamed(from, to, 0)) return Rename::done;
    const std::error_code error = lastSystemError();
    static_cast<void>(folder ? ::rmdir(to.c_str()) : ::unlink(to.c_str()));
    if (error == std::errc::cross_device_link) return Rename::needsCopy;
    throw std::filesystem::filesystem_error("cannot move", from, to, error);
}

Rename renameExclusively(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (renamed(from, to, RENAME_NOREPLACE)) return Rename::done;
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

[[noreturn]] void throwChanged(const std::filesystem::path& from) {
    throw std::filesystem::filesystem_error("changed while it was moved", from,
                                            std::make_error_code(std::errc::device_or_resource_busy));
}

/// Takes the copied item away from its old place, unless it changed since it was looked at: what was added is
/// in no copy. A folder leaves by one rename first, so that it is gone whole or not at all.
void removeSource(const std::filesystem::path& from, const std::optional<FileState>& asCopied) {
    if (!isFolder(from)) {
        if (FileState::of(from, FileState::Links::stay) != asCopied) throwChanged(from);
        const SentAgain request(from);
        if (::unlink(from.c_str()) != 0 && !request.happened(errno)) throwLastError("cannot remove", from);
        return;
    }
    const std::filesystem::path leaving = hiddenSibling(from);
    if (!renamed(from, leaving, 0)) throwLastError("cannot remove", from);
    if (FileState::of(leaving, FileState::Links::stay) != asCopied) {
        renameExclusively(leaving, from);
        throwChanged(from);
    }
    removeQuietly(leaving);
}

void moveByCopying(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (isThere(to)) {
        errno = EEXIST;
        throwLastError("cannot move", from, to);
    }
    const std::filesystem::path copy = hiddenSibling(to);
    const auto asCopied = FileState::of(from, FileState::Links::stay);
    copyItem(from, copy);
    try {
        if (renameExclusively(copy, to) != Rename::done) throwLastError("cannot move", from, to);
    } catch (...) {
        removeQuietly(copy);
        throw;
    }
    syncFolder(to.parent_path());
    try {
        removeSource(from, asCopied);
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
