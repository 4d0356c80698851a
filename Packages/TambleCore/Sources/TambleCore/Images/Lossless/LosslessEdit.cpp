#include <TambleCore/Images/Lossless/CleanContainers.h>
#include <TambleCore/Images/Lossless/LosslessEdit.h>
#include <TambleCore/Images/Metadata/Exif/EditStructure.h>

namespace tamble {

std::optional<Bytes> losslesslyCleaned(ByteView file, ImageFormat format, MetadataRemoval removal) {
    if (removal == MetadataRemoval::nothing) return Bytes(file.begin(), file.end());
    switch (format) {
        case ImageFormat::jpeg:
            return cleanedJpeg(file, removal);
        case ImageFormat::png:
            return cleanedPng(file, removal);
        case ImageFormat::webp:
            return cleanedWebP(file, removal);
        case ImageFormat::tiff:
            return cleanedTiff(file, removal);
        case ImageFormat::heic:
        case ImageFormat::gif:
        case ImageFormat::avif:
            break;
    }
    return std::nullopt;
}

std::optional<Bytes> exifWithoutLocation(ByteView block) {
    auto edited = tiff::edited(block, {.withoutLocation = true});
    if (edited) return edited;
    const int orientation = tiff::orientation(block);
    return orientation == 1 ? std::nullopt : std::optional(tiff::blockWithOrientation(orientation));
}

std::optional<Bytes> exifWithOrientationOnly(const std::optional<Bytes>& block) {
    const int orientation = block ? tiff::orientation(*block) : 1;
    return orientation == 1 ? std::nullopt : std::optional(tiff::blockWithOrientation(orientation));
}

}  // namespace tamble
