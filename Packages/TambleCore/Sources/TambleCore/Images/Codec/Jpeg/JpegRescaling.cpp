#include <TambleCore/Images/Codec/Jpeg/JpegReader.h>
#include <TambleCore/Images/Codec/Jpeg/JpegRescaling.h>
#include <TambleCore/Images/Codec/Jpeg/JpegWriter.h>
#include <TambleCore/Images/Codec/PictureLimits.h>

#include <cstring>

namespace tamble {
namespace {

/// From this quality on colours are kept in full resolution.
constexpr double fullColourFactor = 0.9;

/// A channel of 8-bit samples in memory.
vips::VImage plane(std::span<std::uint8_t> samples, PictureSize size) {
    return vips::VImage::new_from_memory(samples.data(), samples.size(), size.width, size.height, 1,
                                         VIPS_FORMAT_UCHAR);
}

std::vector<std::vector<std::uint8_t>> channelsOf(JpegReader& reader, const WorkContext& context) {
    std::vector<std::vector<std::uint8_t>> channels;
    for (const PictureSize& size : reader.channelSizes()) {
        channels.emplace_back(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
    }
    const int height = reader.channelSizes().front().height;
    reader.read([&](std::span<const PlaneRows> rows) {
        for (std::size_t channel = 0; channel < rows.size(); ++channel) {
            const PlaneRows& from = rows[channel];
            const auto width = static_cast<std::size_t>(from.width);
            for (int row = 0; row < from.height; ++row) {
                std::memcpy(channels[channel].data() + static_cast<std::size_t>(from.top + row) * width,
                            from.samples + static_cast<std::size_t>(row) * from.stride, width);
            }
        }
        context.report(0.8 * (rows[0].top + rows[0].height) / height);
    });
    return channels;
}

}  // namespace

std::optional<EncodedPicture> rescaledJpeg(ByteView file, std::optional<int> maxPixelSize, const Turn& turn,
                                           const Encoding& encoding, const WorkContext& context) {
    JpegReader reader(file, context);
    if (!reader.hasLuma()) return std::nullopt;
    refuseOversized(reader.size().width, reader.size().height);
    const PictureSize size = fitted(reader.size(), maxPixelSize);
    reader.shrink(decoderShrink(reader.size(), size));
    auto channels = channelsOf(reader, context);

    const bool halvesColour = encoding.factor < fullColourFactor;
    const PictureSize colourSize =
        halvesColour ? PictureSize{(size.width + 1) / 2, (size.height + 1) / 2} : size;
    std::vector<vips::VImage> planes;
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        context.throwIfStopped();
        const vips::VImage image = scaled(plane(channels[channel], reader.channelSizes()[channel]),
                                          channel == 0 ? size : colourSize);
        planes.push_back(turned(image, turn).copy_memory());
        // Its samples are no longer needed.
        channels[channel] = {};
    }
    context.report(0.9);
    return EncodedPicture{encodedJpeg(planes, encoding), {planes.front().width(), planes.front().height()}};
}

}  // namespace tamble
