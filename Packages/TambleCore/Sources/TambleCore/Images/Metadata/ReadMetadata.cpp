#include <TambleCore/Images/Metadata/Containers/Deflate.h>
#include <TambleCore/Images/Metadata/Containers/GifBlocks.h>
#include <TambleCore/Images/Metadata/Containers/IsoItems.h>
#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>
#include <TambleCore/Images/Metadata/Containers/PngChunks.h>
#include <TambleCore/Images/Metadata/Containers/WebPChunks.h>
#include <TambleCore/Images/Metadata/Exif/TiffTree.h>
#include <TambleCore/Images/Metadata/ReadMetadata.h>
#include <TambleCore/Images/Metadata/Text/PhotoshopResources.h>
#include <TambleCore/Images/Metadata/Text/Xmp.h>

namespace tamble {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view exifSignature = "Exif\0\0"sv;

/// The first of its kind counts.
void put(std::optional<Bytes>& block, ByteView bytes) {
    if (!block && !bytes.empty() && bytes.size() <= largestBlock) block = copied(bytes);
}

void putExif(MetadataBlocks& blocks, ByteView bytes) {
    put(blocks.exif, startsWith(bytes, exifSignature) ? bytes.subspan(exifSignature.size()) : bytes);
}

/// IPTC records, bare or among image resource blocks.
void putIptc(MetadataBlocks& blocks, ByteView bytes) {
    if (!startsWith(bytes, "8BIM")) return put(blocks.iptc, bytes);
    if (const auto records = photoshop::iptcRecords(bytes)) put(blocks.iptc, *records);
}

MetadataBlocks readJpeg(ByteView file) {
    MetadataBlocks blocks;
    const auto layout = jpeg::layout(file, jpeg::Extent::untilFirstScan);
    if (!layout) return blocks;
    std::vector<ByteView> extensions;
    for (const jpeg::Segment& segment : layout->segments) {
        if (segment.kind == jpeg::Kind::exif) put(blocks.exif, segment.payload);
        if (segment.kind == jpeg::Kind::xmp) put(blocks.xmp, segment.payload);
        if (segment.kind == jpeg::Kind::extendedXmp) extensions.push_back(segment.payload);
    }
    putIptc(blocks, jpeg::joined(layout->segments, jpeg::Kind::photoshop));
    blocks.icc = jpeg::profile(layout->segments);
    const std::string digest = blocks.xmp ? xmp::extensionDigest(*blocks.xmp) : std::string();
    if (digest.empty()) return blocks;
    const auto extension = xmp::assembledExtension(extensions, digest);
    auto joined = extension ? xmp::joined(*blocks.xmp, *extension) : std::nullopt;
    blocks.xmp = joined ? std::move(joined) : xmp::edited(*blocks.xmp, {.withoutExtension = true});
    return blocks;
}

void readPngText(MetadataBlocks& blocks, const png::Text& text) {
    if (text.keyword == png::xmpKeyword) return put(blocks.xmp, text.value);
    const auto profile = png::rawProfile(text);
    if (!profile) return;
    const std::string_view name = std::string_view(text.keyword).substr(png::rawProfileKeyword.size());
    if (name == "exif" || (name == "APP1" && startsWith(*profile, exifSignature))) putExif(blocks, *profile);
    if (name == "iptc" || name == "8bim") putIptc(blocks, *profile);
    if (name == "icc" || name == "icm") put(blocks.icc, *profile);
    if (name == "xmp") put(blocks.xmp, *profile);
    const std::string_view xmpSignature = jpeg::signature(jpeg::Kind::xmp);
    if (name == "APP1" && startsWith(*profile, xmpSignature)) {
        put(blocks.xmp, ByteView(*profile).subspan(xmpSignature.size()));
    }
}

MetadataBlocks readPng(ByteView file) {
    MetadataBlocks blocks;
    MetadataBlocks older;
    const auto layout = png::layout(file);
    if (!layout) return blocks;
    for (const png::Chunk& chunk : layout->chunks) {
        if (chunk.type == "eXIf") putExif(blocks, chunk.data);
        if (chunk.type == "iCCP") {
            const auto profile = png::profile(chunk);
            const auto bytes = profile ? inflated(profile->stream, largestBlock) : std::nullopt;
            if (bytes) put(blocks.icc, *bytes);
        }
        if (const auto text = png::text(chunk)) {
            readPngText(text->keyword.starts_with(png::rawProfileKeyword) ? older : blocks, *text);
        }
    }
    if (!blocks.exif) blocks.exif = std::move(older.exif);
    if (!blocks.xmp) blocks.xmp = std::move(older.xmp);
    if (!blocks.icc) blocks.icc = std::move(older.icc);
    blocks.iptc = std::move(older.iptc);
    return blocks;
}

MetadataBlocks readWebP(ByteView file) {
    MetadataBlocks blocks;
    const auto layout = webp::layout(file);
    if (!layout) return blocks;
    for (const webp::Chunk& chunk : layout->chunks) {
        if (chunk.type == "EXIF") putExif(blocks, chunk.data);
        if (chunk.type == "XMP ") put(blocks.xmp, chunk.data);
        if (chunk.type == "ICCP") put(blocks.icc, chunk.data);
    }
    return blocks;
}

MetadataBlocks readTiff(ByteView file) {
    MetadataBlocks blocks;
    const auto structure = tiff::parsed(file);
    if (!structure) return blocks;
    const tiff::Directory& main = structure->directories.front();
    const auto value = [&](std::uint16_t tag) {
        const tiff::Entry* entry = main.find(tag);
        return entry != nullptr && entry->readable ? structure->value(*entry) : ByteView{};
    };
    put(blocks.xmp, value(tiff::tag::xmp));
    put(blocks.icc, value(tiff::tag::profile));
    put(blocks.iptc, value(tiff::tag::iptc));
    putIptc(blocks, value(tiff::tag::photoshop));
    const tiff::Tree tree =
        tiff::treeOf(*structure, structure->order, [](tiff::DirectoryKind kind, std::uint16_t tag) {
            return kind != tiff::DirectoryKind::page || tiff::describesPhotograph(tag);
        });
    if (!tree.values.empty()) put(blocks.exif, tiff::block(tree, structure->order));
    return blocks;
}

MetadataBlocks readIso(ByteView file) {
    MetadataBlocks blocks;
    auto found = iso::items(file);
    if (!found) return blocks;
    for (const iso::Item& item : found->items) {
        if (item.type == "Exif") {
            if (const auto structure = iso::exifStructure(item.data)) putExif(blocks, *structure);
        }
        if (iso::isXmp(item)) put(blocks.xmp, item.data);
    }
    blocks.icc = std::move(found->profile);
    return blocks;
}

MetadataBlocks readGif(ByteView file) {
    MetadataBlocks blocks;
    const auto layout = gif::layout(file);
    if (!layout) return blocks;
    for (const gif::Block& block : layout->blocks) {
        if (const auto packet = gif::xmp(block)) put(blocks.xmp, *packet);
        if (block.application == "ICCRGBG1012") put(blocks.icc, gif::content(block.data));
    }
    return blocks;
}

}  // namespace

MetadataBlocks readMetadata(ByteView file) {
    if (startsWith(file, "\xFF\xD8")) return readJpeg(file);
    if (startsWith(file, png::signature)) return readPng(file);
    if (startsWith(file, "RIFF")) return readWebP(file);
    if (startsWith(file, "II*\0"sv) || startsWith(file, "MM\0*"sv)) return readTiff(file);
    if (startsWith(file, "GIF8")) return readGif(file);
    if (file.size() > 8 && startsWith(file.subspan(4), "ftyp")) return readIso(file);
    return {};
}

}  // namespace tamble
