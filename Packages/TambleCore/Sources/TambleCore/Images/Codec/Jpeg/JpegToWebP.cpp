#include <TambleCore/Images/Codec/Jpeg/JpegReader.h>
#include <TambleCore/Images/Codec/Jpeg/JpegToWebP.h>
#include <TambleCore/Images/Codec/PictureLimits.h>
#include <TambleCore/Images/Codec/WebPPictureEncoder.h>

namespace tamble {
namespace {

// ITU-R BT.601 both times; JPEG uses all 256 steps, WebP 16…235 for luma and 16…240 for colour. The factors
// are those by which libwebp makes its planes of RGB (16839 + 33059 + 6420, and 28800 of 2¹⁵ for 0.5 of
// JPEG's), in 2¹⁶.
constexpr int lumaFactor = 56318;
constexpr int colourFactor = 57600;

std::uint8_t limitedLuma(int luma) {
    return static_cast<std::uint8_t>(16 + ((luma * lumaFactor + (1 << 15)) >> 16));
}

/// Of the sum of `1 << shift` samples.
std::uint8_t limitedColour(int sum, int shift) {
    const int difference = sum - (128 << shift);
    return static_cast<std::uint8_t>(128 +
                                     ((difference * colourFactor + (1 << (15 + shift))) >> (16 + shift)));
}

/// Where a turned plane's samples go.
struct TurnedPlane {
    std::uint8_t* origin;
    std::ptrdiff_t stepX;
    std::ptrdiff_t stepY;

    /// `size` is that of the turned plane.
    TurnedPlane(std::uint8_t* samples, std::ptrdiff_t stride, PictureSize size, const Turn& turn)
        : origin(samples + (turn.mirrorsX ? size.width - 1 : 0) +
                 (turn.mirrorsY ? (size.height - 1) * stride : 0)) {
        const std::ptrdiff_t right = turn.mirrorsX ? -1 : 1;
        const std::ptrdiff_t down = turn.mirrorsY ? -stride : stride;
        stepX = turn.transposes ? down : right;
        stepY = turn.transposes ? right : down;
    }

    /// Puts samples at columns 0…width and rows top…top+height, so that neighbours in memory are written
    /// together.
    template <typename SampleAt>
    void put(int width, int top, int height, const SampleAt& sampleAt) const {
        std::uint8_t* const start = origin + top * stepY;
        if (std::abs(stepX) == 1) {
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x) start[x * stepX + y * stepY] = sampleAt(x, y);
            }
        } else {
            for (int x = 0; x < width; ++x) {
                for (int y = 0; y < height; ++y) start[x * stepX + y * stepY] = sampleAt(x, y);
            }
        }
    }
};

void putLuma(const PlaneRows& rows, const TurnedPlane& target) {
    target.put(rows.width, rows.top, rows.height, [&](int x, int y) {
        return limitedLuma(
            rows.samples[static_cast<std::size_t>(y) * rows.stride + static_cast<std::size_t>(x)]);
    });
}

/// The colour of each block of two by two pixels, from a channel of which one sample stands for `acrossX` ·
/// `acrossY` pixels.
void putColour(const PlaneRows& rows, int acrossX, int acrossY, const TurnedPlane& target) {
    const int takeX = 2 / acrossX;
    const int takeY = 2 / acrossY;
    const auto at = [&](int x, int y) {
        const int column = std::min(x, rows.width - 1);
        const int row = std::min(y, rows.height - 1);
        return int{
            rows.samples[static_cast<std::size_t>(row) * rows.stride + static_cast<std::size_t>(column)]};
    };
    const int width = (rows.width + takeX - 1) / takeX;
    const int height = (rows.height + takeY - 1) / takeY;
    target.put(width, rows.top / takeY, height, [&](int x, int y) {
        const int left = x * takeX;
        const int top = y * takeY;
        // Samples that stand for two pixels count for both.
        const int sum = at(left, top) + at(left + takeX - 1, top) + at(left, top + takeY - 1) +
                        at(left + takeX - 1, top + takeY - 1);
        return limitedColour(sum, 2);
    });
}

PictureSize turnedSize(PictureSize size, const Turn& turn) {
    return turn.transposes ? PictureSize{size.height, size.width} : size;
}

PictureSize halved(PictureSize size) {
    return {(size.width + 1) / 2, (size.height + 1) / 2};
}

/// How many pixels one sample of a channel covers along a side; 0 when neither one nor two.
int across(int pixels, int samples) {
    if (samples == pixels) return 1;
    return samples == (pixels + 1) / 2 ? 2 : 0;
}

}  // namespace

std::optional<EncodedPicture> webPOfJpeg(ByteView file, std::optional<int> maxPixelSize, const Turn& turn,
                                         const Encoding& encoding, const Watch& watch) {
    JpegReader reader(file, watch.context());
    const PictureSize size = reader.size();
    refuseOversized(size.width, size.height);
    if (!reader.hasLuma() || reader.channels() != 3 || fitted(size, maxPixelSize) != size)
        return std::nullopt;
    if ((size.width % 2 != 0 || size.height % 2 != 0) && turn != Turn{}) return std::nullopt;
    reader.shrink(1);
    const PictureSize colour = reader.channelSizes()[1];
    const int acrossX = across(size.width, colour.width);
    const int acrossY = across(size.height, colour.height);
    if (acrossX == 0 || acrossY == 0 || reader.channelSizes()[2] != colour) return std::nullopt;

    const PictureSize upright = turnedSize(size, turn);
    WebPPlanes planes(upright, {.lossless = false, .hasAlpha = false});
    WebPPicture& picture = planes.picture();
    const TurnedPlane luma(picture.y, picture.y_stride, upright, turn);
    const TurnedPlane blue(picture.u, picture.uv_stride, halved(upright), turn);
    const TurnedPlane red(picture.v, picture.uv_stride, halved(upright), turn);
    reader.read([&](std::span<const PlaneRows> rows) {
        putLuma(rows[0], luma);
        putColour(rows[1], acrossX, acrossY, blue);
        putColour(rows[2], acrossX, acrossY, red);
        watch.context().report(watch.decodingShare() * (rows[0].top + rows[0].height) / size.height);
    });
    return EncodedPicture{encodedPicture(picture, encoding, watch), upright};
}

}  // namespace tamble
