#include <TambleCore/Images/Lossless/CleanContainers.h>
#include <TambleCore/Images/Metadata/Containers/WebPChunks.h>
#include <TambleCore/Images/Metadata/ReadMetadata.h>
#include <TambleCore/Images/Metadata/Text/Xmp.h>

namespace tamble {
namespace {

bool describesPixels(std::string_view type) {
    return type == "VP8X" || type == "VP8 " || type == "VP8L" || type == "ALPH" || type == "ICCP";
}

}  // namespace

std::optional<Bytes> cleanedWebP(ByteView file, MetadataRemoval removal) {
    const auto layout = webp::layout(file);
    if (!layout || layout->chunks.empty()) return std::nullopt;
    const bool hasPicture = std::ranges::any_of(layout->chunks, [](const webp::Chunk& chunk) {
        return chunk.type == "VP8 " || chunk.type == "VP8L";
    });
    if (!hasPicture) return std::nullopt;
    const webp::Chunk& first = layout->chunks.front();
    const bool extended = first.type == "VP8X" && !first.data.empty();
    if (extended && (first.data[0] & webp::animationFlag) != std::byte{0}) return std::nullopt;

    std::optional<Bytes> exif;
    std::optional<Bytes> packet;
    if (extended) {
        MetadataBlocks blocks = readMetadata(file);
        if (removal == MetadataRemoval::everything) {
            exif = exifWithOrientationOnly(blocks.exif);
        } else {
            if (blocks.exif) exif = exifWithoutLocation(*blocks.exif);
            if (blocks.xmp)
                packet = xmp::edited(*blocks.xmp, {.withoutLocation = true, .withoutAttachments = true});
        }
    }
    Bytes result;
    result.reserve(file.size());
    webp::appendStart(result);
    for (const webp::Chunk& chunk : layout->chunks) {
        if (chunk.type == "VP8X" && extended) {
            Bytes header = copied(chunk.data);
            header[0] &= ~(webp::exifFlag | webp::xmpFlag);
            if (exif) header[0] |= webp::exifFlag;
            if (packet) header[0] |= webp::xmpFlag;
            webp::appendChunk(result, chunk.type, header);
        } else if (describesPixels(chunk.type)) {
            webp::appendChunk(result, chunk.type, chunk.data);
        }
    }
    if (exif) webp::appendChunk(result, "EXIF", *exif);
    if (packet) webp::appendChunk(result, "XMP ", *packet);
    webp::finish(result);
    return result;
}

}  // namespace tamble
