#include <TambleCore/Images/Codec/Encoders.h>
#include <TambleCore/Images/Codec/RowSink.h>
#include <TambleCore/Images/ConversionError.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include <libheif/heif.h>

namespace tamble {
namespace {

template <auto release>
struct Release {
    template <typename T>
    void operator()(T* object) const {
        release(object);
    }
};
using Context = std::unique_ptr<heif_context, Release<heif_context_free>>;
using Encoder = std::unique_ptr<heif_encoder, Release<heif_encoder_release>>;
using Image = std::unique_ptr<heif_image, Release<heif_image_release>>;
using Handle = std::unique_ptr<heif_image_handle, Release<heif_image_handle_release>>;

void check(const heif_error& error) {
    if (error.code != heif_error_Ok)
        throw ConversionError(ConversionError::Case::encodeFailed, error.message);
}

heif_compression_format compressionOf(ImageFormat format) {
    return format == ImageFormat::avif ? heif_compression_AV1 : heif_compression_HEVC;
}

/// The quality on the HEVC encoder's scale at which three photographs had the mean squared error of JPEGs
/// with the factor; taken as it is, the factor would make files of several times the JPEG's size. AV1's scale
/// is near JPEG's.
int hevcQuality(double factor) {
    struct Match {
        double factor;
        double quality;
    };
    constexpr std::array matches{Match{0, 0}, Match{0.6, 40}, Match{0.8, 50}, Match{0.94, 68}, Match{1, 100}};
    std::size_t above = 1;
    while (above + 1 < matches.size() && matches[above].factor < factor) ++above;
    const Match& from = matches[above - 1];
    const Match& to = matches[above];
    const double share = (factor - from.factor) / (to.factor - from.factor);
    return static_cast<int>(std::lround(std::lerp(from.quality, to.quality, share)));
}

Encoder encoderFor(heif_context* context, ImageFormat format, double factor) {
    // From here on colours are as sharp as brightness.
    constexpr double fullColourFactor = 0.9;
    factor = std::clamp(factor, 0.0, 1.0);
    const int quality =
        format == ImageFormat::heic ? hevcQuality(factor) : static_cast<int>(std::lround(factor * 100));
    heif_encoder* made = nullptr;
    check(heif_context_get_encoder_for_format(context, compressionOf(format), &made));
    Encoder encoder(made);
    check(heif_encoder_set_lossy_quality(encoder.get(), quality));
    check(heif_encoder_set_parameter(encoder.get(), "chroma", factor >= fullColourFactor ? "444" : "420"));
    // Half of AV1's way from careful (0) to hurried (9).
    if (format == ImageFormat::avif) check(heif_encoder_set_parameter(encoder.get(), "speed", "5"));
    return encoder;
}

/// The 8-bit RGB or RGBA pixels as the library holds them.
Image filled(const vips::VImage& picture) {
    constexpr int depth = 8;
    const auto chroma = picture.bands() == 4 ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
    heif_image* made = nullptr;
    check(heif_image_create(picture.width(), picture.height(), heif_colorspace_RGB, chroma, &made));
    Image image(made);
    check(heif_image_add_plane(made, heif_channel_interleaved, picture.width(), picture.height(), depth));
    int targetStride = 0;
    std::uint8_t* const target = heif_image_get_plane(made, heif_channel_interleaved, &targetStride);
    const auto rowBytes =
        static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.bands());
    forEachRow(picture, [&](int top, int height, const std::uint8_t* pixels, std::size_t stride) {
        for (int row = 0; row < height; ++row, pixels += stride)
            std::memcpy(target + std::ptrdiff_t{top + row} * targetStride, pixels, rowBytes);
    });
    return image;
}

heif_error appendTo(heif_context*, const void* data, std::size_t size, void* target) {
    const auto* const bytes = static_cast<const std::byte*>(data);
    static_cast<Bytes*>(target)->assign(bytes, bytes + size);
    return {heif_error_Ok, heif_suberror_Unspecified, ""};
}

}  // namespace

bool canEncodeHeif(ImageFormat format) {
    return heif_have_encoder_for_format(compressionOf(format)) != 0;
}

Bytes encodedHeif(const vips::VImage& picture, ImageFormat format, const Encoding& encoding,
                  const MetadataBlocks& blocks) {
    const Context context(heif_context_alloc());
    const Encoder encoder = encoderFor(context.get(), format, encoding.factor);
    const Image image = filled(picture);
    if (blocks.icc) {
        check(heif_image_set_raw_color_profile(image.get(), "prof", blocks.icc->data(), blocks.icc->size()));
    }
    heif_image_handle* made = nullptr;
    check(heif_context_encode_image(context.get(), image.get(), encoder.get(), nullptr, &made));
    const Handle handle(made);
    const auto put = [&](const auto& add, const std::optional<Bytes>& block) {
        if (block) check(add(context.get(), handle.get(), block->data(), static_cast<int>(block->size())));
    };
    put(heif_context_add_exif_metadata, blocks.exif);
    put(heif_context_add_XMP_metadata, blocks.xmp);
    Bytes result;
    heif_writer writer{1, appendTo};
    check(heif_context_write(context.get(), &writer, &result));
    return result;
}

}  // namespace tamble
