#include <TambleCore/PDF/Pictures/RowShrinker.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tamble::pdf {
namespace {

constexpr double lobes = 3;

double lanczos(double x) {
    if (x == 0) return 1;
    if (std::abs(x) >= lobes) return 0;
    const double angle = std::numbers::pi * x;
    return lobes * std::sin(angle) * std::sin(angle / lobes) / (angle * angle);
}

template <std::size_t channels>
void weigh(const float* samples, const float* weights, int count, float* to) {
    std::array<float, channels> sums{};
    for (int i = 0; i < count; ++i) {
        for (std::size_t channel = 0; channel < channels; ++channel)
            sums[channel] += weights[i] * samples[channel];
        samples += channels;
    }
    std::copy(sums.begin(), sums.end(), to);
}

}  // namespace

ShrinkingWeights::ShrinkingWeights(int from, int to) {
    const double scale = static_cast<double>(from) / to;
    const double reach = lobes * scale;
    for (int position = 0; position < to; ++position) {
        const double centre = (position + 0.5) * scale;
        const int first = std::max(0, static_cast<int>(std::floor(centre - reach)));
        const int end = std::min(from, static_cast<int>(std::ceil(centre + reach)));
        spans_.push_back({first, end - first, weights_.size()});
        double sum = 0;
        for (int i = first; i < end; ++i) sum += lanczos((i + 0.5 - centre) / scale);
        for (int i = first; i < end; ++i)
            weights_.push_back(static_cast<float>(lanczos((i + 0.5 - centre) / scale) / sum));
    }
}

RowShrinker::RowShrinker(PictureShape from, PictureShape to, int channels)
    : to_(to),
      channels_(static_cast<std::size_t>(channels)),
      across_(from.width, to.width),
      down_(from.height, to.height),
      wide_(static_cast<std::size_t>(from.width) * channels_),
      sums_(static_cast<std::size_t>(to.width) * channels_),
      finished_(sums_.size()) {}

std::vector<float> RowShrinker::shrunkAcross(ByteView row) {
    std::copy(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(wide_.size()), wide_.begin());
    std::vector<float> narrow(sums_.size());
    for (int x = 0; x < to_.width; ++x) {
        const auto& span = across_.span(x);
        const float* const samples = wide_.data() + static_cast<std::size_t>(span.first) * channels_;
        const float* const weights = across_.weights(span);
        float* const to = narrow.data() + static_cast<std::size_t>(x) * channels_;
        switch (channels_) {
            case 1:
                weigh<1>(samples, weights, span.count, to);
                break;
            case 2:
                weigh<2>(samples, weights, span.count, to);
                break;
            case 3:
                weigh<3>(samples, weights, span.count, to);
                break;
            default:
                weigh<4>(samples, weights, span.count, to);
                break;
        }
    }
    return narrow;
}

void RowShrinker::finishRow() {
    const auto& span = down_.span(next_);
    const float* const weights = down_.weights(span);
    std::fill(sums_.begin(), sums_.end(), 0.5F);
    for (int i = 0; i < span.count; ++i) {
        const float weight = weights[i];
        const float* const row = rows_[static_cast<std::size_t>(span.first - firstRow_ + i)].data();
        for (std::size_t at = 0; at < sums_.size(); ++at) sums_[at] += weight * row[at];
    }
    for (std::size_t at = 0; at < sums_.size(); ++at)
        finished_[at] = static_cast<std::uint8_t>(std::clamp(sums_[at], 0.0F, 255.0F));
    ++next_;
}

void RowShrinker::put(ByteView row, const Take& take) {
    if (next_ == to_.height) return;
    rows_.push_back(shrunkAcross(row));
    const int last = firstRow_ + static_cast<int>(rows_.size()) - 1;
    while (next_ < to_.height && down_.last(next_) <= last) {
        finishRow();
        take(finished_);
    }
    while (next_ < to_.height && !rows_.empty() && firstRow_ < down_.span(next_).first) {
        rows_.pop_front();
        ++firstRow_;
    }
}

}  // namespace tamble::pdf
