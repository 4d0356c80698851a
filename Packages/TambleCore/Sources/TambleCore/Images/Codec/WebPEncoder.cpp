#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/RowSink.h>
#include <TambleCore/Images/Codec/WebPRows.h>
#include <TambleCore/Images/ConversionError.h>

#include <cmath>

#include <webp/encode.h>

namespace tamble {
namespace {

int reportOrStop(int percent, const WebPPicture* picture) {
    const auto& watch = *static_cast<const Watch*>(picture->user_data);
    watch.context().report(watch.decodingShare() + (1 - watch.decodingShare()) * percent / 100);
    return watch.context().stop.stop_requested() ? 0 : 1;
}

/// The settings behind the simple encoding calls.
WebPConfig configuration(const Encoding& encoding) {
    WebPConfig config;
    const auto quality = static_cast<float>(std::clamp(encoding.factor, 0.0, 1.0) * 100);
    if (WebPConfigPreset(&config, WEBP_PRESET_DEFAULT, encoding.lossless ? 70.0F : quality) == 0) {
        throw ConversionError(ConversionError::Case::encodeFailed, "libwebp: version");
    }
    config.lossless = encoding.lossless ? 1 : 0;
    return config;
}

}  // namespace

Bytes encodedWebP(const vips::VImage& image, const Encoding& encoding, const Watch& watch) {
    if (image.width() > WEBP_MAX_DIMENSION || image.height() > WEBP_MAX_DIMENSION) {
        throw ConversionError(ConversionError::Case::tooLargeForWebP);
    }
    WebPRows rows({image.width(), image.height()}, image.bands(), encoding.lossless);
    forEachRow(image, [&](int top, int height, const std::uint8_t* pixels, std::size_t stride) {
        rows.take(top, height, pixels, stride);
    });
    WebPPicture& picture = rows.picture();
    picture.progress_hook = reportOrStop;
    picture.user_data = const_cast<Watch*>(&watch);

    Bytes encoded;
    picture.custom_ptr = &encoded;
    picture.writer = [](const std::uint8_t* data, std::size_t size, const WebPPicture* from) {
        auto& target = *static_cast<Bytes*>(from->custom_ptr);
        const auto* const bytes = reinterpret_cast<const std::byte*>(data);
        target.insert(target.end(), bytes, bytes + size);
        return 1;
    };
    const WebPConfig config = configuration(encoding);
    const bool done = WebPEncode(&config, &picture) != 0;
    watch.context().throwIfStopped();
    if (!done || encoded.empty()) {
        throw ConversionError(ConversionError::Case::encodeFailed,
                              fmt::format("libwebp: {}", static_cast<int>(picture.error_code)));
    }
    return encoded;
}

}  // namespace tamble
