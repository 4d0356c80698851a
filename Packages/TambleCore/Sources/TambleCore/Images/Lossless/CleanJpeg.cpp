#include <TambleCore/Images/Lossless/CleanContainers.h>
#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>
#include <TambleCore/Images/Metadata/Exif/TiffStructure.h>
#include <TambleCore/Images/Metadata/Text/PhotoshopResources.h>
#include <TambleCore/Images/Metadata/Text/Xmp.h>

namespace tamble {
namespace {

using jpeg::Kind;
using jpeg::Segment;

/// The JFIF header without the thumbnail that may follow it.
void appendJfif(Bytes& result, const Segment& segment) {
    // Version, units and two densities, then the thumbnail's width and height (JFIF 1.02).
    constexpr std::size_t fixedPart = 7;
    if (segment.payload.size() < fixedPart) return;
    Bytes payload = copied(segment.payload.first(fixedPart));
    payload.insert(payload.end(), 2, std::byte{0});
    jpeg::appendSegment(result, Kind::jfif, payload);
}

Bytes withoutEverything(ByteView file, const std::vector<Segment>& segments) {
    Bytes result;
    result.reserve(file.size());
    jpeg::appendStart(result);
    for (const Segment& segment : segments) {
        if (segment.kind == Kind::jfif) appendJfif(result, segment);
    }
    const auto exif = std::ranges::find(segments, Kind::exif, &Segment::kind);
    if (exif != segments.end()) {
        const auto upright = exifWithOrientationOnly(copied(exif->payload));
        if (upright) jpeg::appendSegment(result, Kind::exif, *upright);
    }
    for (const Segment& segment : segments) {
        if (segment.kind == Kind::coding || segment.kind == Kind::icc || segment.kind == Kind::adobe) {
            append(result, segment.whole);
        }
    }
    return result;
}

class LocationFilter {
  public:
    LocationFilter(ByteView file, const std::vector<Segment>& segments) : segments_(segments) {
        result_.reserve(file.size());
        jpeg::appendStart(result_);
        readExtension();
    }

    Bytes run() {
        for (const Segment& segment : segments_) filter(segment);
        return std::move(result_);
    }

  private:
    void readExtension() {
        const auto main = std::ranges::find(segments_, Kind::xmp, &Segment::kind);
        if (main == segments_.end()) return;
        digest_ = xmp::extensionDigest(main->payload);
        if (digest_.empty()) return;
        std::vector<ByteView> parts;
        for (const Segment& segment : segments_) {
            if (segment.kind == Kind::extendedXmp) parts.push_back(segment.payload);
        }
        const auto whole = xmp::assembledExtension(parts, digest_);
        if (whole) extension_ = xmp::edited(*whole, {.withoutLocation = true, .withoutAttachments = true});
    }

    void filter(const Segment& segment) {
        switch (segment.kind) {
            case Kind::exif:
                if (const auto block = exifWithoutLocation(segment.payload)) put(Kind::exif, *block);
                break;
            case Kind::xmp:
                filterXmp(segment.payload);
                break;
            case Kind::photoshop:
                filterResources();
                break;
            case Kind::jfif:
            case Kind::icc:
            case Kind::adobe:
            case Kind::comment:
            case Kind::coding:
                append(result_, segment.whole);
                break;
            case Kind::extendedXmp:
            case Kind::other:
                break;
        }
    }

    void put(Kind kind, ByteView payload) {
        if (payload.size() <= jpeg::capacity(kind)) jpeg::appendSegment(result_, kind, payload);
    }

    void filterXmp(ByteView packet) {
        auto cleaned = xmp::edited(
            packet, {.withoutLocation = true, .withoutAttachments = true, .withoutExtension = !extension_});
        if (cleaned && cleaned->size() > jpeg::capacity(Kind::xmp)) {
            cleaned = xmp::shortened(*cleaned, jpeg::capacity(Kind::xmp));
        }
        if (cleaned) put(Kind::xmp, *cleaned);
        if (extension_) putExtension();
    }

    /// The extension in parts, under the name it had: readers compare it with the main packet's reference
    /// only.
    void putExtension() {
        const std::size_t size = jpeg::capacity(Kind::extendedXmp) - xmp::extensionHeaderSize;
        for (std::size_t at = 0; at < extension_->size(); at += size) {
            Bytes part = copied(asBytes(digest_));
            appendNumber(part, static_cast<std::uint32_t>(extension_->size()), ByteOrder::big);
            appendNumber(part, static_cast<std::uint32_t>(at), ByteOrder::big);
            append(part, ByteView(*extension_).subspan(at, std::min(size, extension_->size() - at)));
            jpeg::appendSegment(result_, Kind::extendedXmp, part);
        }
        extension_.reset();
    }

    /// Resource blocks may run on from one segment to the next, so all are one.
    void filterResources() {
        if (std::exchange(resourcesDone_, true)) return;
        const auto blocks = photoshop::withoutLocation(jpeg::joined(segments_, Kind::photoshop));
        if (blocks) jpeg::appendSplit(result_, Kind::photoshop, *blocks);
    }

    const std::vector<Segment>& segments_;
    Bytes result_;
    std::string digest_;
    std::optional<Bytes> extension_;
    bool resourcesDone_ = false;
};

}  // namespace

std::optional<Bytes> cleanedJpeg(ByteView file, MetadataRemoval removal) {
    const auto layout = jpeg::layout(file);
    // A scan is the least of a picture.
    const bool hasPicture = layout && std::ranges::any_of(layout->segments, [](const Segment& segment) {
                                return segment.marker == 0xDA;
                            });
    if (!hasPicture) return std::nullopt;
    Bytes result = removal == MetadataRemoval::everything ? withoutEverything(file, layout->segments)
                                                          : LocationFilter(file, layout->segments).run();
    append(result, asBytes("\xFF\xD9"));
    return result;
}

}  // namespace tamble
