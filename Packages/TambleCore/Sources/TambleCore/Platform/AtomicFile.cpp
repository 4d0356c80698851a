#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/FileDescriptor.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Support/UUID.h>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tamble {
namespace {

void writeNewFile(const std::filesystem::path& path, std::span<const std::string_view> parts) {
    const FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!file) throwLastError("cannot write", path);
    for (const auto part : parts) writeAll(file.number(), part, path);
    if (::fsync(file.number()) != 0 && errno != EINVAL) throwLastError("cannot write", path);
}

}  // namespace

void writeAll(int file, std::string_view content, const std::filesystem::path& path) {
    while (!content.empty()) {
        const ssize_t count = ::write(file, content.data(), content.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) throwLastError("cannot write", path);
        content.remove_prefix(static_cast<std::size_t>(count));
    }
}

void syncFolder(const std::filesystem::path& folder) {
    const FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened) static_cast<void>(::fsync(opened.number()));
}

void writeFileAtomically(const std::filesystem::path& file, std::string_view content) {
    writeFileAtomically(file, {&content, 1});
}

void writeFileAtomically(const std::filesystem::path& file, std::span<const std::string_view> parts) {
    std::filesystem::create_directories(file.parent_path());
    const std::filesystem::path fresh = file.parent_path() / std::string(".").append(newUUID());
    try {
        writeNewFile(fresh, parts);
        std::filesystem::rename(fresh, file);
    } catch (...) {
        ::unlink(fresh.c_str());
        throw;
    }
    syncFolder(file.parent_path());
}

std::string readWholeFile(const std::filesystem::path& path) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat properties {};
    if (!file || ::fstat(file.number(), &properties) != 0) throwLastError("cannot read", path);
    std::string content;
    std::size_t filled = 0;
    for (;;) {
        if (filled == content.size()) {
            content.resize(filled == 0 ? static_cast<std::size_t>(properties.st_size) + 1 : filled * 2);
        }
        const ssize_t count = ::read(file.number(), content.data() + filled, content.size() - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) throwLastError("cannot read", path);
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    content.resize(filled);
    return content;
}

}  // namespace tamble
