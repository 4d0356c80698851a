#include <TambleCore/Images/Metadata/Containers/Deflate.h>
#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>
#include <TambleCore/Images/Metadata/Containers/PngChunks.h>
#include <TambleCore/Images/Metadata/Containers/WebPChunks.h>
#include <TambleCore/Images/Metadata/Exif/EditStructure.h>
#include <TambleCore/Images/Metadata/Exif/TiffTree.h>
#include <TambleCore/Images/Metadata/Metadata.h>
#include <TambleCore/Images/Metadata/Text/PhotoshopResources.h>
#include <TambleCore/Images/Metadata/Text/Xmp.h>

namespace tamble {
namespace {

using namespace std::string_view_literals;

/// The block, or what is left of it without thumbnail and then without maker note, if that is short enough.
std::optional<Bytes> shortenedExif(const Bytes& block, std::size_t limit) {
    if (block.size() <= limit) return block;
    const auto structure = tiff::parsed(block);
    if (!structure) return std::nullopt;
    for (const bool withMakerNote : {true, false}) {
        const tiff::Tree tree =
            tiff::treeOf(*structure, structure->order, [&](tiff::DirectoryKind, std::uint16_t tag) {
                return withMakerNote || tag != tiff::tag::makerNote;
            });
        Bytes result = tiff::block(tree, structure->order);
        if (result.size() <= limit) return result;
    }
    return std::nullopt;
}

std::optional<Bytes> shortenedXmp(const Bytes& packet, std::size_t limit) {
    return packet.size() <= limit ? std::optional(packet) : xmp::shortened(packet, limit);
}

Bytes intoJpeg(const Bytes& encoded, const MetadataBlocks& blocks) {
    const auto layout = jpeg::layout(encoded, jpeg::Extent::untilFirstScan);
    if (!layout) return encoded;
    Bytes result;
    jpeg::appendStart(result);
    std::size_t next = 2;
    bool hasProfile = false;
    for (const jpeg::Segment& segment : layout->segments) {
        if (segment.kind == jpeg::Kind::jfif && next == 2) {
            append(result, segment.whole);
            next += segment.whole.size();
        }
        hasProfile = hasProfile || segment.kind == jpeg::Kind::icc;
    }
    if (blocks.exif) {
        const auto exif = shortenedExif(*blocks.exif, jpeg::capacity(jpeg::Kind::exif));
        if (exif) jpeg::appendSegment(result, jpeg::Kind::exif, *exif);
    }
    if (blocks.xmp) {
        const auto packet = shortenedXmp(*blocks.xmp, jpeg::capacity(jpeg::Kind::xmp));
        if (packet) jpeg::appendSegment(result, jpeg::Kind::xmp, *packet);
    }
    if (blocks.iptc) {
        Bytes resources;
        photoshop::appendResource(resources, photoshop::iptcId, *blocks.iptc);
        jpeg::appendSplit(result, jpeg::Kind::photoshop, resources);
    }
    if (blocks.icc && !hasProfile) jpeg::appendProfile(result, *blocks.icc);
    append(result, ByteView(encoded).subspan(next));
    return result;
}

Bytes intoPng(const Bytes& encoded, const MetadataBlocks& blocks) {
    const auto layout = png::layout(encoded);
    if (!layout) return encoded;
    const bool hasColour = std::ranges::any_of(
        layout->chunks, [](const png::Chunk& chunk) { return chunk.type == "iCCP" || chunk.type == "sRGB"; });
    Bytes result = copied(asBytes(png::signature));
    for (const png::Chunk& chunk : layout->chunks) {
        append(result, chunk.whole);
        if (chunk.type != "IHDR") continue;
        if (blocks.icc && !hasColour) {
            Bytes data = copied(asBytes("icc\0\0"sv));
            append(data, deflated(*blocks.icc));
            png::appendChunk(result, "iCCP", data);
        }
        if (blocks.exif) png::appendChunk(result, "eXIf", *blocks.exif);
        if (blocks.xmp) png::appendXmp(result, *blocks.xmp);
        if (blocks.iptc) {
            Bytes resources;
            photoshop::appendResource(resources, photoshop::iptcId, *blocks.iptc);
            png::appendRawProfile(result, "iptc", resources);
        }
    }
    return result;
}

void setBytes(tiff::Tree& tree, std::uint16_t tag, const std::optional<Bytes>& block) {
    constexpr std::uint16_t typeByte = 1;
    constexpr std::uint16_t typeUndefined = 7;
    if (!block || tree.has(tag)) return;
    const std::uint16_t type = tag == tiff::tag::xmp ? typeByte : typeUndefined;
    tree.set({tag, type, static_cast<std::uint32_t>(block->size()), *block, {}});
}

Bytes intoTiff(Bytes encoded, const MetadataBlocks& blocks) {
    const auto structure = tiff::parsed(encoded);
    if (!structure || structure->directories.size() != 1) return encoded;
    const ByteOrder order = structure->order;
    tiff::Tree tree = tiff::treeOf(*structure, order, [](auto, auto) { return true; });
    const auto exif = blocks.exif ? tiff::parsed(*blocks.exif) : std::nullopt;
    if (exif) {
        const auto keeps = [&tree](tiff::DirectoryKind kind, std::uint16_t tag) {
            return kind != tiff::DirectoryKind::page || (tiff::describesPhotograph(tag) && !tree.has(tag));
        };
        tiff::Tree described = tiff::treeOf(*exif, order, keeps);
        for (tiff::Tree::Value& value : described.values) tree.set(std::move(value));
    }
    setBytes(tree, tiff::tag::xmp, blocks.xmp);
    setBytes(tree, tiff::tag::iptc, blocks.iptc);
    setBytes(tree, tiff::tag::profile, blocks.icc);
    if (encoded.size() % 2 != 0) encoded.push_back(std::byte{0});
    const std::size_t at = encoded.size();
    const Bytes appended = tiff::serialized(tree, order, at);
    // 32-bit offsets reach no farther.
    if (at + appended.size() > 0xFFFFFFFFU) return encoded;
    append(encoded, appended);
    putNumber(std::span(encoded), 4, static_cast<std::uint32_t>(at), order);
    return encoded;
}

}  // namespace

Bytes withMetadata(Bytes encoded, ImageFormat format, const MetadataBlocks& blocks) {
    if (!blocks.exif && !blocks.xmp && !blocks.iptc && !blocks.icc) return encoded;
    switch (format) {
        case ImageFormat::jpeg:
            return intoJpeg(encoded, blocks);
        case ImageFormat::png:
            return intoPng(encoded, blocks);
        case ImageFormat::webp: {
            auto result = webp::withBlocks(encoded, blocks);
            return result ? std::move(*result) : std::move(encoded);
        }
        case ImageFormat::tiff:
            return intoTiff(std::move(encoded), blocks);
        case ImageFormat::heic:
        case ImageFormat::gif:
        case ImageFormat::avif:
            break;
    }
    return encoded;
}

}  // namespace tamble
