#include <TambleCore/Images/Codec/Loaders.h>
#include <TambleCore/Images/ConversionError.h>

namespace tamble {
namespace {

const char* loaderOf(Container container) {
    switch (container) {
        case Container::jpeg:
            return "jpegload_buffer";
        case Container::png:
            return "pngload_buffer";
        case Container::webp:
            return "webpload_buffer";
        case Container::tiff:
            return "tiffload_buffer";
        case Container::gif:
            return "gifload_buffer";
        case Container::heic:
        case Container::avif:
            return "heifload_buffer";
        case Container::jpegXL:
            return "jxlload_buffer";
        case Container::jpeg2000:
            return "jp2kload_buffer";
        case Container::bmp:
        case Container::ico:
            return "magickload_buffer";
        case Container::icns:
        case Container::cameraRaw:
            break;
    }
    throw ConversionError(ConversionError::Case::unreadable, "No loader");
}

}  // namespace

vips::VImage opened(ByteView file, Container container, const LoadOptions& options) {
    const char* const loader = loaderOf(container);
    VipsBlob* const blob = vips_blob_new(nullptr, file.data(), file.size());
    vips::VImage image;
    auto* const arguments = vips::VImage::option()
                                ->set("buffer", blob)
                                ->set("out", &image)
                                ->set("access", VIPS_ACCESS_SEQUENTIAL)
                                ->set("fail_on", VIPS_FAIL_ON_ERROR);
    vips_area_unref(VIPS_AREA(blob));
    if (options.shrink != 1) arguments->set("shrink", options.shrink);
    if (options.page != 0) arguments->set("page", options.page);
    try {
        vips::VImage::call(loader, arguments);
    } catch (const vips::VError& error) {
        throw ConversionError(ConversionError::Case::unreadable, error.what());
    }
    return image;
}

}  // namespace tamble
