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
    : bands_(bands), pair_(2 * static_cast<std::size_t>(size.width) * static_cast<std::size_t>(bands)) {
    if (WebPPictureInit(&picture_) == 0) failOnMemory();
    picture_.width = size.width;
    picture_.height = size.height;
    picture_.use_argb = lossless ? 1 : 0;
    picture_.colorspace = bands == 4 ? WEBP_YUV420A : WEBP_YUV420;
    if (WebPPictureAlloc(&picture_) == 0) failOnMemory();
}

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
    const bool isLast = top + height == picture_.height;
    const int taken = isLast ? height : height & ~1;
    if (taken > 0) import(top, taken, pixels, stride);
    if (taken < height) {
        std::memcpy(pair_.data(), pixels + static_cast<std::size_t>(taken) * stride, rowBytes);
        oneWaits_ = true;
    }
}

void WebPRows::import(int top, int height, const std::uint8_t* pixels, std::size_t stride) {
    Piece piece;
    piece.picture.width = picture_.width;
    piece.picture.height = height;
    piece.picture.use_argb = picture_.use_argb;
    const auto importer = bands_ == 4 ? WebPPictureImportRGBA : WebPPictureImportRGB;
    if (importer(&piece.picture, pixels, static_cast<int>(stride)) == 0) failOnMemory();
    const WebPPicture& from = piece.picture;
    const std::ptrdiff_t row = top;
    if (picture_.use_argb != 0) {
        copyRows(from.argb, from.argb_stride, picture_.argb + row * picture_.argb_stride,
                 picture_.argb_stride, from.width, height);
        return;
    }
    const int halfWidth = (from.width + 1) / 2;
    const int halfHeight = (height + 1) / 2;
    const std::ptrdiff_t halfRow = row / 2;
    copyRows(from.y, from.y_stride, picture_.y + row * picture_.y_stride, picture_.y_stride, from.width,
             height);
    copyRows(from.u, from.uv_stride, picture_.u + halfRow * picture_.uv_stride, picture_.uv_stride, halfWidth,
             halfHeight);
    copyRows(from.v, from.uv_stride, picture_.v + halfRow * picture_.uv_stride, picture_.uv_stride, halfWidth,
             halfHeight);
    if (picture_.a == nullptr) return;
    std::uint8_t* const alpha = picture_.a + row * picture_.a_stride;
    if (from.a != nullptr) {
        copyRows(from.a, from.a_stride, alpha, picture_.a_stride, from.width, height);
    } else {
        // A piece without a see-through pixel is imported without alpha.
        std::memset(alpha, 255,
                    static_cast<std::size_t>(picture_.a_stride) * static_cast<std::size_t>(height));
    }
}

}  // namespace tamble
