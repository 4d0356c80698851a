#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Pictures/ScratchFile.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace tamble::pdf {
namespace {

constexpr std::size_t piece = std::size_t{256} << 10U;

[[noreturn]] void fail() {
    throw PDFError(PDFError::Case::writeFailed, std::generic_category().message(errno));
}

FileDescriptor nameless(const std::filesystem::path& folder) {
    FileDescriptor file(::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (file) return file;
    // Network file systems have no files without names.
    std::string name = (folder / ".tamble-XXXXXX").native();
    file = FileDescriptor(::mkostemp(name.data(), O_CLOEXEC));
    if (!file) fail();
    ::unlink(name.c_str());
    return file;
}

}  // namespace

ScratchFile::ScratchFile(const std::filesystem::path& folder) : file_(nameless(folder)) {}

ScratchFile::Part ScratchFile::append(ByteView data) {
    const Part part{end_, data.size()};
    while (!data.empty()) {
        const auto written = ::pwrite(file_.number(), data.data(), data.size(), static_cast<off_t>(end_));
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) fail();
        end_ += static_cast<std::uint64_t>(written);
        data = data.subspan(static_cast<std::size_t>(written));
    }
    return part;
}

void ScratchFile::copy(Part part, Pipeline& to) const {
    Bytes buffer(std::min(part.size, piece));
    while (part.size > 0) {
        const auto got = ::pread(file_.number(), buffer.data(), std::min(part.size, buffer.size()),
                                 static_cast<off_t>(part.offset));
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) fail();
        to.write(buffer.data(), static_cast<std::size_t>(got));
        part.offset += static_cast<std::uint64_t>(got);
        part.size -= static_cast<std::size_t>(got);
    }
    to.finish();
}

}  // namespace tamble::pdf
