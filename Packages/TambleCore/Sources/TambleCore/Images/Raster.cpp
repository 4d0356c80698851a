#include <TambleCore/Images/Raster.h>

#include <algorithm>
#include <cstddef>

namespace tamble {
namespace {

/// In pieces, so that a colourful picture is told by its beginning.
constexpr std::size_t pixelsAtOnce = 1 << 14;

bool isGrey(const std::uint8_t* pixel, std::size_t count) {
    unsigned differences = 0;
    for (const auto* const end = pixel + 3 * count; pixel != end; pixel += 3)
        differences |=
            static_cast<unsigned>(pixel[0] ^ pixel[1]) | static_cast<unsigned>(pixel[0] ^ pixel[2]);
    return differences == 0;
}

}  // namespace

void dropUnusedColour(Raster& picture) {
    if (picture.channels != 3) return;
    auto& samples = picture.samples;
    const std::size_t pixels = samples.size() / 3;
    for (std::size_t at = 0; at < pixels; at += pixelsAtOnce) {
        if (!isGrey(samples.data() + 3 * at, std::min(pixelsAtOnce, pixels - at))) return;
    }
    for (std::size_t at = 0; at < pixels; ++at) samples[at] = samples[3 * at];
    samples.resize(pixels);
    picture.channels = 1;
}

}  // namespace tamble
