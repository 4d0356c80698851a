#include <TambleCore/Images/Codec/Colour.h>
#include <TambleCore/Images/Codec/ColourProfile.h>
#include <TambleCore/Images/Codec/Conversion.h>
#include <TambleCore/Images/Codec/CutOut.h>
#include <TambleCore/Images/Codec/Decoded.h>
#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/FewColours.h>
#include <TambleCore/Images/Codec/Geometry.h>
#include <TambleCore/Images/Codec/Jpeg/JpegRescaling.h>
#include <TambleCore/Images/Codec/Jpeg/JpegToWebP.h>
#include <TambleCore/Images/ConversionError.h>
#include <TambleCore/Images/Lossless/LosslessEdit.h>
#include <TambleCore/Images/Metadata/Exif/TiffStructure.h>
#include <TambleCore/Images/Metadata/ReadMetadata.h>

#include <utility>

namespace tamble {
namespace {

/// How much of the whole work decoding is, for the progress shown.
double decodingShare(ImageFormat format) {
    switch (format) {
        case ImageFormat::webp:
            return 0.1;
        case ImageFormat::heic:
        case ImageFormat::avif:
            return 0.2;
        default:
            return 1;
    }
}

Bytes encodedAs(ImageFormat format, vips::VImage image, const Encoding& encoding,
                const MetadataBlocks& blocks, const Watch& watch) {
    switch (format) {
        case ImageFormat::webp:
            return withMetadata(encodedWebP(std::move(image), encoding, watch), format, blocks);
        case ImageFormat::jpeg:
            return withMetadata(encodedJpeg(image, encoding), format, blocks);
        case ImageFormat::png:
            return withMetadata(encodedPng(image, encoding), format, blocks);
        case ImageFormat::tiff:
            return withMetadata(encodedTiff(image), format, blocks);
        case ImageFormat::gif:
            return encodedGif(image);
        case ImageFormat::heic:
        case ImageFormat::avif:
            return encodedHeif(image, format, encoding, blocks);
    }
    throw ConversionError(ConversionError::Case::cannotWrite, std::string(displayName(format)));
}

bool asksOnlyForRotation(const ImageJobSettings& settings) {
    return settings.rotation != ImageJobSettings::Rotation::none && !settings.maxPixelSize &&
           !settings.removeBackground && metadataRemoval(settings) == MetadataRemoval::nothing;
}

/// Promising that something is gone is only done after looking.
void checkNothingIsLeft(ByteView result, ImageFormat format, MetadataRemoval removal) {
    if (removal == MetadataRemoval::nothing) return;
    const auto traces = remainingTraces(result, format, removal);
    if (traces.empty()) return;
    throw ConversionError(ConversionError::Case::encodeFailed,
                          fmt::format("Still there: {}", fmt::join(traces, ", ")));
}

}  // namespace

std::optional<Bytes> Conversion::edited() const {
    if (!keepsFormat()) return std::nullopt;
    if (settings.preferLosslessMetadataEdit && changesOnlyMetadata(settings)) {
        return losslesslyCleaned(file, format, metadataRemoval(settings));
    }
    if (format == ImageFormat::jpeg && asksOnlyForRotation(settings)) {
        return losslesslyRotated(file, settings.rotation);
    }
    return std::nullopt;
}

std::optional<EncodedPicture> Conversion::encodedFromJpeg(const MetadataBlocks& source,
                                                          const Encoding& encoding,
                                                          const Watch& watch) const {
    if (container != Container::jpeg || settings.removeBackground) return std::nullopt;
    const int stored = source.exif ? tiff::orientation(*source.exif) : 1;
    const Turn turn = Turn::upright(stored).then(Turn::rotation(settings.rotation));
    if (format == ImageFormat::jpeg)
        return rescaledJpeg(file, settings.maxPixelSize, turn, encoding, context);
    if (format == ImageFormat::webp && (!source.icc || isSRGB(*source.icc))) {
        return webPOfJpeg(file, settings.maxPixelSize, turn, encoding, watch);
    }
    return std::nullopt;
}

Bytes Conversion::encoded() const {
    const MetadataRemoval removal = metadataRemoval(settings);
    MetadataBlocks source = readMetadata(file);
    Encoding encoding{.factor = compressionFactor(settings.quality), .smallest = settings.skipIfNotSmaller};
    Watch watch(context, decodingShare(format));
    try {
        if (auto quick = encodedFromJpeg(source, encoding, watch)) {
            if (format == ImageFormat::webp) source.icc.reset();
            const MetadataBlocks blocks =
                carriedOver(std::move(source), removal, quick->size.width, quick->size.height);
            return withMetadata(std::move(quick->bytes), format, blocks);
        }
        vips::VImage picture = decoded(file, container, settings.maxPixelSize, settings.rotation, watch);
        if (settings.removeBackground) picture = cutOut(picture, context);
        ColouredPicture coloured = colouredFor(std::exchange(picture, {}), format, keepsFormat());
        if (format == ImageFormat::webp && keepsExactPixels(container, file)) {
            coloured.image = held(coloured.image);
            encoding.lossless = hasFewColours(coloured.image);
        }
        source.icc = std::move(coloured.profile);
        const MetadataBlocks blocks =
            carriedOver(std::move(source), removal, coloured.image.width(), coloured.image.height());
        return encodedAs(format, std::move(coloured.image), encoding, blocks, watch);
    } catch (const vips::VError& error) {
        context.throwIfStopped();
        throw ConversionError(watch.sawDecodingFail() ? ConversionError::Case::cannotDecode
                                                      : ConversionError::Case::encodeFailed,
                              error.what());
    }
}

Bytes Conversion::result() const {
    context.throwIfStopped();
    Bytes bytes;
    if (auto quick = edited()) {
        bytes = std::move(*quick);
    } else {
        bytes = encoded();
    }
    context.throwIfStopped();
    checkNothingIsLeft(bytes, format, metadataRemoval(settings));
    context.report(1);
    return bytes;
}

}  // namespace tamble
