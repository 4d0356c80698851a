#include <TambleCore/Images/Codec/ByteReader.h>
#include <TambleCore/Images/Codec/PictureCount.h>
#include <TambleCore/Images/ConversionError.h>

namespace tamble {
namespace {

/// Whether a PNG has an animation control chunk, which stands before the picture's data.
bool isAnimatedPng(ByteView file) {
    std::size_t at = 8;
    while (const auto length = bigEndian32(file, at)) {
        const auto type = textAt(file, at + 4, 4);
        if (type == "acTL") return true;
        if (type == "IDAT") return false;
        at += 12 + std::size_t{*length};
    }
    return false;
}

/// Whether an ISO media file holds a track of pictures beside its still picture.
bool hasMovie(ByteView file) {
    std::size_t at = 0;
    while (const auto size = bigEndian32(file, at)) {
        if (textAt(file, at + 4, 4) == "moov") return true;
        // 0: up to the end; 1: a 64-bit size, which only the box of pixel data needs.
        if (*size < 8) return false;
        at += *size;
    }
    return false;
}

bool isAnimated(ByteView file, Container container) {
    switch (container) {
        case Container::png:
            return isAnimatedPng(file);
        case Container::heic:
        case Container::avif:
            return hasMovie(file);
        default:
            return false;
    }
}

}  // namespace

void refuseSeveralPictures(ByteView file, Container container) {
    if (isAnimated(file, container)) throw ConversionError(ConversionError::Case::animatedNotSupported);
}

void refuseSeveralPictures(Container container, int count) {
    // What the JPEG 2000 loader counts are sizes of the one picture.
    if (count < 2 || container == Container::ico || container == Container::jpeg2000) return;
    throw ConversionError(container == Container::tiff ? ConversionError::Case::multiPageNotSupported
                                                       : ConversionError::Case::animatedNotSupported,
                          fmt::format("{} pictures", count));
}

}  // namespace tamble
