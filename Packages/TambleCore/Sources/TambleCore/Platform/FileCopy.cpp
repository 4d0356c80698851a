#include <TambleCore/Platform/FileCopy.h>
#include <TambleCore/Platform/FileDescriptor.h>
#include <TambleCore/Platform/SystemError.h>

#include <array>
#include <cerrno>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tamble {
namespace {

constexpr std::size_t step = std::size_t{8} << 20U;

/// Removes an unfinished copy unless told that it is whole.
class Unfinished {
  public:
    explicit Unfinished(const std::filesystem::path& path) : path_(path) {}
    Unfinished(const Unfinished&) = delete;
    Unfinished& operator=(const Unfinished&) = delete;
    ~Unfinished() {
        std::error_code ignored;
        if (!isWhole_) std::filesystem::remove_all(path_, ignored);
    }
    void isWhole() { isWhole_ = true; }

  private:
    const std::filesystem::path& path_;
    bool isWhole_ = false;
};

void writeAll(int file, std::string_view bytes, const std::filesystem::path& path) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) throwLastError("cannot write", path);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

bool meansNoSharing(int error) {
    return error == EXDEV || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM ||
           error == ETXTBSY;
}

/// Copies everything from the files' positions on.
void copyBytes(int source, int target, std::int64_t total, const std::filesystem::path& from,
               const std::filesystem::path& to, const CopyProgress& progress) {
    std::int64_t done = 0;
    const auto advance = [&](ssize_t count) {
        done += count;
        if (progress) progress(done, total);
    };
    for (;;) {
        const ssize_t count = ::copy_file_range(source, nullptr, target, nullptr, step, 0);
        if (count > 0) {
            advance(count);
            continue;
        }
        if (count < 0 && errno == EINTR) continue;
        if (count < 0 && !meansNoSharing(errno)) throwLastError("cannot copy", from, to);
        break;
    }
    // Also after a clean end, for file systems that do not tell how much a file holds.
    if (done > 0 && done >= total) return;
    std::vector<char> buffer(std::size_t{1} << 18U);
    for (;;) {
        const ssize_t count = ::read(source, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) throwLastError("cannot read", from);
        if (count == 0) return;
        writeAll(target, {buffer.data(), static_cast<std::size_t>(count)}, to);
        advance(count);
    }
}

/// What cannot be carried over (another file system, another owner) is left behind.
void copyExtendedAttributes(int source, int target) {
    const ssize_t length = ::flistxattr(source, nullptr, 0);
    if (length <= 0) return;
    std::string names(static_cast<std::size_t>(length), '\0');
    const ssize_t filled = ::flistxattr(source, names.data(), names.size());
    if (filled <= 0) return;
    names.resize(static_cast<std::size_t>(filled));
    std::vector<char> value;
    for (std::size_t at = 0; at < names.size(); at += std::string_view(names.c_str() + at).size() + 1) {
        const char* name = names.c_str() + at;
        const ssize_t size = ::fgetxattr(source, name, nullptr, 0);
        if (size < 0) continue;
        value.resize(static_cast<std::size_t>(size));
        const ssize_t read = ::fgetxattr(source, name, value.data(), value.size());
        if (read >= 0)
            static_cast<void>(::fsetxattr(target, name, value.data(), static_cast<std::size_t>(read), 0));
    }
}

std::array<timespec, 2> timesOf(const struct stat& properties) {
    return {properties.st_atim, properties.st_mtim};
}

void copyAttributes(int source, int target, const struct stat& properties) {
    // The owner first: changing it takes away some permission bits. Refused to all but the superuser.
    const bool keepsOwner = ::fchown(target, properties.st_uid, properties.st_gid) == 0;
    if (!keepsOwner) static_cast<void>(::fchown(target, static_cast<uid_t>(-1), properties.st_gid) == 0);
    copyExtendedAttributes(source, target);
    // A program that runs as its owner must not come to run as somebody else.
    static_cast<void>(::fchmod(target, properties.st_mode & (keepsOwner ? 07777U : 01777U)));
    static_cast<void>(::futimens(target, timesOf(properties).data()));
}

FileDescriptor opened(const std::filesystem::path& path, int flags, mode_t mode = 0) {
    FileDescriptor file(::open(path.c_str(), flags | O_CLOEXEC | O_NOFOLLOW, mode));
    if (!file) throwLastError("cannot open", path);
    return file;
}

void sync(const FileDescriptor& file, const std::filesystem::path& path) {
    // EINVAL: this file system has nothing to sync.
    if (::fsync(file.number()) != 0 && errno != EINVAL) throwLastError("cannot sync", path);
}

void copyRegularFile(const std::filesystem::path& from, const std::filesystem::path& to,
                     const struct stat& properties) {
    const FileDescriptor source = opened(from, O_RDONLY);
    const FileDescriptor target = opened(to, O_WRONLY | O_CREAT | O_EXCL, 0600);
    copyBytes(source.number(), target.number(), properties.st_size, from, to, {});
    copyAttributes(source.number(), target.number(), properties);
    sync(target, to);
}

void copyLink(const std::filesystem::path& from, const std::filesystem::path& to,
              const struct stat& properties) {
    std::filesystem::copy_symlink(from, to);
    static_cast<void>(::lchown(to.c_str(), properties.st_uid, properties.st_gid));
    static_cast<void>(::utimensat(AT_FDCWD, to.c_str(), timesOf(properties).data(), AT_SYMLINK_NOFOLLOW));
}

void copyTree(const std::filesystem::path& from, const std::filesystem::path& to);

void copyFolder(const std::filesystem::path& from, const std::filesystem::path& to,
                const struct stat& properties) {
    const FileDescriptor source = opened(from, O_RDONLY | O_DIRECTORY);
    if (::mkdir(to.c_str(), 0700) != 0) throwLastError("cannot create", to);
    for (const auto& entry : std::filesystem::directory_iterator(from)) {
        copyTree(entry.path(), to / entry.path().filename());
    }
    const FileDescriptor target = opened(to, O_RDONLY | O_DIRECTORY);
    copyAttributes(source.number(), target.number(), properties);
    sync(target, to);
}

void copyTree(const std::filesystem::path& from, const std::filesystem::path& to) {
    struct stat properties {};
    if (::lstat(from.c_str(), &properties) != 0) throwLastError("cannot read", from);
    if (S_ISREG(properties.st_mode)) return copyRegularFile(from, to, properties);
    if (S_ISDIR(properties.st_mode)) return copyFolder(from, to, properties);
    if (S_ISLNK(properties.st_mode)) return copyLink(from, to, properties);
    throw std::filesystem::filesystem_error("cannot copy", from,
                                            std::make_error_code(std::errc::not_supported));
}

void throwIfExists(const std::filesystem::path& path) {
    if (!std::filesystem::exists(std::filesystem::symlink_status(path))) return;
    throw std::filesystem::filesystem_error("cannot copy to", path,
                                            std::make_error_code(std::errc::file_exists));
}

}  // namespace

void copyFileContents(const std::filesystem::path& from, const std::filesystem::path& to,
                      const CopyProgress& progress) {
    // The input may be a link to a file, which the user meant.
    const FileDescriptor source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat properties {};
    if (!source || ::fstat(source.number(), &properties) != 0) throwLastError("cannot open", from);
    FileDescriptor target = opened(to, O_WRONLY | O_CREAT | O_EXCL, 0666);
    Unfinished unfinished(to);
    copyBytes(source.number(), target.number(), properties.st_size, from, to, progress);
    // Network file systems tell only now that the disk is full.
    if (::close(target.release()) != 0) throwLastError("cannot write", to);
    unfinished.isWhole();
}

void copyItem(const std::filesystem::path& from, const std::filesystem::path& to) {
    throwIfExists(to);
    Unfinished unfinished(to);
    copyTree(from, to);
    unfinished.isWhole();
}

}  // namespace tamble
