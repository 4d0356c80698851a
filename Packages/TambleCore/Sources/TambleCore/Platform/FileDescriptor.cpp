#include <TambleCore/Platform/FileDescriptor.h>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tamble {

FileDescriptor::~FileDescriptor() {
    if (number_ >= 0) ::close(number_);
}

std::string firstBytes(int folder, const char* name, std::size_t length) {
    const FileDescriptor file(::openat(folder, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat properties {};
    if (!file || ::fstat(file.number(), &properties) != 0 || !S_ISREG(properties.st_mode)) return {};
    std::string bytes(length, '\0');
    std::size_t filled = 0;
    while (filled < length) {
        const ssize_t count = ::read(file.number(), bytes.data() + filled, length - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) break;
        filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
    return bytes;
}

}  // namespace tamble
