#include <TambleCore/Images/Lossless/CleanContainers.h>
#include <TambleCore/Images/Metadata/Exif/EditStructure.h>
#include <TambleCore/Images/Metadata/Exif/TiffTree.h>

namespace tamble {
namespace {

constexpr std::size_t headerSize = 8;
constexpr std::uint32_t oldStyleJpeg = 6;

/// Copies the strips or tiles to the end of `file` and tells the tree where they are now.
void moveData(Bytes& file, tiff::Tree& tree, const tiff::Structure& structure, std::uint16_t offsetTag,
              std::uint16_t sizeTag) {
    constexpr std::uint16_t typeLong = 4;
    const tiff::Directory& main = structure.directories.front();
    const tiff::Entry* offsetEntry = main.find(offsetTag);
    if (offsetEntry == nullptr) return;
    const auto offsets = structure.numbers(*offsetEntry);
    const auto sizes = structure.numbers(*main.find(sizeTag));
    Bytes moved;
    for (std::size_t i = 0; i < offsets.size(); ++i) {
        if (file.size() % 2 != 0) file.push_back(std::byte{0});
        appendNumber(moved, static_cast<std::uint32_t>(file.size()), structure.order);
        append(file, structure.bytes.subspan(offsets[i], sizes[i]));
    }
    tree.set({offsetTag, typeLong, static_cast<std::uint32_t>(offsets.size()), std::move(moved), {}});
}

std::optional<Bytes> withoutEverything(const tiff::Structure& structure) {
    const auto keeps = [](tiff::DirectoryKind, std::uint16_t tag) {
        return std::ranges::find(tiff::tag::pixels, tag) != tiff::tag::pixels.end();
    };
    tiff::Tree tree = tiff::treeOf(structure, structure.order, keeps);
    Bytes result;
    result.reserve(structure.bytes.size());
    append(result, structure.bytes.first(headerSize));
    moveData(result, tree, structure, tiff::tag::stripOffsets, tiff::tag::stripByteCounts);
    moveData(result, tree, structure, tiff::tag::tileOffsets, tiff::tag::tileByteCounts);
    if (result.size() % 2 != 0) result.push_back(std::byte{0});
    const std::size_t at = result.size();
    append(result, tiff::serialized(tree, structure.order, at));
    if (result.size() > 0xFFFFFFFFU) return std::nullopt;
    putNumber(std::span(result), 4, static_cast<std::uint32_t>(at), structure.order);
    return result;
}

}  // namespace

std::optional<Bytes> cleanedTiff(ByteView file, MetadataRemoval removal) {
    const auto structure = tiff::parsed(file);
    if (!structure) return std::nullopt;
    const tiff::Directory& main = structure->directories.front();
    const auto pictures = tiff::pictureData(*structure, main);
    if (!pictures || pictures->empty()) return std::nullopt;
    // Strips that lie upon one another could blow up a small file.
    std::size_t total = 0;
    for (const tiff::Range& picture : *pictures) total += picture.size;
    const bool severalPages =
        std::ranges::any_of(structure->directories, [&](const tiff::Directory& directory) {
            return directory.kind == tiff::DirectoryKind::page && &directory != &main;
        });
    if (severalPages || total > file.size() || main.find(tiff::tag::thumbnailOffset) != nullptr ||
        structure->number(main, tiff::tag::compression) == oldStyleJpeg) {
        return std::nullopt;
    }
    return removal == MetadataRemoval::everything ? withoutEverything(*structure)
                                                  : tiff::edited(file, {.withoutLocation = true});
}

}  // namespace tamble
