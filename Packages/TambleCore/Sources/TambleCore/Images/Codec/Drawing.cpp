#include <TambleCore/Images/Codec/Colour.h>
#include <TambleCore/Images/Codec/Drawing.h>
#include <TambleCore/Images/Codec/FewColours.h>
#include <TambleCore/Images/ConversionError.h>
#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>

#include <cmath>

namespace tamble {
namespace {

/// In bytes: optimizing a JPEG takes twice the picture's memory besides, and drawings share a gibibyte.
constexpr std::size_t mostToOptimize = 200'000'000;

/// Around the picture's own memory.
vips::VImage viewOf(const Raster& picture) {
    VipsImage* const image =
        vips_image_new_from_memory(picture.samples.data(), picture.samples.size(), picture.width,
                                   picture.height, picture.channels, VIPS_FORMAT_UCHAR);
    if (image == nullptr) throw vips::VError();
    image->Type = picture.channels == 1 ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_sRGB;
    return vips::VImage(image);
}

/// Whether most pixels look like the one on their left, as where text stands on paper.
bool isFlat(const Raster& picture) {
    constexpr int rowsLookedAt = 200;
    constexpr double most = 0.8;
    const auto channels = static_cast<std::size_t>(picture.channels);
    const std::size_t rowBytes = static_cast<std::size_t>(picture.width) * channels;
    std::size_t same = 0;
    std::size_t looked = 0;
    for (int row = 0; row < picture.height; row += std::max(1, picture.height / rowsLookedAt)) {
        const auto* const samples = picture.samples.data() + static_cast<std::size_t>(row) * rowBytes;
        for (std::size_t at = channels; at < rowBytes; ++at)
            same += samples[at] == samples[at - channels] ? 1 : 0;
        looked += rowBytes - channels;
    }
    return static_cast<double>(same) >= most * static_cast<double>(looked);
}

/// An EXIF block that says nothing but the resolution.
Bytes resolutionBlock(double dotsPerInch) {
    constexpr auto order = ByteOrder::little;
    constexpr std::uint16_t rational = 5;
    constexpr std::uint16_t shortNumber = 3;
    constexpr std::uint16_t inch = 2;
    constexpr std::uint32_t fractions = 100;
    constexpr std::uint16_t entries = 3;
    constexpr std::uint32_t directory = 8;
    constexpr std::uint32_t value = directory + 2 + 12 * entries + 4;
    Bytes block = copied(asBytes("II*"));
    block.resize(4);
    appendNumber(block, directory, order);
    appendNumber(block, entries, order);
    const auto entry = [&](std::uint16_t tag, std::uint16_t type, std::uint32_t content) {
        appendNumber(block, tag, order);
        appendNumber(block, type, order);
        appendNumber(block, std::uint32_t{1}, order);
        appendNumber(block, content, order);
    };
    // XResolution and YResolution share their value; ResolutionUnit.
    entry(0x011A, rational, value);
    entry(0x011B, rational, value);
    entry(0x0128, shortNumber, inch);
    appendNumber(block, std::uint32_t{0}, order);
    appendNumber(block, static_cast<std::uint32_t>(std::lround(dotsPerInch * fractions)), order);
    appendNumber(block, fractions, order);
    return block;
}

/// libvips leaves JFIF's segment out with all others.
Bytes withResolution(const Bytes& encodedPicture, double dotsPerInch) {
    constexpr auto order = ByteOrder::big;
    const auto density = static_cast<std::uint16_t>(std::clamp(std::lround(dotsPerInch), 1L, 65'535L));
    // Version 1.2, dots per inch across and down, no thumbnail.
    Bytes payload = copied(asBytes("\x01\x02\x01"));
    appendNumber(payload, density, order);
    appendNumber(payload, density, order);
    appendNumber(payload, std::uint16_t{0}, order);
    Bytes result;
    jpeg::appendStart(result);
    const std::size_t start = result.size();
    jpeg::appendSegment(result, jpeg::Kind::jfif, payload);
    append(result, ByteView(encodedPicture).subspan(start));
    return result;
}

Bytes encoded(vips::VImage image, const ImageConverter::Drawn& how, Encoding encoding, const Watch& watch) {
    switch (how.format) {
        case ImageFormat::jpeg:
            return withResolution(encodedJpeg(image, encoding), how.dotsPerInch);
        case ImageFormat::png:
            return encodedPng(image, encoding);
        case ImageFormat::tiff:
            return encodedTiff(image);
        case ImageFormat::gif:
            return encodedGif(image);
        case ImageFormat::webp:
            encoding.lossless = encoding.lossless && hasFewColours(image);
            return withMetadata(encodedWebP(std::move(image), encoding, watch), how.format,
                                {.exif = resolutionBlock(how.dotsPerInch), .xmp = {}, .iptc = {}, .icc = {}});
        case ImageFormat::heic:
        case ImageFormat::avif:
            return encodedHeif(image, how.format, encoding,
                               {.exif = resolutionBlock(how.dotsPerInch), .xmp = {}, .iptc = {}, .icc = {}});
    }
    throw ConversionError(ConversionError::Case::cannotWrite, std::string(displayName(how.format)));
}

}  // namespace

Bytes encodedDrawing(const Raster& picture, const ImageConverter::Drawn& how, const WorkContext& context) {
    constexpr double millimetresPerInch = 25.4;
    context.throwIfStopped();
    Watch watch(context, 1);
    try {
        vips::VImage image = colouredFor(watch.over(viewOf(picture)), how.format, false).image;
        const double perMillimetre = how.dotsPerInch / millimetresPerInch;
        image = image.copy(vips::VImage::option()->set("xres", perMillimetre)->set("yres", perMillimetre));
        const bool flat = isFlat(picture);
        const Encoding encoding{.factor = how.factor,
                                .lean = picture.samples.size() > mostToOptimize,
                                .lossless = flat,
                                .png = flat ? PngEffort::quickFlat : PngEffort::quick};
        return encoded(std::move(image), how, encoding, watch);
    } catch (const vips::VError& error) {
        context.throwIfStopped();
        throw ConversionError(ConversionError::Case::encodeFailed, error.what());
    }
}

}  // namespace tamble
