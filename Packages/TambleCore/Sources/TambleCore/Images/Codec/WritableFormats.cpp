#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/WritableFormats.h>

namespace tamble {
namespace {

/// The library lists its saver whatever codecs it finds, so a picture is saved to see.
bool canEncodeHeif(ImageFormat format) {
    try {
        const vips::VImage picture =
            vips::VImage::black(64, 64, vips::VImage::option()->set("bands", 3))
                .copy(vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
        return !encodedHeif(picture, format, {}, {}).empty();
    } catch (const vips::VError&) {
        return false;
    }
}

bool hasSaver(const char* name) {
    return vips_type_find("VipsOperation", name) != 0;
}

}  // namespace

bool canBeWritten(ImageFormat format) {
    switch (format) {
        case ImageFormat::webp:
            return true;
        case ImageFormat::jpeg:
            return hasSaver("jpegsave_buffer");
        case ImageFormat::png:
            return hasSaver("pngsave_buffer");
        case ImageFormat::tiff:
            return hasSaver("tiffsave_buffer");
        case ImageFormat::gif:
            return hasSaver("gifsave_buffer");
        case ImageFormat::heic: {
            static const bool can = canEncodeHeif(format);
            return can;
        }
        case ImageFormat::avif: {
            static const bool can = canEncodeHeif(format);
            return can;
        }
    }
    return false;
}

bool libraryWritesWebP() {
    return hasSaver("webpsave_buffer");
}

}  // namespace tamble
