#include <TambleCore/Images/Codec/Jpeg/JpegReader.h>
#include <TambleCore/Images/Codec/Jpeg/JpegToWebP.h>
#include <TambleCore/Images/Codec/PictureLimits.h>
#include <TambleCore/Images/Codec/WebPPictureEncoder.h>

#include <cstring>

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

/// Of the sum of four samples.
std::uint8_t limitedColour(int sum) {
    return static_cast<std::uint8_t>(128 + (((sum - 4 * 128) * colourFactor + (1 << 17)) >> 18));
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

/// A colour channel of the whole picture, as stored.
struct ColourChannel {
    PictureSize size;
    /// How many pixels one sample covers along each side, one or two.
    int acrossX = 1;
    int acrossY = 1;
    std::vector<std::uint8_t> samples;

    void take(const PlaneRows& rows) {
        const auto width = static_cast<std::size_t>(size.width);
        for (int row = 0; row < rows.height; ++row) {
            std::memcpy(samples.data() + static_cast<std::size_t>(rows.top + row) * width,
                        rows.samples + static_cast<std::size_t>(row) * rows.stride, width);
        }
    }
};

/// Offsets of a channel's samples for each pair of neighbours along one side of the turned picture.
std::vector<std::array<std::size_t, 2>> samplePairs(int pixels, bool isMirrored, int across,
                                                    std::size_t step) {
    const auto offset = [&](int turned) {
        const int last = std::min(turned, pixels - 1);
        return static_cast<std::size_t>((isMirrored ? pixels - 1 - last : last) / across) * step;
    };
    std::vector<std::array<std::size_t, 2>> pairs;
    for (int pixel = 0; pixel < pixels; pixel += 2) pairs.push_back({offset(pixel), offset(pixel + 1)});
    return pairs;
}

/// The mean colour of each block of two by two pixels of the turned picture. After a turn of odd sides these
/// blocks lie across those of the stored picture.
void putColour(const ColourChannel& channel, PictureSize upright, const Turn& turn, std::uint8_t* target,
               std::ptrdiff_t stride) {
    const auto rowStep = static_cast<std::size_t>(channel.size.width);
    const auto columns = turn.transposes ? samplePairs(upright.width, turn.mirrorsX, channel.acrossY, rowStep)
                                         : samplePairs(upright.width, turn.mirrorsX, channel.acrossX, 1);
    const auto rows = turn.transposes ? samplePairs(upright.height, turn.mirrorsY, channel.acrossX, 1)
                                      : samplePairs(upright.height, turn.mirrorsY, channel.acrossY, rowStep);
    const std::uint8_t* const samples = channel.samples.data();
    for (const auto& [upper, lower] : rows) {
        for (std::size_t x = 0; x < columns.size(); ++x) {
            const auto [left, right] = columns[x];
            target[x] = limitedColour(samples[upper + left] + samples[upper + right] + samples[lower + left] +
                                      samples[lower + right]);
        }
        target += stride;
    }
}

PictureSize turnedSize(PictureSize size, const Turn& turn) {
    return turn.transposes ? PictureSize{size.height, size.width} : size;
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
    reader.shrink(1);
    const PictureSize colour = reader.channelSizes()[1];
    const int acrossX = across(size.width, colour.width);
    const int acrossY = across(size.height, colour.height);
    if (acrossX == 0 || acrossY == 0 || reader.channelSizes()[2] != colour) return std::nullopt;

    const PictureSize upright = turnedSize(size, turn);
    WebPPlanes planes(upright, {.lossless = false, .hasAlpha = false});
    WebPPicture& picture = planes.picture();
    const TurnedPlane luma(picture.y, picture.y_stride, upright, turn);
    {
        ColourChannel blue{.size = colour, .acrossX = acrossX, .acrossY = acrossY, .samples = {}};
        blue.samples.resize(static_cast<std::size_t>(colour.width) * static_cast<std::size_t>(colour.height));
        ColourChannel red = blue;
        reader.read([&](std::span<const PlaneRows> rows) {
            putLuma(rows[0], luma);
            blue.take(rows[1]);
            red.take(rows[2]);
            watch.context().report(watch.decodingShare() * (rows[0].top + rows[0].height) / size.height);
        });
        putColour(blue, upright, turn, picture.u, picture.uv_stride);
        putColour(red, upright, turn, picture.v, picture.uv_stride);
    }
    return EncodedPicture{encodedPicture(picture, encoding, watch), upright};
}

}  // namespace tamble
