#include <TambleCore/PDF/Pictures/DrawingTest.h>
#include <TambleCore/PDF/Pictures/Flate.h>
#include <TambleCore/PDF/Pictures/Jpeg.h>
#include <TambleCore/PDF/Pictures/Picture.h>
#include <TambleCore/Support/WorkContext.h>

namespace tamble::pdf {
namespace {

/// libjpeg's. Measured against Ghostscript's settings for e-books: more alike and smaller.
constexpr int quality = 62;
/// A JPEG that keeps its size was coded for good reasons, and loses each time: only for this share of its
/// bytes.
constexpr double worthAnotherLoss = 0.7;
/// Others change for this share.
constexpr double worthLoss = 0.9;
/// More is not held in memory at once.
constexpr std::size_t mostInflated = std::size_t{64} << 20U;
constexpr double mostWritten = 64e6;
/// Gray drawings, palettes that are no photograph's, and true colour.
constexpr std::size_t fewGrays = 16;
constexpr std::size_t fewIndexed = 64;
constexpr std::size_t fewColours = 256;

void throwIfStopped(const std::stop_token& stop) {
    if (stop.stop_requested()) throw Cancelled();
}

double pixels(PictureShape shape) {
    return static_cast<double>(shape.width) * shape.height;
}

std::optional<SmallerPicture> ifSmaller(std::optional<SmallerPicture> result, double most) {
    if (result && static_cast<double>(result->data.size()) >= most) result.reset();
    return result;
}

/// A JPEG of the picture whose rows `next` hands over, from `given` to `target`.
template <typename Next>
std::optional<Bytes> shrunkJpeg(PictureShape given, PictureShape target, int channels, JpegColours colours,
                                const Next& next) {
    JpegWriter writer(target, colours, quality);
    std::optional<RowShrinker> shrinker;
    if (given != target) shrinker.emplace(given, target, channels);
    for (int y = 0; y < given.height; ++y) {
        const ByteView row = next();
        if (row.empty()) return std::nullopt;
        if (shrinker)
            shrinker->put(row, [&](ByteView shrunk) { writer.put(shrunk); });
        else
            writer.put(row);
    }
    return writer.finish();
}

std::optional<SmallerPicture> smallerJpeg(const Picture& picture, const std::stop_token& stop) {
    if (!picture.mayChange || pixels(picture.target) > mostWritten) return std::nullopt;
    auto rows = JpegRows::open(picture.bytes(), stop);
    if (!rows || rows->shape() != picture.layout.shape || rows->channels() != picture.layout.channels)
        return std::nullopt;
    if (!rows->start(picture.target)) return std::nullopt;
    Bytes row(static_cast<std::size_t>(rows->decodedShape().width) *
              static_cast<std::size_t>(rows->channels()));
    auto data = shrunkJpeg(rows->decodedShape(), picture.target, rows->channels(), rows->colours(),
                           [&] { return rows->read(row) ? ByteView(row) : ByteView(); });
    if (!data || !rows->finish()) return std::nullopt;
    const bool shrinks = picture.target != picture.layout.shape;
    return ifSmaller(
        SmallerPicture{
            .data = std::move(*data), .isJpeg = true, .layout = {picture.target, rows->channels(), 8}},
        static_cast<double>(picture.size) * (shrinks ? worthLoss : worthAnotherLoss));
}

/// The other way of coding: samples, in rows.
class SampledPicture {
  public:
    SampledPicture(const Picture& picture, const std::stop_token& stop) : picture_(picture), stop_(stop) {}

    /// Empty when the data is damaged.
    std::optional<DrawingTest> tested() const {
        DrawingTest test(channels(), fewest());
        const bool isWhole = eachRow([&](ByteView row) { test.put(row); });
        return isWhole ? std::optional(test) : std::nullopt;
    }

    std::optional<SmallerPicture> asJpeg() const {
        const auto shape = picture_.layout.shape;
        auto rows = opened();
        SampleExpander expander = expanding();
        auto data = shrunkJpeg(shape, picture_.target, channels(), colours(), [&] {
            throwIfStopped(stop_);
            const ByteView row = rows.next();
            return row.empty() ? row : expander.expanded(row);
        });
        if (!data) return std::nullopt;
        return result(std::move(*data), true);
    }

    /// Shrunk, but with its samples deflated, so that edges have no echoes.
    std::optional<SmallerPicture> asSmallSamples() const {
        RowShrinker shrinker(picture_.layout.shape, picture_.target, channels());
        const SampleLayout layout{picture_.target, channels(), 8};
        PngFilter filter(layout.rowBytes(), static_cast<std::size_t>(channels()));
        Bytes filtered;
        const bool isWhole = eachRow(
            [&](ByteView row) { shrinker.put(row, [&](ByteView shrunk) { filter.put(shrunk, filtered); }); });
        if (!isWhole) return std::nullopt;
        auto small = result(deflated(filtered, stop_), false);
        small.predictor = Predictor::png;
        return small;
    }

    /// The same samples, deflated better.
    std::optional<SmallerPicture> asIs() const {
        const auto& layout = picture_.layout;
        const std::size_t bytes = layout.rowBytes() * static_cast<std::size_t>(layout.shape.height);
        if (bytes > mostInflated) return std::nullopt;
        std::optional<Bytes> held;
        if (picture_.coding == Picture::Coding::deflated) {
            // With its predictor's bytes, a further one in each row.
            held = inflated(picture_.bytes(), mostInflated + bytes);
            if (!held) return std::nullopt;
        }
        const ByteView samples = held ? ByteView(*held) : picture_.bytes();
        SmallerPicture result{.predictor = picture_.predictor, .layout = layout};
        if (picture_.predictor != Predictor::png && picture_.palette.empty() && layout.bits >= 8) {
            const auto data = filtered(bytes);
            if (data && roughlyDeflatedSize(*data) < roughlyDeflatedSize(samples)) {
                result.data = deflated(*data, stop_);
                result.predictor = Predictor::png;
                return result;
            }
        }
        result.data = deflated(samples, stop_);
        return result;
    }

  private:
    int channels() const {
        return picture_.palette.empty() ? picture_.layout.channels : picture_.paletteChannels;
    }
    std::size_t fewest() const {
        if (!picture_.palette.empty()) return fewIndexed;
        return channels() == 1 ? fewGrays : fewColours;
    }
    JpegColours colours() const {
        if (channels() == 1) return JpegColours::gray;
        return channels() == 3 ? JpegColours::rgb : JpegColours::cmyk;
    }
    SampleExpander expanding() const { return {picture_.layout, picture_.palette, picture_.paletteChannels}; }
    SampleRows opened() const {
        return picture_.coding == Picture::Coding::bare
                   ? SampleRows::bare(picture_.bytes(), picture_.layout)
                   : SampleRows::inflating(picture_.bytes(), picture_.layout, picture_.predictor);
    }
    SmallerPicture result(Bytes data, bool isJpeg) const {
        return {.data = std::move(data),
                .isJpeg = isJpeg,
                .layout = {picture_.target, channels(), 8},
                .hasPaletteColours = !picture_.palette.empty()};
    }

    template <typename Take>
    bool eachRow(const Take& take) const {
        auto rows = opened();
        SampleExpander expander = expanding();
        for (int y = 0; y < picture_.layout.shape.height; ++y) {
            throwIfStopped(stop_);
            const ByteView row = rows.next();
            if (row.empty()) return false;
            take(expander.expanded(row));
        }
        return true;
    }

    /// The samples, filtered as in PNG.
    std::optional<Bytes> filtered(std::size_t bytes) const {
        const auto& layout = picture_.layout;
        PngFilter filter(layout.rowBytes(), static_cast<std::size_t>(layout.channels * layout.bits / 8));
        Bytes data;
        data.reserve(bytes + static_cast<std::size_t>(layout.shape.height));
        auto rows = opened();
        for (int y = 0; y < layout.shape.height; ++y) {
            throwIfStopped(stop_);
            const ByteView row = rows.next();
            if (row.empty()) return std::nullopt;
            filter.put(row, data);
        }
        return data;
    }

    const Picture& picture_;
    const std::stop_token& stop_;
};

std::optional<SmallerPicture> smallerSamples(const Picture& picture, const std::stop_token& stop) {
    const SampledPicture sampled(picture, stop);
    const auto size = static_cast<double>(picture.size);
    if (picture.mayChange && pixels(picture.target) <= mostWritten) {
        const auto test = sampled.tested();
        if (!test) return std::nullopt;
        std::optional<SmallerPicture> changed;
        if (picture.isMask) {
            if (!test->hasFewColours() && picture.target != picture.layout.shape)
                changed = sampled.asSmallSamples();
        } else if (!test->isDrawing()) {
            changed = sampled.asJpeg();
        }
        if ((changed = ifSmaller(std::move(changed), size * worthLoss))) return changed;
    }
    return ifSmaller(sampled.asIs(), size);
}

}  // namespace

std::size_t memoryFor(const Picture& picture) {
    constexpr std::size_t rows = std::size_t{4} << 20U;
    // JPEG's writer holds all samples of the target in 16 bits, with halved colours, and what it writes.
    constexpr double bytesPerPixel = 8;
    std::size_t memory = picture.data->getSize() + rows;
    if (picture.mayChange) memory += static_cast<std::size_t>(pixels(picture.target) * bytesPerPixel);
    if (picture.coding == Picture::Coding::jpeg) {
        const auto reader = JpegRows::open(picture.bytes(), {});
        return memory + (reader ? reader->heldBytes() : 0);
    }
    // The samples, those filtered, and both deflated.
    const std::size_t samples =
        picture.layout.rowBytes() * static_cast<std::size_t>(picture.layout.shape.height);
    return memory + (samples <= mostInflated ? 3 * samples : 0);
}

std::optional<SmallerPicture> smallerPicture(const Picture& picture, const std::stop_token& stop) {
    throwIfStopped(stop);
    return picture.coding == Picture::Coding::jpeg ? smallerJpeg(picture, stop)
                                                   : smallerSamples(picture, stop);
}

}  // namespace tamble::pdf
