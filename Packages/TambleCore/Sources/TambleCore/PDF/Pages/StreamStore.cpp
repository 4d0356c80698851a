#include <TambleCore/PDF/PDFError.h>
#include <TambleCore/PDF/Pages/StreamStore.h>
#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/SystemError.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <qpdf/Pipeline.hh>
#include <unistd.h>

namespace tamble::pdf {
namespace {

FileDescriptor unnamedFile(const std::filesystem::path& folder) {
    std::string name = (folder / "streams-XXXXXX").native();
    FileDescriptor file(::mkostemp(name.data(), O_CLOEXEC));
    if (!file) throw PDFError(PDFError::Case::writeFailed, lastSystemError().message());
    ::unlink(name.c_str());
    return file;
}

class Provider final : public QPDFObjectHandle::StreamDataProvider {
  public:
    Provider(int file, StreamStore::Piece piece) : file_(file), piece_(piece) {}

    void provideStreamData(const QPDFObjGen&, Pipeline* pipeline) override {
        std::array<unsigned char, 65536> part;
        auto at = piece_.at;
        for (std::size_t left = piece_.size; left > 0;) {
            const ssize_t count =
                ::pread(file_, part.data(), std::min(left, part.size()), static_cast<off_t>(at));
            if (count < 0 && errno == EINTR) continue;
            if (count <= 0) throw PDFError(PDFError::Case::writeFailed, lastSystemError().message());
            pipeline->write(part.data(), static_cast<std::size_t>(count));
            at += static_cast<std::uint64_t>(count);
            left -= static_cast<std::size_t>(count);
        }
        pipeline->finish();
    }

  private:
    int file_;
    StreamStore::Piece piece_;
};

}  // namespace

StreamStore::StreamStore(const std::filesystem::path& folder) : file_(unnamedFile(folder)) {}

StreamStore::Piece StreamStore::add(std::span<const std::byte> data) {
    const std::scoped_lock lock(mutex_);
    try {
        writeAll(file_.number(), {reinterpret_cast<const char*>(data.data()), data.size()}, {});
    } catch (const std::filesystem::filesystem_error& error) {
        throw PDFError(PDFError::Case::writeFailed, causeOf(error));
    }
    const Piece piece{.at = size_, .size = data.size()};
    size_ += data.size();
    return piece;
}

std::shared_ptr<QPDFObjectHandle::StreamDataProvider> StreamStore::provider(Piece piece) const {
    return std::make_shared<Provider>(file_.number(), piece);
}

}  // namespace tamble::pdf
