#include <TambleCore/PDF/Pictures/PngPrediction.h>
#include <TambleCore/PDF/Pictures/SampleRows.h>

#include <algorithm>
#include <limits>

namespace tamble::pdf {
namespace {

constexpr std::size_t kinds = 5;

/// Small differences of either sign deflate well.
std::uint64_t cost(ByteView row) {
    std::uint64_t sum = 0;
    for (const std::uint8_t byte : row) sum += byte < 128 ? byte : 256U - byte;
    return sum;
}

}  // namespace

PngFilter::PngFilter(std::size_t rowBytes, std::size_t pixelBytes)
    : pixelBytes_(pixelBytes), above_(rowBytes), candidates_(kinds, Bytes(rowBytes)) {}

void PngFilter::put(ByteView row, Bytes& to) {
    for (std::size_t at = 0; at < row.size(); ++at) {
        const int left = at < pixelBytes_ ? 0 : row[at - pixelBytes_];
        const int corner = at < pixelBytes_ ? 0 : above_[at - pixelBytes_];
        const int above = above_[at];
        const std::array<int, kinds> predicted{0, left, above, (left + above) / 2,
                                               paeth(left, above, corner)};
        for (std::size_t kind = 0; kind < kinds; ++kind)
            candidates_[kind][at] = static_cast<std::uint8_t>(row[at] - predicted[kind]);
    }
    std::size_t best = 0;
    auto lowest = std::numeric_limits<std::uint64_t>::max();
    for (std::size_t kind = 0; kind < kinds; ++kind) {
        const auto sum = cost(candidates_[kind]);
        if (sum >= lowest) continue;
        lowest = sum;
        best = kind;
    }
    to.push_back(static_cast<std::uint8_t>(best));
    to.insert(to.end(), candidates_[best].begin(), candidates_[best].end());
    std::copy(row.begin(), row.end(), above_.begin());
}

}  // namespace tamble::pdf
