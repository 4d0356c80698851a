#include <TambleCore/Images/Codec/AppleIconRuns.h>
#include <TambleCore/Images/Codec/IconFile.h>
#include <TambleCore/Images/Codec/Pixels.h>
#include <TambleCore/Images/ConversionError.h>

namespace tamble {
namespace {

/// A kind of block, its pixels a side, the block that holds its alpha, and the bytes before its runs.
struct Kind {
    std::string_view type;
    std::size_t side;
    std::string_view mask;
    std::size_t header;
};

/// The largest first.
constexpr std::array kinds{
    Kind{"it32", 128, "t8mk", 4}, Kind{"ih32", 48, "h8mk", 0}, Kind{"il32", 32, "l8mk", 0},
    Kind{"icp5", 32, "l8mk", 0},  Kind{"is32", 16, "s8mk", 0}, Kind{"icp4", 16, "s8mk", 0},
};

/// Three planes one after another. A byte below 128 is followed by one more bytes than it says; another by
/// the byte that comes 125 fewer times than it says. Empty when the runs end too early.
std::optional<std::vector<std::uint8_t>> unpacked(ByteView runs, std::size_t size) {
    std::vector<std::uint8_t> samples;
    samples.reserve(size);
    while (samples.size() < size) {
        if (runs.size() < 2) return std::nullopt;
        const auto head = std::to_integer<std::size_t>(runs[0]);
        const bool repeats = head >= 128;
        const std::size_t count = std::min(repeats ? head - 125 : head + 1, size - samples.size());
        if (!repeats && runs.size() - 1 < count) return std::nullopt;
        for (std::size_t i = 0; i < count; ++i)
            samples.push_back(std::to_integer<std::uint8_t>(runs[repeats ? 1 : 1 + i]));
        runs = runs.subspan(repeats ? 2 : 1 + count);
    }
    return samples;
}

std::optional<ByteView> dataOf(const std::vector<IconBlock>& blocks, std::string_view type) {
    const auto found = std::ranges::find(blocks, type, &IconBlock::type);
    return found == blocks.end() ? std::nullopt : std::optional(found->data);
}

vips::VImage joined(const std::vector<std::uint8_t>& planes, std::optional<ByteView> mask, std::size_t side) {
    const std::size_t pixels = side * side;
    const bool hasMask = mask && mask->size() == pixels;
    std::vector<std::uint8_t> samples;
    samples.reserve(pixels * 4);
    for (std::size_t i = 0; i < pixels; ++i) {
        for (std::size_t plane = 0; plane < 3; ++plane) samples.push_back(planes[plane * pixels + i]);
        if (hasMask) samples.push_back(std::to_integer<std::uint8_t>((*mask)[i]));
    }
    const int length = static_cast<int>(side);
    return pictureOf(samples, length, length, hasMask ? 4 : 3);
}

}  // namespace

vips::VImage runLengthCodedIcon(ByteView file) {
    const std::vector<IconBlock> blocks = appleIconBlocks(file);
    for (const Kind& kind : kinds) {
        const auto data = dataOf(blocks, kind.type);
        if (!data || data->size() < kind.header) continue;
        const auto planes = unpacked(data->subspan(kind.header), 3 * kind.side * kind.side);
        if (planes) return joined(*planes, dataOf(blocks, kind.mask), kind.side);
        break;
    }
    throw ConversionError(ConversionError::Case::cannotDecode, "No icon size that can be read");
}

}  // namespace tamble
