#include <TambleCore/Images/Lossless/CleanContainers.h>
#include <TambleCore/Images/Metadata/Containers/PngChunks.h>
#include <TambleCore/Images/Metadata/ReadMetadata.h>
#include <TambleCore/Images/Metadata/Text/PhotoshopResources.h>
#include <TambleCore/Images/Metadata/Text/Xmp.h>
#include <TambleCore/Support/Text.h>

#include <array>

namespace tamble {
namespace {

using namespace std::string_view_literals;

/// What the pixels need to be shown right (PNG 1.2 and its third edition's colour chunks).
bool describesPixels(std::string_view type) {
    constexpr std::array<std::string_view, 14> types{"IHDR", "PLTE", "IDAT", "IEND", "tRNS", "gAMA", "cHRM",
                                                     "sRGB", "iCCP", "sBIT", "bKGD", "pHYs", "cICP", "hIST"};
    return std::ranges::find(types, type) != types.end();
}

void appendProfile(Bytes& result, const png::Chunk& chunk) {
    const auto profile = png::profile(chunk);
    if (!profile) return;
    // The name is free text.
    Bytes data = copied(asBytes("icc\0\0"sv));
    append(data, profile->stream);
    png::appendChunk(result, "iCCP", data);
}

Bytes withoutEverything(ByteView file, const png::Layout& layout) {
    Bytes result;
    result.reserve(file.size());
    append(result, asBytes(png::signature));
    const auto exif = exifWithOrientationOnly(readMetadata(file).exif);
    for (const png::Chunk& chunk : layout.chunks) {
        if (chunk.type == "iCCP") {
            appendProfile(result, chunk);
        } else if (describesPixels(chunk.type)) {
            append(result, chunk.whole);
        }
        if (chunk.type == "IHDR" && exif) png::appendChunk(result, "eXIf", *exif);
    }
    return result;
}

/// Some programs write each EXIF and XMP property as a text of its own, as "exif:GPSLatitude".
bool namesPlace(std::string_view keyword) {
    return xmp::isLocationName(lowercased(keyword.substr(keyword.rfind(':') + 1)));
}

bool isMetadataText(std::string_view keyword) {
    return keyword == png::xmpKeyword || keyword.starts_with(png::rawProfileKeyword);
}

Bytes withoutLocation(ByteView file, const png::Layout& layout) {
    Bytes result;
    result.reserve(file.size());
    append(result, asBytes(png::signature));
    MetadataBlocks blocks = readMetadata(file);
    for (const png::Chunk& chunk : layout.chunks) {
        const auto text = png::text(chunk);
        const bool plainText = text && !isMetadataText(text->keyword) && !namesPlace(text->keyword);
        if (plainText || describesPixels(chunk.type) || chunk.type == "tIME" || chunk.type == "sPLT") {
            append(result, chunk.whole);
        }
        if (chunk.type != "IHDR") continue;
        const auto exif = blocks.exif ? exifWithoutLocation(*blocks.exif) : std::nullopt;
        if (exif) png::appendChunk(result, "eXIf", *exif);
        const auto packet =
            blocks.xmp ? xmp::edited(*blocks.xmp, {.withoutLocation = true, .withoutAttachments = true})
                       : std::nullopt;
        if (packet) png::appendXmp(result, *packet);
        if (blocks.iptc) {
            Bytes resources;
            photoshop::appendResource(resources, photoshop::iptcId, *blocks.iptc);
            const auto cleaned = photoshop::withoutLocation(resources);
            if (cleaned && !cleaned->empty()) png::appendRawProfile(result, "iptc", *cleaned);
        }
    }
    return result;
}

}  // namespace

std::optional<Bytes> cleanedPng(ByteView file, MetadataRemoval removal) {
    const auto layout = png::layout(file);
    if (!layout) return std::nullopt;
    // Animations are left to those who know what their frames need; so are critical chunks of a later
    // standard.
    const bool unknown = std::ranges::any_of(layout->chunks, [](const png::Chunk& chunk) {
        const bool critical = chunk.type.front() >= 'A' && chunk.type.front() <= 'Z';
        return chunk.type == "acTL" || (critical && !describesPixels(chunk.type));
    });
    if (unknown || std::ranges::find(layout->chunks, "IDAT", &png::Chunk::type) == layout->chunks.end())
        return std::nullopt;
    return removal == MetadataRemoval::everything ? withoutEverything(file, *layout)
                                                  : withoutLocation(file, *layout);
}

}  // namespace tamble
