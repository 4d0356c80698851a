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

/// The HEIF loader (libvips 8.14) ties its blocks to the life of its own picture, while pictures made from
/// that one refer to them on. The profile is all that is needed of them.
void ownProfile(vips::VImage& image) {
    for (const char* name : {VIPS_META_EXIF_NAME, VIPS_META_XMP_NAME, VIPS_META_IPTC_NAME})
        vips_image_remove(image.get_image(), name);
    if (image.get_typeof(VIPS_META_ICC_NAME) == 0) return;
    std::size_t size = 0;
    const auto* const data = static_cast<const std::byte*>(image.get_blob(VIPS_META_ICC_NAME, &size));
    // By way of a copy: setting the block releases the old one first.
    const std::vector<std::byte> profile(data, data + size);
    vips_image_set_blob_copy(image.get_image(), VIPS_META_ICC_NAME, profile.data(), profile.size());
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
    if (options.thumbnail) arguments->set("thumbnail", true);
    try {
        vips::VImage::call(loader, arguments);
    } catch (const vips::VError& error) {
        throw ConversionError(ConversionError::Case::unreadable, error.what());
    }
    if (container == Container::heic || container == Container::avif) ownProfile(image);
    return image;
}

}  // namespace tamble
