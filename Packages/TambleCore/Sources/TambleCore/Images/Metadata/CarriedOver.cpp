#include <TambleCore/Images/Metadata/Exif/EditStructure.h>
#include <TambleCore/Images/Metadata/Metadata.h>
#include <TambleCore/Images/Metadata/Text/Iptc.h>
#include <TambleCore/Images/Metadata/Text/Xmp.h>

namespace tamble {

MetadataRemoval metadataRemoval(const ImageJobSettings& settings) {
    if (settings.removeAllMetadata) return MetadataRemoval::everything;
    return settings.removeLocation ? MetadataRemoval::location : MetadataRemoval::nothing;
}

MetadataBlocks carriedOver(MetadataBlocks source, MetadataRemoval removal, int width, int height) {
    MetadataBlocks result;
    result.icc = std::move(source.icc);
    if (removal == MetadataRemoval::everything) return result;
    const bool withoutLocation = removal == MetadataRemoval::location;
    if (source.exif) {
        result.exif = tiff::edited(*source.exif, {.withoutLocation = withoutLocation,
                                                  .withoutThumbnail = true,
                                                  .upright = tiff::Edit::PixelSize{width, height}});
    }
    if (source.xmp) {
        result.xmp = xmp::edited(*source.xmp, {.withoutLocation = withoutLocation,
                                               .withoutAttachments = true,
                                               .upright = xmp::PixelSize{width, height}});
    }
    if (source.iptc && withoutLocation) {
        Bytes records = iptc::withoutLocation(*source.iptc);
        if (!records.empty()) result.iptc = std::move(records);
    } else {
        result.iptc = std::move(source.iptc);
    }
    return result;
}

}  // namespace tamble
