#include <TambleCore/Images/Codec/SavedByVips.h>

namespace tamble {

Bytes savedByVips(const vips::VImage& image, const char* saver, vips::VOption* options) {
    VipsBlob* blob = nullptr;
    vips::VImage::call(saver, options->set("in", image)->set("buffer", &blob));
    const std::unique_ptr<VipsArea, decltype(&vips_area_unref)> area(VIPS_AREA(blob), vips_area_unref);
    std::size_t size = 0;
    const auto* const data = static_cast<const std::byte*>(vips_blob_get(blob, &size));
    return {data, data + size};
}

}  // namespace tamble
