#include <TambleCore/Images/Metadata/Text/Xmp.h>
#include <TambleCore/Images/Metadata/Text/XmpLibrary.h>
#include <TambleCore/Support/Text.h>

#include <array>

namespace tamble::xmp {
namespace {

constexpr std::string_view extensionName = "HasExtendedXMP";

/// The names in a property's path without their namespaces and indexes, as "LocationShown" and "City" in
/// "LocationShown[1]/Iptc4xmpExt:City".
std::vector<std::string_view> names(std::string_view path) {
    std::vector<std::string_view> result;
    while (!path.empty()) {
        std::string_view step = path.substr(0, path.find('/'));
        path.remove_prefix(std::min(step.size() + 1, path.size()));
        step.remove_prefix(std::min(step.find_first_not_of('?'), step.size()));
        const std::size_t colon = step.find(':');
        if (colon != std::string_view::npos) step.remove_prefix(colon + 1);
        result.push_back(step.substr(0, step.find('[')));
    }
    return result;
}

bool tellsLocation(const Exiv2::Xmpdatum& property) {
    const std::string path = property.tagName();
    return std::ranges::any_of(names(path), [&](std::string_view name) {
        const std::string lower = lowercased(name);
        // The address of the photographer's office has names of its own; "coverage" is Dublin Core's word for
        // place.
        return isLocationName(lower) || (lower == "coverage" && property.groupName() == "dc");
    });
}

bool isAttachment(const Exiv2::Xmpdatum& property) {
    constexpr std::array<std::string_view, 5> groups{"hdrgm", "GContainer", "Container", "HDRGainMap",
                                                     "MiCamera"};
    const std::string group = property.groupName();
    const std::string name = property.tagName();
    return std::ranges::find(groups, group) != groups.end() || name.starts_with("MotionPhoto") ||
           name.starts_with("MicroVideo");
}

bool isThumbnail(const Exiv2::Xmpdatum& property) {
    return property.tagName().starts_with("Thumbnails");
}

void makeUpright(Exiv2::XmpData& properties, const PixelSize& size) {
    const auto set = [&properties](const char* key, int value) {
        const auto found = properties.findKey(Exiv2::XmpKey(key));
        if (found != properties.end()) found->setValue(std::to_string(value));
    };
    set("Xmp.tiff.Orientation", 1);
    set("Xmp.tiff.ImageWidth", size.width);
    set("Xmp.tiff.ImageLength", size.height);
    set("Xmp.exif.PixelXDimension", size.width);
    set("Xmp.exif.PixelYDimension", size.height);
}

/// Whether the bytes hold one of the words, whatever the case. Words are lower case.
template <typename Words>
bool mentions(std::string_view lowerText, const Words& words) {
    return std::ranges::any_of(
        words, [&](std::string_view word) { return lowerText.find(word) != std::string_view::npos; });
}

/// Whether the edit could change anything: parsing is far dearer than looking.
bool isConcerned(ByteView packet, const Edit& edit) {
    constexpr std::array<std::string_view, 9> places{"gps",   "tude",     "city",   "country", "province",
                                                     "state", "location", "region", "coverage"};
    constexpr std::array<std::string_view, 5> shortPlaces{":lat", ":lon", ":alt", "sublocation", ":longt"};
    constexpr std::array<std::string_view, 6> attachments{"hdrgm",       "container",  "gainmap",
                                                          "motionphoto", "microvideo", "micamera"};
    constexpr std::array<std::string_view, 4> uprights{"orientation", "imagewidth", "dimension",
                                                       "thumbnails"};
    const std::string_view text = asText(packet);
    // Wide characters hide words from a search for bytes.
    if (text.find('\0') != std::string_view::npos) return true;
    const std::string lower = lowercased(text);
    return (edit.withoutLocation && (mentions(lower, places) || mentions(lower, shortPlaces))) ||
           (edit.withoutAttachments && mentions(lower, attachments)) ||
           (edit.upright && mentions(lower, uprights)) ||
           (edit.withoutExtension && text.find(extensionName) != std::string_view::npos);
}

}  // namespace

bool isLocationName(std::string_view name) {
    constexpr std::array<std::string_view, 18> exact{
        "city",         "state",         "country",     "countrycode",   "countryname",
        "province",     "provincestate", "location",    "locationshown", "locationcreated",
        "locationname", "locationid",    "sublocation", "worldregion",   "shotlocation",
        "lat",          "lon",           "long"};
    constexpr std::array<std::string_view, 5> parts{"gps", "latitude", "longitude", "longtitude", "altitude"};
    return std::ranges::find(exact, name) != exact.end() || mentions(name, parts);
}

std::optional<Bytes> edited(ByteView packet, const Edit& edit) {
    if (!isConcerned(packet, edit)) return copied(packet);
    auto properties = decoded(packet);
    if (!properties) return std::nullopt;
    const auto goes = [&edit](const Exiv2::Xmpdatum& property) {
        return (edit.withoutLocation && tellsLocation(property)) ||
               (edit.withoutAttachments && isAttachment(property)) ||
               (edit.withoutExtension && property.tagName() == extensionName) ||
               ((edit.upright || edit.withoutLocation) && isThumbnail(property));
    };
    bool changed = removeIf(*properties, goes);
    if (edit.upright) {
        makeUpright(*properties, *edit.upright);
        changed = true;
    }
    return changed || asText(packet).find('\0') != std::string_view::npos ? encoded(*properties)
                                                                          : copied(packet);
}

std::optional<Bytes> joined(ByteView packet, ByteView extension) {
    auto properties = decoded(packet);
    const auto more = decoded(extension);
    if (!properties || !more) return std::nullopt;
    removeIf(*properties,
             [](const Exiv2::Xmpdatum& property) { return property.tagName() == extensionName; });
    for (const Exiv2::Xmpdatum& property : *more) properties->add(property);
    return encoded(*properties);
}

std::optional<Bytes> shortened(ByteView packet, std::size_t limit) {
    auto properties = decoded(packet);
    if (!properties) return std::nullopt;
    while (!properties->empty()) {
        const auto bytes = encoded(*properties);
        if (!bytes || bytes->size() <= limit) return bytes;
        const auto largest = std::ranges::max_element(*properties, {}, &Exiv2::Xmpdatum::size);
        // A part of an array or structure goes with the whole of it.
        const std::string path = largest->tagName();
        const std::string name = path.substr(0, path.find_first_of("[/"));
        const std::string group = largest->groupName();
        removeIf(*properties, [&](const Exiv2::Xmpdatum& property) {
            const std::string other = property.tagName();
            return property.groupName() == group && other.substr(0, other.find_first_of("[/")) == name;
        });
    }
    return std::nullopt;
}

std::string extensionDigest(ByteView packet) {
    const std::string_view text = asText(packet);
    std::size_t at = text.find(extensionName);
    if (at == std::string_view::npos) return {};
    at = text.find_first_of("\"'>", at);
    if (at == std::string_view::npos || text.size() - at <= digestSize) return {};
    return std::string(text.substr(at + 1, digestSize));
}

std::optional<Bytes> assembledExtension(const std::vector<ByteView>& parts, std::string_view digest) {
    Bytes result;
    std::size_t filled = 0;
    for (const ByteView part : parts) {
        if (!startsWith(part, digest)) continue;
        const auto size = numberAt<std::uint32_t>(part, digestSize, ByteOrder::big);
        const auto offset = numberAt<std::uint32_t>(part, digestSize + 4, ByteOrder::big);
        if (!offset || *size > largestBlock) return std::nullopt;
        result.resize(*size);
        const ByteView data = part.subspan(extensionHeaderSize);
        if (!slice(result, *offset, data.size())) return std::nullopt;
        std::ranges::copy(data, result.begin() + *offset);
        filled += data.size();
    }
    if (filled == 0 || filled != result.size()) return std::nullopt;
    return result;
}

}  // namespace tamble::xmp
