#include <TambleCore/Images/Lossless/LosslessEdit.h>
#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>
#include <TambleCore/Images/Metadata/Exif/EditStructure.h>
#include <TambleCore/Images/Metadata/Text/PhotoshopResources.h>
#include <TambleCore/Images/Metadata/Text/Xmp.h>

#include <array>
#include <utility>

#include <turbojpeg.h>

namespace tamble {
namespace {

using jpeg::Kind;
using jpeg::Segment;

/// Where the right and the down direction of a picture go, as a matrix of rows (a b), (c d) with y pointing
/// down.
struct Turn {
    int a = 1;
    int b = 0;
    int c = 0;
    int d = 1;

    friend bool operator==(const Turn&, const Turn&) = default;
    /// This turn after `first`.
    Turn after(const Turn& first) const {
        return {a * first.a + b * first.c, a * first.b + b * first.d, c * first.a + d * first.c,
                c * first.b + d * first.d};
    }
};

constexpr Turn none{};
constexpr Turn mirror{-1, 0, 0, 1};
constexpr Turn flip{1, 0, 0, -1};
constexpr Turn half{-1, 0, 0, -1};
constexpr Turn right{0, -1, 1, 0};
constexpr Turn left{0, 1, -1, 0};
constexpr Turn transpose{0, 1, 1, 0};
constexpr Turn transverse{0, -1, -1, 0};

/// What turns a picture stored with the EXIF orientation upright.
Turn upright(int orientation) {
    constexpr std::array<Turn, 8> turns{none, mirror, half, flip, transpose, right, transverse, left};
    return turns[static_cast<std::size_t>(orientation - 1)];
}

Turn turnOf(ImageJobSettings::Rotation rotation) {
    using Rotation = ImageJobSettings::Rotation;
    switch (rotation) {
        case Rotation::none:
            break;
        case Rotation::right:
            return right;
        case Rotation::left:
            return left;
        case Rotation::upsideDown:
            return half;
        case Rotation::flipHorizontal:
            return mirror;
        case Rotation::flipVertical:
            return flip;
    }
    return none;
}

int operation(const Turn& turn) {
    constexpr std::array<std::pair<Turn, int>, 7> operations{{{mirror, TJXOP_HFLIP},
                                                              {flip, TJXOP_VFLIP},
                                                              {half, TJXOP_ROT180},
                                                              {right, TJXOP_ROT90},
                                                              {left, TJXOP_ROT270},
                                                              {transpose, TJXOP_TRANSPOSE},
                                                              {transverse, TJXOP_TRANSVERSE}}};
    const auto* found = std::ranges::find(operations, turn, &std::pair<Turn, int>::first);
    return found == operations.end() ? TJXOP_NONE : found->second;
}

struct TurboDelete {
    void operator()(void* handle) const { tjDestroy(handle); }
};
struct TurboFree {
    void operator()(unsigned char* bytes) const { tjFree(bytes); }
};

bool isProgressive(const std::vector<Segment>& segments) {
    return std::ranges::any_of(segments,
                               [](const Segment& s) { return s.marker == 0xC2 || s.marker == 0xCA; });
}

/// The coded picture turned, with no metadata; empty when it cannot be done to the last pixel.
std::optional<Bytes> transformed(ByteView picture, const Turn& turn, bool progressive) {
    const std::unique_ptr<void, TurboDelete> handle(tjInitTransform());
    if (!handle) return std::nullopt;
    tjtransform transform{};
    transform.op = operation(turn);
    transform.options = TJXOPT_PERFECT | TJXOPT_COPYNONE | (progressive ? TJXOPT_PROGRESSIVE : 0);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    const int answer = tjTransform(handle.get(), reinterpret_cast<const unsigned char*>(picture.data()),
                                   picture.size(), 1, &bytes, &size, &transform, TJFLAG_STOPONWARNING);
    const std::unique_ptr<unsigned char, TurboFree> owner(bytes);
    if (answer != 0) return std::nullopt;
    const auto view = std::as_bytes(std::span(bytes, size));
    return Bytes(view.begin(), view.end());
}

std::optional<tiff::Edit::PixelSize> frameSize(const std::vector<Segment>& segments) {
    for (const Segment& segment : segments) {
        const bool isFrame = segment.marker >= 0xC0 && segment.marker <= 0xCF && segment.marker != 0xC4 &&
                             segment.marker != 0xC8 && segment.marker != 0xCC;
        if (!isFrame) continue;
        const auto height = numberAt<std::uint16_t>(segment.payload, 1, ByteOrder::big);
        const auto width = numberAt<std::uint16_t>(segment.payload, 3, ByteOrder::big);
        if (width && height) return tiff::Edit::PixelSize{*width, *height};
    }
    return std::nullopt;
}

/// Whether a segment speaks of other pictures behind the picture's end: the index of a multi-picture file, or
/// a gain map's parameters.
bool pointsBehindTheEnd(const Segment& segment) {
    return segment.marker == 0xE2 &&
           (startsWith(segment.payload, "MPF") || startsWith(segment.payload, "urn:iso:std:"));
}

void appendMetadata(Bytes& result, const std::vector<Segment>& segments, tiff::Edit::PixelSize size) {
    bool resourcesDone = false;
    for (const Segment& segment : segments) {
        if (segment.kind == Kind::exif) {
            const auto block = tiff::edited(segment.payload, {.withoutThumbnail = true, .upright = size});
            if (block && block->size() <= jpeg::capacity(Kind::exif))
                jpeg::appendSegment(result, Kind::exif, *block);
        } else if (segment.kind == Kind::xmp) {
            const auto packet =
                xmp::edited(segment.payload,
                            {.withoutAttachments = true, .upright = xmp::PixelSize{size.width, size.height}});
            const std::size_t limit = jpeg::capacity(Kind::xmp);
            const auto fitting = packet && packet->size() > limit ? xmp::shortened(*packet, limit) : packet;
            if (fitting && fitting->size() <= limit) jpeg::appendSegment(result, Kind::xmp, *fitting);
        } else if (segment.kind == Kind::photoshop) {
            if (std::exchange(resourcesDone, true)) continue;
            const auto blocks = photoshop::withoutThumbnail(jpeg::joined(segments, Kind::photoshop));
            if (blocks) jpeg::appendSplit(result, Kind::photoshop, *blocks);
        } else if (segment.kind != Kind::coding && !pointsBehindTheEnd(segment) &&
                   !startsWith(segment.payload, "JFXX")) {
            append(result, segment.whole);
        }
    }
}

}  // namespace

std::optional<Bytes> losslesslyRotated(ByteView jpeg, ImageJobSettings::Rotation rotation) {
    const auto source = jpeg::layout(jpeg);
    if (!source) return std::nullopt;
    const auto exif = std::ranges::find(source->segments, Kind::exif, &Segment::kind);
    const int orientation = exif == source->segments.end() ? 1 : tiff::orientation(exif->payload);
    const Turn turn = turnOf(rotation).after(upright(orientation));
    const auto turned = transformed(jpeg.first(source->end), turn, isProgressive(source->segments));
    const auto coded = turned ? jpeg::layout(*turned) : std::nullopt;
    const auto size = coded ? frameSize(coded->segments) : std::nullopt;
    if (!size) return std::nullopt;
    Bytes result;
    result.reserve(jpeg.size());
    jpeg::appendStart(result);
    appendMetadata(result, source->segments, *size);
    for (const Segment& segment : coded->segments) {
        if (segment.kind == Kind::coding) append(result, segment.whole);
    }
    append(result, asBytes("\xFF\xD9"));
    return result;
}

}  // namespace tamble
