#include <TambleCore/Images/Codec/WebPRows.h>
#include <TambleCore/Images/ConversionError.h>

#include <cstring>

namespace tamble {
namespace {

[[noreturn]] void failOnMemory() {
    throw ConversionError(ConversionError::Case::encodeFailed, "libwebp: out of memory");
}

/// Owns the planes of one piece.
struct Piece {
    WebPPicture picture;
    Piece() {
        if (WebPPictureInit(&picture) == 0) failOnMemory();
    }
    ~Piece() { WebPPictureFree(&picture); }
    Piece(const Piece&) = delete;
    Piece& operator=(const Piece&) = delete;
};

template <typename Sample>
void copyRows(const Sample* from, int fromStride, Sample* to, int toStride, int width, int height) {
    for (int row = 0; row < height; ++row) {
        std::memcpy(to + std::ptrdiff_t{row} * toStride, from + std::ptrdiff_t{row} * fromStride,
                    static_cast<std::size_t>(width) * sizeof(Sample));
    }
}

}  // namespace

WebPRows::WebPRows(PictureSize size, int bands, bool lossless)
    : planes_(size, {.lossless = lossless, .hasAlpha = bands == 4}),
      bands_(bands),
      pair_(2 * static_cast<std::size_t>(size.width) * static_cast<std::size_t>(bands)) {}

void WebPRows::take(int top, int height, const std::uint8_t* pixels, std::size_t stride) {
    const std::size_t rowBytes = pair_.size() / 2;
    if (oneWaits_) {
        std::memcpy(pair_.data() + rowBytes, pixels, rowBytes);
        import(top - 1, 2, pair_.data(), rowBytes);
        oneWaits_ = false;
        ++top;
        --height;
        pixels += stride;
    }
    const bool isLast = top + height == picture().height;
    const int taken = isLast ? height : height & ~1;
    if (taken > 0) import(top, taken, pixels, stride);
    if (taken < height) {
        std::memcpy(pair_.data(), pixels + static_cast<std::size_t>(taken) * stride, rowBytes);
        oneWaits_ = true;
    }
}

void WebPRows::import(int top, int height, const std::uint8_t* pixels, std::size_t stride) {
    const WebPPicture& target = picture();
    Piece piece;
    piece.picture.width = target.width;
    piece.picture.height = height;
    piece.picture.use_argb = target.use_argb;
    const auto importer = bands_ == 4 ? WebPPictureImportRGBA : WebPPictureImportRGB;
    if (importer(&piece.picture, pixels, static_cast<int>(stride)) == 0) failOnMemory();
    const WebPPicture& from = piece.picture;
    const std::ptrdiff_t row = top;
    if (target.use_argb != 0) {
        copyRows(from.argb, from.argb_stride, target.argb + row * target.argb_stride, target.argb_stride,
                 from.width, height);
        return;
    }
    const int halfWidth = (from.width + 1) / 2;
    const int halfHeight = (height + 1) / 2;
    const std::ptrdiff_t halfRow = row / 2;
    copyRows(from.y, from.y_stride, target.y + row * target.y_stride, target.y_stride, from.width, height);
    copyRows(from.u, from.uv_stride, target.u + halfRow * target.uv_stride, target.uv_stride, halfWidth,
             halfHeight);
    copyRows(from.v, from.uv_stride, target.v + halfRow * target.uv_stride, target.uv_stride, halfWidth,
             halfHeight);
    if (target.a == nullptr) return;
    std::uint8_t* const alpha = target.a + row * target.a_stride;
    if (from.a != nullptr) {
        copyRows(from.a, from.a_stride, alpha, target.a_stride, from.width, height);
    } else {
        // A piece without a see-through pixel is imported without alpha.
        std::memset(alpha, 255, static_cast<std::size_t>(target.a_stride) * static_cast<std::size_t>(height));
    }
}

}  // namespace tamble
