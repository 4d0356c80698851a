#include <TambleCore/Images/Codec/ByteReader.h>
#include <TambleCore/Images/Codec/Container.h>

namespace tamble {
namespace {

using namespace std::string_view_literals;

std::optional<Container> isoMediaContainer(ByteView file) {
    const auto boxSize = std::min<std::size_t>(bigEndian32(file, 0).value_or(0), file.size());
    const auto major = textAt(file, 8, 4);
    if (major == "crx ") return Container::cameraRaw;
    if (major == "avif" || major == "avis") return Container::avif;
    for (const auto brand : {"heic"sv, "heix"sv, "hevc"sv, "hevx"sv, "heim"sv, "heis"sv}) {
        if (major == brand) return Container::heic;
    }
    if (major != "mif1" && major != "msf1" && major != "MiHE") return std::nullopt;
    for (std::size_t at = 16; at + 4 <= boxSize; at += 4) {
        if (textAt(file, at, 4) == "avif" || textAt(file, at, 4) == "avis") return Container::avif;
    }
    return Container::heic;
}

bool isNamedLikeCameraRaw(const std::filesystem::path& name) {
    const auto type = ContentType::of(name);
    return type && type->conformsTo("public.camera-raw-image");
}

struct Signature {
    std::size_t offset;
    std::string_view bytes;
    Container container;
};

constexpr std::array signatures{
    Signature{0, "\xFF\xD8\xFF"sv, Container::jpeg},
    Signature{0, "\x89PNG\r\n\x1A\n"sv, Container::png},
    Signature{8, "WEBP"sv, Container::webp},
    Signature{0, "GIF87a"sv, Container::gif},
    Signature{0, "GIF89a"sv, Container::gif},
    Signature{0, "\xFF\x0A"sv, Container::jpegXL},
    Signature{0, "\0\0\0\x0CJXL \r\n\x87\n"sv, Container::jpegXL},
    Signature{0, "\0\0\0\x0CjP  \r\n\x87\n"sv, Container::jpeg2000},
    Signature{0, "\xFF\x4F\xFF\x51"sv, Container::jpeg2000},
    Signature{0, "BM"sv, Container::bmp},
    Signature{0, "\0\0\1\0"sv, Container::ico},
    Signature{0, "icns"sv, Container::icns},
    Signature{0, "FUJIFILMCCD-RAW"sv, Container::cameraRaw},
    Signature{0, "IIRO"sv, Container::cameraRaw},
    Signature{0, "IIRS"sv, Container::cameraRaw},
    Signature{0, "MMOR"sv, Container::cameraRaw},
    Signature{0, "IIU\0"sv, Container::cameraRaw},
    Signature{0, "II\x1A\0\0\0HEAPCCDR"sv, Container::cameraRaw},
    Signature{0, "II*\0"sv, Container::tiff},
    Signature{0, "MM\0*"sv, Container::tiff},
    Signature{0, "II+\0"sv, Container::tiff},
    Signature{0, "MM\0+"sv, Container::tiff},
};

}  // namespace

std::optional<Container> containerOf(ByteView file, const std::filesystem::path& name) {
    if (isNamedLikeCameraRaw(name)) return Container::cameraRaw;
    if (textAt(file, 4, 4) == "ftyp") return isoMediaContainer(file);
    for (const auto& [offset, bytes, container] : signatures) {
        if (textAt(file, offset, bytes.size()) == bytes) return container;
    }
    return std::nullopt;
}

std::optional<ImageFormat> imageFormat(Container container) {
    switch (container) {
        case Container::jpeg:
            return ImageFormat::jpeg;
        case Container::png:
            return ImageFormat::png;
        case Container::webp:
            return ImageFormat::webp;
        case Container::tiff:
            return ImageFormat::tiff;
        case Container::gif:
            return ImageFormat::gif;
        case Container::heic:
            return ImageFormat::heic;
        case Container::avif:
            return ImageFormat::avif;
        default:
            return std::nullopt;
    }
}

bool keepsExactPixels(Container container, ByteView file) {
    switch (container) {
        case Container::png:
        case Container::gif:
        case Container::bmp:
        case Container::ico:
        case Container::icns:
            return true;
        case Container::webp:
            return textAt(file, 12, 4) == "VP8L";
        default:
            return false;
    }
}

}  // namespace tamble
