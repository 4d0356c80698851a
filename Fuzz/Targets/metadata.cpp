// All that reads and edits metadata without decoding a picture. The first byte chooses between a whole file
// and one block that is put into a file.
#include <TambleCore/Images/Codec/Container.h>
#include <TambleCore/Images/Lossless/LosslessEdit.h>
#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>
#include <TambleCore/Images/Metadata/Containers/PngChunks.h>
#include <TambleCore/Images/Metadata/Containers/WebPChunks.h>
#include <TambleCore/Images/Metadata/Exif/TiffStructure.h>
#include <TambleCore/Images/Metadata/ReadMetadata.h>

#include <array>

#include "Property.h"
#include <exiv2/exiv2.hpp>

namespace {

using namespace tamble;
using namespace std::string_view_literals;

/// What the picture is coded in. The strips of a TIFF may move, so they are compared one after another.
Bytes codedData(ByteView file, ImageFormat format) {
    Bytes result;
    if (format == ImageFormat::jpeg) {
        for (const auto& segment : jpeg::layout(file).value_or(jpeg::Layout{}).segments) {
            if (segment.kind == jpeg::Kind::coding) append(result, segment.whole);
        }
    } else if (format == ImageFormat::png) {
        for (const auto& chunk : png::layout(file).value_or(png::Layout{}).chunks) {
            if (chunk.type == "IDAT" || chunk.type == "PLTE" || chunk.type == "tRNS")
                append(result, chunk.whole);
        }
    } else if (format == ImageFormat::webp) {
        for (const auto& chunk : webp::layout(file).value_or(webp::Layout{}).chunks) {
            if (chunk.type == "VP8L" || chunk.type == "VP8 " || chunk.type == "ALPH")
                append(result, chunk.data);
        }
    } else if (const auto structure = tiff::parsed(file)) {
        const auto parts = tiff::pictureData(*structure, structure->directories.front());
        for (const auto& part : parts.value_or(std::vector<tiff::Range>{}))
            append(result, file.subspan(part.at, part.size));
    }
    return result;
}

/// A reader that shares nothing with ours finds nothing hidden either.
void requireNothingForOthers(ByteView file, ImageFormat format) {
    try {
        const auto* const bytes = reinterpret_cast<const Exiv2::byte*>(file.data());
        const auto image = Exiv2::ImageFactory::open(bytes, file.size());
        image->readMetadata();
        fuzz::require(image->iptcData().empty(), "no IPTC is found by another reader");
        fuzz::require(image->xmpData().empty(), "no XMP is found by another reader");
        fuzz::require(image->comment().empty(), "no comment is found by another reader");
        for (const auto& datum : image->exifData()) {
            const bool describesPixels = format == ImageFormat::tiff && datum.groupName() == "Image";
            fuzz::require(describesPixels || datum.tagName() == "Orientation",
                          "no EXIF is found by another reader");
        }
    } catch (const Exiv2::Error&) {
        // It does not understand everything that decoders do.
    }
}

/// A caption can read like a property that tells a place. It makes its item fail rather than be promised free
/// of it.
bool leavesTraces(ByteView file, ImageFormat format, MetadataRemoval removal) {
    for (const std::string& trace : remainingTraces(file, format, removal)) {
        if (removal == MetadataRemoval::location && trace.starts_with("place in XMP")) continue;
        std::fprintf(stderr, "%s: %s\n", caseName(format).data(), trace.c_str());
        return true;
    }
    return false;
}

void checkCleaning(ByteView file, ImageFormat format, MetadataRemoval removal) {
    const auto cleaned = losslesslyCleaned(file, format, removal);
    if (!cleaned) return;
    fuzz::require(!leavesTraces(*cleaned, format, removal), "what should be gone is gone");
    fuzz::require(!codedData(file, format).empty(), "only a picture is cleaned");
    fuzz::require(codedData(*cleaned, format) == codedData(file, format), "the coded picture stays");
    // Damaged parts may shrink once more.
    const auto again = losslesslyCleaned(*cleaned, format, removal);
    fuzz::require(again && again->size() <= cleaned->size(), "what was cleaned can be cleaned again");
    if (removal == MetadataRemoval::everything) requireNothingForOthers(*cleaned, format);
}

void checkFile(ByteView file) {
    readMetadata(file);
    const auto container = containerOf(file, {});
    const auto format = container ? imageFormat(*container) : std::nullopt;
    if (!format) return;
    for (const auto removal : {MetadataRemoval::location, MetadataRemoval::everything}) {
        remainingTraces(file, *format, removal);
        checkCleaning(file, *format, removal);
    }
    if (format != ImageFormat::jpeg) return;
    const auto turned = losslesslyRotated(file, ImageJobSettings::Rotation::right);
    fuzz::require(!turned || jpeg::layout(*turned), "a turned JPEG can be read");
}

/// The least that counts as a picture file here, without metadata.
Bytes emptyPicture(ImageFormat format) {
    Bytes file;
    if (format == ImageFormat::jpeg) {
        append(file, asBytes("\xFF\xD8\xFF\xDA\0\x02\0\xFF\xD9"sv));
    } else if (format == ImageFormat::png) {
        append(file, asBytes(png::signature));
        png::appendChunk(file, "IHDR", asBytes("\0\0\0\1\0\0\0\1\x8\0\0\0\0"sv));
        png::appendChunk(file, "IEND", {});
    } else if (format == ImageFormat::webp) {
        append(file,
               asBytes("RIFF\x1a\0\0\0WEBPVP8L\x0d\0\0\0\x2f\0\0\0\x10\x07\x10\x11\x11\x88\x88\xfe\x07\0"sv));
    } else {
        append(file, tiff::blockWithOrientation(1));
    }
    return file;
}

void checkBlock(MetadataBlocks blocks, bool hasXmp) {
    constexpr std::array formats{ImageFormat::jpeg, ImageFormat::png, ImageFormat::webp, ImageFormat::tiff};
    for (const auto removal :
         {MetadataRemoval::nothing, MetadataRemoval::location, MetadataRemoval::everything}) {
        const MetadataBlocks carried = carriedOver(blocks, removal, 1, 1);
        for (const ImageFormat format : formats) {
            const Bytes file = withMetadata(emptyPicture(format), format, carried);
            fuzz::require(removal != MetadataRemoval::location || !leavesTraces(file, format, removal),
                          "what should be gone is gone");
            const MetadataBlocks read = readMetadata(file);
            fuzz::require(!hasXmp || format == ImageFormat::jpeg || read.xmp == carried.xmp,
                          "a packet comes back as it was");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const std::uint8_t kind = fuzz::takeByte(input);
    const ByteView bytes = std::as_bytes(input);
    switch (bytes.empty() ? 0 : kind) {
        case 'E':
            checkBlock({.exif = copied(bytes)}, false);
            break;
        case 'X':
            checkBlock({.xmp = copied(bytes)}, true);
            break;
        case 'I':
            checkBlock({.iptc = copied(bytes)}, false);
            break;
        default:
            checkFile(bytes);
    }
    return 0;
}
