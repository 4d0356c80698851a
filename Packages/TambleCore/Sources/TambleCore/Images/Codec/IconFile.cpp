#include <TambleCore/Images/Codec/ByteReader.h>
#include <TambleCore/Images/Codec/IconFile.h>
#include <TambleCore/Images/ConversionError.h>

namespace tamble {
namespace {

ConversionError unreadable() {
    return ConversionError(ConversionError::Case::unreadable, "Damaged set of icons");
}

/// A header of 6 bytes (0, type 1, count), then 16 bytes for each picture: sides as bytes (0 is 256), at 6
/// the bits a pixel, at 8 its length, at 12 its offset.
IconPicture largestInIco(ByteView file) {
    const std::size_t count = littleEndian16(file, 4).value_or(0);
    std::optional<std::size_t> best;
    std::pair<int, int> bestRank{};
    for (std::size_t index = 0; index < count; ++index) {
        const std::size_t entry = 6 + 16 * index;
        if (entry + 16 > file.size()) throw unreadable();
        const int width = std::to_integer<int>(file[entry]);
        const std::pair rank(width == 0 ? 256 : width, int{*littleEndian16(file, entry + 6)});
        if (best && rank <= bestRank) continue;
        best = index;
        bestRank = rank;
    }
    if (!best) throw unreadable();
    const std::size_t entry = 6 + 16 * *best;
    const std::size_t length = *littleEndian32(file, entry + 8);
    const std::size_t offset = *littleEndian32(file, entry + 12);
    if (offset > file.size() || file.size() - offset < length) throw unreadable();
    const ByteView picture = file.subspan(offset, length);
    if (containerOf(picture, {}) == Container::png) return {picture, Container::png};
    return {file, Container::ico, static_cast<int>(*best)};
}

/// The larger sizes are PNG or JPEG 2000 files; of two the longer is the larger picture.
IconPicture largestInIcns(ByteView file) {
    IconPicture best{{}, Container::icns};
    for (const IconBlock& block : appleIconBlocks(file)) {
        const auto container = containerOf(block.data, {});
        const bool isPicture = container == Container::png || container == Container::jpeg2000;
        if (isPicture && block.data.size() > best.file.size()) best = {block.data, *container};
    }
    return best;
}

}  // namespace

IconPicture largestPicture(ByteView file, Container container) {
    return container == Container::ico ? largestInIco(file) : largestInIcns(file);
}

/// A header of 8 bytes, then blocks of a type, a length (which counts these 8 bytes) and the data.
std::vector<IconBlock> appleIconBlocks(ByteView file) {
    std::vector<IconBlock> blocks;
    std::size_t at = 8;
    while (const auto length = bigEndian32(file, at + 4)) {
        if (*length < 8 || *length > file.size() - at) throw unreadable();
        blocks.push_back({textAt(file, at, 4), file.subspan(at + 8, *length - 8)});
        at += *length;
    }
    return blocks;
}

}  // namespace tamble
