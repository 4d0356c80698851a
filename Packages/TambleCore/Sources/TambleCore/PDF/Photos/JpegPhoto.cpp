#include <TambleCore/Images/Metadata/Containers/JpegSegments.h>
#include <TambleCore/Images/Metadata/Exif/TiffStructure.h>
#include <TambleCore/PDF/Photos/Photo.h>

#include <algorithm>

namespace tamble::pdf {
namespace {

/// What a frame header tells (ITU-T T.81, B.2.2).
struct Frame {
    int precision = 0;
    int width = 0;
    int height = 0;
    int components = 0;
};

/// Baseline, extended sequential and progressive frames with Huffman coding: what /DCTDecode takes.
bool isTakenFrame(std::uint8_t marker) {
    return marker >= 0xC0 && marker <= 0xC2;
}

bool isFrame(std::uint8_t marker) {
    constexpr std::uint8_t huffmanTables = 0xC4;
    constexpr std::uint8_t reserved = 0xC8;
    constexpr std::uint8_t arithmeticTables = 0xCC;
    return marker >= 0xC0 && marker <= 0xCF && marker != huffmanTables && marker != reserved &&
           marker != arithmeticTables;
}

std::optional<Frame> frameOf(const jpeg::Layout& layout) {
    const auto found =
        std::ranges::find_if(layout.segments, [](const auto& segment) { return isFrame(segment.marker); });
    if (found == layout.segments.end() || !isTakenFrame(found->marker)) return std::nullopt;
    const ByteView header = found->payload;
    const auto precision = numberAt<std::uint8_t>(header, 0, ByteOrder::big);
    const auto height = numberAt<std::uint16_t>(header, 1, ByteOrder::big);
    const auto width = numberAt<std::uint16_t>(header, 3, ByteOrder::big);
    const auto components = numberAt<std::uint8_t>(header, 5, ByteOrder::big);
    if (!precision || !height || !width || !components) return std::nullopt;
    return Frame{*precision, *width, *height, *components};
}

const jpeg::Segment* segmentOf(const jpeg::Layout& layout, jpeg::Kind kind) {
    const auto found = std::ranges::find(layout.segments, kind, &jpeg::Segment::kind);
    return found == layout.segments.end() ? nullptr : &*found;
}

constexpr double centimetresPerInch = 2.54;

void takeResolution(Photo& photo, double x, double y, bool isPerCentimetre) {
    const double factor = isPerCentimetre ? centimetresPerInch : 1;
    photo.setResolution(x * factor, y * factor);
}

/// Behind the signature of a JFIF segment: version, unit, and both densities.
void takeJfif(Photo& photo, const jpeg::Segment& segment) {
    const auto unit = numberAt<std::uint8_t>(segment.payload, 2, ByteOrder::big);
    const auto x = numberAt<std::uint16_t>(segment.payload, 3, ByteOrder::big);
    const auto y = numberAt<std::uint16_t>(segment.payload, 5, ByteOrder::big);
    constexpr std::uint8_t perCentimetre = 2;
    if (unit && *unit != 0 && x && y) takeResolution(photo, *x, *y, *unit == perCentimetre);
}

std::optional<double> rational(const tiff::Structure& exif, std::uint16_t tag) {
    const auto* entry = exif.directories.front().find(tag);
    if (entry == nullptr || !entry->readable) return std::nullopt;
    const auto above = numberAt<std::uint32_t>(exif.value(*entry), 0, exif.order);
    const auto below = numberAt<std::uint32_t>(exif.value(*entry), 4, exif.order);
    if (!above || !below || *below == 0) return std::nullopt;
    return static_cast<double>(*above) / *below;
}

void takeExif(Photo& photo, const jpeg::Segment& segment) {
    photo.orientation = tiff::orientation(segment.payload);
    const auto exif = tiff::parsed(segment.payload);
    if (!exif || photo.resolutionX) return;
    constexpr std::uint16_t xResolution = 0x011A;
    constexpr std::uint16_t yResolution = 0x011B;
    constexpr std::uint16_t resolutionUnit = 0x0128;
    constexpr std::uint32_t perCentimetre = 3;
    const auto x = rational(*exif, xResolution);
    const auto y = rational(*exif, yResolution);
    const auto unit = exif->number(exif->directories.front(), resolutionUnit);
    if (x && y) takeResolution(photo, *x, *y, unit == perCentimetre);
}

/// The number of components that an ICC profile describes (ICC.1, 7.2.6); 0 for other kinds.
int componentsOf(ByteView profile) {
    const auto space = slice(profile, 16, 4);
    if (!space) return 0;
    if (asText(*space) == "GRAY") return 1;
    if (asText(*space) == "RGB ") return 3;
    return asText(*space) == "CMYK" ? 4 : 0;
}

/// Readers of PDFs show what there is of a picture that was cut off.
bool hasEnd(ByteView file, const jpeg::Layout& layout) {
    const auto end = asText(file).rfind("\xFF\xD9");
    const auto scan = static_cast<std::size_t>(layout.segments.back().whole.data() - file.data());
    return end != std::string_view::npos && end > scan;
}

}  // namespace

std::optional<Photo> jpegPhoto(std::shared_ptr<MappedFile> file) {
    const auto layout = jpeg::layout(file->bytes(), jpeg::Extent::untilFirstScan);
    const auto frame = layout ? frameOf(*layout) : std::nullopt;
    constexpr int samplePrecision = 8;
    if (!frame || frame->precision != samplePrecision || frame->width == 0 || frame->height == 0 ||
        !hasEnd(file->bytes(), *layout))
        return std::nullopt;
    Photo photo{
        .width = frame->width, .height = frame->height, .coding = "/BitsPerComponent 8 /Filter /DCTDecode "};
    switch (frame->components) {
        case 1:
            photo.colours = "/DeviceGray";
            break;
        case 3:
            photo.colours = "/DeviceRGB";
            break;
        case 4:
            photo.colours = "/DeviceCMYK";
            // Programs that leave this mark store their inks the other way round.
            if (segmentOf(*layout, jpeg::Kind::adobe) != nullptr)
                photo.coding += "/Decode [1 0 1 0 1 0 1 0] ";
            break;
        default:
            return std::nullopt;
    }
    if (const auto profile = jpeg::profile(layout->segments);
        profile && componentsOf(*profile) == frame->components) {
        photo.profile = PhotoProfile{.components = frame->components, .data = std::string(asText(*profile))};
    }
    if (const auto* jfif = segmentOf(*layout, jpeg::Kind::jfif)) takeJfif(photo, *jfif);
    if (const auto* exif = segmentOf(*layout, jpeg::Kind::exif)) takeExif(photo, *exif);
    photo.data = asText(file->bytes());
    photo.file = std::move(file);
    return photo;
}

}  // namespace tamble::pdf
