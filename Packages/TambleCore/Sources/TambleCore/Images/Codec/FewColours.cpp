#include <TambleCore/Images/Codec/FewColours.h>
#include <TambleCore/Images/Codec/RowSink.h>

#include <cstring>
#include <unordered_set>

namespace tamble {
namespace {

constexpr std::size_t most = 256;

/// Ends the reading.
struct TooMany {};

}  // namespace

bool hasFewColours(const vips::VImage& image) {
    if (image.format() != VIPS_FORMAT_UCHAR || image.bands() > 4) return false;
    const auto bands = static_cast<std::size_t>(image.bands());
    const auto rowBytes = bands * static_cast<std::size_t>(image.width());
    std::unordered_set<std::uint32_t> colours;
    std::uint32_t last = 0;
    try {
        forEachRow(image, [&](int, int height, const std::uint8_t* pixels, std::size_t stride) {
            for (int row = 0; row < height; ++row, pixels += stride) {
                for (std::size_t at = 0; at < rowBytes; at += bands) {
                    std::uint32_t colour = 0;
                    std::memcpy(&colour, pixels + at, bands);
                    if (colour == last && !colours.empty()) continue;
                    last = colour;
                    colours.insert(colour);
                    if (colours.size() > most) throw TooMany{};
                }
            }
        });
    } catch (const TooMany&) {
        return false;
    }
    return true;
}

}  // namespace tamble
