#include <TambleCore/Images/Codec/Files.h>
#include <TambleCore/Images/ConversionError.h>

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tamble {
namespace {

class OpenFile {
  public:
    OpenFile(const std::filesystem::path& path, int flags)
        : descriptor_(::open(path.c_str(), flags | O_CLOEXEC, 0666)) {}
    ~OpenFile() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int descriptor() const noexcept { return descriptor_; }
    bool close() noexcept { return ::close(std::exchange(descriptor_, -1)) == 0; }

  private:
    int descriptor_;
};

[[noreturn]] void fail(ConversionError::Case which) {
    throw ConversionError(which, std::generic_category().message(errno));
}

/// Whether all was written; errno says why not.
bool writeAll(int descriptor, ByteView content) {
    while (!content.empty()) {
        const auto written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        content = content.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace

Bytes readWhole(const std::filesystem::path& path) {
    // Without waiting: a pipe without a writer must not stop the job.
    const OpenFile file(path, O_RDONLY | O_NONBLOCK);
    struct stat facts {};
    if (file.descriptor() < 0 || ::fstat(file.descriptor(), &facts) != 0)
        fail(ConversionError::Case::unreadable);
    if (!S_ISREG(facts.st_mode))
        throw ConversionError(ConversionError::Case::unreadable, "Not a regular file");
    Bytes content(static_cast<std::size_t>(facts.st_size));
    std::size_t filled = 0;
    while (filled < content.size()) {
        const auto count = ::read(file.descriptor(), content.data() + filled, content.size() - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) fail(ConversionError::Case::unreadable);
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    content.resize(filled);
    return content;
}

void writeNew(const std::filesystem::path& path, ByteView content) {
    OpenFile file(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
    if (file.descriptor() < 0) fail(ConversionError::Case::encodeFailed);
    if (writeAll(file.descriptor(), content) && file.close()) return;
    const ConversionError error(ConversionError::Case::encodeFailed, std::generic_category().message(errno));
    ::unlink(path.c_str());
    throw error;
}

}  // namespace tamble
