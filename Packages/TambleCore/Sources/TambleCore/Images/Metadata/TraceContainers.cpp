#include <TambleCore/Images/Metadata/Containers/GifBlocks.h>
#include <TambleCore/Images/Metadata/Containers/IsoItems.h>
#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>
#include <TambleCore/Images/Metadata/Containers/PngChunks.h>
#include <TambleCore/Images/Metadata/Containers/WebPChunks.h>
#include <TambleCore/Images/Metadata/Exif/TiffStructure.h>
#include <TambleCore/Images/Metadata/TraceFinder.h>

#include <array>

namespace tamble {
namespace {

constexpr const char* unreadable = "a structure that cannot be read";

template <typename Names>
bool isAmong(const Names& names, std::string_view name) {
    return std::ranges::find(names, name) != names.end();
}

}  // namespace

void TraceFinder::jpeg(ByteView file) {
    const auto layout = jpeg::layout(file);
    if (!layout) return add(unreadable);
    for (const jpeg::Segment& segment : layout->segments) {
        switch (segment.kind) {
            case jpeg::Kind::exif:
                exif(segment.payload);
                break;
            case jpeg::Kind::xmp:
            case jpeg::Kind::extendedXmp:
                break;  // looked at together
            case jpeg::Kind::photoshop:
                addHidden("image resource blocks");
                break;
            case jpeg::Kind::comment:
                addHidden("a comment");
                break;
            case jpeg::Kind::jfif:
                if (segment.payload.size() > 9) addHidden("a thumbnail");
                break;
            case jpeg::Kind::other:
                add("application data");
                break;
            case jpeg::Kind::icc:
            case jpeg::Kind::adobe:
            case jpeg::Kind::coding:
                break;
        }
    }
    for (const auto kind : {jpeg::Kind::xmp, jpeg::Kind::extendedXmp}) {
        const Bytes text = jpeg::joined(layout->segments, kind);
        if (!text.empty()) properties(text);
    }
    const Bytes blocks = jpeg::joined(layout->segments, jpeg::Kind::photoshop);
    if (!blocks.empty()) resources(blocks);
    afterTheEnd(file, layout->end);
}

void TraceFinder::png(ByteView file) {
    const auto layout = png::layout(file);
    if (!layout) return add(unreadable);
    constexpr std::array<std::string_view, 15> harmless{"IHDR", "PLTE", "IDAT", "IEND", "tRNS",
                                                        "gAMA", "cHRM", "sRGB", "iCCP", "sBIT",
                                                        "bKGD", "pHYs", "cICP", "hIST", "eXIf"};
    for (const png::Chunk& chunk : layout->chunks) {
        if (!isAmong(harmless, chunk.type)) addHidden("chunk " + std::string(chunk.type));
        if (chunk.type == "eXIf") exif(chunk.data);
        if (chunk.type == "iCCP" && !startsWith(chunk.data, "icc")) addHidden("a profile's name");
        const auto text = png::text(chunk);
        if (!text) {
            if (chunk.type.ends_with("Xt")) add("text that cannot be read");
            continue;
        }
        const auto profile = png::rawProfile(*text);
        if (!profile && text->keyword.starts_with(png::rawProfileKeyword))
            add("a profile that cannot be read");
        if (text->keyword == png::xmpKeyword) properties(text->value);
        if (text->keyword.find("GPS") != std::string::npos) add("GPS position in text");
        if (!profile) continue;
        if (startsWith(*profile, "Exif"))
            exif(ByteView(*profile).subspan(std::min<std::size_t>(6, profile->size())));
        if (startsWith(*profile, "8BIM")) resources(*profile);
        properties(*profile);
    }
    afterTheEnd(file, layout->end);
}

void TraceFinder::webp(ByteView file) {
    const auto layout = webp::layout(file);
    if (!layout) return add(unreadable);
    constexpr std::array<std::string_view, 6> harmless{"VP8X", "VP8 ", "VP8L", "ALPH", "ICCP", "EXIF"};
    for (const webp::Chunk& chunk : layout->chunks) {
        if (chunk.type == "XMP ") {
            properties(chunk.data);
        } else if (chunk.type == "EXIF") {
            exif(startsWith(chunk.data, "Exif") && chunk.data.size() > 6 ? chunk.data.subspan(6)
                                                                         : chunk.data);
        } else if (!isAmong(harmless, chunk.type)) {
            add("chunk " + std::string(chunk.type));
        }
    }
    afterTheEnd(file, layout->end);
}

void TraceFinder::tiff(ByteView file) {
    const auto structure = tiff::parsed(file);
    if (!structure) return add(unreadable);
    const tiff::Directory& main = structure->directories.front();
    std::size_t end = 8;
    for (const tiff::Directory& directory : structure->directories) {
        end = std::max(end, directory.at + 6 + 12 * directory.entries.size());
        for (const tiff::Entry& entry : directory.entries) {
            if (entry.readable && !entry.isInline()) end = std::max(end, entry.valueAt + entry.size);
            if (std::ranges::find(tiff::tag::pixels, entry.tag) == tiff::tag::pixels.end()) {
                addHidden("tag " + std::to_string(entry.tag));
            }
            if (std::ranges::find(tiff::tag::georeference, entry.tag) != tiff::tag::georeference.end()) {
                add("a place on earth in TIFF");
            }
        }
        const auto data = tiff::pictureData(*structure, directory);
        for (const tiff::Range& part : data.value_or(std::vector<tiff::Range>{}))
            end = std::max(end, part.end());
    }
    if (structure->directories.size() > 1) addHidden("a second directory");
    afterTheEnd(file, end + end % 2);
    if (everything_ || main.entries.empty()) return;
    exif(file);
}

void TraceFinder::gif(ByteView file) {
    const auto layout = gif::layout(file);
    if (!layout) return add(unreadable);
    constexpr std::array<std::string_view, 4> harmless{"NETSCAPE2.0", "ANIMEXTS1.0", "ICCRGBG1012",
                                                       "XMP DataXMP"};
    for (const gif::Block& block : layout->blocks) {
        if (block.kind == gif::BlockKind::comment) addHidden("a comment");
        if (block.kind == gif::BlockKind::plainText) addHidden("a text");
        if (block.kind == gif::BlockKind::unknown) add("a block of unknown kind");
        if (block.kind == gif::BlockKind::application && !isAmong(harmless, block.application))
            add("application data");
        if (block.application == "XMP DataXMP") properties(block.data);
    }
    afterTheEnd(file, layout->end);
}

void TraceFinder::iso(ByteView file) {
    const auto found = iso::items(file);
    if (!found) return add(unreadable);
    constexpr std::array<std::string_view, 3> metadataTypes{"Exif", "mime", "uri "};
    for (const iso::Item& item : found->items) {
        if (item.type == "Exif") {
            const auto block = iso::exifStructure(item.data);
            if (!block) {
                add("EXIF that cannot be read");
            } else {
                exif(startsWith(*block, "Exif") ? ByteView(*block).subspan(6) : ByteView(*block));
            }
        } else if (iso::isXmp(item)) {
            properties(item.data);
        } else if (isAmong(metadataTypes, item.type)) {
            add("an item of unknown kind");
        }
    }
    constexpr std::array<std::string_view, 5> harmless{"ftyp", "meta", "mdat", "free", "skip"};
    std::size_t end = 0;
    for (const iso::Box& box : iso::boxes(file)) {
        end = static_cast<std::size_t>(box.payload.data() - file.data()) + box.payload.size();
        if (!isAmong(harmless, box.type)) add("box " + std::string(box.type));
    }
    afterTheEnd(file, end);
}

}  // namespace tamble
