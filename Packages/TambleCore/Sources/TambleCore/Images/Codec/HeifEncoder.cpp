#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/SavedByVips.h>

#include <cmath>

namespace tamble {
namespace {

void setBlock(vips::VImage& image, const char* name, const std::optional<Bytes>& block) {
    if (block) vips_image_set_blob_copy(image.get_image(), name, block->data(), block->size());
}

}  // namespace

Bytes encodedHeif(const vips::VImage& image, ImageFormat format, const Encoding& encoding,
                  const MetadataBlocks& blocks) {
    vips::VImage described = image.copy();
    for (const char* name :
         {VIPS_META_EXIF_NAME, VIPS_META_XMP_NAME, VIPS_META_IPTC_NAME, VIPS_META_ICC_NAME}) {
        vips_image_remove(described.get_image(), name);
    }
    setBlock(described, VIPS_META_EXIF_NAME, blocks.exif);
    setBlock(described, VIPS_META_XMP_NAME, blocks.xmp);
    setBlock(described, VIPS_META_ICC_NAME, blocks.icc);
    const bool isAvif = format == ImageFormat::avif;
    return savedByVips(described, "heifsave_buffer",
                       vips::VImage::option()
                           ->set("Q", static_cast<int>(std::lround(encoding.factor * 100)))
                           ->set("compression", isAvif ? VIPS_FOREIGN_HEIF_COMPRESSION_AV1
                                                       : VIPS_FOREIGN_HEIF_COMPRESSION_HEVC)
                           ->set("bitdepth", 8));
}

}  // namespace tamble
