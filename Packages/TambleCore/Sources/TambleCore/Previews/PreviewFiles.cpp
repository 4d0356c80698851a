#include <TambleCore/Platform/AtomicFile.h>
#include <TambleCore/Platform/FileDescriptor.h>
#include <TambleCore/Platform/SystemError.h>
#include <TambleCore/Previews/PreviewFiles.h>

#include <array>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <span>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tamble::PreviewFiles {
namespace {

constexpr std::uint32_t mostPages = 1'000'000;

/// What a file begins with. Both sides run on one machine, in its byte order.
struct Header {
    std::array<char, 8> kind{};
    /// Of a picture: width, height, channels; of pages: their count, 0, 0.
    std::array<std::uint32_t, 3> numbers{};
    std::uint32_t unused = 0;
};
constexpr std::array<char, 8> pictureKind{'T', 'a', 'm', 'b', 'l', 'e', 'P', '1'};
constexpr std::array<char, 8> pagesKind{'T', 'a', 'm', 'b', 'l', 'e', 'S', '1'};

template <typename Value>
std::string_view bytesOf(std::span<const Value> values) {
    return {reinterpret_cast<const char*>(values.data()), values.size_bytes()};
}

void writeNew(const std::filesystem::path& path, const Header& header, std::string_view content) {
    const FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!file) throwLastError("cannot write", path);
    writeAll(file.number(), bytesOf(std::span(&header, 1)), path);
    writeAll(file.number(), content, path);
}

bool readAll(int file, std::span<std::byte> target) {
    while (!target.empty()) {
        const ssize_t count = ::read(file, target.data(), target.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        target = target.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

/// A file that is being read, its kind and whole length known.
struct Opened {
    FileDescriptor file;
    Header header;
    std::uint64_t length = 0;

    /// Reads what follows the header, if it is exactly so many values.
    template <typename Value>
    bool rest(std::vector<Value>& values, std::uint64_t count) const {
        if (length != sizeof(Header) + count * sizeof(Value)) return false;
        values.resize(count);
        return readAll(file.number(), std::as_writable_bytes(std::span(values)));
    }
};

std::optional<Opened> opened(const std::filesystem::path& path, const std::array<char, 8>& kind) {
    // Without the last, opening a pipe would wait for its other end.
    Opened result{
        .file = FileDescriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK)),
        .header = {}};
    struct stat properties {};
    if (!result.file || ::fstat(result.file.number(), &properties) != 0 || !S_ISREG(properties.st_mode))
        return std::nullopt;
    result.length = static_cast<std::uint64_t>(properties.st_size);
    if (!readAll(result.file.number(), std::as_writable_bytes(std::span(&result.header, 1))) ||
        result.header.kind != kind)
        return std::nullopt;
    return result;
}

bool isSide(double length) {
    return std::isfinite(length) && length > 0;
}

}  // namespace

void write(const std::filesystem::path& path, const PreviewPicture& picture) {
    const Header header{
        .kind = pictureKind,
        .numbers = {static_cast<std::uint32_t>(picture.width), static_cast<std::uint32_t>(picture.height),
                    static_cast<std::uint32_t>(picture.channels)}};
    writeNew(path, header, bytesOf(std::span(std::as_const(picture.samples))));
}

std::optional<PreviewPicture> readPicture(const std::filesystem::path& path, int mostPixels) {
    const auto file = opened(path, pictureKind);
    if (!file) return std::nullopt;
    const auto [width, height, channels] = file->header.numbers;
    const auto isAllowed = [&](std::uint32_t side) {
        return side > 0 && std::cmp_less_equal(side, mostPixels);
    };
    if (!isAllowed(width) || !isAllowed(height) || (channels != 3 && channels != 4)) return std::nullopt;
    PreviewPicture picture{.width = static_cast<int>(width),
                           .height = static_cast<int>(height),
                           .channels = static_cast<int>(channels),
                           .samples = {}};
    if (!file->rest(picture.samples, std::uint64_t{width} * height * channels)) return std::nullopt;
    return picture;
}

void write(const std::filesystem::path& path, const std::vector<PreviewPage>& pages) {
    const Header header{.kind = pagesKind, .numbers = {static_cast<std::uint32_t>(pages.size()), 0, 0}};
    writeNew(path, header, bytesOf(std::span(pages)));
}

std::optional<std::vector<PreviewPage>> readPages(const std::filesystem::path& path) {
    const auto file = opened(path, pagesKind);
    if (!file) return std::nullopt;
    const std::uint32_t count = file->header.numbers.front();
    std::vector<PreviewPage> pages;
    if (count == 0 || count > mostPages || !file->rest(pages, count)) return std::nullopt;
    for (const auto& page : pages) {
        if (!isSide(page.width) || !isSide(page.height)) return std::nullopt;
    }
    return pages;
}

}  // namespace tamble::PreviewFiles
