#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/WritableFormats.h>

namespace tamble {
namespace {

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
        case ImageFormat::heic:
        case ImageFormat::avif:
            return canEncodeHeif(format);
    }
    return false;
}

bool libraryWritesWebP() {
    return hasSaver("webpsave_buffer");
}

}  // namespace tamble
