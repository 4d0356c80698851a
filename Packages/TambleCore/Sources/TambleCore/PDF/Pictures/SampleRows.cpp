#include <TambleCore/PDF/Pictures/PngPrediction.h>
#include <TambleCore/PDF/Pictures/SampleRows.h>

#include <algorithm>

#include <zlib.h>

namespace tamble::pdf {
namespace {

std::size_t pixelBytes(const SampleLayout& layout) {
    return std::max<std::size_t>(1, static_cast<std::size_t>(layout.channels * layout.bits) / 8);
}

/// Takes back what PNG's filter of this kind did; false when there is no such kind.
bool unfilter(int kind, std::span<std::uint8_t> row, ByteView above, std::size_t step) {
    const auto left = [&](std::size_t at) -> int { return at < step ? 0 : row[at - step]; };
    const auto corner = [&](std::size_t at) -> int { return at < step ? 0 : above[at - step]; };
    const auto add = [&](auto predicted) {
        for (std::size_t at = 0; at < row.size(); ++at)
            row[at] = static_cast<std::uint8_t>(row[at] + predicted(at));
    };
    switch (kind) {
        case 0:
            return true;
        case 1:
            add(left);
            return true;
        case 2:
            add([&](std::size_t at) { return above[at]; });
            return true;
        case 3:
            add([&](std::size_t at) { return (left(at) + above[at]) / 2; });
            return true;
        case 4:
            add([&](std::size_t at) { return paeth(left(at), above[at], corner(at)); });
            return true;
        default:
            return false;
    }
}

}  // namespace

std::size_t SampleLayout::rowBytes() const {
    return (static_cast<std::size_t>(shape.width) * static_cast<std::size_t>(channels * bits) + 7) / 8;
}

class SampleRows::Source {
  public:
    Source() = default;
    virtual ~Source() = default;
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
    virtual ByteView next() = 0;
};

namespace {

template <typename Base>
class BareRows final : public Base {
  public:
    BareRows(ByteView samples, std::size_t rowBytes) : samples_(samples), rowBytes_(rowBytes) {}
    ByteView next() override {
        if (samples_.size() < rowBytes_) return {};
        const auto row = samples_.first(rowBytes_);
        samples_ = samples_.subspan(rowBytes_);
        return row;
    }

  private:
    ByteView samples_;
    std::size_t rowBytes_;
};

template <typename Base>
class InflatingRows final : public Base {
  public:
    InflatingRows(ByteView stream, const SampleLayout& layout, Predictor predictor)
        : step_(pixelBytes(layout)),
          predictor_(predictor),
          row_(layout.rowBytes() + (predictor == Predictor::png ? 1 : 0)),
          above_(row_.size()) {
        isOpen_ = inflateInit(&zlib_) == Z_OK;
        // zlib's interface predates const; it only reads its input.
        zlib_.next_in = const_cast<Bytef*>(stream.data());
        zlib_.avail_in = static_cast<uInt>(stream.size());
    }
    ~InflatingRows() override {
        if (isOpen_) inflateEnd(&zlib_);
    }
    InflatingRows(const InflatingRows&) = delete;
    InflatingRows& operator=(const InflatingRows&) = delete;

    ByteView next() override {
        std::swap(row_, above_);
        if (!isOpen_ || !fill()) return {};
        const std::span<std::uint8_t> whole(row_);
        if (predictor_ == Predictor::none) return whole;
        if (predictor_ == Predictor::tiff) {
            for (std::size_t at = step_; at < whole.size(); ++at)
                whole[at] = static_cast<std::uint8_t>(whole[at] + whole[at - step_]);
            return whole;
        }
        const auto samples = whole.subspan(1);
        if (!unfilter(whole[0], samples, ByteView(above_).subspan(1), step_)) return {};
        return samples;
    }

  private:
    bool fill() {
        zlib_.next_out = row_.data();
        zlib_.avail_out = static_cast<uInt>(row_.size());
        while (zlib_.avail_out > 0) {
            const int result = inflate(&zlib_, Z_NO_FLUSH);
            if (result == Z_STREAM_END) break;
            if (result != Z_OK) return false;
        }
        return zlib_.avail_out == 0;
    }

    z_stream zlib_{};
    bool isOpen_ = false;
    std::size_t step_;
    Predictor predictor_;
    Bytes row_;
    Bytes above_;
};

}  // namespace

SampleRows::SampleRows(std::unique_ptr<Source> source) : source_(std::move(source)) {}
SampleRows::SampleRows(SampleRows&&) noexcept = default;
SampleRows::~SampleRows() = default;

SampleRows SampleRows::inflating(ByteView stream, const SampleLayout& layout, Predictor predictor) {
    return SampleRows(std::make_unique<InflatingRows<Source>>(stream, layout, predictor));
}

SampleRows SampleRows::bare(ByteView samples, const SampleLayout& layout) {
    return SampleRows(std::make_unique<BareRows<Source>>(samples, layout.rowBytes()));
}

ByteView SampleRows::next() {
    return source_->next();
}

}  // namespace tamble::pdf
