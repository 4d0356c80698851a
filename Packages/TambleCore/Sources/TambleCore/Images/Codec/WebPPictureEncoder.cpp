#include <TambleCore/Images/Codec/WebPPictureEncoder.h>
#include <TambleCore/Images/ConversionError.h>

namespace tamble {
namespace {

/// The quality that the simple lossless call asks for: how much time it takes.
constexpr float losslessEffort = 70;

int reportOrStop(int percent, const WebPPicture* picture) {
    const auto& watch = *static_cast<const Watch*>(picture->user_data);
    watch.context().report(watch.decodingShare() + (1 - watch.decodingShare()) * percent / 100);
    return watch.context().stop.stop_requested() ? 0 : 1;
}

int append(const std::uint8_t* data, std::size_t size, const WebPPicture* picture) {
    auto& target = *static_cast<Bytes*>(picture->custom_ptr);
    const auto* const bytes = reinterpret_cast<const std::byte*>(data);
    target.insert(target.end(), bytes, bytes + size);
    return 1;
}

WebPConfig configuration(const Encoding& encoding) {
    WebPConfig config;
    const auto quality = static_cast<float>(std::clamp(encoding.factor, 0.0, 1.0) * 100);
    if (WebPConfigPreset(&config, WEBP_PRESET_DEFAULT, encoding.lossless ? losslessEffort : quality) == 0) {
        throw ConversionError(ConversionError::Case::encodeFailed, "libwebp: version");
    }
    config.lossless = encoding.lossless ? 1 : 0;
    return config;
}

}  // namespace

WebPPlanes::WebPPlanes(PictureSize size, Kind kind) {
    if (size.longestSide() > WEBP_MAX_DIMENSION)
        throw ConversionError(ConversionError::Case::tooLargeForWebP);
    const bool isUsable = WebPPictureInit(&picture_) != 0;
    picture_.width = size.width;
    picture_.height = size.height;
    picture_.use_argb = kind.lossless ? 1 : 0;
    picture_.colorspace = kind.hasAlpha ? WEBP_YUV420A : WEBP_YUV420;
    if (!isUsable || WebPPictureAlloc(&picture_) == 0) {
        throw ConversionError(ConversionError::Case::encodeFailed, "libwebp: out of memory");
    }
}

Bytes encodedPicture(WebPPicture& picture, const Encoding& encoding, const Watch& watch) {
    Bytes encoded;
    picture.writer = append;
    picture.custom_ptr = &encoded;
    picture.progress_hook = reportOrStop;
    picture.user_data = const_cast<Watch*>(&watch);
    const WebPConfig config = configuration(encoding);
    const bool done = WebPEncode(&config, &picture) != 0;
    watch.context().throwIfStopped();
    if (done && !encoded.empty()) return encoded;
    throw ConversionError(ConversionError::Case::encodeFailed,
                          fmt::format("libwebp: error {}", static_cast<int>(picture.error_code)));
}

}  // namespace tamble
