#include <TambleCore/PDF/Pictures/DrawingTest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace tamble::pdf {
namespace {

/// Of 255: neighbours in a photograph rarely differ by more.
constexpr int strongDifference = 32;

}  // namespace

DrawingTest::DrawingTest(int channels, std::size_t fewColours)
    : channels_(static_cast<std::size_t>(channels)), fewColours_(fewColours) {}

void DrawingTest::put(ByteView row) {
    std::uint32_t last = 0;
    for (std::size_t at = 0; at + channels_ <= row.size(); at += channels_) {
        std::uint32_t colour = 0;
        std::memcpy(&colour, row.data() + at, channels_);
        if (at > 0) {
            ++pairs_;
            if (colour == last) {
                ++equal_;
                continue;
            }
            int difference = 0;
            for (std::size_t channel = 0; channel < channels_; ++channel)
                difference =
                    std::max(difference, std::abs(row[at + channel] - row[at + channel - channels_]));
            if (difference > strongDifference) ++strong_;
        }
        last = colour;
        if (hasFewColours()) colours_.insert(colour);
    }
}

bool DrawingTest::isDrawing() const {
    if (hasFewColours()) return true;
    // Large plain areas with hard edges between them.
    return equal_ * 2 > pairs_ && strong_ * 4 > pairs_ - equal_;
}

}  // namespace tamble::pdf
